"""SLD files as MapServer draws them."""

from __future__ import annotations

import os
import unittest
from typing import Any

from support import RED, Case, pixels_of, simple, symbol

from qgis.core import QgsFeature, QgsGeometry, QgsProject, QgsVectorFileWriter, QgsVectorLayer
from qgis.PyQt.QtGui import QImage

from arcmap_documents.reader import LegendClass, Renderer
from arcmap_documents.renderers import renderer_of
from arcmap_documents.sld import save_sld

try:
    import mapscript
except ImportError:
    mapscript = None

COLORS = {"r": (255, 0, 0), "g": (0, 255, 0), "b": (0, 0, 255), " ": (255, 255, 255)}
# The shapes of three features in a row, what is drawn with, and its type in MapServer.
KINDS: dict[str, tuple[str, str, dict[str, Any], int]] = {
    "point": ("Point({1} 2)", "simple_marker", {"size": 20.0}, 0),
    "polyline": ("LineString({0} 2,{2} 2)", "simple_line", {"width": 5.0}, 1),
    "polygon": ("Polygon(({0} 1,{2} 1,{2} 3,{0} 3,{0} 1))", "simple_fill", {}, 2),
}


def classes(kind: str, *entries: dict[str, Any]) -> list[LegendClass]:
    """In red, green and blue."""
    _, drawn_with, fields, _ = KINDS[kind]
    colors = [{**RED, "rgb": rgb} for rgb in ("#ff0000", "#00ff00", "#0000ff")]
    return [
        LegendClass(symbol=symbol(drawn_with, color=color, **fields), **entry)
        for color, entry in zip(colors, entries)
    ]


@unittest.skipIf(mapscript is None, "MapServer is not installed")
class Drawn(Case):
    def data(self, kind: str) -> QgsVectorLayer:
        """A shapefile with the numbers 0, 1 and 2, and the texts a, b and c."""
        shape = KINDS[kind][0]
        geometry = shape.split("(")[0]
        fields = "field=n:double&field=t:string(9)&crs=EPSG:3857"
        memory = QgsVectorLayer(f"{geometry}?{fields}", kind, "memory")
        for index in range(3):
            feature = QgsFeature(memory.fields())
            feature.setAttributes([float(index), "abc"[index]])
            x = 10 * index + 2
            feature.setGeometry(QgsGeometry.fromWkt(shape.format(x, x + 3, x + 6)))
            memory.dataProvider().addFeatures([feature])
        options = QgsVectorFileWriter.SaveVectorOptions()
        options.driverName = "ESRI Shapefile"
        path = os.path.join(self.folder, f"{kind}.shp")
        context = QgsProject.instance().transformContext()
        QgsVectorFileWriter.writeAsVectorFormatV3(memory, path, context, options)
        return QgsVectorLayer(path, kind, "ogr")

    def colors(self, kind: str, renderer: Renderer) -> str:
        """Of the features, from left to right."""
        layer = self.data(kind)
        layer.setRenderer(renderer_of(renderer, kind, layer.fields(), self.losses))
        path = os.path.join(self.folder, f"{kind}.sld")
        self.assertEqual("", save_sld(layer, kind, renderer, path, self.losses))
        drawing = mapscript.mapObj()
        drawing.setSize(300, 40)
        drawing.setExtent(0, 0, 30, 4)
        drawing.imagecolor.setRGB(255, 255, 255)
        drawn = mapscript.layerObj(drawing)
        drawn.name, drawn.data, drawn.type = kind, layer.source(), KINDS[kind][3]
        drawn.status = mapscript.MS_ON
        drawing.selectOutputFormat("png")
        with open(path, encoding="utf-8") as file:
            drawn.applySLD(file.read(), kind)
        picture = os.path.join(os.environ.get("PICTURES", self.folder), f"{kind}.png")
        drawing.draw().save(picture)
        pixels = pixels_of(QImage(picture))
        found = [tuple(pixels[20, 50 + 100 * index]) for index in range(3)]
        names = {color: name for name, color in COLORS.items()}
        return "".join(names.get(color, "?") for color in found)

    def test_renderers_in_every_geometry(self) -> None:
        for kind, (_, drawn_with, fields, _) in KINDS.items():
            a, b, c = {"values": [["a"]]}, {"values": [["b"]]}, {"values": [["c"]]}
            others: dict[str, Any] = {"all_other_values": True}
            several = {"values": [["c", "2"], ["a", "0"], ["b", "7"]]}
            ranges = [{"min": at - 0.5, "max": at + 0.5} for at in (0.0, 1.0, 2.0)]
            cases = [
                (simple(symbol(drawn_with, **fields)), "rrr"),
                (Renderer("unique_values", ["t"], None, classes(kind, a, b, c)), "rgb"),
                (Renderer("unique_values", ["t"], None, classes(kind, others, b)), "rgr"),
                (Renderer("unique_values", ["t"], None, classes(kind, b, a)), "gr "),
                (Renderer("unique_values", ["n"], None, classes(kind, {"values": [["2"]]})), "  r"),
                (Renderer("unique_values", ["t", "n"], None, classes(kind, several)), "r r"),
                (Renderer("class_breaks", ["n"], None, classes(kind, *ranges)), "rgb"),
            ]
            for number, (renderer, expected) in enumerate(cases):
                with self.subTest(kind=kind, number=number):
                    self.assertEqual(expected, self.colors(kind, renderer))

    def test_what_is_not_said(self) -> None:
        layer = self.data("point")
        breaks = classes("point", {"min": 0.0, "max": 1.0}, {"min": 1.0, "max": 2.0})
        renderer = Renderer("class_breaks", ["n"], "n", breaks)
        layer.setRenderer(renderer_of(renderer, "point", layer.fields(), self.losses))
        layer.setSubsetString("n > 1")
        save_sld(layer, "point", renderer, os.path.join(self.folder, "a.sld"), self.losses)
        arrow = simple(symbol("arrow_marker"))
        layer.setRenderer(renderer_of(arrow, "point", layer.fields(), self.losses))
        save_sld(layer, "point", arrow, os.path.join(self.folder, "a.sld"), self.losses)
        found = [loss.what for loss in self.losses.all()]
        self.assertEqual(["normalization", "definition query", "arrow marker"], found)


if __name__ == "__main__":
    unittest.main()
