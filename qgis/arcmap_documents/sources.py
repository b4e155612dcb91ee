"""Where a layer's data is on this machine."""

from __future__ import annotations

import os
import re
from dataclasses import dataclass, field
from functools import lru_cache
from typing import Iterator, Optional

from .reader import Document, Source

# Part of a dataset's path within its workspace; a geodatabase holds them in one file or folder.
_GEODATABASES = ("file_geodatabase", "personal_geodatabase")


@dataclass
class Places:
    """Where to look for data: folder mappings, and a folder to search by name."""

    mappings: list[tuple[str, str]] = field(default_factory=list)
    search_folder: Optional[str] = None


@dataclass(frozen=True)
class Location:
    """What QGIS opens. Without data, the path is the one to repair."""

    provider: str
    uri: str
    found: bool


def parts_of(path: str) -> list[str]:
    """The components of a path of any system, without empty ones."""
    return [part for part in re.split(r"[\\/]+", path) if part]


@lru_cache(maxsize=4096)
def _names_in(folder: str) -> dict[str, str]:
    try:
        return {name.lower(): name for name in sorted(os.listdir(folder), reverse=True)}
    except OSError:
        return {}


def existing(folder: str, parts: list[str]) -> Optional[str]:
    """The path below the folder, whatever the case of its names; None if there is none."""
    path = folder
    for part in parts:
        step = os.path.join(path, part)
        if part not in ("..", ".") and not os.path.lexists(step):
            name = _names_in(path).get(part.lower())
            if name is None:
                return None
            step = os.path.join(path, name)
        path = step
    return os.path.normpath(path) if os.path.exists(path) else None


def _existing_path(path: str) -> Optional[str]:
    if os.path.exists(path):
        return path
    if re.match(r"[A-Za-z]:|\\\\", path) and os.name != "nt":
        return None
    return existing(os.sep, parts_of(path)) if os.path.isabs(path) else None


def mapped(path: str, mappings: list[tuple[str, str]]) -> Optional[str]:
    """The path with the first mapped folder replaced that it is in."""
    parts = parts_of(path)
    for stored, here in mappings:
        prefix = [part.lower() for part in parts_of(stored)]
        if prefix and [part.lower() for part in parts[: len(prefix)]] == prefix:
            return os.path.join(here, *parts[len(prefix) :])
    return None


def _below_document(parts: list[str], folder: str, saved: Optional[str]) -> Iterator[list[str]]:
    """Paths relative to the document: first as it was saved last, then by ever shorter ends."""
    if saved:
        base = parts_of(saved)[:-1]
        common = 0
        while common < min(len(base), len(parts)) and base[common].lower() == parts[common].lower():
            common += 1
        if common:
            yield [".."] * (len(base) - common) + parts[common:]
    for start in range(len(parts)):
        if not parts[start].endswith(":"):
            yield parts[start:]


def _by_name(folder: str, name: str) -> Optional[str]:
    """The only file or folder of that name below the folder."""
    found = []
    for place, folders, names in os.walk(folder):
        found += [os.path.join(place, each) for each in folders + names if each.lower() == name]
        folders[:] = [each for each in folders if not each.lower().endswith(".gdb")]
    return found[0] if len(found) == 1 else None


def find(path: str, relative: bool, document: Document, places: Places) -> Optional[str]:
    """The file or folder of a stored path on this machine."""
    folder = os.path.dirname(os.path.abspath(document.path))
    parts = parts_of(path)
    there = mapped(path, places.mappings)
    if there and (found := _existing_path(there)):
        return found
    if not relative and (found := _existing_path(path)):
        return found
    if relative and (found := existing(folder, parts)):
        return found
    for below in _below_document(parts, folder, document.last_saved_path):
        if found := existing(folder, below):
            return found
    if places.search_folder and parts:
        return _by_name(places.search_folder, parts[-1].lower())
    return None


def _file_path(source: Source) -> str:
    """The file or folder that holds the data, as stored."""
    if source.kind in _GEODATABASES:
        return source.workspace or ""
    return source.path or "/".join(each for each in (source.workspace, source.dataset) if each)


def _uri(source: Source, layer_kind: str, path: str) -> str:
    if layer_kind == "raster":
        if source.kind == "file_geodatabase":
            return f'OpenFileGDB:"{path}":{source.dataset}'
        return path
    if source.kind in _GEODATABASES or source.kind in ("sde", "service", "other"):
        return f"{path}|layername={source.dataset}"
    return path


def locate(source: Source, layer_kind: str, document: Document, places: Places) -> Location:
    """Where the data of a feature or raster layer is, or was."""
    provider = "gdal" if layer_kind == "raster" else "ogr"
    stored = _file_path(source)
    local = source.kind not in ("sde", "service") and stored != ""
    found = find(stored, source.relative, document, places) if local else None
    there = mapped(stored, places.mappings) or stored
    path = found or (there if source.kind == "service" else there.replace("\\", "/"))
    return Location(provider, _uri(source, layer_kind, path), found is not None)
