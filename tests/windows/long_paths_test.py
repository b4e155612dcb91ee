"""mxdinfo in folders with long paths, and lists in the encodings of Windows."""

import json
import os
import subprocess
import sys
import tempfile
import unittest

*MXDINFO, SAMPLE = sys.argv[1:]
FOLDER_NAME = "\u041a" + "x" * 99
# The length of the path in units.
LENGTHS = (300, 1000, 3000)


class Long_paths(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name
        with open(SAMPLE, "rb") as file:
            self.sample = file.read()

    def deep(self, length):
        """A folder of at least that many characters with two documents in it and below it."""
        path = os.path.join(self.folder, str(length))
        while len(path) < length:
            path = os.path.join(path, FOLDER_NAME)
        os.makedirs(os.path.join(path, "sub"))
        for name in ("a.mxd", "sub/b.mxd"):
            with open(os.path.join(path, name), "wb") as file:
                file.write(self.sample)
        return path

    def run_mxdinfo(self, *arguments, code=0):
        result = subprocess.run([*MXDINFO, *arguments], capture_output=True, check=False,
                                cwd=self.folder)
        self.assertEqual(code, result.returncode, result.stderr.decode("utf-8", "replace")[-2000:])
        return result.stdout.decode()

    def paths(self, *arguments):
        lines = self.run_mxdinfo("-q", "-f", "ndjson", *arguments).splitlines()
        documents = [json.loads(line) for line in lines]
        self.assertTrue(all(document["readable"] for document in documents))
        return [document["file"]["path"] for document in documents]

    def each(self):
        for length in LENGTHS:
            path = self.deep(length)
            yield path, windows(path)

    def test_documents_and_folders(self):
        for path, name in self.each():
            documents = [name + "\\a.mxd", name + "\\sub\\b.mxd"]
            self.assertEqual(documents, self.paths(*documents))
            self.assertEqual(documents[:1], self.paths(name))
            self.assertEqual(documents, self.paths("-r", name))
            top = os.path.relpath(path, self.folder).split("/")[0]
            self.assertEqual([document[len(windows(self.folder)) + 1:] for document in documents],
                             self.paths("-r", top))

    def test_outputs(self):
        for path, name in self.each():
            before = sorted(os.listdir(path))
            longest = "o" * 251 + ".out"
            for out in ("out", longest):
                for form in ("json", "xml", "json"):
                    self.run_mxdinfo("-f", form, "-o", f"{name}\\{out}", name + "\\a.mxd")
                    with open(os.path.join(path, out), "rb") as file:
                        end = b">" if form == "xml" else b"}\n"
                        self.assertTrue(file.read().endswith(end))
            self.assertEqual(sorted([*before, longest, "out"]), sorted(os.listdir(path)))
            self.run_mxdinfo("-o", name + "\\a.mxd", name + "\\.\\a.mxd", code=2)
            with open(os.path.join(path, "a.mxd"), "rb") as file:
                self.assertEqual(self.sample, file.read())

    def test_lists(self):
        for path, name in self.each():
            names = [name + "\\a.mxd", name + "\\sub\\b.mxd"]
            for encoding in ("cp1251", "utf-8", "utf-8-sig", "utf-16"):
                with open(os.path.join(path, "list"), "wb") as file:
                    file.write("\r\n".join(names).encode(encoding))
                self.assertEqual(names, self.paths("--files-from", name + "\\list"))
                self.run_mxdinfo("--files-from", name + "\\list", "-o", name + "\\list", code=2)
            self.run_mxdinfo("--files-from", name + "\\list", "-o", name + "\\out.txt")
            self.assertTrue(os.path.exists(os.path.join(path, "out.txt")))


def windows(path):
    """The name of a file of this machine under Wine."""
    return "Z:" + path.replace("/", "\\")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
