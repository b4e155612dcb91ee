"""Names that want to be markup, commands of a terminal, formulas, or very long."""

import csv
import io
import json
import re
import unicodedata
import unittest
import xml.etree.ElementTree

from support import IS_WINDOWS, Case, made, named, schema_errors

NAMES = {
    "markup": "<script>alert(1)</script>",
    "attribute": "\"><img src=x onerror=alert(1)>",
    "other attribute": "' onmouseover='alert(1)",
    "entities": "]]>&amp;&#60;<!-- --!>",
    "terminal": "a\x1b[31mred\x07\x9b2J\r\nnew line\tend\x7f",
    "direction": "\u202egnp.exe\u2066",
    "half of a pair": "a\ud800b\udc00",
    "no character": "\ufffe\uffff",
    "formula": "=HYPERLINK(\"http://example.org\",\"x\")",
    "plus": "+1",
    "minus": "-1",
    "at": "@SUM(A1)",
    "blank and formula": "  =1+1",
    "formula after a semicolon": "x;=cmd|'/c calc'!A1",
    "formula after quotes": "x; \"=1|@2",
    "second controls": "a\u0080\u009b\u2028b",
    "cells": "a,\"b\";c",
    "style": "x'; } body { display: none } /*",
    "format": "{} {0} %s %n \\x1b \\",
    "longest": "x" * 4999,
    "beyond the first plane": "日本語 😀 عربى",
}
# As the guide recommends for XML.
WITHOUT_CONTROLS = bytes(0x3F if c < 0x20 and c not in b"\t\n\r" else c for c in range(256))
ALLOWED_TAGS = set(
    "html head meta title style script body main header nav section h1 h2 h3 p span b bdi ul li dl dt dd div "
    "details summary noscript pre table thead tbody tr th td a label input button output svg use g rect "
    "circle path text".split())


def replaced(name):
    """As valid Unicode."""
    return name.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def is_harmless(text):
    return all(c == "\n" or unicodedata.category(c) != "Cc" for c in text) and not any(
        c in text for c in "\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069\u2028")


def is_formula(cell):
    """Whether a spreadsheet evaluates the cell; signed numbers are only numbers."""
    return re.match(r"\s*[=+@-]", cell) and not re.fullmatch(r"\s*[+-][0-9.]+", cell)


class Hostile_names(Case):
    def each(self):
        return [(name, self.write(f"{i}.mxd", named(name))) for i, name in enumerate(NAMES.values())]

    def test_text(self):
        views = ([], ["--layers"], ["--sources"], ["--crs"], ["--symbols"], ["--find-source", "\\"])
        self.write("plain.mxd", named("plain"))
        for view in views:
            lines = self.run_mxdinfo(*view, "plain.mxd")[0].count("\n")
            for _, path in self.each():
                text = self.run_mxdinfo(*view, path)[0]
                self.assertTrue(is_harmless(text))
                self.assertEqual(lines, text.count("\n"))

    def test_json(self):
        for name, path in self.each():
            document = self.json_of(path)
            self.assertEqual([], schema_errors(document))
            layer = document["maps"][0]["layers"][1]
            entry = layer["renderer"]["classes"][0]
            group = document["maps"][0]["layers"][layer["parent"]]
            texts = (layer["name"], group["name"], layer["source"]["workspace"], entry["heading"],
                     entry["label"], entry["symbol"]["font_name"])
            self.assertEqual({replaced(name)}, set(texts))
            line = self.run_mxdinfo("-f", "ndjson", path)[0]
            self.assertTrue(is_harmless(line))
            self.assertEqual((1, document), (line.count("\n"), json.loads(line)))

    def test_csv(self):
        for key, (name, path) in zip(NAMES, self.each()):
            text = self.run_mxdinfo("-f", "csv", path)[0]
            self.assertTrue(is_harmless(text))
            rows = list(csv.reader(io.StringIO(text)))
            self.assertEqual([len(rows[0])] * 3, [len(row) for row in rows])
            for delimiter in ",;|":
                for row in csv.reader(io.StringIO(text), delimiter=delimiter):
                    self.assertEqual([], [cell for cell in row if is_formula(cell)])
            if is_harmless(name) and "formula" not in key and name[:1] not in tuple("+-@"):
                self.assertEqual(replaced(name), rows[2][3])

    def test_only_formulas_are_guarded(self):
        for name, guarded in (("=1+1", True), ("@x", True), ("+x", True), ("-1+2", True), ("-", False),
                              ("- - -", False), ("-1", False), ("+49 30 1", False), ("-12.5", False),
                              ("a-b", False), ("x@y", False), ("1=2", False), ("a;=1", True),
                              ("a;-1", False), ("=", False), ("- keine -", True), ("-\u0436", True)):
            self.write("x.mxd", named(name))
            for switch, expected in (([], guarded), (["--no-formula-guard"], False)):
                cell = self.table_of(*switch, "x.mxd")[0]["map"]
                self.assertEqual((expected, name), ("'" in cell, cell.replace("'", "")))

    def test_html(self):
        for name, path in self.each():
            page = self.page_of(path)
            self.assertLessEqual(page.tags, ALLOWED_TAGS)
            self.assertEqual(1, page.swatches)
            for key, value in page.attributes:
                self.assertFalse(key.startswith("on"))
                self.assertNotIn("url(", value or "")
            self.assertTrue(is_harmless("".join(page.texts)))
            if is_harmless(name) and name != NAMES["no character"]:
                self.assertGreaterEqual(page.texts.count(replaced(name)), 4)

    def test_xml_and_dump(self):
        for name, path in self.each():
            text = self.run_mxdinfo("-f", "xml", path, binary=True)[0]
            self.assertNotIn(b"<script", text)
            self.assertTrue(text.endswith(b"</mxd_mxd>"))
            xml.etree.ElementTree.fromstring(text.translate(WITHOUT_CONTROLS))
            dump = self.run_mxdinfo("--format", "dump", path, binary=True)[0]
            self.assertTrue(dump.startswith(b"mxd_map = {"))

    @unittest.skipIf(IS_WINDOWS, "no such names on Windows")
    def test_names_of_files(self):
        name = "<b>\x1b[2J'\"\n=x.mxd"
        self.write(name, named("x"))
        self.write("bad" + name, b"bad")
        text, errors = self.run_mxdinfo(".", code=1)
        self.assertTrue(is_harmless(text) and is_harmless(errors))
        self.assertEqual(1, text.count(name.replace("\x1b", "\\x1b").replace("\n", "\\x0a")))
        self.assertIn("./" + name, [d["file"]["path"] for d in self.json_of(".", code=1)])
        self.assertLessEqual(self.page_of(".", code=1).tags, ALLOWED_TAGS)

    def test_groups_within_groups(self):
        path = self.write("deep.mxd", made("deep"))
        for form in ("text", "json", "csv", "html"):
            self.assertLess(len(self.run_mxdinfo("-f", form, path)[0]), 4_000_000)
        self.page_of(path)


if __name__ == "__main__":
    unittest.main()
