"""Byte order marks, formulas, names of outputs, and messages that help."""

import csv
import io
import json
import os
import unittest

import documents
from support import SAMPLE, Case


class Manners(Case):
    def test_byte_order_mark(self):
        for arguments in ([], ["--losses"], ["--totals", "--crs"], ["--check-sources"]):
            marked, plain = (self.run_mxdinfo("-f", "csv", *arguments, *switch, SAMPLE, binary=True)[0]
                             for switch in ([], ["--no-bom"]))
            self.assertEqual(b"\xef\xbb\xbf" + plain, marked)

    def test_only_formulas_are_guarded(self):
        for name, guarded in (("=1+1", True), ("@x", True), ("+x", True), ("-1+2", True), ("-", False),
                              ("- - -", False), ("-1", False), ("+49 30 1", False), ("-12.5", False),
                              ("a-b", False), ("x@y", False), ("1=2", False), ("a;=1", True),
                              ("a;-1", False), ("=", False), ("- keine -", True), ("-\u0436", True)):
            self.write("x.mxd", documents.document(name))
            for switch, expected in (([], guarded), (["--no-formula-guard"], False)):
                text = self.run_mxdinfo("-f", "csv", "--no-bom", *switch, "x.mxd")[0]
                cell = list(csv.DictReader(io.StringIO(text)))[0]["map"]
                self.assertEqual((expected, name), ("'" in cell, cell.replace("'", "")))

    def test_wrong_values_are_explained(self):
        for arguments, message in (
                (["-f", "word"], '"word" is none of text, json, ndjson, csv, html, xml, dump'),
                (["--color", "red"], '"red" is none of auto, always, never'),
                (["-j", "999"], "999 not in range"),
                (["--check-sources", "--map", "C:"], '"C:" is not like C:\\data=/mnt/data')):
            self.assertIn(message, self.run_mxdinfo(*arguments, SAMPLE, code=2)[1])

    def test_reasons(self):
        os.mkdir(os.path.join(self.folder, "folder.mxd"))
        self.write("list", b"folder.mxd\nnone.mxd\nlist/x.mxd\n")
        errors = self.run_mxdinfo("--files-from", "list", code=1)[1]
        for name, reason in (("folder.mxd", "it is a folder"), ("none.mxd", "there is no such file"),
                             ("list/x.mxd", "")):
            self.assertIn(f"mxdinfo: {name}: cannot be opened: {reason}", errors)

    @unittest.skipIf(os.name == "nt", "names are text on Windows")
    def test_names_that_are_no_utf8(self):
        name = b"\xd0\xe6 \xff.mxd"
        self.write(os.fsdecode(name), documents.document("x"))
        for form in ("json", "ndjson"):
            file = json.loads(self.run_mxdinfo("-f", form, os.fsdecode(name))[0])["file"]
            self.assertEqual(name, bytes.fromhex(file["path_bytes"]))
        self.run_mxdinfo("--update", "inv", os.fsdecode(name))
        self.assertIn("1 of them unchanged", self.run_mxdinfo("--update", "inv", ".", name)[1])

    def test_several_documents_into_a_folder(self):
        for name in ("a.mxd", "sub/a.mxd", "sub/b.mxt"):
            self.write(name, documents.document(name))
        self.write("sub/bad.mxd", b"bad")
        for form, ending in (("xml", ".xml"), ("dump", ".txt")):
            self.run_mxdinfo("-r", "-f", form, "-o", form, ".", "a.mxd", code=1)
            found = {os.path.relpath(os.path.join(folder, name), os.path.join(self.folder, form))
                     for folder, _, names in os.walk(os.path.join(self.folder, form))
                     for name in names}
            self.assertEqual({f"a.mxd{ending}", f"a.mxd (2){ending}",
                              os.path.join("sub", f"a.mxd{ending}"),
                              os.path.join("sub", f"b.mxt{ending}")}, found)
            alone = self.run_mxdinfo("-f", form, "-o", "alone", "a.mxd")
            self.assertEqual(("", ""), alone)
            with open(os.path.join(self.folder, "alone"), "rb") as one, open(
                    os.path.join(self.folder, form, f"a.mxd{ending}"), "rb") as other:
                self.assertEqual(one.read()[-500:], other.read()[-500:])


if __name__ == "__main__":
    unittest.main()
