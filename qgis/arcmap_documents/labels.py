"""Labels: ArcMap's expressions as those of QGIS, with color and font."""

from __future__ import annotations

import re
from typing import Optional

from qgis.core import (
    QgsExpression,
    QgsFields,
    QgsPalLayerSettings,
    QgsTextFormat,
    QgsVectorLayer,
    QgsVectorLayerSimpleLabeling,
)
from qgis.PyQt.QtGui import QColor, QFont

from .losses import Losses
from .reader import LabelClass, Labels
from .renderers import field_name
from .units import POINTS, length

_TOKEN = re.compile(r"""\s*(?:\[(?P<field>[^\]]+)\]|"(?P<text>(?:[^"]|"")*)"|(?P<word>\w+))\s*""")
_LINE_BREAKS = {"vbcrlf", "vbnewline", "vblf", "vbcr"}


def _term(match: re.Match[str], fields: Optional[QgsFields], losses: Losses) -> Optional[str]:
    if match["field"] is not None:
        return QgsExpression.quotedColumnRef(field_name(match["field"], fields, losses))
    if match["text"] is not None:
        return QgsExpression.quotedString(match["text"].replace('""', '"'))
    return "'\\n'" if match["word"].lower() in _LINE_BREAKS else None


def converted(expression: str, fields: Optional[QgsFields], losses: Losses) -> Optional[str]:
    """Fields and texts joined by & as an expression of QGIS; None for all else."""
    terms, at = [], 0
    while match := _TOKEN.match(expression, at):
        term = _term(match, fields, losses)
        if term is None:
            return None
        terms.append(term)
        at = match.end()
        if at == len(expression):
            return terms[0] if len(terms) == 1 else f"concat({', '.join(terms)})"
        if expression[at] not in "&+":
            return None
        at += 1
    return None


def _text_format(label: LabelClass) -> QgsTextFormat:
    text_format = QgsTextFormat()
    if label.font is not None:
        if label.font["name"]:
            text_format.setFont(QFont(label.font["name"]))
        text_format.setSize(length(label.font["size"], 8.0))
    text_format.setSizeUnit(POINTS)
    if label.color is not None:
        text_format.setColor(QColor(label.color))
    return text_format


def apply_labels(layer: QgsVectorLayer, labels: Optional[Labels], losses: Losses) -> None:
    """The first class of labels, shown or kept switched off."""
    if labels is None or not labels.classes:
        return
    first = labels.classes[0]
    expression = converted(first.expression, layer.fields(), losses)
    if expression is None:
        losses.add("labels", f"their expression is not converted: {first.expression}")
        return
    if len(labels.classes) > 1:
        losses.add("labels", f"of {len(labels.classes)} classes, only the first is taken over")
    settings = QgsPalLayerSettings()
    settings.fieldName = expression
    settings.isExpression = True
    settings.setFormat(_text_format(first))
    layer.setLabeling(QgsVectorLayerSimpleLabeling(settings))
    layer.setLabelsEnabled(labels.shown)
