"""Real documents, where there are any beside the project: the digests of their outputs are known, and
their forms agree."""

import csv
import glob
import hashlib
import os
import re
import subprocess
import unittest

from support import IS_WINDOWS, SAMPLES, Case, legend_classes, schema_errors

NATIVE = os.environ.get("NATIVE_MXDINFO", "")

LAYERS = {"feature": "feature", "group": "group", "raster": "raster", "graphics": "fdo_graphics"}
REPEATED_MAP = re.compile(rb"<mxd_map>\s*(?:<(?:number|reserve|version)>\d+</\w+>\s*)*<repeat>")


def digest(data):
    return hashlib.sha256(data).hexdigest()


@unittest.skipUnless(os.path.isdir(SAMPLES) and not IS_WINDOWS, "no sample documents, or on Windows")
class Samples(Case):
    def test_every_sample_in_every_form(self):
        with open(os.path.join(SAMPLES, "EXPECTED.tsv"), encoding="utf-8") as file:
            table = list(csv.DictReader(file, delimiter="\t"))
        for row in table:
            with self.subTest(row["file"]):
                self.check_against(row)
        for path in sorted(glob.glob(os.path.join(SAMPLES, "../projects/*/*.mxd"))):
            with self.subTest(path):
                self.check_layers(path, self.json_of(path))

    def check_against(self, row):
        # The XML has the name of the file as it is given.
        name, path = row["file"], os.path.join(SAMPLES, row["file"])
        xml, messages = self.run_mxdinfo("-f", "xml", name, binary=True, cwd=SAMPLES)
        errors = messages.count(" at byte ")
        dump = self.run_mxdinfo("-f", "dump", path, binary=True)[0]
        counts = {kind: xml.count(f"<mxd_{name}_layer>".encode()) for kind, name in LAYERS.items()}
        counts |= {"maps": xml.count(b"<mxd_map>"), "repeated_maps": len(REPEATED_MAP.findall(xml)),
                   "errors": errors}
        found = {"file": name, "xml_sha256": digest(xml), "dump_sha256": digest(dump),
                 **{name: str(count) for name, count in counts.items()}}
        self.assertEqual(row, found)
        document = self.json_of(path)
        self.assertEqual([], schema_errors(document))
        self.assertEqual(errors, sum(loss["number"] is not None for loss in document["losses"]))
        self.assertEqual(len(legend_classes(document)), self.page_of(path).swatches)
        self.check_layers(path, document)

    def check_layers(self, path, document):
        """Each layer that a list counts is found, and each that is found is in a list. Features have
        names; and a label of two numbers shows the class's range: its ends are rounded, and the lower
        one is often the last digit's next number."""
        self.assertNotIn("layers", [loss["what"] for loss in document["losses"]])
        layers = [layer for each in document["maps"] for layer in each["layers"]]
        rows = self.table_of(path)
        self.assertEqual(len(layers), len(rows))
        self.assertEqual([], [row["layer"] for row in rows if not row["bytes"] or None in row])
        for layer in layers:
            if layer["kind"] == "feature":
                source = layer["source"]
                self.assertTrue(layer["name"] and source["dataset"] and source["workspace"], layer)
        number = r"(-?[0-9][0-9.,]*)"
        for item in legend_classes(document, "class_breaks"):
            match = re.fullmatch(number + " - " + number, item["label"])
            for text, limit in zip(match.groups() if match else (), (item["min"], item["max"])):
                digits = len(text.rpartition(".")[2]) if "." in text else 0
                shown = float(text.replace(",", ""))
                self.assertAlmostEqual(shown, limit, delta=1.51 * 10**-digits, msg=item["label"])


@unittest.skipUnless(os.path.isdir(SAMPLES) and os.path.exists(NATIVE), "nothing to compare with")
class On_windows(Case):
    def test_outputs_are_the_native_ones(self):
        """With CR LF line ends. Where the code page has no place for a character, the native program
        writes "?" and Windows may write a similar character."""
        code_page = {**os.environ, "VQK_WINE_LOCALE": "ru_RU.CP1251"}
        for name in glob.glob("*.mxd", root_dir=SAMPLES):
            for form in ("xml", "dump"):
                with self.subTest(f"{form} of {name}"):
                    found = self.run_mxdinfo("-f", form, name, binary=True, cwd=SAMPLES, env=code_page)[0]
                    expected = subprocess.run([NATIVE, "-f", form, name], cwd=SAMPLES, check=True,
                                              capture_output=True).stdout.replace(b"\n", b"\r\n")
                    self.assertEqual(len(expected), len(found))
                    self.assertLessEqual({e for e, f in zip(expected, found) if e != f}, {ord("?")})


if __name__ == "__main__":
    unittest.main()
