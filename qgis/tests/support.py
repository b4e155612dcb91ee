"""A headless QGIS, and documents as the JSON of mxdinfo describes them."""

from __future__ import annotations

import json
import os
import sys
import tempfile
import unittest
from typing import Any, Optional

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(ROOT, "qgis"))

import numpy  # noqa: E402

from qgis.core import (  # noqa: E402
    QgsApplication,
    QgsFillSymbol,
    QgsLineSymbol,
    QgsMapSettings,
    QgsProject,
    QgsRenderContext,
    QgsSymbol,
    QgsVectorLayer,
)
from qgis.PyQt.QtCore import QPointF, QSize, Qt  # noqa: E402
from qgis.PyQt.QtGui import QImage, QPainter, QPolygonF  # noqa: E402

from arcmap_documents.conversion import FileNames, Options, Result, convert_document  # noqa: E402
from arcmap_documents.losses import Losses  # noqa: E402
from arcmap_documents.project import Builder  # noqa: E402
from arcmap_documents.reader import (  # noqa: E402
    Document,
    Layer,
    LegendClass,
    Map,
    Renderer,
    Source,
    document_of,
)
from arcmap_documents.sources import Places  # noqa: E402

MXDINFO = os.environ.get("MXDINFO", "mxdinfo")
SAMPLE = os.path.join(ROOT, "examples", "sample.mxd")
GOLDEN = os.path.join(ROOT, "tests", "golden")
SHARED = os.path.join(ROOT, os.pardir, "shared")

# One for all tests: QGIS cannot be started twice.
APPLICATION = QgsApplication([], False)
APPLICATION.initQgis()

RED = {"rgb": "#ff0000", "off": False, "dither": False, "model": "rgb"}
_MARKER = {"color": RED, "size": 8.0, "angle": 0.0, "offset_x": 0.0, "offset_y": 0.0}
_DEFAULTS: dict[str, dict[str, Any]] = {
    "simple_marker": {**_MARKER, "style": "circle", "outline": False, "outline_color": None},
    "arrow_marker": {**_MARKER, "width": 6.0},
    "simple_line": {"style": "solid", "color": RED, "width": 2.0},
    "simple_fill": {"color": RED, "outline": None},
    "line_fill": {"angle": 0.0, "offset": 0.0, "outline": None},
}


def symbol(kind: str, **fields: Any) -> dict[str, Any]:
    """A symbol as JSON has it, with the given fields."""
    return {"kind": kind, "enabled": True, **_DEFAULTS.get(kind, {"layers": []}), **fields}


def pixels_of(image: QImage) -> Any:
    """Rows of pixels as red, green and blue."""
    plain = image.convertToFormat(QImage.Format.Format_RGB32)
    bits = plain.constBits()
    bits.setsize(plain.sizeInBytes())
    rows = numpy.frombuffer(bits, numpy.uint8).reshape(plain.height(), plain.width(), 4)
    return rows[..., 2::-1].astype(int)


def drawn(
    made: QgsSymbol, points: list[tuple[float, float]], size: QSize, scale: int = 1
) -> QImage:
    """The symbol at a point, along a line or over an area. Size and points are in points of the
    page, each of as many pixels as the scale says."""
    image = QImage(size * scale, QImage.Format.Format_ARGB32)
    image.fill(Qt.GlobalColor.white)
    painter = QPainter(image)
    settings = QgsMapSettings()
    settings.setOutputDpi(72 * scale)
    settings.setOutputSize(image.size())
    context = QgsRenderContext.fromMapSettings(settings)
    context.setPainter(painter)
    painter.setRenderHint(QPainter.RenderHint.Antialiasing)
    made.startRender(context)
    shape = QPolygonF([QPointF(x * scale, y * scale) for x, y in points])
    if isinstance(made, QgsFillSymbol):
        made.renderPolygon(shape, None, None, context)
    elif isinstance(made, QgsLineSymbol):
        made.renderPolyline(shape, None, context)
    else:
        made.renderPoint(shape[0], None, context)
    made.stopRender(context)
    painter.end()
    return image


def document(name: str, arial: str = "Arial") -> Document:
    """From the golden JSON of mxdinfo, with another font in the place of Arial."""
    with open(os.path.join(GOLDEN, "mxdinfo", f"{name}.json"), encoding="utf-8") as file:
        return document_of(json.loads(file.read().replace('"Arial"', f'"{arial}"')))


def feature_layer(name: str, renderer: Renderer, **fields: Any) -> Layer:
    """A layer whose data is missing, of the geometry that its first symbol needs."""
    kind = renderer.classes[0].symbol["kind"].rsplit("_", 1)[1]  # type: ignore[index]
    geometry = {"marker": "point", "line": "polyline", "fill": "polygon"}[kind]
    source = Source("shapefile", None, "C:\\gone", None, name, f"C:\\gone\\{name}.shp")
    return Layer("feature", name, source=source, geometry=geometry, renderer=renderer, **fields)


def simple(drawn_with: dict[str, Any]) -> Renderer:
    return Renderer("simple", classes=[LegendClass(symbol=drawn_with)])


def classes(*sizes: float, **fields: Any) -> list[LegendClass]:
    symbols = [symbol("simple_marker", size=size) for size in sizes]
    return [LegendClass(label=f"{each['size']:g}", symbol=each, **fields) for each in symbols]


class Case(unittest.TestCase):
    def setUp(self) -> None:
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.addCleanup(QgsProject.instance().clear)
        self.folder = scratch.name
        self.losses = Losses()

    def convert(self, document: str, places: Optional[Places] = None, **options: Any) -> Result:
        chosen = Options(MXDINFO, places or Places(), **options)
        result = convert_document(document, FileNames().stem_for(document, self.folder), chosen)
        self.assertEqual("", result.error)
        return result

    def reopened(self, document: str, places: Optional[Places] = None) -> QgsProject:
        """The project of a document, as QGIS reads it from its file."""
        result = self.convert(document, places)
        project = QgsProject.instance()
        self.assertTrue(project.read(result.project))
        return project

    def save_and_reopen(self, document: Document, places: Places) -> None:
        """Makes the project of the document the one that QGIS has open, read from its file."""
        project, document.path = QgsProject(), os.path.join(self.folder, "saved.mxd")
        Builder(project, document, places, self.losses).build()
        self.assertTrue(project.write(f"{document.path}.qgz"))
        project.clear()
        self.assertTrue(QgsProject.instance().read(f"{document.path}.qgz"))

    def layer(self, project: QgsProject, name: str) -> QgsVectorLayer:
        return project.mapLayersByName(name)[0]
