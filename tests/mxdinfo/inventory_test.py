"""Inventories: how they are brought up to date and compared, totals, and queries of them."""

import json
import os
import re
import sqlite3
import unittest

from support import IS_WINDOWS, ROOT, SAMPLE, SAMPLES, Case, made, named, schema_errors, slashes


class Update(Case):
    def setUp(self):
        super().setUp()
        for name in ("a", "b", "sub/c", "sub/d"):
            self.write(f"{name}.mxd", named(name))
        self.write("sub/bad.mxd", b"x" * 5000)

    def rewrite(self, old, new):
        self.write("inv", self.read("inv").replace(old, new))

    def lines(self):
        return [json.loads(line) for line in self.read("inv").splitlines()]

    def update(self, *arguments, code=1):
        """The names in the new inventory, kept lines in brackets; and the messages."""
        if os.path.exists(self.path("inv")):
            self.rewrite(b'"title":null,"author"', b'"title":"kept","author"')
        errors = self.run_mxdinfo("-r", "--update", "inv", *(arguments or ["."]), code=code)[1]
        lines = [(os.path.splitext(os.path.basename(slashes(line["file"]["path"])))[0],
                  line["title"]) for line in self.lines()]
        return " ".join(f"({name})" if title == "kept" else name for name, title in lines), errors

    def test_which_lines_are_kept(self):
        self.assertEqual("a b bad c d", self.update()[0])
        self.assertEqual([], schema_errors(self.lines()))
        for change, expected in (
                (lambda: None, "(a) (b) (bad) (c) (d)"),
                (lambda: os.utime(self.path("a.mxd"), (1, 1)), "a (b) (bad) (c) (d)"),
                (lambda: self.write("b.mxd", named("b" * 4999)), "(a) b (bad) (c) (d)"),
                (lambda: self.write("sub/cc.mxd", named("new")), "(a) (b) (bad) (c) cc (d)"),
                (lambda: os.remove(self.path("sub/cc.mxd")), "(a) (b) (bad) (c) (d)"),
                (lambda: os.rename(self.path("a.mxd"), self.path("z.mxd")), "(b) (bad) (c) (d) z"),
                (lambda: self.rewrite(b'"version":"', b'"version":"0.'), "b bad c d z"),
                # The last line is cut.
                (lambda: self.write("inv", self.read("inv")[:-9]), "(b) (bad) (c) (d) z"),
                (lambda: self.write("inv"), "b bad c d z")):
            change()
            self.assertEqual(expected, self.update()[0])

    def test_what_is_reported(self):
        self.update()
        os.remove(self.path("a.mxd"))
        errors = self.update()[1]
        self.assertIn("bad.mxd: not readable as a map document", errors)
        self.assertIn("4 documents, 4 of them unchanged, 1 gone, 1 of them unreadable; read: 0 maps",
                      errors)
        self.write("lossy/l.mxd", made("lossy"))
        for _ in range(2):
            self.assertEqual(["l"], self.update("--strict", "lossy", code=3)[0].strip("()").split())

    def test_folders_that_cannot_be_reached_keep_their_lines(self):
        self.update("a.mxd", "sub")
        os.rename(self.path("sub"), self.path("away"))
        names, errors = self.update("a.mxd", "sub")
        self.assertEqual("(a) sub (bad) (c) (d)", names)
        self.assertIn("cannot be opened", errors)
        before = [line["file"] for line in self.lines()]
        self.update("--files-from", "none")
        self.assertEqual(before, [line["file"] for line in self.lines()])

    def test_states_below_folders_that_cannot_be_reached(self):
        self.update("--check-sources", "sub")
        os.rename(self.path("sub"), self.path("away"))
        for options, has_states in ((["--check-sources"], True), ([], False)):
            self.assertEqual("sub (bad) (c) (d)", self.update(*options, "sub")[0])
            self.assertEqual(has_states, b'"state":' in self.read("inv"))

    @unittest.skipIf(IS_WINDOWS, "command lines of Windows are shorter")
    def test_lines_that_are_too_long_with_states_are_written_again(self):
        # As text of JSON the path is six times as long.
        options = ["--check-sources", "--map", "C:\\data=/" + "\1" * 120000]
        for _ in range(2):
            self.run_mxdinfo("-q", "--update", "inv", SAMPLE)
            self.run_mxdinfo("--update", "inv", *options, SAMPLE)
            fresh = self.run_mxdinfo("-q", "-f", "ndjson", *options, SAMPLE, binary=True)[0]
            self.assertIn(b"it is too long", fresh)
            self.assertEqual(fresh, self.read("inv"))

    def test_no_other_file_is_overwritten(self):
        for data in (b"notes", b"{}\n", b'{"file": 1}\n', named("x")):
            self.write("inv", data)
            self.run_mxdinfo("--update", "inv", "a.mxd", code=2)
            self.assertEqual(data, self.read("inv"))

    def test_listed_and_found_inventories_are_not_overwritten(self):
        self.write("list", b"a.mxd\n./inv\n")
        for name, inputs in (("inv", ["--files-from", "list"]), ("inv.mxd", ["."])):
            self.run_mxdinfo("--update", name, "a.mxd")
            data = self.read(name)
            self.assertIn("is an input", self.run_mxdinfo("--update", name, *inputs, code=2)[1])
            self.assertEqual(data, self.read(name))

    def test_copies_have_equal_hashes(self):
        self.write("copy.mxd", made("sample"))
        self.update("copy.mxd", SAMPLE, "a.mxd", "sub/bad.mxd")
        copy, sample, other, bad = [line["file"]["maps_hash"] for line in self.lines()]
        self.assertEqual((copy, 16, None), (sample, len(other), bad))
        self.assertNotEqual(copy, other)


class Diff(Case):
    def changes(self, *arguments):
        """Text and JSON of a comparison."""
        return (self.run_mxdinfo("--diff", *arguments)[0],
                json.loads(self.run_mxdinfo("--diff", "-f", "json", *arguments)[0]))

    def test_documents(self):
        self.write("old.mxd", named("one"))
        self.write("new.mxd", named("two"))
        self.assertEqual(("", []), self.changes("old.mxd", "old.mxd"))
        text, (diff,) = self.changes("old.mxd", "new.mxd")
        self.assertIn("new.mxd: changed from old.mxd\n  - source one\\one.shp\n", text)
        self.assertEqual([("one", None, "removed"), ("one", "one", "removed"),
                          ("one", "one / one", "removed"), ("two", None, "added"),
                          ("two", "two", "added"), ("two", "two / two", "added")],
                         [(i["map"], i["layer"], i["change"]) for i in diff["items"]])

    def test_inventories(self):
        document = self.json_of(SAMPLE)
        layers = document["maps"][0]["layers"]

        def other_symbology(towns):
            classes = towns["renderer"]["classes"]
            classes[0]["symbol"]["color"]["rgb"] = "#123456"
            del classes[1]

        for change, expected in (
                (lambda d: d["file"].update(modified=None), None),
                (lambda d: d["maps"][0]["layers"][1]["source"].update(path="D:\\x.shp"),
                 "~ Layers / Base map / Rivers & canals\n"
                 "      source: C:\\data\\base\\rivers.shp -> D:\\x.shp\n"),
                (lambda d: d["maps"][0]["layers"][3].update(visible=True),
                 "~ Layers / Towns\n      visibility: false -> true\n"),
                (lambda d: d["maps"][0]["layers"].pop(),
                 f"- Layers / {layers[-1]['name']}\n"),
                (lambda d: d["maps"][0].update(coordinate_system=None),
                 "~ map Layers\n      coordinate system: WGS_1984_UTM_Zone_33N -> none\n"),
                (lambda d: other_symbology(d["maps"][0]["layers"][3]),
                 ".symbol.color.rgb: #")):
            changed = json.loads(json.dumps(document))
            change(changed)
            for name, line in (("old", document), ("new", changed)):
                self.write(name, json.dumps(line, separators=(",", ":")).encode() + b"\n")
            text, diff = self.changes("old", "new")
            self.assertEqual(expected is not None, bool(diff))
            self.assertIn(expected or "", text)

    def test_moved_and_vanished_documents(self):
        for name in ("stays", "moves", "goes"):
            self.write(f"{name}.mxd", named(name))
        self.run_mxdinfo("--update", "old", ".")
        os.rename(self.path("moves.mxd"), self.path("moved.mxd"))
        os.remove(self.path("goes.mxd"))
        self.write("comes.mxd", named("comes"))
        self.run_mxdinfo("--update", "new", ".")
        text, diff = self.changes("old", "new")
        self.assertEqual({"comes": "added", "moved": "moved", "goes": "removed"},
                         {d["document"][2:-4]: d["change"] for d in diff})
        self.assertIn("moves.mxd\n", text)


class Totals(Case):
    def test_forms_agree_whatever_the_number_of_threads(self):
        for name, folder in (("a", "C:\\base"), ("b", "c:\\BASE"), ("c", "C:\\other")):
            self.write(f"{name}.mxd", named("layer", folder, "roads", ""))
        for view in ("--sources", "--crs", "--symbols", "--fonts", "--losses"):
            rows = self.table_of("--totals", view, SAMPLE, ".")
            found = self.json_of("--totals", view, SAMPLE, ".")
            self.assertEqual(rows, [{key: "" if value is None else str(value)
                                     for key, value in row.items()} for row in found])
            once, again = (self.run_mxdinfo("-q", "--totals", view, "-j", jobs, SAMPLE, ".")[0]
                           for jobs in "14")
            self.assertEqual(once, again)
            self.assertEqual(len(rows) + 1, once.count("\n"))


class Queries(Case):
    """Those of docs/inventory.md, on the samples where there are any."""

    def setUp(self):
        super().setUp()
        self.write("bad.mxd", b"x" * 5000)
        for name in ("one", "copy"):
            self.write(f"{name}.mxd", named("same", "D:\\old", "roads", ""))
        inputs = [".", SAMPLE, *([SAMPLES] if os.path.isdir(SAMPLES) else [])]
        text = self.run_mxdinfo("-q", "-f", "ndjson", "--check-sources", *inputs, code=1)[0]
        self.documents = [json.loads(line) for line in text.splitlines()]
        self.layers = [layer for document in self.documents for map_ in document["maps"]
                       for layer in map_["layers"]]
        self.database = sqlite3.connect(":memory:")
        self.database.execute("create table lines (json text)")
        self.database.executemany("insert into lines values (?)",
                                  [(line,) for line in text.splitlines()])
        with open(os.path.join(ROOT, "docs", "inventory.md"), encoding="utf-8") as file:
            views, *self.queries = re.findall(r"```sql\n(.*?)```", file.read(), re.DOTALL)
        self.database.executescript(views)

    def rows(self, number):
        return self.database.execute(self.queries[number - 1]).fetchall()

    def test_ten_questions_are_answered(self):
        self.assertEqual(10, len(self.queries))
        self.assertEqual(len(self.documents), sum(row[1] for row in self.rows(1)))
        self.assertEqual([("./bad.mxd", "not readable as a map document")],
                         [(slashes(path), reason) for path, reason in self.rows(2)])
        self.assertEqual([2], [row[1] for row in self.rows(3) if "one.mxd" in row[2]])
        with_data = [layer["source"] for layer in self.layers if layer["source"]]
        self.assertEqual(sum(source["workspace"] is not None for source in with_data),
                         sum(row[3] for row in self.rows(4)))
        self.assertLessEqual({"./copy.mxd", "./one.mxd"}, {slashes(row[0]) for row in self.rows(5)})
        self.assertEqual(len({((source["workspace"] or "").lower(), source["dataset"].lower())
                              for source in with_data if source["state"] == "missing"}),
                         len(self.rows(6)))
        self.assertEqual(sum(bool(layer["differs_from_map"]) for layer in self.layers),
                         sum(row[2] or 0 for row in self.rows(7)))
        self.assertEqual(sum(len(document["losses"]) for document in self.documents),
                         sum(row[2] for row in self.rows(8)))
        fonts = set(re.findall(r'"font_name": "([^"]*)"', json.dumps(self.documents)))
        self.assertEqual(fonts, {json.loads(f'"{row[0]}"') for row in self.rows(9)})
        self.assertEqual({document["file"]["path"] for document in self.documents
                          if (document["last_saved"]["date"] or "9") < "2018"},
                         {row[0] for row in self.rows(10)})


if __name__ == "__main__":
    unittest.main()
