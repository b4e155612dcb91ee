"""Symbols of several layers."""

from __future__ import annotations

from typing import Callable, Optional, TypeVar

from qgis.core import QgsSymbol, QgsSymbolLayer

from .losses import Losses
from .reader import Symbol

AnySymbol = TypeVar("AnySymbol", bound=QgsSymbol)
# The layers of each kind of symbol, the bottom one first, as QGIS has them.
Makers = dict[str, Callable[[Symbol, Losses], list[QgsSymbolLayer]]]


def layers_of(symbol: Optional[Symbol], makers: Makers, losses: Losses) -> list[QgsSymbolLayer]:
    """The bottom one first; ArcMap's first layer is on top."""
    if symbol is None:
        losses.add("symbol", "it could not be read, and nothing is drawn for it")
        return []
    if not symbol["kind"].startswith("multilayer_"):
        return makers[symbol["kind"]](symbol, losses)
    layers = []
    for each in reversed(symbol["layers"]):
        made = layers_of(each, makers, losses)
        for layer in made:
            layer.setEnabled(layer.enabled() and each["enabled"])
        layers += made
    return layers


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
