"""Line symbols."""

from __future__ import annotations

from typing import Any, Optional

from qgis.core import (
    QgsHashedLineSymbolLayer,
    QgsLineSymbol,
    QgsMarkerLineSymbolLayer,
    QgsSimpleLineSymbolLayer,
    QgsSymbolLayer,
    QgsTemplatedLineSymbolLayerBase,
)
from qgis.PyQt.QtCore import Qt

from .losses import Losses
from .markers import marker
from .reader import Symbol
from .stack import Makers, fill_in, layers_of
from .units import POINTS, in_points, length, number, qcolor

Placement = QgsTemplatedLineSymbolLayerBase

_STYLES = {
    "solid": Qt.PenStyle.SolidLine,
    "inside-frame": Qt.PenStyle.SolidLine,
    "dashed": Qt.PenStyle.DashLine,
    "dotted": Qt.PenStyle.DotLine,
    "dash-dot": Qt.PenStyle.DashDotLine,
    "dash-dot-dot": Qt.PenStyle.DashDotDotLine,
    "none": Qt.PenStyle.NoPen,
}
_CAPS = {
    "butt": Qt.PenCapStyle.FlatCap,
    "round": Qt.PenCapStyle.RoundCap,
    "square": Qt.PenCapStyle.SquareCap,
}
_JOINS = {
    "miter": Qt.PenJoinStyle.MiterJoin,
    "round": Qt.PenJoinStyle.RoundJoin,
    "bevel": Qt.PenJoinStyle.BevelJoin,
}
# Where a pattern is shorter, it is none.
SHORTEST_PATTERN = 0.05


def pattern(template: Optional[dict[str, Any]]) -> list[tuple[float, float]]:
    """Filled and empty lengths in points; empty for a line without a pattern."""
    if template is None:
        return []
    unit = length(template["interval"])
    items = [(length(i["filled"]) * unit, length(i["empty"]) * unit) for i in template["items"]]
    total = sum(filled + empty for filled, empty in items)
    return items if total > SHORTEST_PATTERN and sum(e for _, e in items) > 0 else []


def pen_style(style: Optional[str]) -> Any:
    return _STYLES.get(style or "solid", Qt.PenStyle.SolidLine)


def _stroke(symbol: Symbol, style: Any) -> QgsSimpleLineSymbolLayer:
    color = qcolor(symbol["color"])
    layer = QgsSimpleLineSymbolLayer(color, length(symbol["width"]))
    layer.setWidthUnit(POINTS)
    drawn = color.alpha() and length(symbol["width"]) > 0
    layer.setPenStyle(style if drawn else Qt.PenStyle.NoPen)
    return layer


def _simple(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    if symbol["style"] not in _STYLES:
        losses.add("line of an unknown style", "it is drawn solid")
    layer = _stroke(symbol, pen_style(symbol["style"]))
    solid = layer.penStyle() == Qt.PenStyle.SolidLine
    layer.setPenCapStyle(Qt.PenCapStyle.RoundCap if solid else Qt.PenCapStyle.FlatCap)
    layer.setPenJoinStyle(Qt.PenJoinStyle.RoundJoin)
    return [layer]


def _shift(layer: Any, symbol: Symbol) -> None:
    """ArcMap's offsets are positive to the left of a line, those of QGIS to the right."""
    in_points(layer, Offset=-number(symbol["offset"]))


def _cartographic(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer = _stroke(symbol, Qt.PenStyle.SolidLine)
    layer.setPenCapStyle(_CAPS.get(symbol["cap"], Qt.PenCapStyle.FlatCap))
    layer.setPenJoinStyle(_JOINS.get(symbol["join"], Qt.PenJoinStyle.MiterJoin))
    _shift(layer, symbol)
    dashes = pattern(symbol["template"])
    if dashes:
        layer.setUseCustomDashPattern(True)
        layer.setCustomDashVector([part for item in dashes for part in item])
        layer.setCustomDashPatternUnit(POINTS)
    layers: list[QgsSymbolLayer] = [layer]
    for decoration in symbol["decorations"]:
        layers += _decoration(decoration, symbol, losses)
    return layers


def _decoration(element: dict[str, Any], line: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layers: list[QgsSymbolLayer] = []
    places = {0.0: Placement.FirstVertex, 0.5: Placement.CentralPoint, 1.0: Placement.LastVertex}
    for index, position in enumerate(element["positions"]):
        if position not in places:
            losses.add(
                f"decoration at {number(position):.0%} of a line",
                "QGIS draws markers at a line's ends and middle only; this one is missing",
            )
            continue
        flipped = element["flip_all"] or (element["flip_first"] and index == 0)
        sub_symbol = marker(element["marker"], losses)
        if flipped:
            sub_symbol.setAngle(sub_symbol.angle() + 180)
        layer = QgsMarkerLineSymbolLayer(element["rotates"])
        layer.setPlacement(places[position])
        layer.setSubSymbol(sub_symbol)
        _shift(layer, line)
        layers.append(layer)
    return layers


def _along(layer: Any, symbol: Symbol, at: float, interval: float) -> None:
    layer.setPlacement(Placement.Interval)
    in_points(layer, Interval=interval, OffsetAlongLine=at)
    _shift(layer, symbol)


def _marks(template: Optional[dict[str, Any]], default: float) -> tuple[list[float], float]:
    """The middles of the filled parts of a pattern, and its length."""
    middles, at = [], 0.0
    for filled, empty in pattern(template):
        if filled > 0:
            middles.append(at + filled / 2)
        at += filled + empty
    return (middles, at) if middles else ([default / 2], default)


def _hash(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    places, interval = _marks(symbol["template"], 4.0)
    layers: list[QgsSymbolLayer] = []
    for at in places:
        layer = QgsHashedLineSymbolLayer(True, interval)
        if symbol["line"] is None:
            color = qcolor(symbol["color"])
            layer.setSubSymbol(fill_in(QgsLineSymbol(), [QgsSimpleLineSymbolLayer(color, 1.0)]))
            layer.subSymbol().symbolLayer(0).setWidthUnit(POINTS)
        else:
            layer.setSubSymbol(line(symbol["line"], losses))
        in_points(layer, HashLength=length(symbol["width"]))
        # From the line's direction, counter-clockwise; in QGIS from across it, clockwise.
        layer.setHashAngle(90.0 - number(symbol["angle"]))
        _along(layer, symbol, at, interval)
        layers.append(layer)
    return layers


def reach(symbol: Optional[Symbol]) -> float:
    """About the size of a marker in points."""
    if symbol is None:
        return 4.0
    if symbol["kind"] == "multilayer_marker":
        return max([reach(each) for each in symbol["layers"]], default=4.0)
    return length(symbol["size"], 4.0)


def _markers(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    places, interval = _marks(symbol["template"], 1.5 * max(reach(symbol["marker"]), 1.0))
    layers: list[QgsSymbolLayer] = []
    for at in places:
        layer = QgsMarkerLineSymbolLayer(True, interval)
        layer.setSubSymbol(marker(symbol["marker"], losses))
        _along(layer, symbol, at, interval)
        layers.append(layer)
    return layers


_MAKERS: Makers = {
    "simple_line": _simple,
    "cartographic_line": _cartographic,
    "hash_line": _hash,
    "marker_line": _markers,
}


def line_layers(symbol: Optional[Symbol], losses: Losses) -> list[QgsSymbolLayer]:
    return layers_of(symbol, _MAKERS, losses)


def line(symbol: Optional[Symbol], losses: Losses) -> QgsLineSymbol:
    return fill_in(QgsLineSymbol(), line_layers(symbol, losses))
