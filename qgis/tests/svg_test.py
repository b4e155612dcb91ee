"""The sample's symbols as QGIS draws them beside the pictures of them on mxdinfo's page."""

from __future__ import annotations

import copy
import os
import re
import unittest
from typing import Any, Callable, Iterator
from unittest import mock

import numpy

from support import GOLDEN, Case, document, drawn, pixels_of

from qgis.core import QgsLineSymbol, QgsMarkerSymbol
from qgis.PyQt.QtCore import QByteArray, QSize, Qt
from qgis.PyQt.QtGui import QFont, QFontInfo, QImage, QPainter
from qgis.PyQt.QtSvg import QSvgRenderer

from arcmap_documents.reader import LegendClass, Symbol
from arcmap_documents.renderers import symbol_of

# Of a picture, in points, and its pixels to the point.
WIDTH, HEIGHT, SCALE = 48, 24, 8
AREA = [(2.0, 2.0), (46.0, 2.0), (46.0, 22.0), (2.0, 22.0), (2.0, 2.0)]


def entries(name: str, page: str) -> list[tuple[LegendClass, str]]:
    """The classes of a document's legends, each with its picture on the page."""
    maps = document(name).maps
    with open(os.path.join(GOLDEN, "mxdinfo", page), encoding="utf-8") as file:
        pictures = re.findall(r'<svg class="swatch".*?</title>(.*)</svg>', file.read())
    renderers = [layer.renderer for each in maps for layer in each.layers if layer.renderer]
    found = [entry for each in renderers for entry in each.classes if entry.symbol]
    return list(zip(found, pictures))


def without_margin(image: QImage) -> Any:
    """The ink of each pixel, 0 to 1. Without its margin, where Qt does not clip fills."""
    margin = 2 * SCALE
    return 1 - pixels_of(image)[margin:-margin, margin:-margin] / 255


def of_page(content: str) -> Any:
    # Qt knows neither nested pictures nor lines through the middle of letters, and no Arial.
    content = re.sub("<svg [^>]*>", "<g>", content).replace("</svg>", "</g>")
    content = content.replace('dominant-baseline="central"', 'y="4.33"')
    content = content.replace("Arial", QFontInfo(QFont("Arial")).family())
    namespace = 'xmlns="http://www.w3.org/2000/svg"'
    picture = f'<svg {namespace} viewBox="-24 -12 48 24">{content}</svg>'
    image = QImage(QSize(WIDTH, HEIGHT) * SCALE, QImage.Format.Format_ARGB32)
    image.fill(Qt.GlobalColor.white)
    painter = QPainter(image)
    painter.setRenderHint(QPainter.RenderHint.Antialiasing)
    QSvgRenderer(QByteArray(picture.encode())).render(painter)
    painter.end()
    return without_margin(image)


def of_qgis(symbol: Symbol, losses: Any) -> Any:
    with mock.patch("arcmap_documents.markers.installed", lambda font: True):
        made = symbol_of(symbol, None, losses)
    points = AREA
    if isinstance(made, QgsMarkerSymbol):
        points = [(WIDTH / 2, HEIGHT / 2)]
    elif isinstance(made, QgsLineSymbol):
        points = [(2.0, HEIGHT / 2), (46.0, HEIGHT / 2)]
    return without_margin(drawn(made, points, QSize(WIDTH, HEIGHT), SCALE))


def blurred(ink: Any, reach: int) -> Any:
    for axis in (0, 1):
        padding = [(reach, reach) if each == axis else (0, 0) for each in range(3)]
        sums = numpy.cumsum(numpy.pad(ink, padding), axis=axis)
        end = sums.shape[axis]
        later = numpy.take(sums, range(2 * reach, end), axis)
        ink = (later - numpy.take(sums, range(end - 2 * reach), axis)) / (2 * reach)
    return ink


def directions(ink: Any) -> Any:
    """How much of the edges has each direction."""
    down, right = numpy.gradient(blurred(ink, 2).sum(axis=2))
    angles = numpy.degrees(numpy.arctan2(down, right)) % 180
    strength = numpy.hypot(down, right)
    found = numpy.histogram(angles, 18, (0, 180), weights=strength)[0]
    found = found + numpy.roll(found, 1) + numpy.roll(found, -1)
    return found / found.sum()


def palette(ink: Any) -> dict[int, float]:
    """The share of each color that is no edge's."""
    coarse = (ink * 31).astype(int)
    codes, counts = numpy.unique(coarse @ numpy.array([1024, 32, 1]), return_counts=True)
    return {code: n / coarse[..., 0].size for code, n in zip(codes, counts)
            if n > 0.009 * coarse[..., 0].size}  # fmt: skip


def differences(one: Any, other: Any) -> tuple[float, float, float]:
    """At the worst place, of the directions, of the color that differs most in area; 0 to 1."""
    colors = palette(one), palette(other)
    shares = [[each.get(code, 0.0) for each in colors] for code in {*colors[0], *colors[1]}]
    return (
        abs(blurred(one, 5) - blurred(other, 5)).max(),
        abs(directions(one) - directions(other)).sum() / 2,
        max(1 - min(pair) / max(pair) for pair in shares),
    )


# A fault of each field of a symbol.
FAULTS: dict[str, Callable[[Any], Any]] = {
    "rgb": lambda rgb: f"#{rgb[5:]}{rgb[1:3]}ff",
    "angle": lambda angle: angle + 25.0,
    **dict.fromkeys(("offset", "offset_x", "offset_y"), lambda offset: -offset or 3.0),
    **dict.fromkeys(("size", "width", "outline_width", "separation"), lambda length: 1.5 * length),
    **dict.fromkeys(("flip_first", "flip_all", "filled", "outline"), lambda flag: not flag),
}


def faults(symbol: Symbol) -> Iterator[Symbol]:
    """Copies of the symbol, each with one fault."""

    def paths(value: Any, path: tuple[Any, ...]) -> Iterator[tuple[Any, ...]]:
        items = value.items() if isinstance(value, dict) else enumerate(value)
        for key, each in items:
            if isinstance(each, (dict, list)) and key != "font":
                yield from paths(each, (*path, key))
            elif key in FAULTS and each is not None:
                yield (*path, key)

    for *path, key in paths(symbol, ()):
        changed = copy.deepcopy(symbol)
        part = changed
        for step in path:
            part = part[step]
        part[key] = FAULTS[key](part[key])
        yield changed


# The largest differences of each symbol, and how many of its faults are seen: all but those of
# layers and colors that are switched off. Letters have other sizes, and dashes begin elsewhere.
EXACT = (0.1, 0.05, 0.1)
EXPECTED = {
    "River": (EXACT, 22),
    "other places": ((0.15, 0.05, 0.1), 7),
    "Capital": ((0.45, 0.12, 0.4), 11),
    "Town": ((0.45, 0.12, 0.4), 5),
    "little": (EXACT, 3),
    "some": ((1.0, 0.12, 0.4), 4),
    "much": ((0.33, 0.045, 1.0), 6),
    "marker style 0": (EXACT, 5),
    "marker style 1": (EXACT, 8),
    "marker style 4": (EXACT, 6),
    "line style 1": (EXACT, 2),
    "dashed road": (EXACT, 5),
    "hash line": (EXACT, 7),
    "plain fill": (EXACT, 3),
    "hatched fill": ((0.3, 0.05, 0.1), 6),
}


class BesideThePage(Case):
    def test_symbols_look_as_on_the_page_and_faults_are_seen(self) -> None:
        of_sample = entries("document", "page.html")
        self.assertEqual(7, len(of_sample))
        compared = 0
        for entry, picture in of_sample + entries("gallery", "gallery.html"):
            if entry.label not in EXPECTED:
                continue
            theirs, (limits, seen) = of_page(picture), EXPECTED[entry.label]

            def is_alike(drawn: Symbol) -> bool:
                found = differences(theirs, of_qgis(drawn, self.losses))
                return all(each <= limit for each, limit in zip(found, limits))

            with self.subTest(entry.label):
                self.assertTrue(is_alike(entry.symbol))
                self.assertEqual(seen, sum(not is_alike(each) for each in faults(entry.symbol)))
            compared += 1
        self.assertEqual(len(EXPECTED), compared)


if __name__ == "__main__":
    unittest.main()
