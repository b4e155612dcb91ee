"""Counts over all documents, and searches with what they could not look at."""

import csv
import io
import json
import os
import unittest

import documents
from support import SAMPLE, Case


class Totals(Case):
    def setUp(self):
        super().setUp()
        for name, folder in (("a", "C:\\base"), ("b", "c:\\BASE"), ("c", "C:\\other")):
            self.write(f"{name}.mxd", documents.document("layer", folder, "roads", ""))

    def table(self, *arguments):
        text = self.run_mxdinfo("-q", "-f", "csv", "--no-bom", "--totals", *arguments)[0]
        return list(csv.DictReader(io.StringIO(text)))

    def test_each_thing_is_counted_once_for_each_document_and_layer(self):
        self.assertEqual([("C:\\base", "2", "2"), ("C:\\other", "1", "1")],
                         [(row["workspace"], row["documents"], row["layers"])
                          for row in self.table("--sources", ".")])
        for view, column, value in (("--crs", "coordinate_system", "layer"),
                                    ("--fonts", "font", "layer")):
            self.assertEqual([(value, "3", "3")],
                             [(row[column], row["documents"], row["layers"])
                              for row in self.table(view, ".")])
        symbols = self.table("--symbols", ".")
        self.assertEqual(["3"], [row["documents"] for row in symbols])
        self.write("l.mxd", documents.made("lossy"))
        self.assertEqual([("layer", "mxd_feature_layer", "1", "0")],
                         [(row["what"], row["class"], row["documents"], row["layers"])
                          for row in self.table("--losses", ".")])

    def test_forms_agree_whatever_the_number_of_threads(self):
        for view in ("--sources", "--crs", "--symbols", "--fonts", "--losses"):
            rows = self.table(view, SAMPLE, ".")
            found = self.json_of("--totals", view, SAMPLE, ".")
            self.assertEqual(rows, [{key: "" if value is None else str(value) for key, value in row.items()}
                                    for row in found])
            once, again = (self.run_mxdinfo("-q", "--totals", view, "-j", jobs, SAMPLE, ".")[0]
                           for jobs in "14")
            self.assertEqual(once, again)
            self.assertEqual(len(rows) + 1, once.count("\n"))

    def test_states_are_columns(self):
        row = self.table("--sources", "--check-sources", "c.mxd")[0]
        self.assertEqual(("missing", "C:\\other\\roads.shp"), (row["state"], row["path"]))

    def test_fonts_of_markers_and_labels(self):
        lines = self.run_mxdinfo("--fonts", SAMPLE)[0].splitlines()
        self.assertIn("  Arial", lines)

    def test_wrong_usage(self):
        for arguments in (["--totals"], ["--totals", "--layers"], ["--totals", "--broken"],
                          ["--totals", "--crs", "-f", "ndjson"], ["--deep"], ["--fonts", "-f", "csv"]):
            self.run_mxdinfo(*arguments, SAMPLE, code=2)


class Searches(Case):
    def test_forms_agree(self):
        text = self.run_mxdinfo("--find-source", "base", SAMPLE)[0]
        found = self.json_of("--find-source", "base", SAMPLE)
        table = self.run_mxdinfo("--find-source", "base", "-f", "csv", SAMPLE)[0]
        self.assertEqual(text.count("\n"), len(found["layers"]))
        self.assertEqual(text.count("\n") + 1, table.count("\n"))
        self.assertEqual("C:\\data\\base\\rivers.shp", found["layers"][0]["source"]["path"])
        line = self.run_mxdinfo("-f", "ndjson", "--find-source", "base", SAMPLE)[0]
        self.assertEqual(found, json.loads(line))

    def test_no_match_is_reported(self):
        self.write("bad.mxd", b"x" * 5000)
        self.write("facts.mxd", documents.made("facts"))
        for arguments, code, message in (
                ([SAMPLE], 0, 'no data source contains "nothing"\n'),
                (["bad.mxd", "facts.mxd"], 1, '"nothing"; not searched: 1 document that cannot be '
                 "read, 5 layers that are not decoded (--deep searches them)\n"),
                (["--deep", "bad.mxd", "facts.mxd"], 1,
                 '"nothing"; not searched: 1 document that cannot be read\n')):
            for form in ("text", "csv", "json"):
                if form == "csv" and "--deep" in arguments:
                    continue
                self.assertIn(message, self.run_mxdinfo("-f", form, "--find-source", "nothing",
                                                        *arguments, code=code)[1])
        self.assertNotIn("contains", self.run_mxdinfo("--find-source", "base", SAMPLE)[1])
        self.assertEqual("", self.run_mxdinfo("-q", "--find-source", "nothing", SAMPLE)[1])

    def test_what_is_not_decoded_is_searched_deeply(self):
        for name, text in (("wide", "\\\\OLDserver\\Дороги".encode("utf-16-le")),
                           ("narrow", b"server=OLDserver;user=x"), ("none", b"nothing here")):
            self.write(f"{name}.mxd", documents.document("plain", hidden=b"\1\2\3" + text + b"\0\0"))
        for wanted, names in (("oldSERVER", ["narrow", "wide"]), ("server\\дОРОГИ", ["wide"]),
                              ("missing", [])):
            found = self.json_of("--find-source", wanted, "--deep", ".")
            self.assertEqual(names, [os.path.basename(each["file"]["path"])[:-4]
                                     for each in found if each["elsewhere"]])
            text = self.run_mxdinfo("-q", "--find-source", wanted, "--deep", ".")[0]
            self.assertEqual(len(names), text.count("not decoded, at byte"))
        self.assertIn(": server=OLDserver;user=x\n", self.run_mxdinfo(
            "-q", "--find-source", "oldserver", "--deep", ".")[0])
        self.assertEqual("", self.run_mxdinfo("-q", "--find-source", "oldserver", ".")[0])


if __name__ == "__main__":
    unittest.main()
