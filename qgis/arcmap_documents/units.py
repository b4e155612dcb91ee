"""Colors, and the unit that all lengths of ArcMap's symbols have."""

from __future__ import annotations

import math
from typing import Any, Optional

from qgis.core import QgsUnitTypes
from qgis.PyQt.QtCore import QPointF
from qgis.PyQt.QtGui import QColor

POINTS = QgsUnitTypes.RenderPoints
# The largest length that a symbol can mean; what is beyond is misread.
MAX_LENGTH = 2000.0

NO_COLOR = QColor(0, 0, 0, 0)


def length(value: Optional[float], default: float = 0.0) -> float:
    """A length in points, never negative; the default where there is none."""
    return min(abs(number(value, default)), MAX_LENGTH)


def number(value: Optional[float], default: float = 0.0) -> float:
    """A finite number; the default where there is none."""
    return default if value is None or not math.isfinite(value) else float(value)


def is_drawn(color: Optional[dict[str, Any]]) -> bool:
    return color is not None and not color["off"]


def qcolor(color: Optional[dict[str, Any]]) -> QColor:
    """Transparent where there is no color or where it is switched off."""
    return QColor(color["rgb"]) if color is not None and not color["off"] else QColor(NO_COLOR)


def in_points(layer: Any, **lengths: float) -> None:
    """Sets lengths of a symbol layer, by the names that its setters have, each with its unit."""
    for name, value in lengths.items():
        getattr(layer, f"set{name}")(value)
        getattr(layer, f"set{name}Unit")(POINTS)


def offset(x: Optional[float], y: Optional[float], angle: float = 0.0) -> QPointF:
    """An offset to the right and up, as QGIS wants it: down, and before a turn by the angle, which
    is clockwise."""
    right, down = number(x), -number(y)
    turn = math.radians(-angle)
    return QPointF(
        right * math.cos(turn) - down * math.sin(turn),
        right * math.sin(turn) + down * math.cos(turn),
    )
