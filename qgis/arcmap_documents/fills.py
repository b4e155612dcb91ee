"""Fill symbols."""

from __future__ import annotations

from typing import Optional

from qgis.core import (
    QgsFillSymbol,
    QgsLinePatternFillSymbolLayer,
    QgsPointPatternFillSymbolLayer,
    QgsRandomMarkerFillSymbolLayer,
    QgsSimpleFillSymbolLayer,
    QgsSymbolLayer,
)
from qgis.PyQt.QtCore import Qt
from qgis.PyQt.QtGui import QColor

from .lines import is_dashed, is_stroked, line, line_layers
from .losses import Losses
from .markers import marker
from .reader import Symbol
from .stack import Makers, fill_in, layers_of
from .units import in_points, is_drawn, length, number, qcolor

# Patterns closer than this are misread, and would take forever to draw.
CLOSEST = 0.5


def _area(color: QColor) -> QgsSimpleFillSymbolLayer:
    layer = QgsSimpleFillSymbolLayer(color)
    layer.setBrushStyle(Qt.BrushStyle.SolidPattern if color.alpha() else Qt.BrushStyle.NoBrush)
    layer.setStrokeStyle(Qt.PenStyle.NoPen)
    return layer


def _outline(symbol: Optional[Symbol], losses: Losses) -> list[QgsSymbolLayer]:
    return line_layers(symbol, losses) if symbol is not None else []


def _simple(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer, outline = _area(qcolor(symbol["color"])), symbol["outline"]
    if outline is None or outline["kind"] != "simple_line" or is_dashed(outline):
        return [layer, *_outline(outline, losses)]
    if is_stroked(outline):
        layer.setStrokeColor(qcolor(outline["color"]))
        in_points(layer, StrokeWidth=length(outline["width"]))
        layer.setStrokeStyle(Qt.PenStyle.SolidLine)
        layer.setPenJoinStyle(Qt.PenJoinStyle.RoundJoin)
    return [layer]


def _lines(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer = QgsLinePatternFillSymbolLayer()
    layer.setLineAngle(number(symbol["angle"]))
    separation = max(length(symbol["separation"]), CLOSEST)
    in_points(layer, Distance=separation, Offset=number(symbol["offset"]))
    layer.setSubSymbol(line(symbol["pattern"], losses))
    return [layer, *_outline(symbol["outline"], losses)]


def _markers(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    step_x = max(length(symbol["separation_x"]), 2 * CLOSEST)
    step_y = max(length(symbol["separation_y"]), 2 * CLOSEST)
    layer: QgsSymbolLayer
    if symbol["random"]:
        layer = QgsRandomMarkerFillSymbolLayer(1, QgsRandomMarkerFillSymbolLayer.DensityBasedCount)
        in_points(layer, DensityArea=step_x * step_y)
        layer.setSeed(1)
        layer.setClipPoints(True)
    else:
        layer = QgsPointPatternFillSymbolLayer()
        right, up = number(symbol["offset_x"]) % step_x, number(symbol["offset_y"]) % step_y
        in_points(layer, DistanceX=step_x, DistanceY=step_y, OffsetX=right, OffsetY=up)
    layer.setSubSymbol(marker(symbol["marker"], losses))
    return [layer, *_outline(symbol["outline"], losses)]


def _picture(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    losses.add("picture of a fill", "it is not read, and a pattern of its color is drawn instead")
    drawn = [each for each in symbol["colors"] if is_drawn(each) and each["rgb"] != "#ffffff"]
    layer = _area(qcolor(drawn[0]) if drawn else QColor(150, 150, 150))
    layer.setBrushStyle(Qt.BrushStyle.Dense4Pattern)
    return [layer, *_outline(symbol["outline"], losses)]


_MAKERS: Makers = {
    "simple_fill": _simple,
    "line_fill": _lines,
    "marker_fill": _markers,
    "picture_fill": _picture,
}


def fill(symbol: Optional[Symbol], losses: Losses) -> QgsFillSymbol:
    return fill_in(QgsFillSymbol(), layers_of(symbol, _MAKERS, losses))
