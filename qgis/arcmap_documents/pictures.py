"""Pictures of maps, drawn by QGIS."""

from __future__ import annotations

from typing import Optional

from qgis.core import (
    QgsLayerTree,
    QgsLayerTreeModel,
    QgsLegendRenderer,
    QgsLegendSettings,
    QgsMapLayer,
    QgsMapRendererCustomPainterJob,
    QgsMapSettings,
    QgsProject,
    QgsRectangle,
    QgsRenderContext,
)
from qgis.PyQt.QtCore import QSize, QSizeF, Qt
from qgis.PyQt.QtGui import QColor, QImage, QPainter

from .layers import reference_system
from .project import ConvertedMap, view_of, visible_layers

DPI = 96.0
_MILLIMETERS_PER_INCH = 25.4
_LONGEST_SIDE = 1200


def picture_size(extent: QgsRectangle, longest: int = _LONGEST_SIDE) -> QSize:
    """The proportions of the extent, within bounds."""
    if extent.isEmpty():
        return QSize(longest, longest)
    share = min(max(extent.width() / extent.height(), 0.1), 10.0)
    if share >= 1:
        return QSize(longest, max(1, round(longest / share)))
    return QSize(max(1, round(longest * share)), longest)


def draw_map(
    converted: ConvertedMap,
    size: Optional[QSize] = None,
    dpi: float = DPI,
    layers: Optional[list[QgsMapLayer]] = None,
) -> QImage:
    """The map at its data frame's extent, with its visible layers or those that are given."""
    extent = view_of(converted)
    settings = QgsMapSettings()
    shown = visible_layers(converted) if layers is None else layers
    settings.setLayers([layer for layer in shown if layer.isValid()])
    settings.setDestinationCrs(reference_system(converted.map.coordinate_system))
    settings.setTransformContext(QgsProject.instance().transformContext())
    settings.setExtent(extent)
    settings.setOutputSize(size or picture_size(extent))
    settings.setOutputDpi(dpi)
    settings.setBackgroundColor(QColor(Qt.GlobalColor.white))
    settings.setFlag(QgsMapSettings.Antialiasing, True)
    image = QImage(settings.outputSize(), QImage.Format.Format_ARGB32_Premultiplied)
    image.setDotsPerMeterX(round(dpi / _MILLIMETERS_PER_INCH * 1000))
    image.setDotsPerMeterY(round(dpi / _MILLIMETERS_PER_INCH * 1000))
    image.fill(Qt.GlobalColor.white)
    painter = QPainter(image)
    job = QgsMapRendererCustomPainterJob(settings, painter)
    job.renderSynchronously()
    painter.end()
    return image


def draw_legend(converted: ConvertedMap, dpi: float = DPI) -> QImage:
    """The legend of the map's visible layers."""
    tree = QgsLayerTree()
    for layer in visible_layers(converted):
        tree.addLayer(layer)
    model = QgsLayerTreeModel(tree)
    renderer = QgsLegendRenderer(model, QgsLegendSettings())
    scale = dpi / _MILLIMETERS_PER_INCH
    size: QSizeF = renderer.minimumSize()
    image = QImage(
        max(1, round(size.width() * scale)),
        max(1, round(size.height() * scale)),
        QImage.Format.Format_ARGB32_Premultiplied,
    )
    image.setDotsPerMeterX(round(scale * 1000))
    image.setDotsPerMeterY(round(scale * 1000))
    image.fill(Qt.GlobalColor.white)
    painter = QPainter(image)
    painter.scale(scale, scale)
    context = QgsRenderContext.fromQPainter(painter)
    context.setScaleFactor(scale)
    painter.setRenderHint(QPainter.RenderHint.Antialiasing)
    renderer.drawLegend(context)
    painter.end()
    return image


def draw(converted: ConvertedMap) -> QImage:
    """The map with its legend beside it."""
    map_image, legend = draw_map(converted), draw_legend(converted)
    width = map_image.width() + legend.width()
    whole = QImage(
        QSize(width, max(map_image.height(), legend.height())), QImage.Format.Format_ARGB32
    )
    whole.fill(Qt.GlobalColor.white)
    painter = QPainter(whole)
    painter.drawImage(0, 0, map_image)
    painter.drawImage(map_image.width(), 0, legend)
    painter.end()
    return whole
