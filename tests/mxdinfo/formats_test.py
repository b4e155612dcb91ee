"""The forms of the output agree with each other and with their descriptions."""

import base64
import csv
import glob
import hashlib
import io
import json
import os
import re
import subprocess
import unittest

import documents
from support import MXDINFO, SAMPLE, SAMPLES, SCHEMA, Case, legend_classes, schema_errors

ROOT = os.path.dirname(os.path.dirname(SAMPLE))

# The outputs of these commands are in tests/golden/mxdinfo.
GOLDEN = {
    "tree.txt": "sample.mxd",
    "tree_in_color.txt": "--color always sample.mxd",
    "layers.txt": "--layers sample.mxd",
    "sources.txt": "--sources sample.mxd",
    "crs.txt": "--crs sample.mxd",
    "symbols.txt": "--symbols sample.mxd",
    "found.txt": "--find-source BASE sample.mxd",
    "found.csv": "--find-source town.gdb -f csv sample.mxd",
    "layers.csv": "-f csv sample.mxd",
    "document.json": "-f json sample.mxd",
    "page.html": "-f html sample.mxd",
    "gallery.txt": "--symbols gallery.mxd",
    "gallery.json": "-f json gallery.mxd",
    "gallery.html": "-f html gallery.mxd",
    "facts.txt": "-v -j 2 facts.mxd bad.mxd",
    "facts.csv": "-q -f csv facts.mxd",
    "facts.json": "-q -f json facts.mxd",
    "facts.html": "-q -f html sample.mxd facts.mxd bad.mxd",
    "facts_layers.txt": "-q --layers facts.mxd",
    "facts_crs.txt": "-q --crs facts.mxd",
    "losses.txt": "--strict --losses facts.mxd lossy.mxd sample.mxd",
    "losses.csv": "-q --losses -f csv facts.mxd lossy.mxd",
    "losses.json": "-q --losses -f json facts.mxd lossy.mxd",
}


class Formats(Case):
    def test_json_is_as_the_schema_says(self):
        document = self.json_of(SAMPLE)
        self.assertEqual([], schema_errors(document))
        self.assertEqual([], schema_errors([document]))
        lossy = self.json_of(self.write("lossy.mxd", documents.made("lossy")))
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

    def test_outputs_are_as_committed(self):
        for name in ("sample", "gallery", "facts", "lossy"):
            self.write(name + ".mxd", documents.made(name))
        self.write("bad.mxd", b"bad")
        for golden, arguments in GOLDEN.items():
            with self.subTest(golden):
                result = subprocess.run([MXDINFO, *arguments.split()], capture_output=True,
                                        check=False, cwd=self.folder)
                text = (result.stdout + result.stderr).decode()
                if result.returncode != 0:
                    text += f"exit code {result.returncode}\n"
                for varies, word in ((r'(mxdinfo |"version": ")[0-9.]+', r"\1VERSION"),
                                     (r'("modified": ")[^"]+', r"\1TIME"),
                                     (r"(<(style|script)>).*?(</\2>)", r"\1\3"),
                                     (r"(script-src 'sha256-)[^']+", r"\1HASH"),
                                     (r"[0-9.]+ s, [0-9]+ documents a second", "TIME")):
                    text = re.sub(varies, word, text, flags=re.DOTALL)
                path = os.path.join(ROOT, "tests/golden/mxdinfo", golden)
                if "VQK_WRITE_GOLDEN" in os.environ:
                    with open(path, "w", encoding="utf-8", newline="") as file:
                        file.write(text)
                with open(path, encoding="utf-8", newline="") as file:
                    self.assertEqual(file.read(), text)

    def test_the_page_allows_its_script_and_no_other(self):
        text = self.run_mxdinfo("-f", "html", SAMPLE)[0]
        script, = re.findall("<script>(.*?)</script>", text, re.DOTALL)
        digest = base64.b64encode(hashlib.sha256(script.encode()).digest()).decode()
        self.assertIn(f"script-src 'sha256-{digest}'\"", text)

    def test_a_page_for_each_folder(self):
        for name in ("top.mxd", "a/1.mxd", "a/2.mxd", "a/b/3.mxd"):
            self.write(name, documents.document(name))
        self.write("a/bad.mxd", b"bad")
        os.mkdir(os.path.join(self.folder, "pages"))
        self.run_mxdinfo("-q", "-r", "-f", "html", "-o", "pages", ".", code=1)
        pages = {}
        for path in glob.glob(os.path.join(self.folder, "pages", "*")):
            with open(path, encoding="utf-8") as file:
                pages[os.path.basename(path)] = file.read()
        rows = re.findall(r'<tr>.*?href="(.*?)"><bdi>(.*?)<.*?>(\d+)</td>.*?>(\d+)</td>',
                          pages.pop("index.html"))
        self.assertEqual([("page-1.html", ".", "1", "0"), ("page-2.html", "./a", "3", "1"),
                          ("page-3.html", "./a/b", "1", "0")], rows)
        self.assertEqual({row[0] for row in rows}, set(pages))
        for page in pages.values():
            self.assertIn('<a href="index.html">', page)
            links = re.findall('href="#(.*?)"', page)
            self.assertEqual([], [link for link in links if f'id="{link}"' not in page])

    def test_options_are_documented(self):
        options = set(re.findall(r"--[a-z-]+", self.run_mxdinfo("--help")[0]))
        for name in ("docs/mxdinfo.1", "tools/mxdinfo.bash"):
            with open(os.path.join(ROOT, name), encoding="utf-8") as file:
                text = file.read().replace("\\-", "-")
            self.assertEqual(options, set(re.findall(r"--[a-z][a-z-]+", text)), name)

    def test_searches_ignore_case(self):
        self.write("cyrillic.mxd", documents.document("Дороги"))
        self.assertIn("Дороги", self.run_mxdinfo("--find-source", "дОРОГИ", "cyrillic.mxd")[0])


@unittest.skipUnless(os.path.isdir(SAMPLES), "no sample documents beside the project")
class Samples(Case):
    def test_every_sample_in_every_form(self):
        with open(os.path.join(SAMPLES, "EXPECTED.tsv"), encoding="utf-8") as file:
            table = list(csv.DictReader(file, delimiter="\t"))
        for row in table:
            with self.subTest(row["file"]):
                self.check(row, os.path.join(SAMPLES, row["file"]))
        for path in sorted(glob.glob(os.path.join(SAMPLES, "../projects/*/*.mxd"))):
            with self.subTest(path):
                document = self.json_of(path)
                self.check_layers(path, document)
                self.check_ranges(document)

    def check(self, row, path):
        document = self.json_of(path)
        self.assertEqual([], schema_errors(document))
        self.assertEqual(int(row["errors"]), sum(loss["number"] is not None
                                                 for loss in document["losses"]))
        self.assertEqual(len(legend_classes(document)), self.page_of(path).swatches)
        self.check_layers(path, document)
        self.check_ranges(document)

    def check_layers(self, path, document):
        """Each layer that a list counts is found, and each that is found is in a list."""
        self.assertNotIn("layers", [loss["what"] for loss in document["losses"]])
        rows = list(csv.DictReader(io.StringIO(self.run_mxdinfo("-q", "-f", "csv", path)[0])))
        self.assertEqual(sum(len(each["layers"]) for each in document["maps"]), len(rows))
        self.assertEqual([], [row["layer"] for row in rows if not row["bytes"] or None in row])

    def check_ranges(self, document):
        """A label of two numbers shows the class's range: its ends are rounded, and the lower
        one is often the last digit's next number."""
        number = r"(-?[0-9][0-9.,]*)"
        for item in legend_classes(document, "class_breaks"):
            match = re.fullmatch(number + " - " + number, item["label"])
            for text, limit in zip(match.groups() if match else (), (item["min"], item["max"])):
                digits = len(text.rpartition(".")[2]) if "." in text else 0
                shown = float(text.replace(",", ""))
                self.assertAlmostEqual(shown, limit, delta=1.51 * 10**-digits, msg=item["label"])


if __name__ == "__main__":
    assert os.path.exists(SCHEMA)
    unittest.main()
