"""The forms of the output agree with each other and with their descriptions."""

import csv
import io
import json
import os
import unittest

import documents
from support import SAMPLE, SAMPLES, SCHEMA, Case, legend_classes, schema_errors


class Formats(Case):
    def test_json_is_as_the_schema_says(self):
        document = self.json_of(SAMPLE)
        self.assertEqual([], schema_errors(document))
        self.assertEqual([], schema_errors([document]))
        lossy = self.json_of(self.write("lossy.mxd", documents.lossy_document()))
        self.assertEqual([], schema_errors(lossy))
        self.assertEqual([("layer", "mxd_feature_layer")],
                         [(loss["what"], loss["type"]) for loss in lossy["losses"]])
        bad = self.json_of(self.write("bad.mxd", b"bad"), code=1)
        self.assertEqual([], schema_errors(bad))
        self.assertFalse(bad["readable"])

    def test_the_schema_allows_fields_to_be_added_everywhere(self):
        def extend(value):
            if isinstance(value, dict):
                return {**{key: extend(item) for key, item in value.items()}, "added": 1}
            return [extend(item) for item in value] if isinstance(value, list) else value
        self.assertEqual([], schema_errors(extend(self.json_of(SAMPLE))))

    def test_the_schema_refuses_what_is_not_described(self):
        document = self.json_of(SAMPLE)
        if not schema_errors({"other": 1}):
            self.skipTest("no validator")
        del document["maps"][0]["layers"][0]["name"]
        self.assertNotEqual([], schema_errors(document))

    def test_json_has_what_the_sample_was_made_of(self):
        maps = self.json_of(SAMPLE)["maps"]
        self.assertEqual(["Layers", "Inset"], [m["name"] for m in maps])
        layers = {layer["name"]: layer for layer in maps[0]["layers"]}
        self.assertEqual([None, 0, 0, None, None, None], [v["parent"] for v in layers.values()])
        rivers = layers["Rivers & canals"]
        self.assertEqual((True, 500000.0, 10000.0, "NAME"), tuple(
            rivers[key] for key in ("visible", "min_scale", "max_scale", "display_field")))
        self.assertEqual((None, None), (layers["Towns"]["min_scale"], layers["Towns"]["max_scale"]))
        water = rivers["renderer"]["classes"][0]["symbol"]["layers"][1]
        self.assertEqual(("water", "round", "bevel", 1.5), (
            water["tag"], water["cap"], water["join"], water["template"]["interval"]))

    def test_the_sources_of_the_sample(self):
        keys = ("kind", "workspace", "feature_dataset", "dataset", "path", "relative")
        sources = [layer["source"] for layer in self.json_of(SAMPLE)["maps"][0]["layers"]]
        self.assertEqual([
            ("shapefile", "C:\\data\\base", None, "rivers", "C:\\data\\base\\rivers.shp", False),
            ("raster", "C:\\data\\rasters", None, "relief.tif", "C:\\data\\rasters\\relief.tif",
             False),
            ("file_geodatabase", "C:\\data\\town.gdb", "Settlements", "towns",
             "C:\\data\\town.gdb\\Settlements\\towns", False),
            ("shapefile", "C:\\data\\base", None, "landuse", "C:\\data\\base\\landuse.shp", False),
        ], [tuple(source[key] for key in keys) for source in sources if source])

    def test_the_legends_of_the_sample(self):
        keys = ("heading", "label", "all_other_values", "values", "min", "max")
        legends = [[tuple(entry[key] for key in keys) for entry in layer["renderer"]["classes"]]
                   for layer in self.json_of(SAMPLE)["maps"][0]["layers"] if layer["renderer"]]
        self.assertEqual([
            [(None, "River", False, [], None, None)],
            [("Other", "other places", True, [], None, None),
             ("Kind, port", "Capital", False, [["capital", "yes", "9"]], None, None),
             ("Kind, port", "Town", False, [["town", "no", "5"]], None, None)],
            [("Share of woods", "little", False, [], 0.0, 10.0),
             ("Share of woods", "some", False, [], 10.0, 50.0),
             ("Share of woods", "much", False, [], 50.0, 100.0)],
        ], legends)

    def test_one_document_is_an_object_and_several_are_an_array(self):
        self.write("one.mxd", documents.document("one"))
        self.assertIsInstance(self.json_of("one.mxd"), dict)
        self.assertEqual(1, len(self.json_of(".")))
        both = self.json_of("one.mxd", SAMPLE)
        self.assertEqual(["one.mxd", SAMPLE], [d["file"]["path"] for d in both])
        lines = self.run_mxdinfo("-q", "-f", "ndjson", "one.mxd", SAMPLE)[0].splitlines()
        self.assertEqual(both, [json.loads(line) for line in lines])
        os.mkdir(os.path.join(self.folder, "empty"))
        self.assertEqual([], self.json_of("empty"))

    def test_csv_has_a_row_for_each_layer(self):
        rows = list(csv.DictReader(io.StringIO(self.run_mxdinfo("-f", "csv", SAMPLE)[0])))
        self.assertEqual(["group", "feature", "raster", "feature", "feature", "graphics"],
                         [row["kind"] for row in rows])
        towns = rows[3]
        self.assertEqual(("KIND, PORT, SIZE", "C:\\data\\town.gdb", "false", "3", "point"), tuple(
            towns[key] for key in ("fields", "workspace", "visible", "legend_classes", "geometry")))

    def test_the_page_has_a_swatch_for_each_legend_class(self):
        page = self.page_of(SAMPLE)
        self.assertEqual(7, page.swatches)
        self.assertEqual(legend_classes(self.json_of(SAMPLE)), page.swatches)

    def test_views_and_searches(self):
        for view, text in (("--layers", "Layers / Base map / Rivers & canals  (feature, polyline)"),
                           ("--sources", "rivers (Shapefile Feature Class) in C:\\data\\base"),
                           ("--crs", "WGS_1984_UTM_Zone_33N\n    Map \"Layers\""),
                           ("--symbols", "cartographic line, #ff8000, width 1.25 pt")):
            self.assertIn(text, self.run_mxdinfo(view, SAMPLE)[0])
        found = self.run_mxdinfo("--find-source", "TOWN.GDB", SAMPLE)[0]
        self.assertEqual(1, found.count("\n"))
        self.assertIn("Layers / Towns: Settlements/towns", found)
        rows = self.run_mxdinfo("--find-source", "\\BASE", "-f", "csv", SAMPLE)[0]
        self.assertEqual(3, rows.count("\n"))
        self.write("cyrillic.mxd", documents.document("Дороги"))
        self.assertIn("Дороги", self.run_mxdinfo("--find-source", "дОРОГИ", "cyrillic.mxd")[0])

    def test_color_is_for_those_who_want_it(self):
        self.assertNotIn("\x1b", self.run_mxdinfo(SAMPLE)[0])
        self.assertIn("\x1b[38;2;", self.run_mxdinfo("--color", "always", SAMPLE)[0])

    def test_same_every_time(self):
        for form in ("json", "csv", "html"):
            once, again = (self.run_mxdinfo("-q", "-f", form, SAMPLE)[0] for _ in range(2))
            self.assertEqual(once, again)


@unittest.skipUnless(os.path.isdir(SAMPLES), "no sample documents beside the project")
class Samples(Case):
    def test_every_sample_in_every_form(self):
        with open(os.path.join(SAMPLES, "EXPECTED.tsv"), encoding="utf-8") as file:
            table = list(csv.DictReader(file, delimiter="\t"))
        for row in table:
            with self.subTest(row["file"]):
                self.check(row, os.path.join(SAMPLES, row["file"]))

    def check(self, row, path):
        document = self.json_of(path)
        self.assertEqual([], schema_errors(document))
        self.assertEqual(int(row["errors"]), len(document["losses"]))
        rows = list(csv.reader(io.StringIO(self.run_mxdinfo("-q", "-f", "csv", path)[0])))
        layers = sum(int(row[kind]) for kind in ("feature", "group", "raster", "graphics"))
        self.assertEqual([len(rows[0])] * (layers + 1), [len(r) for r in rows])
        self.assertEqual(legend_classes(document), self.page_of(path).swatches)


if __name__ == "__main__":
    assert os.path.exists(SCHEMA)
    unittest.main()
