"""Marker symbols."""

from __future__ import annotations

from typing import Optional

from qgis.core import (
    QgsEllipseSymbolLayer,
    QgsFontMarkerSymbolLayer,
    QgsMarkerSymbol,
    QgsMarkerSymbolLayer,
    QgsSimpleMarkerSymbolLayer,
    QgsSymbolLayer,
)
from qgis.PyQt.QtCore import QPointF, Qt
from qgis.PyQt.QtGui import QColor, QFont, QFontInfo, QFontMetricsF

from .losses import Losses
from .reader import Symbol
from .stack import Makers, fill_in, layers_of
from .units import POINTS, in_points, is_drawn, length, number, offset, qcolor

Shape = QgsSimpleMarkerSymbolLayer
# A cross and an x are lines, whatever the outline.
STROKE_WIDTH = 1.0
BOLD = 600

_STYLES = {
    "circle": Shape.Circle,
    "square": Shape.Square,
    "cross": Shape.Cross,
    "x": Shape.Cross2,
    "diamond": Shape.Diamond,
}

_SHAPES = {
    "circle": Shape.Circle,
    "square": Shape.Square,
    "triangle": Shape.EquilateralTriangle,
    "pentagon": Shape.Pentagon,
    "hexagon": Shape.Hexagon,
    "octagon": Shape.Octagon,
    "star": Shape.Star,
}


def _place(
    layer: QgsMarkerSymbolLayer, symbol: Symbol, turned: float = 0.0, raised: float = 0.0
) -> None:
    """Angle and offset. The unrotated shape is turned clockwise by an angle, and raised."""
    angle = turned - number(symbol["angle"])
    layer.setAngle(angle)
    place = offset(symbol["offset_x"], symbol["offset_y"], angle)
    layer.setOffset(place - QPointF(0.0, raised))
    layer.setOffsetUnit(POINTS)


def _shape(
    shape: object, size: float, fill: QColor, stroke: QColor, width: float
) -> QgsSimpleMarkerSymbolLayer:
    """Without a stroke where its width is 0. A stroke runs along the edge, half of it outside, in
    ArcMap as in QGIS."""
    layer = Shape(shape)
    in_points(layer, Size=size, StrokeWidth=width)
    layer.setColor(fill)
    layer.setStrokeColor(stroke)
    layer.setPenJoinStyle(Qt.PenJoinStyle.MiterJoin)
    stroked = width > 0 and stroke.alpha() > 0
    layer.setStrokeStyle(Qt.PenStyle.SolidLine if stroked else Qt.PenStyle.NoPen)
    return layer


def _simple(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    style, size = symbol["style"], length(symbol["size"])
    fill = qcolor(symbol["color"])
    outlined = symbol["outline"] and is_drawn(symbol["outline_color"])
    width = length(symbol["outline_width"]) if outlined else 0.0
    outline = qcolor(symbol["outline_color"])
    if style not in _STYLES:
        losses.add("marker of an unknown style", "it is drawn as a circle")
    if style in ("cross", "x"):
        strokes = [(fill, STROKE_WIDTH)]
        if width:
            strokes.insert(0, (outline, STROKE_WIDTH + 2 * width))
        shapes = [_shape(_STYLES[style], size, fill, *stroke) for stroke in strokes]
    else:
        shapes = [_shape(_STYLES.get(style, Shape.Circle), size, fill, outline, width)]
    for layer in shapes:
        _place(layer, symbol)
    return list(shapes)


def _glyph(symbol: Symbol) -> Optional[QgsSimpleMarkerSymbolLayer]:
    plain = symbol.get("shape")
    if plain is None or plain["name"] not in _SHAPES:
        return None
    shape = _SHAPES[plain["name"]]
    size, color = length(symbol["size"]) * plain["size"], qcolor(symbol["color"])
    if plain["filled"]:
        return _shape(shape, size, color, color, 0.0)
    width = size / 10
    return _shape(shape, size - width, qcolor(None), color, width)


def installed(family: str) -> bool:
    """Whether a font of that name is on this machine."""
    return QFontInfo(QFont(family)).family().lower() == family.lower()


def _font_character(symbol: Symbol) -> QgsFontMarkerSymbolLayer:
    """Placed, too. ArcMap centers the font's whole height, QGIS what is above the base line."""
    size, color = length(symbol["size"]), qcolor(symbol["color"])
    layer = QgsFontMarkerSymbolLayer(symbol["font_name"], chr(symbol["character"]), size, color)
    layer.setSizeUnit(POINTS)
    font = symbol["font"]
    if font is not None:
        names = ["Bold"] * (font["weight"] >= BOLD) + ["Italic"] * font["italic"]
        layer.setFontStyle(" ".join(names))
    sample = QFont(symbol["font_name"])
    sample.setPixelSize(1000)
    _place(layer, symbol, raised=QFontMetricsF(sample).descent() / 1000 * size / 2)
    return layer


def _character(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    font, code, size = symbol["font_name"], symbol["character"], length(symbol["size"])
    layer = _glyph(symbol)
    if layer is None and installed(font) and 0x20 < code < 0x110000:
        return [_font_character(symbol)]
    if layer is None:
        losses.add(
            f"character {code} of the font {font}",
            "the font is not installed, and a square is drawn instead",
        )
        color = qcolor(symbol["color"])
        layer = _shape(Shape.Square, size * 0.7, qcolor(None), color, max(size / 15, 0.5))
    _place(layer, symbol)
    return [layer]


def _arrow(symbol: Symbol, _losses: Losses) -> list[QgsSymbolLayer]:
    tall, wide = length(symbol["size"]), length(symbol["width"])
    layer = QgsEllipseSymbolLayer()
    layer.setShape(QgsEllipseSymbolLayer.Triangle)
    in_points(layer, SymbolHeight=tall, SymbolWidth=wide, Size=max(tall, wide))
    layer.setFillColor(qcolor(symbol["color"]))
    layer.setStrokeStyle(Qt.PenStyle.NoPen)
    # ArcMap's arrow points to the right, the triangle up.
    _place(layer, symbol, turned=90.0)
    return [layer]


def _picture(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    losses.add("picture of a marker", "it is not read, and a gray box is drawn instead")
    size = length(symbol["size"], 8.0)
    box = _shape(Shape.Square, size * 0.8, QColor(235, 235, 235), QColor(120, 120, 120), 0.7)
    cross = _shape(Shape.Cross2, size * 0.5, QColor(), QColor(120, 120, 120), 0.7)
    for layer in (box, cross):
        _place(layer, symbol)
    return [box, cross]


_MAKERS: Makers = {
    "simple_marker": _simple,
    "char_marker": _character,
    "arrow_marker": _arrow,
    "picture_marker": _picture,
}


def marker(symbol: Optional[Symbol], losses: Losses) -> QgsMarkerSymbol:
    return fill_in(QgsMarkerSymbol(), layers_of(symbol, _MAKERS, losses))
