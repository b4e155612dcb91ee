"""What real documents hold is known, and the digests of their outputs: samples_test.py MXDINFO FOLDER"""

import collections
import csv
import hashlib
import json
import os
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


def holdings(document):
    """Its counts as the table has them, and how many feature layers have all their names."""
    maps = json.loads(run("--format", "json", document).stdout)["maps"]
    layers = [layer for each in maps for layer in each.get("layers", [])]
    kinds = collections.Counter(layer["kind"] for layer in layers)
    counts = {"maps": len(maps), "repeated_maps": sum("repeats" in each for each in maps),
              **{kind: kinds[kind] for kind in ("feature", "group", "raster", "graphics")}}
    features = [layer for layer in layers if layer["kind"] == "feature" and "repeats" not in layer]
    for layer in features:
        assert layer["name"] and layer["feature_class"]["name"] and layer["workspace"], layer
    return {name: str(count) for name, count in counts.items()}, len(features)


failures, documents, named = 0, 0, 0
with open(table, encoding="utf-8", newline="") as rows, tempfile.TemporaryDirectory() as scratch:
    for row in csv.DictReader(rows, delimiter="\t"):
        xml_file = os.path.join(scratch, "out.xml")
        errors = run("--xml", xml_file, row["file"]).stderr.count(b"ERROR IN ")
        with open(xml_file, "rb") as xml:
            xml_digest = digest(xml.read())
        counts, named_here = holdings(row["file"])
        found = {"file": row["file"], **counts, "errors": str(errors), "xml_sha256": xml_digest,
                 "dump_sha256": digest(run("--dump", row["file"]).stdout)}
        failures += found != row
        documents, named = documents + 1, named + named_here
        print(row["file"], "as known" if found == row else f"differs: {found} instead of {row}")
print(f"{documents} documents, {named} feature layers with all their names")
sys.exit(1 if failures else 0)
