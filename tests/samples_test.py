"""What real documents hold is known, and the digests of their outputs: samples_test.py MXDINFO FOLDER"""

import csv
import hashlib
import json
import os
import re
import subprocess
import sys
import tempfile

mxdinfo, folder = os.path.abspath(sys.argv[1]), sys.argv[2]
table = os.path.join(folder, "EXPECTED.tsv")
if not os.path.exists(table):
    print("SKIPPED: no sample documents beside the project")
    sys.exit(77)


def run(*arguments):
    """Standard output and error of mxdinfo, called within the folder."""
    return subprocess.run([mxdinfo, *arguments], cwd=folder, capture_output=True, check=True)


def digest(data):
    return hashlib.sha256(data).hexdigest()


LAYERS = {"feature": "feature", "group": "group", "raster": "raster", "graphics": "fdo_graphics"}
REPEATED_MAP = re.compile(rb"<mxd_map>\s*(?:<(?:number|reserve|version)>\d+</\w+>\s*)*<repeat>")


def holdings(xml):
    """The counts of a document's XML, as the table has them."""
    counts = {"maps": xml.count(b"<mxd_map>"),
              "repeated_maps": len(REPEATED_MAP.findall(xml))}
    for kind, name in LAYERS.items():
        counts[kind] = xml.count(f"<mxd_{name}_layer>".encode())
    return {name: str(count) for name, count in counts.items()}


def named_features(document):
    """How many feature layers there are, all of them with their names."""
    maps = json.loads(run("--format", "json", document).stdout)["maps"]
    features = [layer for each in maps for layer in each["layers"] if layer["kind"] == "feature"]
    for layer in features:
        assert layer["name"] and layer["source"]["dataset"] and layer["source"]["workspace"], layer
    return len(features)


failures, documents, named = 0, 0, 0
with open(table, encoding="utf-8", newline="") as rows, tempfile.TemporaryDirectory() as scratch:
    for row in csv.DictReader(rows, delimiter="\t"):
        xml_file = os.path.join(scratch, "out.xml")
        errors = run("--xml", xml_file, row["file"]).stderr.count(b" at byte ")
        with open(xml_file, "rb") as xml:
            xml_bytes = xml.read()
        found = {"file": row["file"], **holdings(xml_bytes), "errors": str(errors),
                 "xml_sha256": digest(xml_bytes),
                 "dump_sha256": digest(run("--dump", row["file"]).stdout)}
        failures += found != row
        documents, named = documents + 1, named + named_features(row["file"])
        print(row["file"], "as known" if found == row else f"differs: {found} instead of {row}")
print(f"{documents} documents, {named} feature layers with all their names")
sys.exit(1 if failures else 0)
