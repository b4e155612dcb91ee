"""Projects: what QGIS reads back from the .qgz of a document."""

from __future__ import annotations

import json
import os
import subprocess
import unittest
from typing import Any, Optional

from support import MXDINFO, SAMPLE, SHARED, Case, classes, drawn, symbol

from qgis.core import (
    QgsFeature,
    QgsProject,
    QgsRenderContext,
    QgsVectorFileWriter,
    QgsVectorLayer,
)
from qgis.PyQt.QtCore import QSize

from arcmap_documents.conversion import FileNames
from arcmap_documents.labels import converted
from arcmap_documents.layers import subset
from arcmap_documents.losses import Losses
from arcmap_documents.reader import (
    Document,
    ReadError,
    Renderer,
    Source,
    document_of,
    find_mxdinfo,
)
from arcmap_documents.renderers import bounds, renderer_of, symbol_of
from arcmap_documents.sources import Places, existing, find, locate, mapped


def points(*rows: tuple[Any, ...]) -> QgsVectorLayer:
    """A layer with the fields n (a number), t (a text) and d (a divisor)."""
    fields = "field=n:double&field=t:string&field=d:double"
    layer = QgsVectorLayer(f"Point?{fields}", "points", "memory")
    for row in rows:
        feature = QgsFeature(layer.fields())
        feature.setAttributes(list(row))
        layer.dataProvider().addFeatures([feature])
    return layer


class Renderers(Case):
    def drawn(self, renderer: Renderer, layer: QgsVectorLayer) -> list[Optional[float]]:
        """The size of each feature's symbol, in the order in which they are drawn."""
        made = renderer_of(renderer, "point", layer.fields(), self.losses)
        layer.setRenderer(made)
        context = QgsRenderContext()
        context.expressionContext().setFields(layer.fields())
        made.startRender(context, layer.fields())
        sizes = []
        for feature in layer.getFeatures():
            context.expressionContext().setFeature(feature)
            found = made.symbolForFeature(feature, context)
            sizes.append(found.size() if found else None)
        made.stopRender(context)
        return sizes

    def test_values_are_compared_by_the_type_of_their_field(self) -> None:
        layer = points((1, "1", 1), (2, "2", 1), (None, "x", 1), (4.5, "4.5", 1))
        for name in ("n", "t", "table.T"):
            entries = classes(1, 2, 3)
            entries[0].values = [["1"], ["4.5"]]
            entries[1].values = [["2"]]
            entries[2].all_other_values = True
            found = self.drawn(Renderer("unique_values", [name], None, entries), layer)
            self.assertEqual([1, 2, 3, 1], found, name)
        self.assertEqual([], self.losses.all())

    def test_values_of_several_fields_and_missing_ones(self) -> None:
        layer = points((1, "a", 1), (1, "b", 1), (2, None, 1), (4.5, "c", 1))
        cases: list[tuple[list[str], list[list[str]], list[Optional[int]]]] = [
            (["n", "t"], [["1", "a"], ["2", "<Null>"], ["4,5", "c"]], [1, None, 2, 3]),
            (["n", "t"], [["1, b"], ["2, x"]], [None, 1, None, None]),
            (["t"], [["<Null>"], ["b"]], [None, 2, 1, None]),
        ]
        for names, values, expected in cases:
            entries = classes(*range(1, len(values) + 1))
            for entry, value in zip(entries, values):
                entry.values = [value]
            renderer = Renderer("unique_values", names, None, entries)
            self.assertEqual(expected, self.drawn(renderer, layer), values)

    def test_headings_are_part_of_the_labels_where_there_are_several(self) -> None:
        entries = classes(1, 2, values=[["1"]])
        for headings, expected in ((("A", "A"), ["1", "2"]), (("A", "B"), ["A: 1", "B: 2"])):
            for entry, heading in zip(entries, headings):
                entry.heading = heading
            layer = points()
            self.drawn(Renderer("unique_values", ["n"], None, entries), layer)
            labels = [each.label() for each in layer.renderer().categories()]
            self.assertEqual(expected, labels)

    def test_each_value_has_the_first_range_that_is_not_below_it(self) -> None:
        layer = points((0, "", 1), (2.6, "", 1), (2.605, "", 1), (3, "", 1), (3.1, "", 1))
        ascending = classes(4, 6)
        ascending[0].min, ascending[0].max = 0.0, 2.6
        ascending[1].min, ascending[1].max = 2.61, 3.0
        for entries in (ascending, ascending[::-1]):
            renderer = Renderer("class_breaks", ["n"], None, entries)
            self.assertEqual([4, 4, 6, 6, None], self.drawn(renderer, layer))
            labels = [each.label() for each in layer.renderer().ranges()]
            self.assertEqual([entry.label for entry in entries], labels)

    def test_the_normalization_field_divides(self) -> None:
        layer = points((10, "", 5), (10, "", 2))
        entries = classes(4, 6)
        entries[0].min, entries[0].max, entries[1].min, entries[1].max = 0.0, 2.0, 3.0, 5.0
        self.assertEqual([4, 6], self.drawn(Renderer("class_breaks", ["n"], "d", entries), layer))

    def test_large_markers_are_drawn_first(self) -> None:
        layer = points((1, "", 1), (9, "", 1), (2, "", 1))
        entries = classes(4, 6)
        entries[0].min, entries[0].max, entries[1].min, entries[1].max = 0.0, 5.0, 6.0, 10.0
        self.drawn(Renderer("class_breaks", ["n"], None, entries), layer)
        self.assertTrue(layer.renderer().orderByEnabled())
        clause = layer.renderer().orderBy().list()[0]
        self.assertFalse(clause.ascending())
        self.assertIn('WHEN "n" <= 5.0 THEN 4.0', clause.expression().expression())

    def test_bounds_that_are_missing(self) -> None:
        self.assertEqual({}, bounds(classes(1, 2)))
        layer = points((1, "", 1))
        self.drawn(Renderer("class_breaks", [], None, classes(1)), layer)
        self.drawn(Renderer("unique_values", [], None, []), layer)
        self.drawn(Renderer("unique_values", ["absent"], None, classes(1, values=[["a"]])), layer)
        self.assertEqual(4, len(self.losses.all()), [loss.text() for loss in self.losses.all()])


class Parts(Case):
    def test_label_expressions(self) -> None:
        cases = {
            "[Name]": '"Name"',
            ' [A] & ", " & [B] ': 'concat("A", \', \', "B")',
            '[A] & vbCrLf & "it\'s ""x"""': "concat(\"A\", '\\n', 'it''s \"x\"')",
            '"<FNT size=\'14\'>" & [A] & "</FNT>"': '"A"',
            '"<BOL>a < b</BOL>"': "'a < b'",
            '"<ITA></ITA>"': None,
            "UCase([A])": None,
            "Function FindLabel ([A])": None,
            "[A] & ": None,
            "": None,
        }
        for expression, expected in cases.items():
            self.assertEqual(expected, converted(expression, None, Losses()), expression)

    def test_places_of_data(self) -> None:
        os.makedirs(os.path.join(self.folder, "here", "Data"))
        for name in ("here/Data/Roads.shp", "here/only.shp"):
            with open(os.path.join(self.folder, name), "wb"):
                pass
        here = os.path.join(self.folder, "here")
        path = os.path.join(here, "a.mxd")
        document = Document(path, last_saved_path="C:\\p\\maps\\a.mxd")
        roads = os.path.join(here, "Data", "Roads.shp")
        cases = [
            ("D:\\x\\data\\roads.shp", False, Places([("d:/X", here)]), roads),
            ("data\\roads.shp", True, Places(), roads),
            ("..\\here\\data\\roads.shp", True, Places(), roads),
            ("C:\\p\\maps\\data\\roads.shp", False, Places(), roads),
            ("E:\\other\\data\\roads.shp", False, Places(), roads),
            (roads, False, Places(), roads),
            ("E:\\other\\absent.shp", False, Places([], self.folder), None),
        ]
        for path, relative, places, expected in cases:
            self.assertEqual(expected, find(path, relative, document, places), path)
        document.path = os.path.join(self.folder, "b.mxd")
        only = os.path.join(here, "only.shp")
        self.assertEqual(only, find("E:\\ONLY.shp", False, document, Places([], self.folder)))
        self.assertIsNone(mapped("C:\\database\\x", [("C:\\data", "/mnt")]))
        self.assertIsNone(existing(here, ["absent"]))

    def test_what_is_opened(self) -> None:
        sql = "server=h;instance=sde:postgresql:db.example,5433;database=gis;user=u"
        cases = [
            (Source("file_geodatabase", None, "C:\\a.gdb", "Sets", "roads"),
             "ogr", "C:/a.gdb|layername=roads"),
            (Source("other", None, "C:\\a.gpkg", None, "main.roads"),
             "ogr", "C:/a.gpkg|layername=roads"),
            (Source("service", None, "https://h.example/FeatureServer/", None, "3"),
             "arcgisfeatureserver", "url='https://h.example/FeatureServer/3'"),
            (Source("sde", None, sql, None, "gis.own.roads"), "postgres",
             "dbname='gis' host=db.example port=5433 user='u' table=\"own\".\"roads\" (shape)"),
            (Source("sde", None, "C:\\office.sde", None, "own.roads"),
             "ogr", "C:\\office.sde/own.roads"),
        ]  # fmt: skip
        document = Document("/maps/a.mxd")
        for source, provider, uri in cases:
            found = locate(source, "feature", document, Places())
            self.assertEqual((provider, uri), (found.provider, found.uri.strip()))
        raster = Source("file_geodatabase", None, "C:\\a.gdb", None, "relief")
        uri = locate(raster, "raster", document, Places()).uri
        self.assertEqual('OpenFileGDB:"C:/a.gdb":relief', uri)

    def test_files_of_the_same_name_do_not_meet(self) -> None:
        names = FileNames()
        stems = [names.stem_for(path, "out") for path in ("a/Plan.mxd", "b/plan.mxd", "c/CON?.mxd")]
        self.assertEqual(["out/Plan", "out/plan 2", "out/CON_"], stems)

    def test_numbers_that_mean_nothing_do_no_harm(self) -> None:
        nothing = {"size": None, "angle": None, "offset_x": float("inf"), "offset_y": 1e300}
        made = symbol_of(symbol("simple_marker", **nothing), None, self.losses)
        drawn(made, [(32.0, 32.0)], QSize(64, 64))
        line_fill = symbol("line_fill", separation=0.0, pattern=symbol("simple_line"))
        made = symbol_of(line_fill, None, self.losses)
        self.assertGreater(made.symbolLayer(0).distance(), 0)
        for kind in ("multilayer_marker", "multilayer_line", "multilayer_fill"):
            self.assertEqual(1, symbol_of(symbol(kind), None, self.losses).symbolLayerCount())
        self.assertIsNotNone(symbol_of(None, "point", self.losses))

    def test_queries_and_versions(self) -> None:
        self.assertEqual("\"A\" = 1 AND B = '[x]'", subset("[A] = 1 AND B = '[x]'"))
        with self.assertRaises(ReadError):
            document_of({"schema_version": 1})
        self.assertEqual("/some/mxdinfo", find_mxdinfo("/some/mxdinfo"))


def json_of(document: str) -> dict[str, Any]:
    command = [MXDINFO, "-q", "-f", "json", document]
    return json.loads(subprocess.run(command, capture_output=True, check=True).stdout)


class Sample(Case):
    def test_the_sample_with_data_made_for_it(self) -> None:
        layer = QgsVectorLayer("Polygon?field=WOODS:double", "landuse", "memory")
        options = QgsVectorFileWriter.SaveVectorOptions()
        options.driverName = "ESRI Shapefile"
        context = QgsProject.instance().transformContext()
        path = os.path.join(self.folder, "landuse.shp")
        QgsVectorFileWriter.writeAsVectorFormatV3(layer, path, context, options)
        project = self.reopened(SAMPLE, Places([("C:\\data\\base", self.folder)]))
        land_use = self.layer(project, "Land use")
        self.assertTrue(land_use.isValid())
        self.assertEqual("WOODS", land_use.renderer().classAttribute())

    def test_styles_and_pictures(self) -> None:
        result = self.convert(SAMPLE, styles=("qml", "sld"), pictures=True)
        names = os.listdir(self.folder)
        for name in ("sample - Towns.qml", "sample - Towns.sld", "sample - Layers.png"):
            self.assertIn(name, names)
        self.assertIn("SLD has no words for it", [loss.consequence for loss in result.losses])


@unittest.skipUnless(os.path.isdir(SHARED), "no real documents beside the project")
class RealDocuments(Case):
    def documents(self) -> list[str]:
        found = []
        for place, folders, names in os.walk(SHARED):
            folders[:] = [each for each in folders if not each.endswith(".gdb")]
            if "hostile" not in place:
                found += [os.path.join(place, each) for each in names if each.endswith(".mxd")]
        return sorted(found)

    def test_every_layer_is_in_the_project(self) -> None:
        for document in self.documents():
            with self.subTest(os.path.basename(document)):
                project = self.reopened(document)
                wanted = sorted(
                    layer["name"]
                    for each in json_of(document)["maps"]
                    for layer in each["layers"]
                    if layer["read"] and layer["kind"] in ("feature", "raster") and layer["source"]
                )
                layers = project.mapLayers().values()
                self.assertEqual(wanted, sorted(layer.name() for layer in layers))
                if "projects" in document:
                    vectors = [each for each in layers if isinstance(each, QgsVectorLayer)]
                    self.assertEqual([], [each.name() for each in vectors if not each.isValid()])


if __name__ == "__main__":
    unittest.main()
