"""Opens ArcMap documents (.mxd) as projects of QGIS."""

from __future__ import annotations

from typing import Any

VERSION = "1.0.0"


def classFactory(iface: Any) -> Any:  # noqa: N802 - the name that QGIS calls
    from .plugin import ArcMapDocuments

    return ArcMapDocuments(iface)
