"""Maps as QGIS draws them beside the pictures that ArcMap exported from the same documents."""

from __future__ import annotations

import os
import unittest

from support import MXDINFO, SHARED, Case

from qgis.core import QgsProject
from qgis.PyQt.QtCore import QSize
from qgis.PyQt.QtGui import QImage

from arcmap_documents import pictures
from arcmap_documents.project import Builder, ConvertedMap
from arcmap_documents.reader import read
from arcmap_documents.sources import Places

BUSES = os.path.join(SHARED, "projects", "bus-delays")
# The sizes of the markers in the picture agree with those of the document at this resolution.
DPI = 224.0
BLUE = (0, 169, 230)


def is_near(pixel: int, color: tuple[int, int, int], tolerance: int = 24) -> bool:
    found = (pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255)
    return all(abs(a - b) <= tolerance for a, b in zip(found, color))


def mask(image: QImage, color: tuple[int, int, int], step: int = 2) -> set[tuple[int, int]]:
    """The pixels of about that color, of every second row and column."""
    return {
        (x, y)
        for x in range(0, image.width(), step)
        for y in range(0, image.height(), step)
        if is_near(image.pixel(x, y), color)
    }


@unittest.skipUnless(os.path.isdir(BUSES), "no real documents beside the project")
class Pictures(Case):
    def converted(self, path: str) -> ConvertedMap:
        document = read(MXDINFO, path)
        document.path = path
        return Builder(QgsProject.instance(), document, Places(), self.losses).build()[0]

    def test_the_markers_of_seven_sizes_lie_where_arcmap_drew_them(self) -> None:
        theirs = QImage(os.path.join(BUSES, "all_gtfs_attp.arcmap.png"))
        converted = self.converted(os.path.join(BUSES, "all_gtfs_attp.mxd"))
        ours = pictures.draw_map(converted, QSize(theirs.width(), theirs.height()), DPI)
        # Legend, arrow and scale bar of the page lie over the map.
        legend = {(x, y) for x in range(0, 400) for y in range(1200, theirs.height())}
        here, there = mask(ours, BLUE) - legend, mask(theirs, BLUE) - legend
        shared = len(here & there) / len(here | there)
        self.assertGreater(shared, 0.85, f"{len(here)} {len(there)}")

    def test_a_swapped_color_or_size_would_be_seen(self) -> None:
        theirs = QImage(os.path.join(BUSES, "all_gtfs_attp.arcmap.png"))
        converted = self.converted(os.path.join(BUSES, "all_gtfs_attp.mxd"))
        ours = pictures.draw_map(converted, QSize(theirs.width(), theirs.height()), DPI * 1.5)
        here, there = mask(ours, BLUE), mask(theirs, BLUE)
        self.assertLess(len(here & there) / len(here | there), 0.8)


if __name__ == "__main__":
    unittest.main()
