"""Projects as QGIS reads them back from their files: tests/golden/qgis has all that they hold."""

from __future__ import annotations

import os
import re
import unittest
from typing import Iterator
from unittest import mock

from support import GOLDEN, Case, classes, document, feature_layer

from qgis.core import (
    QgsApplication,
    QgsCategorizedSymbolRenderer,
    QgsFeatureRenderer,
    QgsGraduatedSymbolRenderer,
    QgsLayerTreeLayer,
    QgsLayerTreeNode,
    QgsMapLayer,
    QgsProject,
    QgsSymbol,
    QgsVectorLayer,
)

from arcmap_documents.losses import Losses
from arcmap_documents.reader import Document, Map, Renderer
from arcmap_documents.sources import Places


def indented(lines: Iterator[str]) -> Iterator[str]:
    return ("  " + line for line in lines)


def rounded(text: str) -> str:
    return re.sub(r"-?\d+\.\d{5,}", lambda match: f"{round(float(match[0]), 4) + 0.0:g}", text)


def of_symbol(symbol: QgsSymbol) -> Iterator[str]:
    """The properties of each layer, the bottom one first, that are not those of a new one."""
    for layer in symbol.symbolLayers():
        kind = layer.layerType()
        metadata = QgsApplication.symbolLayerRegistry().symbolLayerMetadata(kind)
        usual = metadata.createSymbolLayer({}).properties()
        found = {key: value for key, value in layer.properties().items() if usual.get(key) != value}
        state = "" if layer.enabled() else " (off)"
        yield f"{kind}{state}: " + ", ".join(
            f"{key} {rounded(found[key])}" for key in sorted(found)
        )
        if layer.subSymbol():
            yield from indented(of_symbol(layer.subSymbol()))


def of_renderer(renderer: QgsFeatureRenderer) -> Iterator[str]:
    if renderer.orderByEnabled():
        yield f"order: {renderer.orderBy().dump()}"
    if isinstance(renderer, QgsCategorizedSymbolRenderer):
        entries = [(each, str(each.value())) for each in renderer.categories()]
    elif isinstance(renderer, QgsGraduatedSymbolRenderer):
        entries = [(e, f"{e.lowerValue()!r} to {e.upperValue()!r}") for e in renderer.ranges()]
    else:
        yield from of_symbol(renderer.symbol())
        return
    yield f"by {renderer.classAttribute()}"
    for entry, values in entries:
        yield f"class {values}: {entry.label()}"
        yield from indented(of_symbol(entry.symbol()))


def of_labels(layer: QgsVectorLayer) -> Iterator[str]:
    if layer.labeling():
        settings = layer.labeling().settings()
        text = settings.format()
        yield (
            f"labels{'' if layer.labelsEnabled() else ' (off)'}: {settings.fieldName} in"
            f" {text.font().family()}, {text.size()} of unit {text.sizeUnit()}, {text.color().name()}"
        )


def of_layer(layer: QgsMapLayer) -> Iterator[str]:
    yield f"{layer.providerType()}: {layer.source()}"
    facts = [layer.crs().authid()]
    if layer.hasScaleBasedVisibility():
        facts.append(f"1:{layer.minimumScale()} to 1:{layer.maximumScale()}")
    if isinstance(layer, QgsVectorLayer):
        facts += [
            f"geometry {layer.geometryType()}",
            layer.subsetString(),
            layer.displayExpression(),
        ]
    yield ", ".join(filter(None, facts))
    if isinstance(layer, QgsVectorLayer):
        yield from of_labels(layer)
        yield from of_renderer(layer.renderer())


def of_node(node: QgsLayerTreeNode) -> Iterator[str]:
    yield node.name() + ("" if node.itemVisibilityChecked() else " (off)")
    if isinstance(node, QgsLayerTreeLayer):
        yield from indented(of_layer(node.layer()))
    for child in node.children():
        yield from indented(of_node(child))


def of_project(project: QgsProject) -> Iterator[str]:
    author = project.metadata().author()
    yield f"project '{project.title()}' by '{author}' in '{project.crs().authid()}'"
    view = project.viewSettings().defaultViewExtent()
    yield f"view of {view.toString(3)} in {view.crs().authid()}"
    themes = project.mapThemeCollection()
    for theme in themes.mapThemes():
        yield f"theme {theme}: " + ", ".join(
            each.name() for each in themes.mapThemeVisibleLayers(theme)
        )
    for child in project.layerTreeRoot().children():
        yield from of_node(child)


class Golden(Case):
    def check(self, name: str, described: Document) -> None:
        self.losses = Losses()
        # Elsewhere there are other fonts.
        with mock.patch("arcmap_documents.markers.installed", lambda font: False):
            self.save_and_reopen(described, Places())
        lines = [*of_project(QgsProject.instance()), *(loss.text() for loss in self.losses.all())]
        text = "".join(f"{line}\n" for line in lines)
        # QGIS chooses them where the document states none.
        text = re.sub(r"(: \w+_color) [\d,]+\n", r"\1 of QGIS\n", text)
        text = re.sub(r" in (?!DejaVu Sans,)[^,\n]*,", " in the font of QGIS,", text)
        path = os.path.join(GOLDEN, "qgis", f"{name}.txt")
        if "VQK_WRITE_GOLDEN" in os.environ:
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        with open(path, encoding="utf-8") as file:
            self.assertEqual(file.read(), text)

    def test_documents(self) -> None:
        for name in ("document", "facts"):
            with self.subTest(name):
                self.check(name, document(name, arial="DejaVu Sans"))

    def test_symbols(self) -> None:
        """Each symbol of the gallery in a layer of its own."""
        gallery = document("gallery")
        (layer,) = gallery.maps[0].layers
        gallery.maps[0].layers = [
            feature_layer(entry.label, Renderer(classes=[entry]))
            for entry in layer.renderer.classes
            if entry.symbol
        ]
        self.check("gallery", gallery)

    def test_values_and_ranges(self) -> None:
        values = classes(1, 2, 3, heading="Kind")
        values[0].values, values[1].values = [["a", "1"], ["b", "1"]], [["c", "2"]]
        values[2].all_other_values = True
        breaks = classes(9, 5)
        breaks[0].min, breaks[0].max, breaks[1].min, breaks[1].max = 10.5, 20.0, 0.0, 10.0
        layers = [
            feature_layer("values", Renderer("unique_values", ["t", "u"], None, values)),
            feature_layer("ranges", Renderer("class_breaks", ["n"], "d", breaks)),
        ]
        self.check("renderers", Document(maps=[Map("Map", layers=layers)]))


if __name__ == "__main__":
    unittest.main()
