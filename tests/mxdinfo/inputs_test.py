"""Files, folders, lists and standard input; batches, streams and exit codes."""

import json
import os
import pty
import subprocess
import time
import unittest

import documents
from support import MXDINFO, SAMPLE, Case


class Inputs(Case):
    def share(self):
        """A folder with documents in several places; their names as -r finds them."""
        good = documents.document("good")
        for name in ("b.mxd", "A.MXD", "sub/c.Mxd", "sub/deeper/d.mxt"):
            self.write(name, good)
        self.write("sub/bad.mxd", b"x" * 5000)
        self.write("notes.txt", b"no document")
        os.symlink(self.folder, os.path.join(self.folder, "sub", "up"))
        return ["./A.MXD", "./b.mxd", "./sub/bad.mxd", "./sub/c.Mxd", "./sub/deeper/d.mxt"]

    def paths(self, *arguments, **how):
        lines = self.run_mxdinfo("-q", "-f", "ndjson", *arguments, **how)[0].splitlines()
        return [json.loads(line)["file"]["path"] for line in lines]

    def test_folders(self):
        names = self.share()
        self.assertEqual(names[:2], self.paths("."))
        for jobs in ("0", "1", "3"):
            self.assertEqual(names, self.paths("-r", "-j", jobs, ".", code=1))
        self.assertEqual(["b.mxd", "sub/c.Mxd", "sub/deeper/d.mxt", "A.MXD"],
                         self.paths("-r", "b.mxd", "sub/c.Mxd", "sub/deeper", "A.MXD"))

    def test_lists(self):
        names = self.share()
        self.write("list", "\r\n".join(names[:2]).encode() + b"\n\n")
        self.assertEqual(names[:2], self.paths("--files-from", "list"))
        self.assertEqual(["b.mxd"] + names[:2], self.paths("b.mxd", "--files-from", "list"))
        for encoding in ("utf-8-sig", "utf-16", "utf-16-be"):
            mark = "\ufeff" if encoding == "utf-16-be" else ""
            self.write("list", (mark + "\n".join(names[:2])).encode(encoding))
            self.assertEqual(names[:2], self.paths("--files-from", "list"))
        odd = "line\nend.mxd\r"
        self.write(odd, documents.document("odd"))
        nul = f"b.mxd\0{odd}\0".encode()
        self.assertEqual(["b.mxd", odd], self.paths("-0", "--files-from", "-", stdin=nul))
        errors = self.run_mxdinfo("--files-from", "none", code=1)[1]
        self.assertIn("none: the list cannot be read", errors)

    def test_standard_input(self):
        with open(SAMPLE, "rb") as file:
            data = file.read()
        text = self.run_mxdinfo("-", stdin=data)[0]
        self.assertEqual(self.run_mxdinfo(SAMPLE)[0].split("\n")[1:], text.split("\n")[1:])
        self.assertEqual(len(data), self.json_of("-", stdin=data)["file"]["size"])
        self.run_mxdinfo("-", code=1)
        for cut in range(0, len(data), 1021):
            result = self.json_of("-", stdin=data[:cut], code=1 if cut < 10000 else 0)
            self.assertEqual(cut, result["file"]["size"])

    def test_a_slow_document(self):
        names = ["-"] + [str(index) for index in range(1, 5)]
        for name in names[1:]:
            self.write(name, b"bad")
        terminal, end = pty.openpty()
        process = subprocess.Popen([MXDINFO, "-j", "2", *names, "late.mxd"], cwd=self.folder,
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=end)
        time.sleep(0.3)
        # No thread is so far ahead that it has looked for this one.
        self.write("late.mxd", documents.document("late"))
        self.assertIn(b"late.mxd\n", process.communicate(timeout=20)[0])
        os.close(end)
        self.assertIn(b"1 of 6 documents", os.read(terminal, 1 << 16))
        os.close(terminal)

    def test_colors_are_for_terminals(self):
        terminal, end = pty.openpty()
        for arguments in ([SAMPLE], ["-o", "out", SAMPLE]):
            subprocess.run([MXDINFO, *arguments], check=True, cwd=self.folder, stdout=end,
                           env={**os.environ, "TERM": "xterm", "NO_COLOR": ""})
        os.close(end)
        self.assertIn(b"\x1b[1m", os.read(terminal, 1 << 16))
        os.close(terminal)
        with open(os.path.join(self.folder, "out"), encoding="utf-8") as file:
            self.assertNotIn("\x1b", file.read())

    def test_what_goes_where(self):
        names = self.share()
        text, errors = self.run_mxdinfo("-r", ".", code=1)
        self.assertEqual(4, text.count("Map \"good\""))
        self.assertIn(f"{names[2]}: not readable as a map document\n", errors)
        self.assertIn("mxdinfo: 5 documents, 1 of them unreadable, 4 maps, 8 layers;", errors)
        self.assertEqual(1, self.run_mxdinfo("-r", "-q", ".", code=1)[1].count("\n"))
        self.assertEqual(("", ""), self.run_mxdinfo("-r", "-o", "out.txt", "b.mxd"))
        with open(os.path.join(self.folder, "out.txt"), encoding="utf-8") as file:
            self.assertIn("b.mxd", file.read())
        self.assertIn("b.mxd: 1 map, 2 layers, 0 losses", self.run_mxdinfo("-v", "b.mxd")[1])

    def test_losses(self):
        self.write("lossy.mxd", documents.made("lossy"))
        self.assertEqual("", self.run_mxdinfo("-q", "lossy.mxd")[1])
        self.run_mxdinfo("--strict", SAMPLE)
        self.run_mxdinfo("--strict", "lossy.mxd", SAMPLE, code=3)
        self.run_mxdinfo("--strict", "-f", "xml", "-o", "x.xml", "lossy.mxd", code=3)
        self.run_mxdinfo("--strict", "lossy.mxd", "none.mxd", code=1)

    def test_outputs_that_cannot_be_written(self):
        for form in ("text", "xml"):
            errors = self.run_mxdinfo("-f", form, "-o", "none/out", SAMPLE, code=1)[1]
            self.assertIn("cannot be written", errors)
        if os.path.exists("/dev/full"):
            self.run_mxdinfo("-f", "json", "-o", "/dev/full", SAMPLE, code=1)

    def test_names_in_brackets(self):
        self.write("[a]", documents.document("good"))
        self.assertEqual(["[a]"], self.paths("[a]"))
        self.write("bracket.mxd", documents.document("[x,y]"))
        self.assertIn("[x,y]", self.run_mxdinfo("--find-source", "[x,y]", "bracket.mxd")[0])

    def test_data_sources_are_found_by_their_paths(self):
        for text, hits in (("C:\\data\\base\\LANDUSE", 1), ("base/rivers", 1), ("base", 2),
                           ("settlements", 1), ("Shapefile", 0), (" in ", 0)):
            found = self.run_mxdinfo("--find-source", text, SAMPLE)[0]
            self.assertEqual(hits, found.count("\n"), text)

    def test_wrong_usage(self):
        for arguments in ([], ["-"] * 2, ["-", "--files-from", "-"], ["-f", "xml", "."],
                          ["-f", "dump", SAMPLE, SAMPLE], ["-f", "word", SAMPLE], ["-q", "-v", SAMPLE],
                          ["--layers", "--crs", SAMPLE], ["--layers", "-f", "csv", SAMPLE],
                          ["--find-source", "x", "-f", "html", SAMPLE], ["-j", "-1", SAMPLE],
                          ["--find-source", "", SAMPLE], ["-o", "", SAMPLE]):
            self.run_mxdinfo(*arguments, code=2)
        errors = self.run_mxdinfo("--no\x1b[2J\u202e", SAMPLE, code=2)[1]
        self.assertIn("--no\\x1b[2J\\u202e", errors)
        self.assertEqual(4, self.run_mxdinfo("--help")[0].count("  mxdinfo "))


if __name__ == "__main__":
    unittest.main()
