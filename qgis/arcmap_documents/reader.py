"""Map documents as plain objects, from the JSON that mxdinfo writes in a process of its own."""

from __future__ import annotations

import contextlib
import json
import os
import shutil
import subprocess
import sys
import time
from dataclasses import dataclass, field, fields
from typing import Any, Callable, Iterator, Optional, TypeVar

SCHEMA_VERSION = 2
# In seconds, for one document.
TIMEOUT = 300.0

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


def _own_program() -> Optional[str]:
    """The one that came with the plugin, if any."""
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "bin")
    path = os.path.join(folder, _program_name())
    if not os.path.isfile(path):
        return None
    if not os.access(path, os.X_OK):
        # QGIS installs plugins from zips without the permissions of their files.
        with contextlib.suppress(OSError):
            os.chmod(path, 0o755)
    return path


def _program_of_path() -> str:
    found = shutil.which("mxdinfo")
    if found is None:
        raise ReadError(
            "mxdinfo is not found: neither in PATH nor where settings or --mxdinfo name it"
        )
    return found


def find_mxdinfo(setting: str = "") -> str:
    """The program of the setting, of the plugin's own folder, or of PATH, in this order."""
    return setting or _own_program() or _program_of_path()


def _output_of(command: list[str], cancelled: Callable[[], bool]) -> bytes:
    """What a program writes; it ends early if it takes too long or is not wanted any more."""
    flags = getattr(subprocess, "CREATE_NO_WINDOW", 0)
    pipe, ignored = subprocess.PIPE, subprocess.DEVNULL
    end = time.monotonic() + TIMEOUT
    with subprocess.Popen(command, stdout=pipe, stderr=ignored, creationflags=flags) as process:
        while True:
            try:
                return process.communicate(timeout=0.1)[0]
            except subprocess.TimeoutExpired as error:
                if cancelled() or time.monotonic() > end:
                    process.kill()
                    raise ReadError("reading takes too long") from error


def read_json(
    mxdinfo: str, path: str, cancelled: Callable[[], bool] = lambda: False
) -> dict[str, Any]:
    """What mxdinfo writes for a document. An unreadable document is described, too."""
    try:
        data = json.loads(_output_of([mxdinfo, "-q", "-f", "json", "--", path], cancelled))
    except OSError as error:
        raise ReadError(f"{mxdinfo} cannot be run: {error.strerror}") from error
    except ValueError as error:
        raise ReadError("mxdinfo ended without a result") from error
    if not isinstance(data, dict):
        raise ReadError("mxdinfo ended without a result")
    return data


def read(mxdinfo: str, path: str, cancelled: Callable[[], bool] = lambda: False) -> Document:
    """The document; ReadError if it is none, or if mxdinfo is of another version."""
    try:
        document = document_of(read_json(mxdinfo, path, cancelled))
    except (KeyError, TypeError, AttributeError) as error:
        raise ReadError("what mxdinfo writes is not understood") from error
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
