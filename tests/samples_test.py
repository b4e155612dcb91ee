"""The outputs of real documents are known by their digests: samples_test.py MXDINFO FOLDER"""

import csv
import hashlib
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


failures = 0
with open(table, encoding="utf-8", newline="") as rows, tempfile.TemporaryDirectory() as scratch:
    for row in csv.DictReader(rows, delimiter="\t"):
        xml_file = os.path.join(scratch, "out.xml")
        errors = run("--xml", xml_file, row["file"]).stderr.count(b"ERROR IN ")
        with open(xml_file, "rb") as xml:
            found = (str(errors), digest(xml.read()), digest(run("--dump", row["file"]).stdout))
        wanted = (row["errors"], row["xml_sha256"], row["dump_sha256"])
        same = found == wanted
        failures += not same
        print(row["file"], "as known" if same else f"differs: {found} instead of {wanted}")
sys.exit(1 if failures else 0)
