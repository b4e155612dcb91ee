"""Whether the data of layers is there: states, mappings, what makes data present."""

import os
import unittest

from support import IS_WINDOWS, SAMPLES, Case, named, schema_errors, slashes

PROJECTS = os.path.join(SAMPLES, "..", "projects")
SHAPEFILE = ["roads.shp", "roads.shx", "roads.dbf"]


def spelled(path):
    """Windows leaves names as they are stored, whatever the case."""
    return slashes(path).lower() if IS_WINDOWS else slashes(path)


class Sources(Case):
    def state(self, *data, maps=()):
        """State, path below the folder, and missing parts of a layer's data."""
        self.write("maps/plan.mxd", named("name", *data))
        options = [word for each in maps for word in ("--map", each)]
        document = self.json_of("--check-sources", *options, "maps/plan.mxd")
        self.assertEqual([], schema_errors(document))
        source = document["maps"][0]["layers"][1]["source"]
        path, here = spelled(source["resolved_path"] or ""), spelled(os.path.realpath(self.folder))
        return source["state"], path.partition(here + "/")[2] or path, source["missing_parts"]

    def test_what_makes_data_present(self):
        for number, (workspace, dataset, feature_dataset, files, missing) in enumerate((
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
                ("C:\\d\\t.xlsx", "Sheet1$", "", ["t.xlsx"], []))):
            with self.subTest(f"{workspace} {feature_dataset} {dataset} {files}"):
                for name in files:
                    self.write(f"{number}/{name}")
                state, _, parts = self.state(workspace, dataset, feature_dataset,
                                             maps=[f"c:/d={self.path(str(number))}"])
                self.assertEqual(("missing" if missing != [] else "found", missing or []),
                                 (state, parts))

    def test_where_data_is_looked_for(self):
        for name in SHAPEFILE:
            for folder in ("a", "a/b", "maps/b"):
                self.write(f"{folder}/{name}")
        a, b = self.path("a"), self.path("a/b")
        for workspace, maps, state, path in (
                ("C:\\data", [f"C:\\DATA={a}"], "found", "a/roads.shp"),
                ("C:\\data\\b", [f"C:={a}", f"c:/data/b/={b}"], "found", "a/b/roads.shp"),
                ("C:\\data", [f"C:\\dat={a}"], "missing", "C:/data/roads.shp"),
                ("C:\\data", [f"C:\\data\\b={a}"], "missing", "C:/data/roads.shp"),
                ("\\\\SERVER\\share", [f"//server/Share={a}"], "found", "a/roads.shp"),
                ("C:\\data", ["C:\\data=/none"], "missing", "/none/roads.shp"),
                ("..\\a", [], "relative", "a/roads.shp"),
                (".\\..\\A\\B", [], "relative", "a/b/roads.shp"),
                ("..\\z", [], "missing", "../z/roads.shp"),
                ("D:\\elsewhere\\b", [], "relative", "maps/b/roads.shp"),
                ("http://example.org/MapServer", [], "not_checkable", ""),
                ("Database Connections\\x.sde", [], "not_checkable", "")):
            with self.subTest(workspace):
                self.assertEqual((state, spelled(path), []),
                                 self.state(workspace, "roads", "", maps=maps))

    def test_updates_look_for_the_data_of_kept_documents_again(self):
        self.write("maps/plan.mxd", named("name", "C:\\d {\"}", "roads", ""))
        self.write("maps/bad.mxd", b"x")
        check = ["--check-sources", "--map", "C:\\d {\"}=here"]
        for files, options in ((SHAPEFILE[:1], check), (SHAPEFILE[1:], check), ([], []),
                               ([], check)):
            for name in files:
                self.write(f"here/{name}")
            fresh = self.run_mxdinfo("-q", "-f", "ndjson", *options, "maps", code=1)[0]
            for _ in range(2):
                self.run_mxdinfo("-q", "--update", "inv", *options, "maps", code=1)
                with open(self.path("inv"), encoding="utf-8") as file:
                    self.assertEqual(fresh, file.read())
            self.write(f"inv{len(files)}", fresh.encode())
        self.run_mxdinfo("-q", "-f", "ndjson", *check, "-o", "found", "maps", code=1)
        self.assertIn("  ~ name / name / name\n      data: missing -> found\n",
                      self.run_mxdinfo("--diff", "inv1", "found")[0])

    @unittest.skipUnless(os.path.isdir(PROJECTS), "no projects beside the project")
    def test_projects(self):
        """The data is where the projects have it, relative to the documents."""
        sources = [layer["source"] for document in self.lines_of("-r", "--check-sources", PROJECTS)
                   for map_ in document["maps"] for layer in map_["layers"] if layer["source"]]
        self.assertEqual({"relative", "missing"}, {source["state"] for source in sources})
        # Pictures that their authors did not publish.
        self.assertEqual({"raster"}, {source["kind"] for source in sources
                                      if source["state"] == "missing"})


if __name__ == "__main__":
    unittest.main()
