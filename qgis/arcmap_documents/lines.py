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
from .units import POINTS, in_points, is_drawn, length, number, qcolor

Placement = QgsTemplatedLineSymbolLayerBase

# Filled and empty lengths in points, whatever the width, as mxdinfo draws them.
_DASHES: dict[str, list[float]] = {
    "solid": [],
    "inside-frame": [],
    "none": [],
    "dashed": [4, 2],
    "dotted": [1, 2],
    "dash-dot": [4, 2, 1, 2],
    "dash-dot-dot": [4, 2, 1, 2, 1, 2],
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


def is_stroked(symbol: Symbol) -> bool:
    """Whether a simple or cartographic line is there at all."""
    width = length(symbol["width"])
    return is_drawn(symbol["color"]) and width > 0 and symbol.get("style") != "none"


def is_dashed(simple_line: Symbol) -> bool:
    return bool(_DASHES.get(simple_line["style"]))


def _stroke(symbol: Symbol, dashes: list[float]) -> QgsSimpleLineSymbolLayer:
    layer = QgsSimpleLineSymbolLayer(qcolor(symbol["color"]))
    in_points(layer, Width=length(symbol["width"]))
    layer.setPenStyle(Qt.PenStyle.SolidLine if is_stroked(symbol) else Qt.PenStyle.NoPen)
    if dashes:
        layer.setUseCustomDashPattern(True)
        layer.setCustomDashVector(dashes)
        layer.setCustomDashPatternUnit(POINTS)
    return layer


def _simple(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    if symbol["style"] not in _DASHES:
        losses.add("line of an unknown style", "it is drawn solid")
    dashes = _DASHES.get(symbol["style"], [])
    layer = _stroke(symbol, dashes)
    layer.setPenCapStyle(Qt.PenCapStyle.FlatCap if dashes else Qt.PenCapStyle.RoundCap)
    layer.setPenJoinStyle(Qt.PenJoinStyle.RoundJoin)
    return [layer]


def _shift(layer: Any, symbol: Symbol) -> None:
    """ArcMap's offsets are positive to the left of a line, those of QGIS to the right."""
    in_points(layer, Offset=-number(symbol["offset"]))


def _cartographic(symbol: Symbol, losses: Losses) -> list[QgsSymbolLayer]:
    layer = _stroke(symbol, [part for item in pattern(symbol["template"]) for part in item])
    layer.setPenCapStyle(_CAPS.get(symbol["cap"], Qt.PenCapStyle.FlatCap))
    layer.setPenJoinStyle(_JOINS.get(symbol["join"], Qt.PenJoinStyle.MiterJoin))
    _shift(layer, symbol)
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
        # A flipped first marker points away from the line. One at the end does so unflipped.
        first_flipped = element["flip_first"] and index == 0 and position < 1
        flipped = element["flip_all"] or first_flipped
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
        # From the direction of the line, counter-clockwise; in QGIS from across it, clockwise.
        layer.setHashAngle(270.0 - number(symbol["angle"]))
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
