"""Marker symbols."""

from __future__ import annotations

from typing import Callable, Optional, TypeVar

from qgis.core import (
    QgsEllipseSymbolLayer,
    QgsFontMarkerSymbolLayer,
    QgsMarkerSymbol,
    QgsMarkerSymbolLayer,
    QgsSimpleMarkerSymbolLayer,
    QgsSymbol,
    QgsSymbolLayer,
)
from qgis.PyQt.QtCore import Qt
from qgis.PyQt.QtGui import QColor, QFont, QFontInfo

from .losses import Losses
from .reader import Symbol
from .units import POINTS, is_drawn, length, number, offset, qcolor

AnySymbol = TypeVar("AnySymbol", bound=QgsSymbol)
Shape = QgsSimpleMarkerSymbolLayer
# A cross and an x are lines, whatever the outline.
STROKE_WIDTH = 1.0

_STYLES = {
    "circle": Shape.Circle,
    "square": Shape.Square,
    "cross": Shape.Cross,
    "x": Shape.Cross2,
    "diamond": Shape.Diamond,
}

# Characters of "ESRI Default Marker" that are plain shapes: the shape, whether it is filled, and
# its size as a share of the font's.
_GLYPHS: dict[int, tuple[object, bool, float]] = {
    33: (Shape.Circle, True, 0.75),
    34: (Shape.Square, True, 0.66),
    35: (Shape.EquilateralTriangle, True, 0.8),
    36: (Shape.Pentagon, True, 0.75),
    37: (Shape.Hexagon, True, 0.75),
    38: (Shape.Octagon, True, 0.75),
    40: (Shape.Circle, False, 0.75),
    41: (Shape.Square, False, 0.66),
    42: (Shape.EquilateralTriangle, False, 0.8),
    43: (Shape.Pentagon, False, 0.75),
    44: (Shape.Hexagon, False, 0.75),
    45: (Shape.Octagon, False, 0.75),
    94: (Shape.Star, True, 1.0),
}


def _place(layer: QgsMarkerSymbolLayer, symbol: Symbol, turned: float = 0.0) -> None:
    """Angle and offset; `turned` is what the shape is turned clockwise by itself."""
    angle = turned - number(symbol["angle"])
    layer.setAngle(angle)
    layer.setOffset(offset(symbol["offset_x"], symbol["offset_y"], angle))
    layer.setOffsetUnit(POINTS)


def _shape(
    shape: object, size: float, fill: QColor, stroke: QColor, width: float
) -> QgsSimpleMarkerSymbolLayer:
    """Without a stroke where its width is 0. A stroke runs along the edge, half of it outside, in
    ArcMap as in QGIS."""
    layer = Shape(shape, size)
    layer.setSizeUnit(POINTS)
    layer.setColor(fill)
    layer.setStrokeColor(stroke)
    layer.setStrokeWidthUnit(POINTS)
    layer.setStrokeWidth(width)
    layer.setPenJoinStyle(Qt.MiterJoin)
    layer.setStrokeStyle(Qt.SolidLine if width > 0 and stroke.alpha() else Qt.NoPen)
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
        layers = [(fill, STROKE_WIDTH)]
        if width:
            layers.insert(0, (outline, STROKE_WIDTH + 2 * width))
        shapes = [_shape(_STYLES[style], size, fill, c, w) for c, w in layers]
    else:
        shapes = [_shape(_STYLES.get(style, Shape.Circle), size, fill, outline, width)]
    for layer in shapes:
        _place(layer, symbol)
    return list(shapes)


def _glyph(symbol: Symbol) -> Optional[QgsSimpleMarkerSymbolLayer]:
    if symbol["font_name"] != "ESRI Default Marker" or symbol["character"] not in _GLYPHS:
        return None
    shape, filled, share = _GLYPHS[symbol["character"]]
    size, color = length(symbol["size"]) * share, qcolor(symbol["color"])
    if filled:
        return _shape(shape, size, color, color, 0.0)
    width = size / 10
    return _shape(shape, size - width, qcolor(None), color, width)


def installed(family: str) -> bool:
    """Whether a font of that name is on this machine."""
    return QFontInfo(QFont(family)).family().lower() == family.lower()


def _character(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    font, code, size = symbol["font_name"], symbol["character"], length(symbol["size"])
    layer: QgsMarkerSymbolLayer
    shape = _glyph(symbol)
    if shape is not None:
        layer = shape
    elif installed(font) and 0x20 < code < 0x110000:
        layer = QgsFontMarkerSymbolLayer(font, chr(code), size, qcolor(symbol["color"]))
        layer.setSizeUnit(POINTS)
    else:
        losses.add(
            f"character {code} of the font {font}",
            "the font is not installed, and a square is drawn instead",
        )
        color = qcolor(symbol["color"])
        layer = _shape(Shape.Square, size * 0.7, qcolor(None), color, max(size / 15, 0.5))
    _place(layer, symbol)
    return [layer]


def _arrow(symbol: Symbol, _losses: Losses) -> list[QgsSymbolLayer]:
    layer = QgsEllipseSymbolLayer()
    layer.setShape(QgsEllipseSymbolLayer.Triangle)
    layer.setSymbolHeight(length(symbol["size"]))
    layer.setSymbolHeightUnit(POINTS)
    layer.setSymbolWidth(length(symbol["width"]))
    layer.setSymbolWidthUnit(POINTS)
    layer.setSize(max(length(symbol["size"]), length(symbol["width"])))
    layer.setSizeUnit(POINTS)
    layer.setFillColor(qcolor(symbol["color"]))
    layer.setStrokeStyle(Qt.NoPen)
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


_MAKERS: dict[str, Callable[[Symbol, Losses], list[QgsSymbolLayer]]] = {
    "simple_marker": _simple,
    "char_marker": _character,
    "arrow_marker": _arrow,
    "picture_marker": _picture,
}


def marker_layers(symbol: Optional[Symbol], losses: Losses) -> list[QgsSymbolLayer]:
    """The bottom one first, as QGIS has them."""
    if symbol is None:
        losses.add("symbol", "it could not be read, and nothing is drawn for it")
        return []
    if symbol["kind"] == "multilayer_marker":
        layers = []
        for each in reversed(symbol["layers"]):
            made = marker_layers(each, losses)
            for layer in made:
                layer.setEnabled(layer.enabled() and each["enabled"])
            layers += made
        return layers
    return _MAKERS[symbol["kind"]](symbol, losses)


def marker(symbol: Optional[Symbol], losses: Losses) -> QgsMarkerSymbol:
    return fill_in(QgsMarkerSymbol(), marker_layers(symbol, losses))


def fill_in(symbol: AnySymbol, layers: list[QgsSymbolLayer]) -> AnySymbol:
    """Replaces the default layer of a new symbol. Without others it stays, switched off."""
    # A symbol that is made from a list of layers does not own them, and crashes later.
    for layer in layers:
        symbol.appendSymbolLayer(layer)
    if layers:
        symbol.deleteSymbolLayer(0)
    else:
        symbol.symbolLayer(0).setEnabled(False)
    return symbol
