"""What users set: the program that reads documents, and where to look for data."""

from __future__ import annotations

from typing import Any

from qgis.core import QgsSettings
from qgis.gui import QgsFileWidget
from qgis.PyQt.QtWidgets import QDialog, QDialogButtonBox, QFormLayout, QMessageBox, QPlainTextEdit

from .sources import Places, mappings_of

_PREFIX = "arcmap_documents/"


def text(name: str) -> str:
    return str(QgsSettings().value(_PREFIX + name, ""))


def store(name: str, value: str) -> None:
    QgsSettings().setValue(_PREFIX + name, value)


def places() -> Places:
    """ValueError if the mappings are not readable."""
    return Places(mappings_of(text("mappings")), text("search_folder") or None)


class SettingsDialog(QDialog):
    """Stores the settings when it is accepted."""

    def __init__(self, parent: Any = None) -> None:
        super().__init__(parent)
        self.setWindowTitle("ArcMap Documents")
        self.mxdinfo, self.search_folder = QgsFileWidget(), QgsFileWidget()
        self.search_folder.setStorageMode(QgsFileWidget.GetDirectory)
        self.mxdinfo.setFilePath(text("mxdinfo"))
        self.search_folder.setFilePath(text("search_folder"))
        self.mappings = QPlainTextEdit(text("mappings"))
        self.mappings.setPlaceholderText("C:\\data=/mnt/data")
        buttons = QDialogButtonBox(
            QDialogButtonBox.StandardButton.Ok | QDialogButtonBox.StandardButton.Cancel
        )
        buttons.accepted.connect(self.accept)
        buttons.rejected.connect(self.reject)
        form = QFormLayout(self)
        form.addRow("Program mxdinfo (empty: the plugin's own)", self.mxdinfo)
        form.addRow("Folder mappings, one a line", self.mappings)
        form.addRow("Folder to search for data", self.search_folder)
        form.addRow(buttons)

    def accept(self) -> None:
        try:
            mappings_of(self.mappings.toPlainText())
        except ValueError as error:
            QMessageBox.warning(self, self.windowTitle(), str(error))
            return
        store("mxdinfo", self.mxdinfo.filePath())
        store("mappings", self.mappings.toPlainText())
        store("search_folder", self.search_folder.filePath())
        super().accept()
