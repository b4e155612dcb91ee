"""The plugin in QGIS: its menu entry, the files it takes, its Processing algorithm; the command."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import unittest
from typing import Any
from unittest import mock

from support import MXDINFO, ROOT, SAMPLE, SHARED, Case

from qgis.core import (
    QgsApplication,
    QgsProcessingContext,
    QgsProcessingFeedback,
    QgsProject,
)

import arcmap_documents
from arcmap_documents import reader, settings

CLI = "import sys; from arcmap_documents.cli import main; sys.exit(main())"


def open_documents(plugin: Any, *paths: str) -> None:
    """Waits for each, as the event loop of QGIS does."""
    for path in paths:
        plugin.drop_handler.handleFileDrop(path)
        plugin.tasks[-1].waitForFinished(60000)
        for _ in range(50):
            QgsApplication.processEvents()


class Plugin(Case):
    def setUp(self) -> None:
        super().setUp()
        settings.store("mxdinfo", MXDINFO)
        self.iface = mock.MagicMock()
        self.iface.mainWindow.return_value = None
        self.plugin = arcmap_documents.classFactory(self.iface)
        self.plugin.initGui()
        self.addCleanup(self.plugin.unload)

    def test_a_dropped_document_becomes_the_project(self) -> None:
        self.assertFalse(self.plugin.drop_handler.handleFileDrop("a.shp"))
        with mock.patch("arcmap_documents.plugin.QMessageBox") as box:
            open_documents(self.plugin, SAMPLE)
        names = {layer.name() for layer in QgsProject.instance().mapLayers().values()}
        self.assertEqual({"Rivers & canals", "Relief", "Towns", "Land use"}, names)
        self.assertIn("Towns", box().setDetailedText.call_args[0][0])
        self.iface.addToolBarIcon.assert_called_once()
        # Else QGIS takes coordinate system and view from the first layer.
        states = self.iface.layerTreeCanvasBridge().setAutoSetupOnFirstLayer.call_args_list
        self.assertEqual([mock.call(False), mock.call(True)], states)
        self.iface.mapCanvas().setDestinationCrs.assert_called_with(QgsProject.instance().crs())

    def test_a_file_that_is_no_document_is_reported(self) -> None:
        path = os.path.join(self.folder, "bad.mxd")
        with open(path, "wb") as file:
            file.write(b"no document")
        open_documents(self.plugin, path)
        self.assertIn("not readable", self.iface.messageBar().pushMessage.call_args[0][1])

    def test_the_processing_algorithm(self) -> None:
        registry = QgsApplication.processingRegistry()
        algorithm = registry.createAlgorithmById("arcmap_documents:convert")
        below = os.path.join(self.folder, "in", "a", "b")
        os.makedirs(below)
        shutil.copy(SAMPLE, below)
        shutil.copy(SAMPLE, os.path.dirname(below))
        output = os.path.join(self.folder, "out")
        context, feedback = QgsProcessingContext(), QgsProcessingFeedback()
        parameters = {"FOLDER": os.path.join(self.folder, "in"), "OUTPUT": output, "STYLES": [0]}
        QgsProject.instance().setTitle("What the user works on")
        results, ok = algorithm.run(parameters, context, feedback)
        self.assertTrue(ok)
        self.assertEqual(2, results["PROJECTS"])
        self.assertGreater(results["LOSSES"], 0)
        for name in ("a/sample.qgz", "a/b/sample.qgz", "a/b/sample - Towns.qml"):
            self.assertTrue(os.path.exists(os.path.join(output, name)), name)
        self.assertEqual("What the user works on", QgsProject.instance().title())
        chosen = {"DOCUMENTS": [os.path.join(below, "sample.mxd")] * 2, "OUTPUT": output}
        self.assertEqual(2, algorithm.run(chosen, context, feedback)[0]["PROJECTS"])
        self.assertTrue(os.path.exists(os.path.join(output, "sample 2.qgz")))
        feedback.cancel()
        self.assertEqual(0, algorithm.run(parameters, context, feedback)[0]["PROJECTS"])
        _, ok = algorithm.run({**parameters, "MAPPINGS": "C:"}, context, QgsProcessingFeedback())
        self.assertFalse(ok)

    def test_settings_are_kept_if_their_mappings_can_be_read(self) -> None:
        dialog = settings.SettingsDialog()
        with mock.patch("arcmap_documents.settings.QMessageBox"):
            for mappings, expected in (("C:", []), ("C:\\d=/mnt\n\n", [("C:\\d", "/mnt")])):
                dialog.mappings.setPlainText(mappings)
                dialog.accept()
                self.assertEqual(expected, settings.places().mappings)
        settings.store("mappings", "")


class Reading(Case):
    def program(self, text: str) -> str:
        """A copy of the modules with a program in their folder that is not executable yet."""
        folder = os.path.join(self.folder, "bin")
        os.makedirs(folder)
        path = os.path.join(folder, "mxdinfo")
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def test_the_plugins_own_program_is_made_executable(self) -> None:
        path = self.program("#!/bin/sh\necho '{\"schema_version\": 99}'\n")
        with mock.patch("arcmap_documents.reader.__file__", os.path.join(self.folder, "x.py")):
            self.assertEqual(path, reader.find_mxdinfo())
            self.assertEqual("/other/mxdinfo", reader.find_mxdinfo("/other/mxdinfo"))
            windows = f"{path}.exe"
            shutil.copy(path, windows)
            with mock.patch("sys.platform", "win32"):
                self.assertEqual(windows, reader.find_mxdinfo())
        with self.assertRaisesRegex(reader.ReadError, "JSON of version 99"):
            reader.read(path, "a.mxd")

    def test_reading_can_be_cancelled(self) -> None:
        path = self.program("#!/bin/sh\nexec sleep 60\n")
        os.chmod(path, 0o700)
        with self.assertRaises(reader.ReadError):
            reader.read(path, "a.mxd", lambda: True)


class Command(Case):
    def run_command(self, *arguments: str, code: int = 0) -> str:
        environment = {**os.environ, "PYTHONPATH": os.path.join(ROOT, "qgis")}
        command = [sys.executable, "-c", CLI, "--mxdinfo", MXDINFO, *arguments]
        result = subprocess.run(
            command, env=environment, cwd=self.folder, capture_output=True, check=False
        )
        self.assertEqual(code, result.returncode, result.stderr[-2000:])
        return result.stdout.decode()

    def test_exit_codes_and_losses(self) -> None:
        for name in ("a/bad.mxd", "a/b/good.mxd"):
            path = os.path.join(self.folder, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as copy, open(SAMPLE, "rb") as original:
                copy.write(b"bad" if "bad" in name else original.read())
        self.run_command("-r", "-o", "out", "--losses", "losses.tsv", "a", code=1)
        self.assertTrue(os.path.exists(os.path.join(self.folder, "out", "b", "good.qgz")))
        with open(os.path.join(self.folder, "losses.tsv"), encoding="utf-8") as file:
            rows = [line.rstrip("\n").split("\t") for line in file]
        self.assertEqual({4}, {len(row) for row in rows})
        self.assertIn("not readable as a map document", {row[3] for row in rows})
        self.run_command("--strict", "-q", "a/b/good.mxd", code=3)
        self.run_command("--map", "nothing", SAMPLE, code=2)

    @unittest.skipUnless(os.path.isdir(SHARED), "no real documents beside the project")
    def test_many_documents_in_one_run(self) -> None:
        samples = os.path.join(SHARED, "samples")
        names = sorted(each for each in os.listdir(samples) if each.endswith(".mxd"))
        for index in range(30):
            with open(os.path.join(samples, names[index % len(names)]), "rb") as file:
                data = bytearray(file.read())
            if index % 3 == 0:
                at = len(data) * (index + 1) // 32
                data[at : at + 600] = bytes(600)
            with open(os.path.join(self.folder, f"{index}.mxd"), "wb") as file:
                file.write(data)
        output = self.run_command("-o", "out", "--losses", "losses.tsv", ".", code=0)
        self.assertEqual(30, output.count(".qgz: "))


if __name__ == "__main__":
    unittest.main()
