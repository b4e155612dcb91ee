"""Signals, full disks and scarce memory: the output file is the old one or the new one."""

import os
import resource
import signal
import subprocess
import time
import unittest

from support import SAMPLE, Case, named

OLD = "the old file\n"


class Failures(Case):
    def setUp(self):
        super().setUp()
        self.write("out", OLD.encode())

    def out(self):
        return self.read("out").decode()

    def limited(self, *arguments, limit, value, restore_signals=True):
        """Exit code and standard error of a run with a limited resource."""
        code, _, errors = self.outcome(*arguments, restore_signals=restore_signals,
                                       preexec_fn=lambda: resource.setrlimit(limit, (value, value)))
        return code, errors

    def expect_old_file(self):
        self.assertEqual(OLD, self.out())
        self.assertEqual([], [name for name in os.listdir(self.folder) if name.startswith(".")])

    def test_signals(self):
        def restore():
            # A job in the background starts with some of them ignored.
            for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
                signal.signal(number, signal.SIG_DFL)
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            process = self.start("-o", "out", "-", stdin=subprocess.PIPE, preexec_fn=restore)
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
        if os.path.exists("/dev/full"):
            self.run_mxdinfo("-f", "json", "-o", "/dev/full", SAMPLE, code=1)

    def test_scarce_memory(self):
        most = 90
        if self.limited("--version", limit=resource.RLIMIT_AS, value=most << 20)[0] != 0:
            self.skipTest("a sanitizer reserves more memory than that; .ci/run tests the release build")
        good = named("good")
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
        os.chmod(self.path("out"), 0o640)
        os.symlink("out", self.path("link"))
        self.run_mxdinfo("-o", "link", SAMPLE)
        self.assertTrue(os.path.islink(self.path("link")))
        self.assertIn("Map \"Layers\"", self.out())
        self.run_mxdinfo("-o", "new", SAMPLE, umask=0o027)
        for name in ("out", "new"):
            self.assertEqual(0o640, os.stat(self.path(name)).st_mode & 0o777)

    def test_a_pipe_without_a_reader(self):
        os.mkfifo(self.path("pipe"))
        for form in ("csv", "xml"):
            self.assertIn("cannot be written",
                          self.run_mxdinfo("-f", form, "-o", "pipe", SAMPLE, code=1)[1])

    def test_an_input_is_never_overwritten(self):
        inputs = {"d.mxd": named("good"), "list": b"d.mxd\n", os.fsdecode(b"\xf0"): named("good")}
        for name, data in inputs.items():
            self.write(name, data)
        for stdin, *arguments in (("d.mxd", "-f", "csv", "-", "-o", "d.mxd"),
                                  ("list", "--files-from", "-", "-o", "list"),
                                  ("d.mxd", "--files-from", "list", "-o", "list"),
                                  ("d.mxd", "--files-from", "list", "-o", "./d.mxd"),
                                  ("d.mxd", "-o", b"\xf0", b"\xf0")):
            with open(self.path(stdin), "rb") as file:
                errors = self.run_mxdinfo(*arguments, code=2, input=None, stdin=file)[1]
            self.assertIn("is an input", errors)
        for name, data in inputs.items():
            self.assertEqual(data, self.read(name))


if __name__ == "__main__":
    unittest.main()
