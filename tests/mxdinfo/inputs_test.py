"""Files, folders, lists, standard input, and outputs in files."""

import json
import os
import subprocess
import time
import unittest

from support import IS_WINDOWS, SAMPLE, Case, named, slashes

if not IS_WINDOWS:
    import pty


class Inputs(Case):
    def share(self):
        """Documents in several folders; their names as -r finds them."""
        for name in ("b.mxd", "A.MXD", "sub/c.Mxd", "sub/deeper/d.mxt"):
            self.write(name, named("good"))
        self.write("sub/bad.mxd", b"x" * 5000)
        self.write("notes.txt", b"no document")
        os.symlink(self.folder, self.path("sub/up"))
        return ["./A.MXD", "./b.mxd", "./sub/bad.mxd", "./sub/c.Mxd", "./sub/deeper/d.mxt"]

    def paths(self, *arguments, **how):
        return [slashes(each["file"]["path"]) for each in self.lines_of(*arguments, **how)]

    def test_folders(self):
        names = self.share()
        self.assertEqual(names[:2], self.paths("."))
        for jobs in ("0", "1", "3"):
            self.assertEqual(names, self.paths("-r", "-j", jobs, ".", code=1))
        self.assertEqual(["b.mxd", "sub/c.Mxd", "sub/deeper/d.mxt", "A.MXD"],
                         self.paths("-r", "b.mxd", "sub/c.Mxd", "sub/deeper", "A.MXD"))

    def test_lists(self):
        names = self.share()[:2]
        self.write("list", "\r\n".join(names).encode() + b"\n\n")
        self.assertEqual(names, self.paths("--files-from", "list"))
        self.assertEqual(["b.mxd"] + names, self.paths("b.mxd", "--files-from", "list"))
        for encoding, mark in (("utf-8-sig", ""), ("utf-16", ""), ("utf-16-be", "\ufeff")):
            self.write("list", (mark + "\n".join(names)).encode(encoding))
            self.assertEqual(names, self.paths("--files-from", "list"))

    @unittest.skipIf(IS_WINDOWS, "no such names on Windows")
    def test_names_with_line_ends_and_without_utf8(self):
        odd, data = "line\nend.mxd\r", named("odd")
        for name in (odd, "b.mxd"):
            self.write(name, data)
        nul = f"b.mxd\0{odd}\0".encode()
        self.assertEqual(["b.mxd", odd], self.paths("-0", "--files-from", "-", input=nul))
        name = b"\xd0\xe6 \xff.mxd"
        self.write(os.fsdecode(name), data)
        for form in ("json", "ndjson"):
            file = json.loads(self.run_mxdinfo("-f", form, name)[0])["file"]
            self.assertEqual(name, bytes.fromhex(file["path_bytes"]))
        self.run_mxdinfo("--update", "inv", name)
        self.assertIn("1 of them unchanged", self.run_mxdinfo("--update", "inv", ".", name)[1])

    def test_names_of_any_script(self):
        self.assertEqual(self.write("\u0436 \u5730.mxd", named("x")), self.paths(".")[0][2:])

    def test_standard_input(self):
        with open(SAMPLE, "rb") as file:
            data = file.read()
        text = self.run_mxdinfo("-", input=data)[0]
        self.assertEqual(self.run_mxdinfo(SAMPLE)[0].split("\n")[1:], text.split("\n")[1:])
        self.run_mxdinfo("-", code=1)
        for cut in (*range(0, len(data), 1021), len(data)):
            result = self.json_of("-", input=data[:cut], code=1 if cut < 10000 else 0)
            self.assertEqual(cut, result["file"]["size"])

    def test_reasons(self):
        os.mkdir(self.path("folder.mxd"))
        self.write("list", b"folder.mxd\nnone.mxd\nlist/x.mxd\n")
        errors = self.run_mxdinfo("--files-from", "list", code=1)[1]
        for name, reason in (("folder.mxd", "it is a folder"), ("none.mxd", "there is no such file"),
                             ("list/x.mxd", "")):
            self.assertIn(f"mxdinfo: {name}: cannot be opened: {reason}", errors)
        errors = self.run_mxdinfo("--no\x1b[2J\u202e", SAMPLE, code=2)[1]
        self.assertIn("--no\\x1b[2J\\u202e", errors)


class Outputs(Case):
    def test_the_output_of_several_documents(self):
        for name in ("a.mxd", "sub/a.mxd", "sub/b.mxt"):
            self.write(name, named(name))
        self.write("sub/bad.mxd", b"bad")
        for form, ending in (("xml", ".xml"), ("dump", ".txt")):
            self.run_mxdinfo("-r", "-f", form, "-o", form, ".", "a.mxd", code=1)
            found = {os.path.relpath(os.path.join(folder, name), self.path(form))
                     for folder, _, names in os.walk(self.path(form)) for name in names}
            self.assertEqual({f"a.mxd{ending}", f"a.mxd (2){ending}", f"sub/a.mxd{ending}",
                              f"sub/b.mxt{ending}"}, found)
            self.assertEqual(("", ""), self.run_mxdinfo("-f", form, "-o", "alone", "a.mxd"))
            self.assertEqual(self.read("alone")[-500:], self.read(f"{form}/a.mxd{ending}")[-500:])

    @unittest.skipIf(IS_WINDOWS, "no terminals to test with")
    def test_a_slow_document_and_its_progress(self):
        names = ["-", "1", "2", "3", "4"]
        for name in names[1:]:
            self.write(name, b"bad")
        terminal, end = pty.openpty()
        process = self.start("-j", "2", *names, "late.mxd", stdin=subprocess.PIPE,
                             stdout=subprocess.PIPE, stderr=end)
        # No thread is so far ahead that it has looked for this one.
        time.sleep(0.3)
        self.write("late.mxd", named("late"))
        self.assertIn(b"late.mxd\n", process.communicate(timeout=20)[0])
        os.close(end)
        self.assertIn(b"1 of 6 documents", os.read(terminal, 1 << 16))
        os.close(terminal)

    @unittest.skipIf(IS_WINDOWS, "no terminals to test with")
    def test_colors_are_for_terminals(self):
        terminal, end = pty.openpty()
        environment = {**os.environ, "TERM": "xterm", "NO_COLOR": ""}
        for arguments in ([SAMPLE], ["-o", "out", SAMPLE]):
            self.start(*arguments, stdout=end, env=environment).wait()
        os.close(end)
        self.assertIn(b"\x1b[1m", os.read(terminal, 1 << 16))
        os.close(terminal)
        self.assertNotIn(b"\x1b", self.read("out"))


if __name__ == "__main__":
    unittest.main()
