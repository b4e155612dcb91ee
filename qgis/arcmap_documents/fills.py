"""Fill symbols."""

from __future__ import annotations

from typing import Callable, Optional

from qgis.core import (
    QgsFillSymbol,
    QgsLinePatternFillSymbolLayer,
    QgsPointPatternFillSymbolLayer,
    QgsRandomMarkerFillSymbolLayer,
    QgsSimpleFillSymbolLayer,
    QgsSymbolLayer,
    QgsUnitTypes,
)
from qgis.PyQt.QtCore import Qt
from qgis.PyQt.QtGui import QColor

from .lines import line, line_layers, pen_style
from .losses import Losses
from .markers import fill_in, marker
from .reader import Symbol
from .units import POINTS, is_drawn, length, number, qcolor

# Patterns closer than this are misread, and would take forever to draw.
CLOSEST = 0.5


def _area(color: QColor) -> QgsSimpleFillSymbolLayer:
    layer = QgsSimpleFillSymbolLayer(color)
    layer.setBrushStyle(Qt.SolidPattern if color.alpha() else Qt.NoBrush)
    layer.setStrokeStyle(Qt.NoPen)
    layer.setStrokeWidthUnit(POINTS)
    return layer


def _outline(symbol: Optional[Symbol], losses: Losses) -> list[QgsSymbolLayer]:
    return line_layers(symbol, losses) if symbol is not None else []


def _simple(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer, outline = _area(qcolor(symbol["color"])), symbol["outline"]
    if outline is None or outline["kind"] != "simple_line":
        return [layer, *_outline(outline, losses)]
    if is_drawn(outline["color"]) and length(outline["width"]) > 0:
        layer.setStrokeColor(qcolor(outline["color"]))
        layer.setStrokeWidth(length(outline["width"]))
        layer.setStrokeStyle(pen_style(outline["style"]))
        layer.setPenJoinStyle(Qt.RoundJoin)
    return [layer]


def _lines(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer = QgsLinePatternFillSymbolLayer()
    layer.setLineAngle(number(symbol["angle"]))
    layer.setDistance(max(length(symbol["separation"]), CLOSEST))
    layer.setDistanceUnit(POINTS)
    layer.setOffset(number(symbol["offset"]))
    layer.setOffsetUnit(POINTS)
    layer.setSubSymbol(line(symbol["pattern"], losses))
    return [layer, *_outline(symbol["outline"], losses)]


def _markers(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    step_x = max(length(symbol["separation_x"]), 2 * CLOSEST)
    step_y = max(length(symbol["separation_y"]), 2 * CLOSEST)
    layer: QgsSymbolLayer
    if symbol["random"]:
        layer = QgsRandomMarkerFillSymbolLayer(1, QgsRandomMarkerFillSymbolLayer.DensityBasedCount)
        layer.setDensityArea(step_x * step_y)
        layer.setDensityAreaUnit(QgsUnitTypes.RenderPoints)
        layer.setSeed(1)
        layer.setClipPoints(True)
    else:
        layer = QgsPointPatternFillSymbolLayer()
        layer.setDistanceX(step_x)
        layer.setDistanceXUnit(POINTS)
        layer.setDistanceY(step_y)
        layer.setDistanceYUnit(POINTS)
        layer.setOffsetX(number(symbol["offset_x"]) % step_x)
        layer.setOffsetXUnit(POINTS)
        layer.setOffsetY(number(symbol["offset_y"]) % step_y)
        layer.setOffsetYUnit(POINTS)
    layer.setSubSymbol(marker(symbol["marker"], losses))
    return [layer, *_outline(symbol["outline"], losses)]


def _picture(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    losses.add("picture of a fill", "it is not read, and a pattern of its color is drawn instead")
    drawn = [each for each in symbol["colors"] if is_drawn(each) and each["rgb"] != "#ffffff"]
    layer = _area(qcolor(drawn[0]) if drawn else QColor(150, 150, 150))
    layer.setBrushStyle(Qt.Dense4Pattern)
    return [layer, *_outline(symbol["outline"], losses)]


_MAKERS: dict[str, Callable[[Symbol, Losses], list[QgsSymbolLayer]]] = {
    "simple_fill": _simple,
    "line_fill": _lines,
    "marker_fill": _markers,
    "picture_fill": _picture,
}


def fill_layers(symbol: Optional[Symbol], losses: Losses) -> list[QgsSymbolLayer]:
    """The bottom one first, as QGIS has them."""
    if symbol is None:
        losses.add("symbol", "it could not be read, and nothing is drawn for it")
        return []
    if symbol["kind"] == "multilayer_fill":
        layers = []
        for each in reversed(symbol["layers"]):
            made = fill_layers(each, losses)
            for layer in made:
                layer.setEnabled(layer.enabled() and each["enabled"])
            layers += made
        return layers
    return _MAKERS[symbol["kind"]](symbol, losses)


def fill(symbol: Optional[Symbol], losses: Losses) -> QgsFillSymbol:
    return fill_in(QgsFillSymbol(), fill_layers(symbol, losses))
