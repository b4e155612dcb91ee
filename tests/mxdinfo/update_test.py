"""Inventories that are brought up to date, and what changed between two of them."""

import json
import os
import unittest

import documents
from support import SAMPLE, Case, schema_errors


class Update(Case):
    def setUp(self):
        super().setUp()
        for name in ("a", "b", "sub/c", "sub/d"):
            self.write(f"{name}.mxd", documents.document(name))
        self.write("sub/bad.mxd", b"x" * 5000)

    def path(self, name):
        return os.path.join(self.folder, *name.split("/"))

    def rewrite(self, old, new):
        with open(self.path("inv"), "rb") as file:
            self.write("inv", file.read().replace(old, new))

    def lines(self):
        with open(self.path("inv"), encoding="utf-8") as file:
            return [json.loads(line) for line in file]

    def update(self, *arguments, code=1):
        """The names in the new inventory, kept lines in brackets; and the messages."""
        if os.path.exists(self.path("inv")):
            self.rewrite(b'"title":null,"author"', b'"title":"kept","author"')
        errors = self.run_mxdinfo("-r", "--update", "inv", *(arguments or ["."]), code=code)[1]
        lines = [(os.path.splitext(os.path.basename(line["file"]["path"].replace("\\", "/")))[0],
                  line["title"]) for line in self.lines()]
        return " ".join(f"({name})" if title == "kept" else name for name, title in lines), errors

    def test_which_lines_are_kept(self):
        self.assertEqual("a b bad c d", self.update()[0])
        self.assertEqual([], schema_errors(self.lines()))
        new = documents.document("new")
        for change, expected in (
                (lambda: None, "(a) (b) (bad) (c) (d)"),
                (lambda: os.utime(self.path("a.mxd"), (1, 1)), "a (b) (bad) (c) (d)"),
                (lambda: self.write("b.mxd", documents.document("b" * 4999)), "(a) b (bad) (c) (d)"),
                (lambda: self.write("sub/cc.mxd", new), "(a) (b) (bad) (c) cc (d)"),
                (lambda: os.remove(self.path("sub/cc.mxd")), "(a) (b) (bad) (c) (d)"),
                (lambda: os.rename(self.path("a.mxd"), self.path("z.mxd")), "(b) (bad) (c) (d) z"),
                (lambda: self.rewrite(b'"version":"', b'"version":"0.'), "b bad c d z"),
                (lambda: self.rewrite(self.last_line(), self.last_line()[:-9]),
                 "(b) (bad) (c) (d) z"),
                (lambda: self.write("inv", b""), "b bad c d z")):
            change()
            self.assertEqual(expected, self.update()[0])

    def last_line(self):
        with open(self.path("inv"), "rb") as file:
            return file.readlines()[-1]

    def test_what_is_reported(self):
        self.update()
        os.remove(self.path("a.mxd"))
        errors = self.update()[1]
        self.assertIn("bad.mxd: not readable as a map document", errors)
        self.assertIn("4 documents, 4 of them unchanged, 1 gone, 1 of them unreadable; read: 0 maps",
                      errors)
        self.write("lossy/l.mxd", documents.made("lossy"))
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

    def test_no_other_file_is_overwritten(self):
        for data in (b"notes", b"{}\n", b'{"file": 1}\n', documents.document("x")):
            self.write("inv", data)
            self.run_mxdinfo("--update", "inv", "a.mxd", code=2)
            with open(self.path("inv"), "rb") as file:
                self.assertEqual(data, file.read())
        for other in (["-o", "x"], ["-f", "json"], ["--layers"], ["--find-source", "x"], ["--diff"]):
            self.run_mxdinfo("--update", "inv2", *other, "a.mxd", code=2)

    def test_copies_have_equal_hashes(self):
        with open(SAMPLE, "rb") as file:
            self.write("copy.mxd", file.read())
        self.update("copy.mxd", SAMPLE, "a.mxd", "sub/bad.mxd")
        copy, sample, other, bad = [line["file"]["maps_hash"] for line in self.lines()]
        self.assertEqual((copy, 16, None), (sample, len(other), bad))
        self.assertNotEqual(copy, other)


class Diff(Case):
    def changes(self, *arguments, code=0):
        """Text and JSON of a comparison."""
        text = self.run_mxdinfo("--diff", *arguments, code=code)[0]
        return text, json.loads(self.run_mxdinfo("--diff", "-f", "json", *arguments, code=code)[0])

    def test_documents(self):
        self.write("old.mxd", documents.document("one"))
        self.write("new.mxd", documents.document("two"))
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
            for name, lines in (("old", [document]), ("new", [changed])):
                self.write(name, "".join(json.dumps(line, separators=(",", ":")) + "\n"
                                         for line in lines).encode())
            text, diff = self.changes("old", "new")
            self.assertEqual(expected is not None, bool(diff))
            self.assertIn(expected or "", text)

    def test_moved_and_vanished_documents(self):
        for name in ("stays", "moves", "goes"):
            self.write(f"{name}.mxd", documents.document(name))
        self.run_mxdinfo("--update", "old", ".")
        os.rename(os.path.join(self.folder, "moves.mxd"), os.path.join(self.folder, "moved.mxd"))
        os.remove(os.path.join(self.folder, "goes.mxd"))
        self.write("comes.mxd", documents.document("comes"))
        self.run_mxdinfo("--update", "new", ".")
        text, diff = self.changes("old", "new")
        self.assertEqual({"comes": "added", "moved": "moved", "goes": "removed"},
                         {d["document"][2:-4]: d["change"] for d in diff})
        self.assertIn("moves.mxd\n", text)

    def test_wrong_usage(self):
        self.write("a.mxd", documents.document("a"))
        self.run_mxdinfo("--update", "inv", "a.mxd")
        for arguments, code in ((["a.mxd"], 2), (["a.mxd", "inv"], 2), (["a.mxd", "none"], 1),
                                (["inv", "inv", "inv"], 2), (["-f", "csv", "inv", "inv"], 2),
                                (["-o", "inv", "inv", "inv"], 2)):
            self.run_mxdinfo("--diff", *arguments, code=code)


if __name__ == "__main__":
    unittest.main()
