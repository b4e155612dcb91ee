"""Maps as QGIS draws them beside the pictures that ArcMap exported from the same documents."""

from __future__ import annotations

import os
import unittest
from typing import Any

import numpy

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
DPI = 199.0
BLUE = (0, 169, 230)


def mask(image: QImage, color: tuple[int, int, int], tolerance: int = 30) -> Any:
    """Which pixels are about of that color, as rows of truth values."""
    plain = image.convertToFormat(QImage.Format_RGB32)
    bits = plain.constBits()
    bits.setsize(plain.sizeInBytes())
    pixels = numpy.frombuffer(bits, numpy.uint8).reshape(plain.height(), plain.width(), 4)
    blue, green, red = (pixels[..., channel].astype(int) for channel in range(3))
    found = abs(red - color[0]), abs(green - color[1]), abs(blue - color[2])
    near = (found[0] < tolerance) & (found[1] < tolerance) & (found[2] < tolerance)
    # Legend, arrow and scale bar of the page lie over the map.
    near[1200:, :400] = False
    return near


@unittest.skipUnless(os.path.isdir(BUSES), "no real documents beside the project")
class Pictures(Case):
    def converted(self, path: str) -> ConvertedMap:
        document = read(MXDINFO, path)
        document.path = path
        return Builder(QgsProject.instance(), document, Places(), self.losses).build()[0]

    def shared(self, dpi: float) -> tuple[float, float]:
        """The share of the markers' area that both pictures have, and the ratio of the areas."""
        theirs = QImage(os.path.join(BUSES, "all_gtfs_attp.arcmap.png"))
        converted = self.converted(os.path.join(BUSES, "all_gtfs_attp.mxd"))
        ours = pictures.draw_map(converted, QSize(theirs.width(), theirs.height()), dpi)
        # ArcMap's picture is higher by 4 of 1800 pixels than its extent and width say.
        here = numpy.roll(mask(ours, BLUE), -2, axis=0)
        there = mask(theirs, BLUE)
        return (here & there).sum() / (here | there).sum(), here.sum() / there.sum()

    def test_the_markers_of_seven_sizes_lie_where_arcmap_drew_them(self) -> None:
        shared, ratio = self.shared(DPI)
        self.assertGreater(shared, 0.83)
        self.assertAlmostEqual(1.0, ratio, delta=0.02)

    def test_other_sizes_would_be_seen(self) -> None:
        self.assertLess(self.shared(DPI * 1.15)[0], 0.8)


if __name__ == "__main__":
    unittest.main()
