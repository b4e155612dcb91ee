"""The size of the output, the parts of a drawing and the number of threads are bounded."""

import csv
import io
import json
import os
import re
import subprocess
import unittest

from support import Case, made, named

BASE = 1 << 20
PER_BYTE = 16
CUT = "the output is too long and was cut"


class Bounds(Case):
    def test_outputs_are_cut_and_the_cut_is_a_loss(self):
        # Each loss and each path has the names of all groups.
        path = self.write("big.mxd", made("long_paths"))
        bound = BASE + PER_BYTE * os.path.getsize(self.path(path))
        for arguments in (["--layers"], ["--losses"], ["-f", "csv"], ["-f", "csv", "--losses"],
                          ["-f", "json"], ["-f", "ndjson"], ["-f", "json", "--losses"],
                          ["-f", "html"]):
            with self.subTest(arguments):
                text, errors = self.run_mxdinfo("--strict", *arguments, path, code=3)
                self.assertLess(BASE, len(text.encode()))
                self.assertLessEqual(len(text.encode()), bound)
                self.assertTrue(f"mxdinfo: {path}: {CUT}\n" in errors)
                if "csv" in arguments:
                    rows = list(csv.reader(io.StringIO(text)))
                    self.assertEqual({len(rows[0])}, {len(row) for row in rows})
                elif "json" in arguments or "ndjson" in arguments:
                    document = json.loads(text)
                    losses = document if isinstance(document, list) else document["losses"]
                    self.assertEqual("output", losses[-1]["what"])
                elif "html" not in arguments:
                    self.assertTrue(text.endswith("(The rest is left out: it is too long.)\n"))
        self.page_of("--strict", path, code=3)

    def test_messages_are_bounded(self):
        path = self.write("big.mxd", made("long_paths"))
        errors = self.run_mxdinfo(path)[1]
        self.assertLess(len(errors), BASE + 1000)
        self.assertTrue(errors.endswith(": and more\n"))

    def test_dash_patterns(self):
        path = self.write("dashes.mxd", made("dashes"))
        page = self.run_mxdinfo("-f", "html", path)[0]
        patterns = re.findall(r'stroke-dasharray="([^"]*)"', page)
        self.assertEqual([200], [len(pattern.split()) for pattern in patterns])

    def address_space(self, jobs):
        """In KiB, while a thread waits for standard input."""
        with self.start("-q", "-j", jobs, "a.mxd", "-", stdin=subprocess.PIPE,
                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
            process.stdout.read(1)  # of the first document
            with open(f"/proc/{process.pid}/status", encoding="ascii") as file:
                size = re.search(r"VmSize:\s*(\d+)", file.read())
            process.communicate()
        return int(size.group(1))

    @unittest.skipUnless(os.path.exists("/proc/self/status"), "no sizes of processes")
    def test_no_more_threads_than_files(self):
        # The output is written in pieces: one must be full before the second document.
        self.write("a.mxd", named("x" * 4000))
        self.assertLess(self.address_space("256") - self.address_space("2"), 500_000)


if __name__ == "__main__":
    unittest.main()
