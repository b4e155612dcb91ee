"""Windows: folders with long paths, and lists in its encodings."""

import os
import unittest

from support import SAMPLE, Case

FOLDER_NAME = "\u041a" + "x" * 99
# The length of the path in units.
LENGTHS = (300, 1000, 3000)


def windows(path):
    """The name of a file of this machine under Wine."""
    return "Z:" + path.replace("/", "\\")


class Long_paths(Case):
    def each(self):
        """Folders of at least so many characters, each with two documents in it and below it."""
        with open(SAMPLE, "rb") as file:
            sample = file.read()
        for length in LENGTHS:
            path = self.path(str(length))
            while len(path) < length:
                path = os.path.join(path, FOLDER_NAME)
            for name in ("a.mxd", "sub/b.mxd"):
                self.write(os.path.relpath(os.path.join(path, name), self.folder), sample)
            yield os.path.relpath(path, self.folder), windows(path)

    def paths(self, *arguments):
        documents = self.lines_of(*arguments)
        self.assertTrue(all(document["readable"] for document in documents))
        return [document["file"]["path"] for document in documents]

    def test_documents_and_folders(self):
        for path, name in self.each():
            documents = [name + "\\a.mxd", name + "\\sub\\b.mxd"]
            self.assertEqual(documents, self.paths(*documents))
            self.assertEqual(documents[:1], self.paths(name))
            self.assertEqual(documents, self.paths("-r", name))
            self.assertEqual([document[len(windows(self.folder)) + 1:] for document in documents],
                             self.paths("-r", path.split("/")[0]))

    def test_outputs(self):
        for path, name in self.each():
            before, document = os.listdir(self.path(path)), self.read(path + "/a.mxd")
            outs = ["out", "o" * 251 + ".out"]
            for out in outs:
                for form, end in (("json", b"}\n"), ("xml", b">"), ("json", b"}\n")):
                    self.run_mxdinfo("-f", form, "-o", f"{name}\\{out}", name + "\\a.mxd")
                    self.assertTrue(self.read(f"{path}/{out}").endswith(end))
            self.assertEqual({*before, *outs}, set(os.listdir(self.path(path))))
            self.run_mxdinfo("-o", name + "\\a.mxd", name + "\\.\\a.mxd", code=2)
            self.assertEqual(document, self.read(path + "/a.mxd"))

    def test_lists(self):
        for path, name in self.each():
            names = [name + "\\a.mxd", name + "\\sub\\b.mxd"]
            for encoding in ("cp1251", "utf-8", "utf-8-sig", "utf-16"):
                self.write(path + "/list", "\r\n".join(names).encode(encoding))
                self.assertEqual(names, self.paths("--files-from", name + "\\list"))
                self.run_mxdinfo("--files-from", name + "\\list", "-o", name + "\\list", code=2)
            self.run_mxdinfo("--files-from", name + "\\list", "-o", name + "\\out.txt")
            self.assertTrue(os.path.exists(self.path(path + "/out.txt")))


if __name__ == "__main__":
    unittest.main()
