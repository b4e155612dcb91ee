"""Layers of QGIS from those of a map."""

from __future__ import annotations

import re
from typing import Optional, Union

from qgis.core import (
    QgsCoordinateReferenceSystem,
    QgsDataProvider,
    QgsExpression,
    QgsMapLayer,
    QgsRasterLayer,
    QgsVectorLayer,
)

from .labels import apply_labels
from .losses import Losses
from .reader import CoordinateSystem, Document, Layer
from .renderers import field_name, renderer_of
from .sources import Location, Places, locate

_MEMORY_TYPES = {
    "point": "Point",
    "multipoint": "MultiPoint",
    "polyline": "MultiLineString",
    "polygon": "MultiPolygon",
    "multipatch": "MultiPolygonZ",
}


def reference_system(system: Optional[CoordinateSystem]) -> QgsCoordinateReferenceSystem:
    """Invalid where the document states none that QGIS knows."""
    if system is None:
        return QgsCoordinateReferenceSystem()
    if system.epsg is not None:
        crs = QgsCoordinateReferenceSystem(f"EPSG:{system.epsg}")
        if crs.isValid():
            return crs
    if not system.wkt:
        return QgsCoordinateReferenceSystem()
    # Esri's dialect of well-known text is recognized as such.
    return QgsCoordinateReferenceSystem.fromWkt(system.wkt)


def subset(query: str) -> str:
    """The condition with the names of fields as SQL quotes them; texts stay as they are."""
    return re.sub(r"('[^']*')|\[([^\]]*)\]", lambda m: m[1] or f'"{m[2]}"', query)


def _missing_vector(layer: Layer, location: Location) -> QgsVectorLayer:
    """A layer to repair: it keeps the geometry type of the memory layer that it was."""
    geometry = _MEMORY_TYPES.get(layer.geometry or "", "Point")
    made = QgsVectorLayer(geometry, layer.name, "memory")
    uri = location.uri
    if layer.definition_query and location.provider == "ogr":
        # For data that is put there later; a layer that is repaired keeps its subset string.
        uri += f"|subset={subset(layer.definition_query)}"
    made.setDataSource(uri, layer.name, location.provider, QgsDataProvider.ProviderOptions())
    return made


def _vector(layer: Layer, location: Location, losses: Losses) -> QgsVectorLayer:
    if location.found:
        options = QgsVectorLayer.LayerOptions()
        options.loadDefaultStyle = False
        made = QgsVectorLayer(location.uri, layer.name, location.provider, options)
        if made.isValid():
            return made
        losses.add("data", f"QGIS cannot open it: {location.uri}")
    else:
        losses.add("data", f"{location.problem}: {location.uri}")
    return _missing_vector(layer, location)


def _raster(layer: Layer, location: Location, losses: Losses) -> QgsRasterLayer:
    made = QgsRasterLayer(location.uri, layer.name, location.provider)
    if not location.found:
        losses.add("data", f"{location.problem}: {location.uri}")
    elif not made.isValid():
        losses.add("data", f"QGIS cannot open it: {location.uri}")
    losses.add("symbols", "the colors of rasters are not read; QGIS chooses them")
    return made


def _apply_query(made: QgsVectorLayer, query: Optional[str], losses: Losses) -> None:
    if query and not made.setSubsetString(subset(query)) and made.isValid():
        losses.add("definition query", f"QGIS cannot apply it, all features are shown: {query}")


def _apply_scales(made: QgsMapLayer, layer: Layer) -> None:
    if layer.min_scale is None and layer.max_scale is None:
        return
    made.setMinimumScale(layer.min_scale or 0.0)
    made.setMaximumScale(layer.max_scale or 0.0)
    made.setScaleBasedVisibility(True)


def _apply_style(made: QgsVectorLayer, layer: Layer, losses: Losses) -> None:
    fields = made.fields() if made.isValid() else None
    renderer = renderer_of(layer.renderer, layer.geometry, fields, losses)
    if renderer is not None:
        made.setRenderer(renderer)
    if layer.display_field:
        name = field_name(layer.display_field, fields, Losses())
        made.setDisplayExpression(QgsExpression.quotedColumnRef(name))
    apply_labels(made, layer.labels, losses)


def convert(
    layer: Layer, document: Document, places: Places, losses: Losses
) -> Optional[Union[QgsVectorLayer, QgsRasterLayer]]:
    """The layer of QGIS, valid or to be repaired; None for kinds that QGIS cannot have."""
    if not layer.read or layer.kind not in ("feature", "raster") or layer.source is None:
        losses.add("layer", f"it is not converted: {layer.kind.replace('_', ' ')} layer")
        return None
    location = locate(layer.source, layer.kind, document, places)
    made: Union[QgsVectorLayer, QgsRasterLayer]
    if layer.kind == "raster":
        made = _raster(layer, location, losses)
    else:
        made = _vector(layer, location, losses)
        # Before the style: a subset changes which values of a field there are, never the fields.
        _apply_query(made, layer.definition_query, losses)
        _apply_style(made, layer, losses)
    crs = reference_system(layer.coordinate_system)
    if crs.isValid():
        made.setCrs(crs)
    _apply_scales(made, layer)
    return made
