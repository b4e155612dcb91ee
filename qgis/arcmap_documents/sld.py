"""SLD files of layers, and what SLD cannot say of them."""

from __future__ import annotations

from typing import Optional

from qgis.core import (
    QgsExpression,
    QgsFields,
    QgsRuleBasedRenderer,
    QgsSymbol,
    QgsVectorLayer,
)

from .losses import Losses
from .reader import LegendClass, Renderer
from .renderers import NULL, field_name, symbol_of, typed

# Symbol layers that QGIS writes to SLD as comments, or as their nearest shape.
_NOT_IN_SLD = {
    "RandomMarkerFill": "random markers of a fill",
    "HashLine": "hashes along a line",
    "EllipseMarker": "arrow marker",
}


def _is_value(text: str, name: str, fields: Optional[QgsFields]) -> str:
    column = QgsExpression.quotedColumnRef(name)
    if text == NULL:
        return f"{column} IS NULL"
    return f"{column} = {QgsExpression.quotedValue(typed(text, name, fields))}"


def _has_values(entry: LegendClass, names: list[str], fields: Optional[QgsFields]) -> str:
    """The condition of a class: any of its values, of all fields."""
    alternatives = [
        " AND ".join(_is_value(part, name, fields) for part, name in zip(parts, names))
        for parts in entry.values
    ]
    return " OR ".join(f"({each})" for each in alternatives)


def _by_rules(
    renderer: Renderer, geometry: Optional[str], fields: Optional[QgsFields]
) -> QgsRuleBasedRenderer:
    """Unique values as rules: QGIS writes neither lists of values nor all others to SLD, and the
    values of several fields as one that SLD cannot have."""
    names = [field_name(name, fields, Losses()) for name in renderer.fields]
    known = {id(entry): _has_values(entry, names, fields) for entry in renderer.classes}
    others = " AND ".join(f"NOT ({each})" for each in known.values() if each)
    root = QgsRuleBasedRenderer.Rule(None)
    for entry in renderer.classes:
        condition = others if entry.all_other_values else known[id(entry)]
        if entry.symbol is not None and (condition or entry.all_other_values):
            symbol = symbol_of(entry.symbol, geometry, Losses())
            root.appendChild(QgsRuleBasedRenderer.Rule(symbol, 0, 0, condition, entry.label))
    return QgsRuleBasedRenderer(root)


def _symbol_losses(symbol: Optional[QgsSymbol], losses: Losses) -> None:
    for each in symbol.symbolLayers() if symbol is not None else []:
        if each.layerType() in _NOT_IN_SLD:
            losses.add(_NOT_IN_SLD[each.layerType()], "SLD has no words for it")


def _add_losses(layer: QgsVectorLayer, renderer: Optional[Renderer], losses: Losses) -> None:
    made = layer.renderer()
    if made is None:
        return
    if made.orderByEnabled():
        losses.add("order of drawing", "SLD does not say that large markers are drawn first")
    if renderer is not None and renderer.normalization_field is not None:
        losses.add("normalization", "few programs read the division that the SLD file has")
    if renderer is not None and any(len(v) < len(renderer.fields) for e in renderer.classes
                                    for v in e.values):  # fmt: skip
        losses.add("values", "they are those of several fields in one text, which SLD cannot have")
    if layer.subsetString():
        losses.add("definition query", "SLD files have none, all features are drawn")
    for item in made.legendSymbolItems():
        _symbol_losses(item.symbol(), losses)
    labeling = layer.labeling()
    if labeling is not None and " " in labeling.settings().fieldName:
        losses.add("labels", "SLD files have labels of single fields only")


def save_sld(
    layer: QgsVectorLayer, geometry: Optional[str], renderer: Optional[Renderer], path: str,
    losses: Losses,
) -> str:  # fmt: skip
    """Empty, or why the file cannot be written."""
    _add_losses(layer, renderer, losses)
    written = layer.clone()
    if renderer is not None and renderer.kind == "unique_values" and renderer.fields:
        fields = layer.fields() if layer.isValid() else None
        written.setRenderer(_by_rules(renderer, geometry, fields))
    message, ok = written.saveSldStyle(path)
    return "" if ok else str(message)
