"""Whether the data of layers is there: states, mappings, what makes data present."""

import csv
import io
import json
import os
import unittest

import documents
from support import SAMPLES, Case, schema_errors

PROJECTS = os.path.join(SAMPLES, "..", "projects")
SHAPEFILE = ["roads.shp", "roads.shx", "roads.dbf"]


class Sources(Case):
    def document(self, workspace, dataset="roads", feature_dataset="", at="maps/plan.mxd"):
        """A document with one layer of this data."""
        return self.write(at, documents.document("name", workspace, dataset, feature_dataset))

    def data(self, *names):
        for name in names:
            self.write(name, b"")

    def state(self, *arguments, path="maps/plan.mxd", code=0):
        """State, path below the folder, and missing parts of the layer's data."""
        document = self.json_of("--check-sources", *arguments, path, code=code)
        self.assertEqual([], schema_errors(document))
        source = document["maps"][0]["layers"][1]["source"]
        where = (source["resolved_path"] or "").replace("\\", "/")
        here = os.path.realpath(self.folder).replace("\\", "/")
        return source["state"], where.replace(here + "/", ""), source["missing_parts"]

    def test_what_makes_data_present(self):
        for workspace, dataset, feature_dataset, files, missing in (
                ("C:\\d", "roads", "", SHAPEFILE, []),
                ("C:\\D\\", "ROADS.shp", "", ["Roads.SHP", "rOADS.ShX", "roads.DBF"], []),
                ("C:\\d", "roads", "", ["roads.shp", "roads.dbf"], [".shx"]),
                ("C:\\d", "roads", "", ["roads.shp"], [".shx", ".dbf"]),
                ("C:\\d", "roads", "", ["roads.dbf", "roads.shx"], None),
                ("C:\\d\\t.gdb", "roads", "", ["t.gdb/a00000001.gdbtable"], []),
                ("C:\\d\\t.gdb", "roads", "sets", ["t.gdb/a00000001.gdbtable"], []),
                ("C:\\d\\t.gdb", "roads", "", ["t.gdb/timestamps"], ["*.gdbtable"]),
                ("C:\\d\\t.mdb", "roads", "sets", ["t.mdb"], []),
                ("C:\\d\\t.mdb", "roads", "", [], None),
                ("C:\\d", "polygon", "soils", ["soils/pal.adf", "info/arc.dir"], []),
                ("C:\\d", "polygon", "soils", ["soils/pal.adf"], ["info"]),
                ("C:\\d", "polygon", "soils", ["soils/log"], ["*.adf"]),
                ("C:\\d", "Polyline", "plan.dwg", ["plan.dwg"], []),
                ("C:\\d\\t.xlsx", "Sheet1$", "", ["t.xlsx"], [])):
            with self.subTest(f"{workspace} {feature_dataset} {dataset} {files}"):
                self.setUp()
                self.document(workspace, dataset, feature_dataset)
                self.data(*("here/" + name for name in files))
                state, _, found_missing = self.state("--map", "c:/d=" + os.path.join(self.folder, "here"))
                self.assertEqual(("missing" if missing != [] else "found", missing or []),
                                 (state, found_missing))

    def test_where_data_is_looked_for(self):
        self.data(*("a/" + name for name in SHAPEFILE), *("a/b/" + name for name in SHAPEFILE),
                  *("maps/b/" + name for name in SHAPEFILE))
        a, b = (os.path.join(self.folder, *name.split("/")) for name in ("a", "a/b"))
        for workspace, maps, expected in (
                ("C:\\data", [f"C:\\DATA={a}"], ("found", "a/roads.shp")),
                ("C:\\data\\b", [f"C:={a}", f"c:/data/b/={b}"], ("found", "a/b/roads.shp")),
                ("C:\\data", [f"C:\\dat={a}"], ("missing", "C:\\data\\roads.shp")),
                ("C:\\data", [f"C:\\data\\b={a}"], ("missing", "C:\\data\\roads.shp")),
                ("\\\\SERVER\\share", [f"//server/Share={a}"], ("found", "a/roads.shp")),
                ("C:\\data", ["C:\\data=/none"], ("missing", "/none/roads.shp")),
                ("..\\a", [], ("relative", "a/roads.shp")),
                (".\\..\\A\\B", [], ("relative", "a/b/roads.shp")),
                ("..\\z", [], ("missing", "../z/roads.shp")),
                ("D:\\elsewhere\\b", [], ("relative", "maps/b/roads.shp")),
                ("http://example.org/MapServer", [], ("not_checkable", "")),
                ("Database Connections\\x.sde", [], ("not_checkable", ""))):
            with self.subTest(workspace):
                self.document(workspace)
                options = [word for each in maps for word in ("--map", each)]
                state, where, _ = self.state(*options)
                self.assertEqual((expected[0], expected[1].replace("\\", "/")), (state, where))

    def test_outputs(self):
        for workspace, name in (("..\\a", "good"), ("C:\\none", "bad")):
            self.document(workspace, at=f"maps/{name}.mxd")
        self.data(*("a/" + name for name in SHAPEFILE))
        text = self.run_mxdinfo("--check-sources", "maps")[0]
        self.assertIn("data is: found from the document's folder at ", text)
        self.assertIn("data is: missing, expected at C:\\none\\roads.shp\n", text)
        table = list(csv.DictReader(io.StringIO(
            self.run_mxdinfo("--check-sources", "--no-bom", "-f", "csv", "maps")[0])))
        self.assertEqual(["", "missing", "", "relative"], [row["data_state"] for row in table])
        self.assertIn("missing, expected at", self.run_mxdinfo("--sources", "--check-sources", "maps")[0])
        self.assertIn("missing, expected at", "".join(self.page_of("--check-sources", "maps").texts))
        broken = self.run_mxdinfo("--broken", "maps", code=4)[0].replace("\\", "/")
        self.assertEqual("maps/bad.mxd: name / name / name: roads (name) in C:/none: "
                         "missing, expected at C:/none/roads.shp\n", broken)
        self.assertEqual(2, self.run_mxdinfo("--broken", "-f", "csv", "maps", code=4)[0].count("\n"))
        found = self.json_of("--broken", "maps", code=4)
        self.assertEqual([1, 0], [len(each["layers"]) for each in found])
        self.assertEqual("", self.run_mxdinfo("--broken", "maps/good.mxd")[0])

    def test_wrong_usage(self):
        self.document("C:\\x")
        for arguments in (["--map", "a=b"], ["--check-sources", "--map", "ab"],
                          ["--check-sources", "--map", "=b"], ["--check-sources", "--update", "i"],
                          ["--broken", "--layers"], ["--broken", "-f", "html"],
                          ["--check-sources", "-f", "dump"]):
            self.run_mxdinfo(*arguments, "maps/plan.mxd", code=2)

    @unittest.skipUnless(os.path.isdir(PROJECTS), "no projects beside the project")
    def test_projects(self):
        """The data is where the projects have it, relative to the documents."""
        states = {}
        lines = self.run_mxdinfo("-q", "-r", "-f", "ndjson", "--check-sources", PROJECTS)[0]
        for document in map(json.loads, lines.splitlines()):
            for layer in (layer for map_ in document["maps"] for layer in map_["layers"]):
                if layer["source"]:
                    key = (layer["source"]["state"], layer["source"]["kind"])
                    states[key] = states.get(key, 0) + 1
        self.assertEqual({"relative", "missing"}, {state for state, _ in states})
        # Pictures that their authors did not publish.
        self.assertEqual({("missing", "raster")}, {key for key in states if key[0] == "missing"})


if __name__ == "__main__":
    unittest.main()
