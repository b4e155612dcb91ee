"""Symbols: what QGIS saves of each class, and that it draws them where and as ArcMap does."""

from __future__ import annotations

import math
import unittest
from typing import Any

from support import BLACK, OFF, Case, drawn, feature_layer, simple, symbol, template

from qgis.core import QgsSymbol
from qgis.PyQt.QtCore import QSize
from qgis.PyQt.QtGui import QColor, QImage

from arcmap_documents.renderers import symbol_of

SIZE = 64


def sketch(made: QgsSymbol, points: list[tuple[float, float]]) -> QImage:
    """With a pixel to the point."""
    return drawn(made, points, QSize(SIZE, SIZE))


def inked(image: QImage) -> list[tuple[int, int]]:
    pixels = [(x, y) for x in range(SIZE) for y in range(SIZE)]
    return [(x, y) for x, y in pixels if QColor(image.pixel(x, y)).lightness() < 200]


def box(image: QImage) -> tuple[int, int, int, int]:
    """Left, top, right and bottom of what is drawn."""
    ink = inked(image)
    xs, ys = [x for x, _ in ink], [y for _, y in ink]
    return min(xs), min(ys), max(xs) + 1, max(ys) + 1


class Symbols(Case):
    def made(self, kind: str, **fields: Any) -> QgsSymbol:
        return symbol_of(symbol(kind, **fields), None, self.losses)

    def expect_box(self, image: QImage, expected: tuple[float, ...]) -> None:
        for found, wanted in zip(box(image), expected):
            self.assertAlmostEqual(wanted, found, delta=1.5, msg=f"{box(image)} {expected}")

    def test_what_is_saved(self) -> None:
        line = symbol("simple_line", width=0.5, color=BLACK)
        red, none = "255,0,0,255", "0,0,0,0"
        cases: list[tuple[str, dict[str, Any], dict[str, str]]] = [
            ("simple_marker", {"size": 8.0}, {"name": "circle", "size": "8", "color": red}),
            ("simple_marker", {"style": "square", "outline": True, "outline_width": 1.0,
                               "outline_color": BLACK}, {"name": "square", "size": "8",
                                                         "outline_width": "1"}),
            ("simple_marker", {"color": OFF}, {"color": none, "outline_style": "no"}),
            ("simple_marker", {"style": "diamond", "angle": 30.0}, {"angle": "-30"}),
            ("char_marker", {"shape": {"name": "star", "filled": True, "size": 1.0}},
             {"name": "star", "size": "10", "color": red}),
            ("simple_line", {"width": 2.0}, {"line_width": "2", "line_width_unit": "Point",
                                             "line_color": red, "line_style": "solid"}),
            ("simple_line", {"color": OFF}, {"line_style": "no"}),
            ("simple_line", {"style": "dashed"}, {"customdash": "4;2", "capstyle": "flat"}),
            ("cartographic_line", {"cap": "round", "join": "bevel", "offset": 3.0,
                                   "template": template(4, 1, 2, 3, interval=1.5)},
             {"capstyle": "round", "joinstyle": "bevel", "offset": "-3",
              "customdash": "6;1.5;3;4.5", "use_custom_dash": "1",
              "customdash_unit": "Point"}),
            ("hash_line", {"angle": 60.0, "template": template(2, 4)},
             {"hash_angle": "210", "hash_length": "10", "interval": "6",
              "offset_along_line": "1"}),
            ("simple_fill", {"outline": line}, {"color": red, "style": "solid",
                                                "outline_width": "0.5",
                                                "outline_color": "0,0,0,255"}),
            ("simple_fill", {"color": OFF}, {"style": "no", "outline_style": "no"}),
            ("line_fill", {"angle": 45.0, "pattern": line}, {"angle": "45", "distance": "8"}),
            ("arrow_marker", {"angle": 30.0}, {"angle": "60", "symbol_name": "triangle",
                                               "symbol_height": "12", "symbol_width": "6",
                                               "color": red}),
            ("picture_marker", {"size": 20.0}, {"name": "square", "size": "16"}),
            ("char_marker", {"font_name": "No Such Font", "shape": None}, {"name": "square",
                                                                         "size": "7"}),
            ("marker_line", {"marker": symbol("simple_marker"), "template": template(2, 6),
                             "offset": 1.5}, {"interval": "8", "offset_along_line": "1",
                                              "offset": "-1.5", "interval_unit": "Point"}),
            ("picture_fill", {}, {"style": "dense4", "color": red}),
            ("marker_fill", {"random": True, "marker": symbol("simple_marker")},
             {"density_area": "120", "density_area_unit": "Point"}),
            ("multilayer_line", {"layers": [symbol("hash_line"), symbol("simple_line")]},
             {"line_width": "2"}),
            ("multilayer_marker", {"layers": [symbol("char_marker"), symbol("simple_marker")]},
             {"size": "8"}),
            ("multilayer_fill", {"layers": [symbol("line_fill"), symbol("simple_fill")]},
             {"style": "solid"}),
            ("marker_fill", {"marker": symbol("simple_marker")}, {"distance_x": "10",
                                                                  "distance_y": "12"}),
        ]  # fmt: skip
        layers = [feature_layer(kind, simple(symbol(kind, **fields))) for kind, fields, _ in cases]
        for layer, (kind, _, expected) in zip(self.saved(*layers), cases):
            with self.subTest(kind=kind, **expected):
                found = layer.renderer().symbol().symbolLayer(0).properties()
                self.assertEqual(expected, {key: found.get(key) for key in expected})

    def test_stand_ins_are_losses(self) -> None:
        self.made("picture_marker")
        self.made("picture_fill")
        self.made("char_marker", font_name="No Such Font", character=65, shape=None)
        subjects = [
            "picture of a marker",
            "picture of a fill",
            "character 65 of the font No Such Font",
        ]
        self.assertEqual(subjects, [loss.what for loss in self.losses.all()])

    def test_the_first_layer_is_on_top_and_others_may_be_off(self) -> None:
        layers = [symbol("simple_line", width=width) for width in (1.0, 2.0, 3.0)]
        layers[1]["enabled"] = False
        made = self.made("multilayer_line", layers=layers)
        self.assertEqual([3.0, 2.0, 1.0], [layer.width() for layer in made.symbolLayers()])
        self.assertEqual([True, False, True], [layer.enabled() for layer in made.symbolLayers()])

    def test_sizes_and_offsets_of_markers(self) -> None:
        middle = [(32.0, 32.0)]
        outlined = {"outline": True, "outline_width": 2.0, "outline_color": BLACK}
        turned = {"angle": 90.0, "offset_x": 10.0, "offset_y": 5.0}
        cases: list[tuple[dict[str, Any], tuple[float, ...]]] = [
            ({"size": 20.0}, (22, 22, 42, 42)),
            ({"size": 20.0, **outlined}, (21, 21, 43, 43)),
            ({"size": 10.0, "offset_x": 10.0, "offset_y": 5.0}, (37, 22, 47, 32)),
            ({"style": "square", "size": 10.0, **turned}, (37, 22, 47, 32)),
        ]
        for fields, expected in cases:
            with self.subTest(**fields):
                self.expect_box(sketch(self.made("simple_marker", **fields), middle), expected)

    def test_an_arrow_points_to_the_right_and_turns_counter_clockwise(self) -> None:
        for angle, tip in ((0.0, (38, 32)), (90.0, (32, 26)), (180.0, (26, 32))):
            image = sketch(self.made("arrow_marker", angle=angle), [(32.0, 32.0)])
            ink = inked(image)
            center = (sum(x for x, _ in ink) / len(ink), sum(y for _, y in ink) / len(ink))
            # The middle of a triangle is nearer to its base, away from the tip.
            away = (32 - tip[0], 32 - tip[1])
            lean = (center[0] - 31.5) * away[0] + (center[1] - 31.5) * away[1]
            self.assertGreater(lean, 3, (angle, center))

    def test_offsets_of_lines_are_to_the_left(self) -> None:
        image = sketch(self.made("cartographic_line", offset=10.0), [(5.0, 32.0), (59.0, 32.0)])
        self.expect_box(image, (5, 21, 59, 23))

    def test_hashes_stand_at_their_angle(self) -> None:
        line = symbol("simple_line", width=1.5)
        for angle in (90.0, 60.0, 120.0):
            made = self.made("hash_line", angle=angle, width=20.0, line=line,
                             template=template(1, 80, interval=1.0))  # fmt: skip
            made.symbolLayer(0).setOffsetAlongLine(27)
            ink = inked(sketch(made, [(5.0, 32.0), (59.0, 32.0)]))
            top = [x for x, y in ink if y < 26]
            across = 10 * math.cos(math.radians(angle))
            self.assertAlmostEqual(31.5 + 0.8 * across, sum(top) / len(top), delta=1.6)

    def test_hatching_rises_with_its_angle(self) -> None:
        area = [(4.0, 4.0), (60.0, 4.0), (60.0, 60.0), (4.0, 60.0), (4.0, 4.0)]
        line = symbol("simple_line", width=1.0)
        made = self.made("line_fill", angle=45.0, separation=12.0, pattern=line)
        ink = set(inked(sketch(made, area)))
        rising = sum((x + 4, y - 4) in ink for x, y in ink)
        falling = sum((x + 4, y + 4) in ink for x, y in ink)
        self.assertGreater(rising, 2 * falling)

    def test_decorations_stand_at_the_ends(self) -> None:
        element = {"marker": symbol("simple_marker", size=10.0), "positions": [0.0, 1.0, 0.3],
                   "rotates": True, "flip_first": True, "flip_all": False}  # fmt: skip
        made = self.made("cartographic_line", decorations=[element])
        self.expect_box(sketch(made, [(15.0, 32.0), (49.0, 32.0)]), (10, 27, 54, 37))
        self.assertEqual(1, len(self.losses.all()))
        self.assertEqual(180.0, abs(made.symbolLayer(1).subSymbol().angle()))

    def test_numbers_that_mean_nothing_do_no_harm(self) -> None:
        nothing = {"size": None, "angle": None, "offset_x": float("inf"), "offset_y": 1e300}
        sketch(self.made("simple_marker", **nothing), [(32.0, 32.0)])
        made = self.made("line_fill", separation=0.0, pattern=symbol("simple_line"))
        self.assertGreater(made.symbolLayer(0).distance(), 0)
        for kind in ("multilayer_marker", "multilayer_line", "multilayer_fill"):
            self.assertEqual(1, self.made(kind).symbolLayerCount())
        self.assertIsNotNone(symbol_of(None, "point", self.losses))


if __name__ == "__main__":
    unittest.main()
