"""Maps as QGIS draws them beside the pictures that ArcMap exported from the same documents."""

from __future__ import annotations

import os
import unittest
from typing import Any

import numpy

from support import MXDINFO, SHARED, Case, pixels_of

from qgis.core import QgsProject
from qgis.PyQt.QtCore import QSize
from qgis.PyQt.QtGui import QColor, QImage

from arcmap_documents import pictures
from arcmap_documents.project import Builder, ConvertedMap
from arcmap_documents.reader import Extent, read
from arcmap_documents.sources import Places

PROJECTS = os.path.join(SHARED, "projects")


def is_near(pixels: Any, color: str, tolerance: int) -> Any:
    """Which pixels are about of that color."""
    rgb = QColor(color).getRgb()[:3]
    return (abs(pixels - numpy.array(rgb)) < tolerance).all(axis=2)


class Beside(Case):
    def converted(self, *path: str) -> ConvertedMap:
        document = read(MXDINFO, os.path.join(PROJECTS, *path))
        document.path = os.path.join(PROJECTS, *path)
        return Builder(QgsProject.instance(), document, Places(), self.losses).build()[0]


@unittest.skipUnless(os.path.isdir(PROJECTS), "no real documents beside the project")
class Buses(Beside):
    def classes(
        self, name: str, colors: list[str], dpi: float, shift: int, tolerance: int
    ) -> tuple[Any, Any]:
        """The number of the color that each pixel has, or 0: of ArcMap's picture and of QGIS's."""
        theirs = QImage(os.path.join(PROJECTS, "bus-delays", f"{name}.arcmap.png"))
        size = QSize(theirs.width(), theirs.height())
        ours = pictures.draw_map(self.converted("bus-delays", f"{name}.mxd"), size, dpi)
        found = []
        for pixels in (pixels_of(theirs), numpy.roll(pixels_of(ours), shift, axis=0)):
            numbers = numpy.zeros(pixels.shape[:2], int)
            for number, color in enumerate(colors, 1):
                numbers[is_near(pixels, color, tolerance)] = number
            # The page's legend lies over the map.
            numbers[1200:, :420] = 0
            found.append(numbers)
        return found[0], found[1]

    # The resolutions at which the legends' markers have the sizes that the documents state.
    # ArcMap's first picture is higher by 4 of 1800 pixels than its extent and width say.
    def of_seven_sizes(self, dpi: float = 199.0) -> tuple[float, float]:
        """The share of the markers' area that both pictures have, and the ratio of the areas."""
        theirs, ours = self.classes("all_gtfs_attp", ["#00a9e6"], dpi, -2, 30)
        return (theirs & ours).sum() / (theirs | ours).sum(), ours.sum() / theirs.sum()

    def test_markers_of_seven_sizes_lie_where_arcmap_drew_them(self) -> None:
        shared, ratio = self.of_seven_sizes()
        self.assertGreater(shared, 0.83)
        self.assertAlmostEqual(1.0, ratio, delta=0.02)
        self.assertLess(self.of_seven_sizes(199 * 1.15)[0], 0.8)

    def test_markers_of_nine_colors_and_a_line_overlap_as_arcmap_drew_them(self) -> None:
        colors = ["#b6f558", "#71eb2f", "#3bd62d", "#3db868", "#2a9c9a", "#216e9e", "#1f3e8c",
                  "#0c1078", "#005ce6"]  # fmt: skip
        theirs, ours = self.classes("dedicated_apc_attp", colors, 160.0, 0, 15)
        both = (theirs > 0) & (ours > 0)
        self.assertGreater((theirs == ours)[both].mean(), 0.99)
        for number, color in enumerate(colors, 1):
            there, here = theirs == number, ours == number
            self.assertAlmostEqual(1.0, here.sum() / there.sum(), delta=0.05, msg=color)
            self.assertGreater((here & there).sum() / (here | there).sum(), 0.7, color)


@unittest.skipUnless(os.path.isdir(PROJECTS), "no real documents beside the project")
class District(Beside):
    # From the lines of the picture's grid: pixels at 0, 0 and for each meter. The page is A4.
    LEFT, TOP, SCALE, DPI = 449.7, 261.9, 0.0855, 1400 / 297 * 25.4

    def stars(self, share: float = 1.0) -> tuple[float, float, float]:
        """The share of the stars' area that both pictures have, the ratio of the areas, and how
        far the stars are from their points, in pixels."""
        theirs = QImage(os.path.join(PROJECTS, "district", "district-plain.arcmap.png"))
        converted = self.converted("district", "district.mxd")
        layer = next(each for each in converted.layers if each.name() == "Trụ Sở Hành Chính")
        # When it was exported, the document had another color and no limits of scale.
        layer.setScaleBasedVisibility(False)
        symbol = layer.renderer().symbol()
        symbol.setColor(QColor("#ff0000"))
        symbol.setSize(symbol.size() * share)
        left, top, scale = -self.LEFT / self.SCALE, self.TOP / self.SCALE, self.SCALE
        right, bottom = left + theirs.width() / scale, top - theirs.height() / scale
        converted.map.extent = Extent(left, bottom, right, top)
        ours = pictures.draw_map(converted, theirs.size(), self.DPI, [layer])
        there, here = (is_near(pixels_of(each), "#ff0000", 120) for each in (theirs, ours))
        around = numpy.zeros(there.shape, bool)
        distances = []
        for feature in layer.getFeatures():
            point = feature.geometry().asPoint()
            x = round(self.LEFT + point.x() * scale)
            y = round(self.TOP - point.y() * scale)
            around[y - 11 : y + 12, x - 11 : x + 12] = True
            rows, columns = numpy.nonzero(there[y - 11 : y + 12, x - 11 : x + 12])
            distances.append(numpy.hypot(rows.mean() - 11, columns.mean() - 11))
        there, here = there & around, here & around
        shared = (there & here).sum() / (there | here).sum()
        return shared, here.sum() / there.sum(), numpy.median(distances)

    def test_stars_have_their_shape_size_and_place(self) -> None:
        shared, ratio, distance = self.stars()
        self.assertGreater(shared, 0.7)
        self.assertAlmostEqual(1.0, ratio, delta=0.1)
        self.assertLess(distance, 1.5)
        self.assertLess(self.stars(1.2)[0], 0.68)


if __name__ == "__main__":
    unittest.main()
