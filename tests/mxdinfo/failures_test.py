"""Signals, full disks and scarce memory: the output file is the old one or the new one."""

import os
import resource
import signal
import subprocess
import time
import unittest

import documents
from support import MXDINFO, SAMPLE, Case

OLD = "the old file\n"


class Failures(Case):
    def setUp(self):
        super().setUp()
        self.write("out", OLD.encode())

    def out(self):
        with open(os.path.join(self.folder, "out"), encoding="utf-8") as file:
            return file.read()

    def limited(self, *arguments, limit, value, restore_signals=True):
        """Exit code and standard error of a run with a limited resource."""
        result = subprocess.run(
            [MXDINFO, *arguments], capture_output=True, check=False, cwd=self.folder,
            restore_signals=restore_signals,
            preexec_fn=lambda: resource.setrlimit(limit, (value, value)))
        return result.returncode, result.stderr.decode()

    def expect_old_file(self):
        self.assertEqual(OLD, self.out())
        self.assertEqual([], [name for name in os.listdir(self.folder) if name.startswith(".")])

    def test_signals(self):
        def restore():
            # A job in the background starts with some of them ignored.
            for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
                signal.signal(number, signal.SIG_DFL)
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            process = subprocess.Popen([MXDINFO, "-o", "out", "-"], stdin=subprocess.PIPE,
                                       cwd=self.folder, preexec_fn=restore)
            deadline = time.monotonic() + 20
            while len(os.listdir(self.folder)) < 2 and time.monotonic() < deadline:
                time.sleep(0.01)
            self.assertEqual(2, len(os.listdir(self.folder)), "an unfinished file")
            time.sleep(0.05)
            process.send_signal(number)
            self.assertEqual(-number, process.wait(20))
            process.stdin.close()
            self.expect_old_file()

    def test_a_full_disk(self):
        for form in ("text", "html", "xml", "dump"):
            arguments = ("-f", form, "-o", "out", SAMPLE)
            code, _ = self.limited(*arguments, limit=resource.RLIMIT_FSIZE, value=100)
            self.assertEqual(-signal.SIGXFSZ, code)
            self.expect_old_file()
            code, errors = self.limited(*arguments, limit=resource.RLIMIT_FSIZE, value=100,
                                        restore_signals=False)
            self.assertEqual((1, "mxdinfo: out: cannot be written\n"), (code, errors))
            self.expect_old_file()

    def test_scarce_memory(self):
        most = 90
        if self.limited("--version", limit=resource.RLIMIT_AS, value=most << 20)[0] != 0:
            self.skipTest("a sanitizer reserves more memory than that; .ci/run tests the release build")
        good = documents.document("good")
        for i in range(8):
            self.write(f"many/{i}.mxd", good)
        ends = set()
        for megabytes in range(10, most, 4):
            for arguments in (("-f", "xml", SAMPLE), ("-f", "json", SAMPLE),
                              ("-j", "64", "-f", "json", "many")):
                code, errors = self.limited("-o", "out", *arguments, limit=resource.RLIMIT_AS,
                                            value=megabytes << 20)
                if code == 127:  # the program itself cannot be loaded
                    continue
                ends.add(code)
                self.assertIn(code, (0, 1), errors)
                if self.out() != OLD:
                    self.assertIn(self.out()[-1:], (">", "\n"))
                    self.write("out", OLD.encode())
                self.expect_old_file()
        self.assertIn(0, ends)

    def test_the_output_file_keeps_its_mode_and_links(self):
        path = os.path.join(self.folder, "out")
        os.chmod(path, 0o640)
        os.symlink("out", os.path.join(self.folder, "link"))
        self.run_mxdinfo("-o", "link", SAMPLE)
        self.assertTrue(os.path.islink(os.path.join(self.folder, "link")))
        self.assertEqual(0o640, os.stat(path).st_mode & 0o777)
        self.assertIn("Map \"Layers\"", self.out())
        old_mask = os.umask(0o027)
        self.run_mxdinfo("-o", "new", SAMPLE)
        os.umask(old_mask)
        self.assertEqual(0o640, os.stat(os.path.join(self.folder, "new")).st_mode & 0o777)

    def test_a_pipe_without_a_reader(self):
        os.mkfifo(os.path.join(self.folder, "pipe"))
        for form in ("csv", "xml"):
            self.assertIn("cannot be written",
                          self.run_mxdinfo("-f", form, "-o", "pipe", SAMPLE, code=1)[1])

    def test_an_input_is_never_overwritten(self):
        good = documents.document("good")
        self.write("d.mxd", good)
        self.write("list", b"d.mxd\n")
        for stdin, arguments in (("d.mxd", ("-f", "csv", "-", "-o", "d.mxd")),
                                 ("list", ("--files-from", "-", "-o", "list")),
                                 (os.devnull, ("--files-from", "list", "-o", "list")),
                                 (os.devnull, ("--files-from", "list", "-o", "./d.mxd")),
                                 (os.devnull, ("-o", b"\xf0", b"\xf0"))):
            self.write(b"\xf0".decode("utf-8", "surrogateescape"), good)
            with open(os.path.join(self.folder, stdin), "rb") as file:
                result = subprocess.run([MXDINFO, *arguments], stdin=file, capture_output=True,
                                        check=False, cwd=self.folder)
            self.assertEqual(2, result.returncode, arguments)
            self.assertIn(b"is an input", result.stderr)
        for name, data in (("d.mxd", good), ("list", b"d.mxd\n")):
            with open(os.path.join(self.folder, name), "rb") as file:
                self.assertEqual(data, file.read())


if __name__ == "__main__":
    unittest.main()
