"""Map documents as plain objects, from the JSON that mxdinfo writes in a process of its own."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import sys
from dataclasses import dataclass, field, fields
from typing import Any, Callable, Iterator, Optional, TypeVar

SCHEMA_VERSION = 2

Symbol = dict[str, Any]
T = TypeVar("T")


class ReadError(Exception):
    """A document, or mxdinfo itself, cannot be used; the message is for users."""


@dataclass
class Source:
    kind: str = "other"
    type: Optional[str] = None
    workspace: Optional[str] = None
    feature_dataset: Optional[str] = None
    dataset: Optional[str] = None
    path: Optional[str] = None
    relative: bool = False


@dataclass
class CoordinateSystem:
    kind: str = "unknown"
    name: str = ""
    epsg: Optional[int] = None
    wkt: Optional[str] = None


@dataclass
class LegendClass:
    heading: Optional[str] = None
    label: str = ""
    symbol: Optional[Symbol] = None
    all_other_values: bool = False
    values: list[list[str]] = field(default_factory=list)
    min: Optional[float] = None
    max: Optional[float] = None


@dataclass
class Renderer:
    kind: str = "simple"
    fields: list[str] = field(default_factory=list)
    normalization_field: Optional[str] = None
    classes: list[LegendClass] = field(default_factory=list)


@dataclass
class LabelClass:
    expression: str = ""
    # "#rrggbb"
    color: Optional[str] = None
    font: Optional[dict[str, Any]] = None


@dataclass
class Labels:
    shown: bool = False
    classes: list[LabelClass] = field(default_factory=list)


@dataclass
class Layer:
    kind: str = "unknown"
    name: str = ""
    parent: Optional[int] = None
    read: bool = True
    visible: Optional[bool] = None
    min_scale: Optional[float] = None
    max_scale: Optional[float] = None
    geometry: Optional[str] = None
    source: Optional[Source] = None
    coordinate_system: Optional[CoordinateSystem] = None
    definition_query: Optional[str] = None
    display_field: Optional[str] = None
    labels: Optional[Labels] = None
    renderer: Optional[Renderer] = None


@dataclass
class Extent:
    xmin: float = 0.0
    ymin: float = 0.0
    xmax: float = 0.0
    ymax: float = 0.0


@dataclass
class Map:
    name: str = ""
    coordinate_system: Optional[CoordinateSystem] = None
    extent: Optional[Extent] = None
    layers: list[Layer] = field(default_factory=list)


@dataclass
class Document:
    path: str = ""
    readable: bool = False
    reason: Optional[str] = None
    title: Optional[str] = None
    author: Optional[str] = None
    last_saved_path: Optional[str] = None
    maps: list[Map] = field(default_factory=list)
    losses: list[dict[str, Any]] = field(default_factory=list)


def _plain(cls: type[T], data: dict[str, Any], **nested: Any) -> T:
    """The fields that the class knows; later versions of the JSON may have more."""
    known = {each.name for each in fields(cls)}  # type: ignore[arg-type]
    return cls(**{key: value for key, value in data.items() if key in known} | nested)


def _optional(make: Callable[[dict[str, Any]], T], data: Optional[dict[str, Any]]) -> Optional[T]:
    return None if data is None else make(data)


def _renderer(data: dict[str, Any]) -> Renderer:
    return _plain(Renderer, data, classes=[_plain(LegendClass, each) for each in data["classes"]])


def _labels(data: dict[str, Any]) -> Labels:
    return _plain(Labels, data, classes=[_plain(LabelClass, each) for each in data["classes"]])


def _layer(data: dict[str, Any]) -> Layer:
    return _plain(
        Layer,
        data,
        source=_optional(lambda each: _plain(Source, each), data["source"]),
        coordinate_system=_coordinate_system(data["coordinate_system"]),
        labels=_optional(_labels, data["labels"]),
        renderer=_optional(_renderer, data["renderer"]),
    )


def _coordinate_system(data: Optional[dict[str, Any]]) -> Optional[CoordinateSystem]:
    return _optional(lambda each: _plain(CoordinateSystem, each), data)


def _map(data: dict[str, Any]) -> Map:
    extent = data["extent"]
    usable = extent is not None and None not in extent.values()
    return _plain(
        Map,
        data,
        coordinate_system=_coordinate_system(data["coordinate_system"]),
        extent=_plain(Extent, extent) if usable else None,
        layers=[_layer(each) for each in data["layers"]],
    )


def document_of(data: dict[str, Any]) -> Document:
    """The document that a parsed JSON object describes."""
    if data.get("schema_version") != SCHEMA_VERSION:
        found = data.get("schema_version")
        raise ReadError(f"mxdinfo writes JSON of version {found}, not {SCHEMA_VERSION}")
    return _plain(
        Document,
        data,
        path=data["file"]["path"],
        last_saved_path=data["last_saved"]["path"],
        maps=[_map(each) for each in data["maps"]],
    )


def _program_name() -> str:
    return "mxdinfo.exe" if sys.platform == "win32" else "mxdinfo"


def find_mxdinfo(setting: str = "") -> str:
    """The program of the setting, of the plugin's own folder, or of PATH, in this order."""
    own_folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "bin")
    own = os.path.join(own_folder, _program_name())
    for path in (setting, own if os.path.isfile(own) else None, shutil.which("mxdinfo")):
        if path:
            return path
    raise ReadError("mxdinfo is not installed; its path can be set in the plugin's settings")


def read_json(mxdinfo: str, path: str, timeout: float = 300) -> dict[str, Any]:
    """What mxdinfo writes for a document. An unreadable document is described, too."""
    flags = getattr(subprocess, "CREATE_NO_WINDOW", 0)
    command = [mxdinfo, "-q", "-f", "json", "--", path]
    try:
        result = subprocess.run(
            command, capture_output=True, check=False, timeout=timeout, creationflags=flags
        )
        data = json.loads(result.stdout)
    except OSError as error:
        raise ReadError(f"{mxdinfo} cannot be run: {error.strerror}") from error
    except subprocess.TimeoutExpired as error:
        raise ReadError("reading takes too long") from error
    except ValueError as error:
        raise ReadError("mxdinfo ended without a result") from error
    if not isinstance(data, dict):
        raise ReadError("mxdinfo ended without a result")
    return data


def read(mxdinfo: str, path: str) -> Document:
    """The document; ReadError if it is none, or if mxdinfo is of another version."""
    document = document_of(read_json(mxdinfo, path))
    if not document.readable:
        raise ReadError(document.reason or "not readable as a map document")
    return document


def documents_in(folder: str, recursive: bool) -> Iterator[str]:
    """The paths of a folder's documents, sorted by name."""
    for place, folders, names in os.walk(folder):
        folders.sort()
        if not recursive:
            folders.clear()
        yield from (os.path.join(place, n) for n in sorted(names) if n.lower().endswith(".mxd"))
