"""A document as a project of QGIS."""

from __future__ import annotations

from dataclasses import dataclass, field
from typing import Callable, Optional

from qgis.core import (
    QgsCoordinateTransform,
    QgsCsException,
    QgsLayerTreeGroup,
    QgsMapLayer,
    QgsMapThemeCollection,
    QgsProject,
    QgsRectangle,
    QgsReferencedRectangle,
)

from .layers import convert, reference_system
from .losses import Losses
from .reader import Document, Layer, Map
from .sources import Places

# Called with the share that is done; whether to go on.
Progress = Callable[[float], bool]


class Cancelled(Exception):
    """The user does not want the result any more."""


@dataclass
class ConvertedMap:
    """A map of the document with its layers in the project, the topmost first."""

    map: Map
    group: QgsLayerTreeGroup
    layers: list[QgsMapLayer] = field(default_factory=list)
    # By the index in the map's list.
    by_index: dict[int, QgsMapLayer] = field(default_factory=dict)


def layer_path(map_: Map, index: int, several_maps: bool) -> str:
    """The names of the groups that hold the layer and its own, after the map's if there are
    several."""
    names: list[str] = []
    at: Optional[int] = index
    while at is not None and len(names) < 100:
        names.insert(0, map_.layers[at].name)
        at = map_.layers[at].parent
    return " / ".join([map_.name] * several_maps + names)


class Builder:
    """Fills a project with a document's maps."""

    def __init__(
        self, project: QgsProject, document: Document, places: Places, losses: Losses
    ) -> None:
        self.project, self.document, self.places = project, document, places
        self.losses = losses

    def build(self, progress: Progress = lambda share: True) -> list[ConvertedMap]:
        """The converted maps. Cancelled, if the progress says not to go on."""
        maps = self.document.maps
        converted = []
        total = sum(len(each.layers) for each in maps) or 1
        done = 0
        for each in maps:
            root = self.project.layerTreeRoot()
            group = root if len(maps) == 1 else root.addGroup(each.name)
            result = ConvertedMap(each, group)
            nodes: dict[int, QgsLayerTreeGroup] = {}
            for index, layer in enumerate(each.layers):
                if not progress(done / total):
                    raise Cancelled
                self._add(result, nodes, index, layer)
                done += 1
            converted.append(result)
        self._finish(converted)
        return converted

    def _add(
        self,
        result: ConvertedMap,
        nodes: dict[int, QgsLayerTreeGroup],
        index: int,
        layer: Layer,
    ) -> None:
        parent = nodes.get(layer.parent, result.group) if layer.parent is not None else result.group
        if layer.kind == "group":
            nodes[index] = parent.addGroup(layer.name)
            nodes[index].setItemVisibilityChecked(layer.visible is not False)
            return
        self.losses.layer = layer_path(result.map, index, len(self.document.maps) > 1)
        made = convert(layer, self.document, self.places, self.losses)
        if made is None:
            return
        self.project.addMapLayer(made, False)
        node = parent.addLayer(made)
        node.setItemVisibilityChecked(layer.visible is not False)
        node.setExpanded(len(made.legend().createLayerTreeModelLegendNodes(node)) < 12)
        result.layers.append(made)
        result.by_index[index] = made

    def _finish(self, converted: list[ConvertedMap]) -> None:
        """Title, themes, coordinate system and first view."""
        metadata = self.project.metadata()
        metadata.setTitle(self.document.title or "")
        metadata.setAuthor(self.document.author or "")
        self.project.setMetadata(metadata)
        self.project.setTitle(self.document.title or "")
        for each in converted[1:]:
            each.group.setItemVisibilityChecked(False)
        if not converted:
            return
        crs = reference_system(converted[0].map.coordinate_system)
        if crs.isValid():
            self.project.setCrs(crs)
        view = view_of(converted[0])
        if not view.isEmpty():
            settings = self.project.viewSettings()
            settings.setDefaultViewExtent(QgsReferencedRectangle(view, self.project.crs()))
        if len(converted) > 1:
            self._add_themes(converted)

    def _add_themes(self, converted: list[ConvertedMap]) -> None:
        """A theme for each map, with the layers that it shows."""
        themes = self.project.mapThemeCollection()
        for each in converted:
            record = QgsMapThemeCollection.MapThemeRecord()
            shown = [
                QgsMapThemeCollection.MapThemeLayerRecord(layer) for layer in visible_layers(each)
            ]
            record.setLayerRecords(shown)
            themes.insert(each.map.name, record)


def visible_layers(converted: ConvertedMap) -> list[QgsMapLayer]:
    """The layers that the map shows: switched on, as all of their groups are."""

    def shown(index: Optional[int]) -> bool:
        layers, steps = converted.map.layers, 0
        while index is not None and steps < len(layers):
            if layers[index].visible is False:
                return False
            index, steps = layers[index].parent, steps + 1
        return True

    return [layer for index, layer in converted.by_index.items() if shown(index)]


def view_of(converted: ConvertedMap) -> QgsRectangle:
    """What the data frame shows; else the extent of the visible layers. Empty without both."""
    layers = extent_of_layers(converted)
    stored = converted.map.extent
    if stored is None:
        return layers
    extent = QgsRectangle(stored.xmin, stored.ymin, stored.xmax, stored.ymax)
    usable = extent.isFinite() and not extent.isEmpty()
    return extent if usable and (layers.isEmpty() or extent.intersects(layers)) else layers


def extent_of_layers(converted: ConvertedMap) -> QgsRectangle:
    """Of the visible layers whose data is here, in the map's coordinate system."""
    crs = reference_system(converted.map.coordinate_system)
    whole = QgsRectangle()
    whole.setMinimal()
    for layer in visible_layers(converted):
        if not layer.isValid() or layer.extent().isEmpty() or not layer.extent().isFinite():
            continue
        transform = QgsCoordinateTransform(layer.crs(), crs, QgsProject.instance())
        try:
            whole.combineExtentWith(transform.transformBoundingBox(layer.extent()))
        except QgsCsException:
            continue
    return whole if not whole.isEmpty() else QgsRectangle()
