"""mxd2qgis: converts map documents without a window."""

from __future__ import annotations

import argparse
import os
import sys
from typing import Iterator, Optional, TextIO

from . import VERSION
from .conversion import FileNames, Options, Result, convert_document, os_error_text
from .reader import ReadError, documents_in, find_mxdinfo
from .sources import Places, mapping

# As mxdinfo has them.
OK, FAILED, USAGE, LOSSES = 0, 1, 2, 3
INTERRUPTED = 130


def styles(text: str) -> tuple[str, ...]:
    names = tuple(name.strip() for name in text.split(","))
    if not set(names) <= {"qml", "sld"}:
        raise argparse.ArgumentTypeError("styles are qml and sld")
    return names


def stored_and_here(text: str) -> tuple[str, str]:
    try:
        return mapping(text)
    except ValueError as error:
        raise argparse.ArgumentTypeError(str(error)) from error


def parser() -> argparse.ArgumentParser:
    result = argparse.ArgumentParser(
        prog="mxd2qgis", description="Converts ArcMap documents to QGIS projects."
    )
    add = result.add_argument
    add("inputs", nargs="+", metavar="FILE|FOLDER")
    add("-r", "--recursive", action="store_true", help="search folders with all below them")
    add("-o", "--output", metavar="FOLDER", help="write there, not beside the documents")
    add("--map", action="append", default=[], type=stored_and_here, metavar="STORED=HERE",
        help="the folder STORED in documents is HERE on this machine")  # fmt: skip
    add("--search", metavar="FOLDER", help="search it by name for data that is nowhere else")
    add("--styles", type=styles, default=(), metavar="qml,sld", help="write a style per layer")
    add("--pictures", action="store_true", help="draw each map to a PNG file")
    add("--losses", metavar="FILE", help="write all losses to it, as tab-separated values")
    add("--strict", action="store_true", help=f"end with {LOSSES} if anything is lost")
    add("--mxdinfo", default="", metavar="FILE", help="the program that reads documents")
    add("-q", "--quiet", action="store_true", help="no messages but of failures")
    add("--version", action="version", version=f"mxd2qgis {VERSION}")
    return result


def documents(inputs: list[str], recursive: bool) -> Iterator[tuple[str, str]]:
    """Each document with the folder it was found in, or its own."""
    for path in inputs:
        if os.path.isdir(path):
            yield from ((each, path) for each in documents_in(path, recursive))
        else:
            yield path, os.path.dirname(path)


def output_folder(document: str, found_in: str, output: Optional[str]) -> str:
    """Below the output folder, documents keep their places."""
    folder = os.path.dirname(document)
    if output is None:
        return folder or "."
    return os.path.normpath(os.path.join(output, os.path.relpath(folder or ".", found_in or ".")))


def one_line(text: str) -> str:
    """Without control characters, which names of layers may have."""
    return "".join(c if c.isprintable() else "\ufffd" for c in text)


def write_losses(file: TextIO, result: Result) -> None:
    rows = [(loss.layer, loss.what, loss.consequence) for loss in result.losses]
    if result.error:
        rows.append(("", "document", result.error))
    for row in rows:
        file.write("\t".join(one_line(cell) for cell in (result.document, *row)) + "\n")


def say(text: str) -> None:
    print(f"mxd2qgis: {one_line(text)}", file=sys.stderr)


def counted(count: int, word: str, words: str = "") -> str:
    return f"{count} {word}" if count == 1 else f"{count} {words or word + 's'}"


def report(result: Result, quiet: bool) -> None:
    for path in result.unwritten:
        say(f"{result.document}: {path} cannot be written")
    if result.error:
        say(f"{result.document}: {result.error}")
    elif not quiet:
        print(
            f"{one_line(result.project or '')}: {counted(result.maps, 'map')}, "
            f"{counted(result.layers, 'layer')}, {result.layers - result.valid} without data, "
            f"{counted(len(result.losses), 'loss', 'losses')}",
            flush=True,
        )


def run(arguments: argparse.Namespace) -> int:
    places = Places(arguments.map, arguments.search)
    mxdinfo = find_mxdinfo(arguments.mxdinfo)
    options = Options(mxdinfo, places, arguments.styles, arguments.pictures)
    names = FileNames()
    failed = lossy = 0
    for folder in filter(None, [arguments.search, *(here for _, here in arguments.map)]):
        if not os.path.isdir(folder):
            say(f"{folder}: there is no such folder")
    losses = open(arguments.losses, "w", encoding="utf-8") if arguments.losses else None
    try:
        for path, found_in in documents(arguments.inputs, arguments.recursive):
            folder = output_folder(path, found_in, arguments.output)
            result = convert_document(path, names.stem_for(path, folder), options)
            report(result, arguments.quiet)
            failed += bool(result.error or result.unwritten)
            lossy += bool(result.losses)
            if losses:
                write_losses(losses, result)
    finally:
        if losses:
            losses.close()
    if failed:
        return FAILED
    return LOSSES if lossy and arguments.strict else OK


def main() -> int:
    arguments = parser().parse_args()
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    # Without data, GDAL writes messages; the losses say it better.
    os.environ.setdefault("CPL_LOG", os.devnull)
    from qgis.core import QgsApplication

    application = QgsApplication([], False)
    application.initQgis()
    try:
        return run(arguments)
    except ReadError as error:
        say(str(error))
        return FAILED
    except OSError as error:
        say(os_error_text(error))
        return FAILED
    except KeyboardInterrupt:
        return INTERRUPTED
    finally:
        application.exitQgis()
