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
# ArcMap's formatting of a part of a label, as in <BOL>name</BOL>.
_TAG = re.compile(
    r"</?(?:FNT|CLR|BOL|ITA|UND|ALLCAP|SMLCAP|SUP|SUB|CHR|WRD|LIN|_BOL|_ITA|_UND)\b[^>]*>", re.I
)
_LINE_BREAKS = {"vbcrlf", "vbnewline", "vblf", "vbcr"}


def _text(stored: str, losses: Losses) -> str:
    """A text of an expression without tags; empty if it is nothing else."""
    plain = _TAG.sub("", stored)
    if plain != stored:
        losses.add("labels", f"their formatting is left out: {stored}")
    return QgsExpression.quotedString(plain.replace('""', '"')) if plain or plain == stored else ""


def _term(match: re.Match[str], fields: Optional[QgsFields], losses: Losses) -> Optional[str]:
    """Empty for a text that leaves nothing; None where QGIS has no such term."""
    if match["field"] is not None:
        consequence = "the data does not have it, so that labels lack it"
        return QgsExpression.quotedColumnRef(
            field_name(match["field"], fields, losses, consequence)
        )
    if match["text"] is not None:
        return _text(match["text"], losses)
    return "'\\n'" if match["word"].lower() in _LINE_BREAKS else None


def converted(expression: str, fields: Optional[QgsFields], losses: Losses) -> Optional[str]:
    """Fields and texts joined by & as an expression of QGIS; None for all else."""
    terms, at = [], 0
    while match := _TOKEN.match(expression, at):
        term = _term(match, fields, losses)
        if term is None:
            return None
        terms += [term] if term else []
        at = match.end()
        if at == len(expression):
            return terms[0] if len(terms) == 1 else f"concat({', '.join(terms)})" if terms else None
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
