"""Reading in the background; the project is built in the main thread, as QGIS demands."""

from __future__ import annotations

from typing import Callable, Optional

from qgis.core import QgsTask

from .reader import Document, ReadError, read


class ReadTask(QgsTask):
    """Runs mxdinfo. When it is done, calls back with the document, or with why there is none."""

    def __init__(
        self, mxdinfo: str, path: str, done: Callable[[Optional[Document], str], None]
    ) -> None:
        super().__init__(f"Reading {path}", QgsTask.CanCancel)
        self._mxdinfo, self._path, self._done = mxdinfo, path, done
        self._document: Optional[Document] = None
        self._error = ""

    def run(self) -> bool:
        try:
            self._document = read(self._mxdinfo, self._path, self.isCanceled)
            self._document.path = self._path
        except ReadError as error:
            self._error = str(error)
        return self._document is not None

    def finished(self, result: bool) -> None:
        """In the main thread. Without document and error if the task was cancelled."""
        if self.isCanceled():
            self._done(None, "")
        else:
            self._done(self._document if result else None, self._error)
