"""The plugin: menu entry, drag and drop, Processing provider."""

from __future__ import annotations

import os
from typing import Any, Optional

from qgis.core import Qgis, QgsApplication, QgsMessageLog, QgsProject
from qgis.gui import QgsCustomDropHandler
from qgis.PyQt.QtCore import Qt
from qgis.PyQt.QtGui import QIcon
from qgis.PyQt.QtWidgets import QAction, QFileDialog, QMessageBox, QProgressDialog

from . import settings
from .losses import Losses
from .project import Builder, Cancelled, view_of
from .provider import Provider
from .reader import Document, ReadError, find_mxdinfo
from .settings import SettingsDialog
from .sources import Places
from .task import ReadTask

NAME = "ArcMap Documents"


class DropHandler(QgsCustomDropHandler):
    """Takes map documents that are dropped onto the map."""

    def __init__(self, plugin: "ArcMapDocuments") -> None:
        super().__init__()
        self._plugin = plugin

    def handleFileDrop(self, file: str) -> bool:  # noqa: N802
        if not file.lower().endswith(".mxd"):
            return False
        self._plugin.open(file)
        return True


class ArcMapDocuments:
    """What QGIS makes of the plugin's folder."""

    def __init__(self, iface: Any) -> None:
        self.iface = iface
        self.actions: list[QAction] = []
        self.provider: Optional[Provider] = None
        self.drop_handler: Optional[DropHandler] = None
        # Kept until they are done: QGIS does not own the Python part of a task.
        self.tasks: list[ReadTask] = []

    def initProcessing(self) -> None:  # noqa: N802
        self.provider = Provider()
        QgsApplication.processingRegistry().addProvider(self.provider)

    def initGui(self) -> None:  # noqa: N802
        self.initProcessing()
        icon = QIcon(os.path.join(os.path.dirname(__file__), "icon.svg"))
        self._add_action(QAction(icon, "Open ArcMap Document...", self.iface.mainWindow()))
        self.iface.addToolBarIcon(self.actions[0])
        self._add_action(QAction("Settings...", self.iface.mainWindow()))
        self.actions[0].triggered.connect(self.choose)
        self.actions[1].triggered.connect(self.configure)
        self.drop_handler = DropHandler(self)
        self.iface.registerCustomDropHandler(self.drop_handler)

    def _add_action(self, action: QAction) -> None:
        self.iface.addPluginToMenu(NAME, action)
        self.actions.append(action)

    def unload(self) -> None:
        for task in self.tasks:
            task.cancel()
        for action in self.actions:
            self.iface.removePluginMenu(NAME, action)
            self.iface.removeToolBarIcon(action)
        if self.drop_handler is not None:
            self.iface.unregisterCustomDropHandler(self.drop_handler)
        if self.provider is not None:
            QgsApplication.processingRegistry().removeProvider(self.provider)

    def configure(self) -> None:
        SettingsDialog(self.iface.mainWindow()).exec_()

    def choose(self) -> None:
        path, _ = QFileDialog.getOpenFileName(
            self.iface.mainWindow(),
            "Open ArcMap Document",
            settings.text("last_folder"),
            "ArcMap documents (*.mxd)",
        )
        if path:
            settings.store("last_folder", os.path.dirname(path))
            self.open(path)

    def open(self, path: str) -> None:
        """Reads the document in the background and makes it the project."""
        try:
            mxdinfo, places = find_mxdinfo(settings.text("mxdinfo")), settings.places()
        except (ReadError, ValueError) as error:
            self._fail(path, str(error))
            return

        def done(document: Optional[Document], error: str) -> None:
            self.tasks.remove(task)
            if document is not None:
                self._build(document, places)
            elif error:
                self._fail(path, error)

        task = ReadTask(mxdinfo, path, done)
        self.tasks.append(task)
        QgsApplication.taskManager().addTask(task)

    def _fail(self, path: str, error: str) -> None:
        self.iface.messageBar().pushMessage(NAME, f"{path}: {error}", level=Qgis.Critical)

    def _build(self, document: Document, places: Places) -> None:
        if QgsProject.instance().isDirty() and not self._may_replace():
            return
        dialog = QProgressDialog("Opening the document...", "Cancel", 0, 100)
        dialog.setWindowModality(Qt.WindowModality.WindowModal)

        def progress(share: float) -> bool:
            dialog.setValue(int(100 * share))
            return not dialog.wasCanceled()

        losses = Losses()
        losses.add_read_losses(document.losses)
        project, canvas = QgsProject.instance(), self.iface.mapCanvas()
        project.clear()
        # Else QGIS takes coordinate system and view from the first layer.
        bridge = self.iface.layerTreeCanvasBridge()
        bridge.setAutoSetupOnFirstLayer(False)
        canvas.freeze(True)
        try:
            maps = Builder(project, document, places, losses).build(progress)
            bridge.setCanvasLayers()
        except Cancelled:
            project.clear()
            return
        finally:
            dialog.close()
            canvas.freeze(False)
            bridge.setAutoSetupOnFirstLayer(True)
        canvas.setDestinationCrs(project.crs())
        if maps and not view_of(maps[0]).isEmpty():
            canvas.setExtent(view_of(maps[0]))
        canvas.refresh()
        self._show_losses(document, losses)

    def _may_replace(self) -> bool:
        question = "The project has changes that are not saved. Replace it?"
        answer = QMessageBox.question(self.iface.mainWindow(), NAME, question)
        return bool(answer == QMessageBox.StandardButton.Yes)

    def _show_losses(self, document: Document, losses: Losses) -> None:
        lines = [loss.text() for loss in losses.all()]
        for line in lines:
            QgsMessageLog.logMessage(line, NAME, Qgis.Warning)
        if not lines:
            return
        box = QMessageBox(self.iface.mainWindow())
        box.setWindowTitle(NAME)
        box.setText(f"{os.path.basename(document.path)} is open. {len(lines)} losses:")
        box.setDetailedText("\n".join(lines))
        box.setAttribute(Qt.WidgetAttribute.WA_DeleteOnClose)
        box.open()
