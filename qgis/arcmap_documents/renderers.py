"""Renderers: one symbol, categories, ranges."""

from __future__ import annotations

import math
from typing import Any, Callable, Optional, Union

from qgis.core import (
    QgsCategorizedSymbolRenderer,
    QgsExpression,
    QgsFeatureRenderer,
    QgsFeatureRequest,
    QgsFields,
    QgsGraduatedSymbolRenderer,
    QgsRendererCategory,
    QgsRendererRange,
    QgsSingleSymbolRenderer,
    QgsSymbol,
)

from .fills import fill
from .lines import line
from .losses import Losses
from .markers import marker
from .reader import LegendClass, Renderer, Symbol

Value = Union[int, float, str]
# As the document writes a value that is missing.
NULL = "<Null>"


def symbol_of(symbol: Optional[Symbol], geometry: Optional[str], losses: Losses) -> QgsSymbol:
    """A symbol of the kind that is given or, without one, that the geometry needs."""
    makers: dict[str, Callable[[Optional[Symbol], Losses], QgsSymbol]] = {
        "marker": marker, "line": line, "fill": fill  # fmt: skip
    }
    by_geometry = {"point": "marker", "multipoint": "marker", "polyline": "line"}
    if symbol is None:
        return makers[by_geometry.get(geometry or "", "fill")](None, losses)
    return makers[symbol["kind"].rsplit("_", 1)[1]](symbol, losses)


def field_name(
    name: str,
    fields: Optional[QgsFields],
    losses: Losses,
    consequence: str = "the data does not have it, so that its features are not drawn",
) -> str:
    """The field as the data names it. Names such as "table.field" come from joins."""
    if fields is None or fields.count() == 0 or fields.lookupField(name) >= 0:
        index = -1 if fields is None else fields.lookupField(name)
        return name if index < 0 else fields.at(index).name()  # type: ignore[union-attr]
    index = fields.lookupField(name.rsplit(".", 1)[-1])
    if index >= 0:
        return fields.at(index).name()
    losses.add(f"field {name}", consequence)
    return name


def typed(text: str, name: str, fields: Optional[QgsFields]) -> Value:
    """The value of a text in that field: 1 is not "1"."""
    index = -1 if fields is None else fields.lookupField(name)
    if index < 0 or not fields.at(index).isNumeric():  # type: ignore[union-attr]
        return text
    try:
        value = float(text.replace(",", "."))
    except ValueError:
        return text
    return int(value) if value.is_integer() and abs(value) < 2**53 else value


def _as_text(parts: list[str], names: list[str], fields: Optional[QgsFields]) -> str:
    """The text of several values as _values_expression writes it."""
    if len(parts) != len(names):
        return ", ".join(parts)
    return ", ".join(str(typed(part, name, fields)) for part, name in zip(parts, names))


def _values_expression(names: list[str]) -> str:
    """One text of all fields; a missing value is not the same as all other values."""
    columns = [QgsExpression.quotedColumnRef(name) for name in names]
    return " || ', ' || ".join(f"coalesce(to_string({each}), '{NULL}')" for each in columns)


def _label(entry: LegendClass, headings: set[str]) -> str:
    """With the heading where a legend has several, for QGIS has none."""
    return f"{entry.heading}: {entry.label}" if len(headings) > 1 and entry.heading else entry.label


def categorized(
    renderer: Renderer, geometry: Optional[str], fields: Optional[QgsFields], losses: Losses
) -> QgsFeatureRenderer:
    names = [field_name(name, fields, losses) for name in renderer.fields]
    if not names:
        losses.add("values", "the field they are of is not known, and one symbol is drawn for all")
        return single(renderer, geometry, losses)
    as_text = len(names) > 1 or any([NULL] in entry.values for entry in renderer.classes)
    attribute = _values_expression(names) if as_text else names[0]
    result = QgsCategorizedSymbolRenderer(attribute, [])
    headings = {entry.heading for entry in renderer.classes if entry.heading}
    for entry in renderer.classes:
        if entry.symbol is None:
            losses.add(f"value {entry.label or entry.values}", "it has no symbol, and is not drawn")
            continue
        values: list[Optional[Value]] = [
            _as_text(parts, names, fields) if as_text else typed(parts[0], names[0], fields)
            for parts in entry.values
        ]
        if entry.all_other_values:
            values = [None]
        if not values:
            continue
        symbol = symbol_of(entry.symbol, geometry, losses)
        value: Any = values[0] if len(values) == 1 else values
        result.addCategory(QgsRendererCategory(value, symbol, _label(entry, headings)))
    return result


def _break_expression(renderer: Renderer, fields: Optional[QgsFields], losses: Losses) -> str:
    name = field_name(renderer.fields[0], fields, losses)
    if renderer.normalization_field is None:
        return name
    divisor = field_name(renderer.normalization_field, fields, losses)
    quoted = QgsExpression.quotedColumnRef
    return f"{quoted(name)} / {quoted(divisor)}"


def bounds(classes: list[LegendClass]) -> dict[int, tuple[float, float]]:
    """The range of each class by its index. A value belongs to the first class whose maximum is
    not below it, so each begins right after the one before it."""
    known = [i for i, each in enumerate(classes) if each.min is not None and each.max is not None]
    ranges: dict[int, tuple[float, float]] = {}
    last: Optional[float] = None
    for i in sorted(known, key=lambda index: classes[index].max or 0.0):
        low, high = classes[i].min or 0.0, classes[i].max or 0.0
        if last is not None:
            low = min(math.nextafter(last, math.inf), high)
        ranges[i] = (low, high)
        last = high
    return ranges


def _draw_small_over_large(renderer: QgsGraduatedSymbolRenderer) -> None:
    """ArcMap draws the large markers of a legend first, and those of one size as they come."""
    ranges = sorted(renderer.ranges(), key=lambda each: each.upperValue())
    if len({each.symbol().size() for each in ranges}) < 2:
        return
    attribute = renderer.classAttribute()
    value = attribute if " / " in attribute else QgsExpression.quotedColumnRef(attribute)
    cases = " ".join(
        f"WHEN {value} <= {each.upperValue()!r} THEN {each.symbol().size()!r}" for each in ranges
    )
    clause = QgsFeatureRequest.OrderByClause
    renderer.setOrderBy(
        QgsFeatureRequest.OrderBy([clause(f"CASE {cases} END", False), clause("$id", True)])
    )
    renderer.setOrderByEnabled(True)


def graduated(
    renderer: Renderer, geometry: Optional[str], fields: Optional[QgsFields], losses: Losses
) -> QgsFeatureRenderer:
    ranges = bounds(renderer.classes)
    if not renderer.fields or not ranges:
        losses.add("ranges", "they are not known, and one symbol is drawn for all")
        return single(renderer, geometry, losses)
    result = QgsGraduatedSymbolRenderer(_break_expression(renderer, fields, losses), [])
    for index, entry in enumerate(renderer.classes):
        if index not in ranges or entry.symbol is None:
            losses.add(f"range {entry.label}", "it is incomplete, and is not drawn")
            continue
        symbol = symbol_of(entry.symbol, geometry, losses)
        low, high = ranges[index]
        result.addClassRange(QgsRendererRange(low, high, symbol, entry.label))
    if geometry in ("point", "multipoint"):
        _draw_small_over_large(result)
    return result


def single(renderer: Renderer, geometry: Optional[str], losses: Losses) -> QgsFeatureRenderer:
    first = renderer.classes[0].symbol if renderer.classes else None
    return QgsSingleSymbolRenderer(symbol_of(first, geometry, losses))


def renderer_of(
    renderer: Optional[Renderer],
    geometry: Optional[str],
    fields: Optional[QgsFields],
    losses: Losses,
) -> Optional[QgsFeatureRenderer]:
    """None where the document's renderer is not known; QGIS then has a symbol of its own."""
    if renderer is None:
        losses.add("symbols", "how the layer is drawn is not known; QGIS chooses its symbol")
        return None
    if renderer.kind == "unique_values":
        return categorized(renderer, geometry, fields, losses)
    if renderer.kind == "class_breaks":
        return graduated(renderer, geometry, fields, losses)
    return single(renderer, geometry, losses)
