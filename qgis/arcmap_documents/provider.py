"""The Processing provider with its only algorithm."""

from __future__ import annotations

import os
from typing import Any

from qgis.core import (
    QgsProcessing,
    QgsProcessingAlgorithm,
    QgsProcessingContext,
    QgsProcessingException,
    QgsProcessingFeedback,
    QgsProcessingOutputNumber,
    QgsProcessingParameterBoolean,
    QgsProcessingParameterEnum,
    QgsProcessingParameterFile,
    QgsProcessingParameterFolderDestination,
    QgsProcessingParameterMultipleLayers,
    QgsProcessingParameterString,
    QgsProcessingProvider,
    QgsSettings,
)

from .project import Cancelled
from .reader import ReadError, documents_in, find_mxdinfo
from .sources import Places, mappings_of

STYLES = ["qml", "sld"]


class ConvertDocuments(QgsProcessingAlgorithm):
    """Converts documents, or all documents of a folder."""

    def createInstance(self) -> "ConvertDocuments":  # noqa: N802
        return ConvertDocuments()

    def name(self) -> str:
        return "convert"

    def displayName(self) -> str:  # noqa: N802
        return "Convert ArcMap documents"

    def shortHelpString(self) -> str:  # noqa: N802
        return (
            "Writes a QGIS project for each ArcMap document (.mxd) that is chosen, or that is in a "
            "folder or the folders below it. Folder mappings are STORED=HERE, one a line."
        )

    def flags(self) -> Any:
        # Projects are built in the main thread.
        return super().flags() | QgsProcessingAlgorithm.FlagNoThreading

    def initAlgorithm(self, config: Any = None) -> None:  # noqa: N802
        folder = QgsProcessingParameterFile.Folder
        for parameter in (
            QgsProcessingParameterMultipleLayers(
                "DOCUMENTS", "Documents", QgsProcessing.TypeFile, optional=True
            ),
            QgsProcessingParameterFile("FOLDER", "Folder of documents", folder, optional=True),
            QgsProcessingParameterString("MAPPINGS", "Folder mappings", "", True, True),
            QgsProcessingParameterFile("SEARCH", "Folder to search", folder, optional=True),
            QgsProcessingParameterEnum("STYLES", "Styles", STYLES, True, [], True),
            QgsProcessingParameterBoolean("PICTURES", "Draw pictures", False),
            QgsProcessingParameterFolderDestination("OUTPUT", "Output folder"),
        ):
            self.addParameter(parameter)
        self.addOutput(QgsProcessingOutputNumber("PROJECTS", "Projects written"))
        self.addOutput(QgsProcessingOutputNumber("LOSSES", "Losses"))

    def _documents(
        self, parameters: dict[str, Any], context: QgsProcessingContext, output: str
    ) -> list[tuple[str, str]]:
        """Each document with the folder to write it to: its place below the output folder."""
        chosen = self.parameterAsFileList(parameters, "DOCUMENTS", context)
        folder = self.parameterAsFile(parameters, "FOLDER", context)
        documents = [(path, output) for path in chosen if path]
        for path in documents_in(folder, True) if folder else ():
            below = os.path.relpath(os.path.dirname(path), folder)
            documents.append((path, os.path.join(output, below)))
        if not documents:
            raise QgsProcessingException("There is no document to convert")
        return documents

    def _options(self, parameters: dict[str, Any], context: QgsProcessingContext) -> Any:
        from .conversion import Options

        mappings = self.parameterAsString(parameters, "MAPPINGS", context)
        search = self.parameterAsFile(parameters, "SEARCH", context) or None
        chosen = self.parameterAsEnums(parameters, "STYLES", context)
        return Options(
            find_mxdinfo(str(QgsSettings().value("arcmap_documents/mxdinfo", ""))),
            Places(mappings_of(mappings), search),
            tuple(STYLES[index] for index in chosen),
            self.parameterAsBool(parameters, "PICTURES", context),
        )

    def processAlgorithm(  # noqa: N802
        self,
        parameters: dict[str, Any],
        context: QgsProcessingContext,
        feedback: QgsProcessingFeedback,
    ) -> dict[str, Any]:
        from .conversion import FileNames, convert_document

        try:
            options = self._options(parameters, context)
        except (ReadError, ValueError) as error:
            raise QgsProcessingException(str(error)) from error
        output = self.parameterAsFileOutput(parameters, "OUTPUT", context)
        documents = self._documents(parameters, context, output)
        names = FileNames()
        projects = losses = 0
        for index, (path, folder) in enumerate(documents):

            def progress(share: float, done: int = index) -> bool:
                feedback.setProgress(100 * (done + share) / len(documents))
                return not feedback.isCanceled()

            try:
                result = convert_document(path, names.stem_for(path, folder), options, progress)
            except Cancelled:
                break
            for loss in result.losses:
                feedback.pushWarning(f"{path}: {loss.text()}")
            if result.error:
                feedback.reportError(f"{path}: {result.error}")
            projects += not result.error
            losses += len(result.losses)
        return {"OUTPUT": output, "PROJECTS": projects, "LOSSES": losses}


class Provider(QgsProcessingProvider):
    def id(self) -> str:
        return "arcmap_documents"

    def name(self) -> str:
        return "ArcMap documents"

    def loadAlgorithms(self) -> None:  # noqa: N802
        self.addAlgorithm(ConvertDocuments())
