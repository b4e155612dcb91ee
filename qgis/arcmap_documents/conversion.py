"""One document: project, styles and pictures, with what was lost on the way."""

from __future__ import annotations

import os
import re
from dataclasses import dataclass, field
from typing import Optional

from qgis.core import QgsProject, QgsVectorLayer

from . import pictures
from .losses import Loss, Losses
from .project import Builder, ConvertedMap, Progress, layer_path
from .reader import ReadError, read
from .sld import save_sld
from .sources import Places


@dataclass
class Options:
    mxdinfo: str
    places: Places = field(default_factory=Places)
    # Of "qml" and "sld".
    styles: tuple[str, ...] = ()
    pictures: bool = False


@dataclass
class Result:
    """What became of a document. The error is empty, or the only thing that is known."""

    document: str
    project: Optional[str] = None
    error: str = ""
    maps: int = 0
    layers: int = 0
    valid: int = 0
    losses: list[Loss] = field(default_factory=list)
    # Styles and pictures; they are losses, too.
    unwritten: list[str] = field(default_factory=list)


def os_error_text(error: OSError) -> str:
    reason = error.strerror or str(error)
    return f"{error.filename}: {reason}" if error.filename else reason


def file_name(name: str) -> str:
    """A name without what file systems refuse, and of fewer bytes than they allow."""
    name = re.sub(r'[\x00-\x1f<>:"/\\|?*]+', "_", name)
    short = name.encode("utf-8", "surrogateescape")[:180].decode("utf-8", "ignore")
    return short.strip(" .") or "unnamed"


class FileNames:
    """Paths without endings that differ from each other, whatever the case."""

    def __init__(self) -> None:
        self._taken: set[str] = set()

    def stem(self, folder: str, name: str) -> str:
        base, number = os.path.join(os.path.normpath(folder), file_name(name)), 1
        candidate = base
        while candidate.lower() in self._taken:
            number += 1
            candidate = f"{base} {number}"
        self._taken.add(candidate.lower())
        return candidate

    def stem_for(self, document: str, folder: str) -> str:
        """For what is written about a document."""
        return self.stem(folder, os.path.splitext(os.path.basename(document))[0])


def _write_styles(
    maps: list[ConvertedMap], stem: str, options: Options, losses: Losses
) -> list[str]:
    """Returns the files that could not be written."""
    unwritten: list[str] = []
    names, (folder, name) = FileNames(), os.path.split(stem)
    for converted in maps:
        for index, layer in converted.by_index.items():
            if not isinstance(layer, QgsVectorLayer):
                continue
            losses.layer = layer_path(converted.map, index, len(maps) > 1)
            base = names.stem(folder, f"{name} - {layer.name()}")
            stored = converted.map.layers[index]
            problems = {}
            if "qml" in options.styles:
                message, ok = layer.saveNamedStyle(f"{base}.qml")
                problems["qml"] = "" if ok else message
            if "sld" in options.styles:
                problems["sld"] = save_sld(
                    layer, stored.geometry, stored.renderer, f"{base}.sld", losses
                )
            for style, problem in problems.items():
                if problem:
                    losses.add(f"{style} file", problem)
                    unwritten.append(f"{base}.{style}")
    return unwritten


def _write_pictures(maps: list[ConvertedMap], stem: str, losses: Losses) -> list[str]:
    """Returns the files that could not be written."""
    unwritten: list[str] = []
    names, (folder, name) = FileNames(), os.path.split(stem)
    for converted in maps:
        suffix = f" - {converted.map.name}" if len(maps) > 1 else ""
        path = names.stem(folder, name + suffix) + ".png"
        if not pictures.draw(converted).save(path):
            losses.add("picture", f"{path} cannot be written", "")
            unwritten.append(path)
    return unwritten


def convert_document(
    path: str, stem: str, options: Options, progress: Progress = lambda share: True
) -> Result:
    """Writes the project to STEM.qgz, and styles and pictures beside it. Only Cancelled is
    raised. The project that is open in QGIS stays as it is."""
    losses, project = Losses(), QgsProject()
    result = Result(path)
    try:
        document = read(options.mxdinfo, path, lambda: not progress(0.0))
        document.path = path
        losses.add_read_losses(document.losses)
        maps = Builder(project, document, options.places, losses).build(progress)
        os.makedirs(os.path.dirname(os.path.abspath(stem)), exist_ok=True)
        if not project.write(stem + ".qgz"):
            raise ReadError(f"{stem}.qgz cannot be written: {project.error()}")
        result.project = stem + ".qgz"
        result.unwritten = _write_styles(maps, stem, options, losses)
        if options.pictures:
            result.unwritten += _write_pictures(maps, stem, losses)
        result.maps = len(maps)
        result.layers = sum(len(each.layers) for each in maps)
        result.valid = sum(layer.isValid() for each in maps for layer in each.layers)
    except ReadError as error:
        result.error = str(error)
    except OSError as error:
        result.error = os_error_text(error)
    finally:
        project.clear()
    result.losses = losses.all()
    return result
