"""Where a layer's data is on this machine. tools/mxdinfo/sources has the same rules."""

from __future__ import annotations

import os
import re
from dataclasses import dataclass, field
from functools import lru_cache
from typing import Iterator, Optional

from qgis.core import QgsDataSourceUri

from .reader import Document, Source

_GEODATABASES = ("file_geodatabase", "personal_geodatabase")
# Files of other kinds that hold several datasets.
_CONTAINERS = (".gpkg", ".sqlite", ".xls", ".xlsx")
# ArcMap's names of databases: the provider of QGIS, and the port that is meant if none is stored.
_DATABASES = {"postgresql": ("postgres", "5432"), "sqlserver": ("mssql", "")}


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
    problem: str = "it is not found"


def mapping(text: str) -> tuple[str, str]:
    """A folder mapping from its text, for example C:\\data=/mnt/data"""
    stored, separator, here = text.partition("=")
    if not separator or not stored or not here:
        raise ValueError(f"{text!r} is not of the form STORED=HERE")
    return stored, here


def mappings_of(text: str) -> list[tuple[str, str]]:
    """The folder mappings of a text that has one a line."""
    return [mapping(line.strip()) for line in text.splitlines() if line.strip()]


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
    """The path with the longest mapped folder replaced that it is in."""
    parts = parts_of(path)
    for stored, here in sorted(mappings, key=lambda each: -len(parts_of(each[0]))):
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


def _below_saved_folder(parts: list[str], saved: Optional[str], places: Places) -> Optional[str]:
    """The path relative to the folder where the document was saved last."""
    saved_folder = "\\".join(re.split(r"[\\/]", saved)[:-1]) if saved else ""
    here = mapped(saved_folder, places.mappings) or saved_folder
    base = _existing_path(here) if here else None
    return existing(base, parts) if base else None


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
    if relative and (found := _below_saved_folder(parts, document.last_saved_path, places)):
        return found
    for below in _below_document(parts, folder, document.last_saved_path):
        if found := existing(folder, below):
            return found
    if places.search_folder and parts:
        return _by_name(places.search_folder, parts[-1].lower())
    return None


def _holds_several(source: Source) -> bool:
    """Whether the workspace is the file or folder to open, and the dataset a part of it."""
    workspace = (source.workspace or "").lower()
    return source.kind in _GEODATABASES or workspace.endswith(_CONTAINERS)


def _file_path(source: Source) -> str:
    """The file or folder that holds the data, as stored."""
    if _holds_several(source):
        return source.workspace or ""
    if source.kind == "coverage":
        coverage = source.feature_dataset or source.dataset
        return "/".join(each for each in (source.workspace, coverage) if each)
    return source.path or "/".join(each for each in (source.workspace, source.dataset) if each)


def _uri(source: Source, layer_kind: str, path: str) -> str:
    if not _holds_several(source):
        return path
    if layer_kind == "raster":
        return f'OpenFileGDB:"{path}":{source.dataset}'
    # SQLite's schema is part of ArcMap's names.
    return f"{path}|layername={(source.dataset or '').removeprefix('main.')}"


def _server(source: Source) -> Optional[Location]:
    """Data of a service or database that QGIS has a provider for."""
    workspace, dataset = source.workspace or "", source.dataset or ""
    if source.kind == "service":
        uri = f"url='{workspace.rstrip('/')}/{dataset}'"
        return Location("arcgisfeatureserver", uri, True)
    stored = {key.lower(): value for key, value in re.findall(r"(\w+)=([^;]*)", workspace)}
    _, database, server, *_ = (stored.get("instance", "") + "::").split(":")
    if database.lower() not in _DATABASES:
        return None
    provider, usual_port = _DATABASES[database.lower()]
    host, _, port = server.partition(",")
    connection = QgsDataSourceUri()
    connection.setConnection(
        host, port or usual_port, stored.get("database", ""), stored.get("user", ""), ""
    )
    *_, schema, table = ["", *dataset.split(".")]
    connection.setDataSource(schema, table, "shape")
    return Location(provider, connection.uri(False), True)


def locate(source: Source, layer_kind: str, document: Document, places: Places) -> Location:
    """Where the data of a feature or raster layer is, or was."""
    provider = "gdal" if layer_kind == "raster" else "ogr"
    stored = _file_path(source)
    if source.kind in ("sde", "service"):
        server = _server(source) if layer_kind == "feature" else None
        return server or Location(provider, stored, False, "QGIS does not read it from there")
    found = find(stored, source.relative, document, places) if stored else None
    path = found or (mapped(stored, places.mappings) or stored).replace("\\", "/")
    return Location(provider, _uri(source, layer_kind, path), found is not None)
