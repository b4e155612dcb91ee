"""Runs mxdinfo on small documents. CMake sets MXDINFO and MAKE_DOCUMENTS, each the words of a command
separated by bars, SAMPLE, SCHEMA and SAMPLES."""

import csv
import functools
import html.parser
import io
import json
import os
import subprocess
import tempfile
import unittest

import jsonschema

MXDINFO, MAKE_DOCUMENTS = ([word for word in os.environ[name].split("|") if word]
                           for name in ("MXDINFO", "MAKE_DOCUMENTS"))
SAMPLE = os.environ["SAMPLE"]
SCHEMA = os.environ["SCHEMA"]
SAMPLES = os.environ["SAMPLES"]
ROOT = os.path.dirname(os.path.dirname(SAMPLE))
IS_WINDOWS = MXDINFO[-1].endswith(".exe")

VOID_TAGS = {"meta", "input", "rect", "circle", "path", "use"}


@functools.cache
def made(*arguments, texts=b""):
    """The document that make_documents writes."""
    with tempfile.TemporaryDirectory() as folder:
        with open(os.path.join(folder, "texts"), "wb") as file:
            file.write(texts)
        subprocess.run([*MAKE_DOCUMENTS, "made.mxd", *arguments], check=True, cwd=folder)
        with open(os.path.join(folder, "made.mxd"), "rb") as file:
            return file.read()


def named(name, *data, hidden=b""):
    """A map with a group of one layer, all texts `name`. The data is workspace, dataset and feature
    dataset; the hidden bytes, an even number, follow the map."""
    texts = "\0".join([name, *(data or (name, name, "")), ""])
    return made("named", "texts", texts=texts.encode("utf-16-le", "surrogatepass") + hidden)


class Case(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name

    def path(self, name):
        return os.path.join(self.folder, *name.split("/"))

    def write(self, name, data=b""):
        path = self.path(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(data)
        return name

    def read(self, name):
        with open(self.path(name), "rb") as file:
            return file.read()

    def start(self, *arguments, **how):
        """A process that runs beside the test."""
        return subprocess.Popen([*MXDINFO, *arguments], cwd=self.folder, **how)

    def outcome(self, *arguments, **how):
        """Exit code, standard output, and standard error as text."""
        how = {"cwd": self.folder, "input": b"", **how}
        result = subprocess.run([*MXDINFO, *arguments], capture_output=True, check=False, **how)
        errors = result.stderr.replace(b"\r\n", b"\n") if IS_WINDOWS else result.stderr
        return result.returncode, result.stdout, errors.decode()

    def run_mxdinfo(self, *arguments, code=0, binary=False, **how):
        """Standard output and error, as text unless `binary`."""
        found, output, errors = self.outcome(*arguments, **how)
        self.assertEqual(code, found, (arguments, errors[-2000:]))
        return (output if binary else output.decode()), errors

    def json_of(self, *arguments, **how):
        return json.loads(self.run_mxdinfo("-q", "-f", "json", *arguments, **how)[0])

    def lines_of(self, *arguments, **how):
        lines = self.run_mxdinfo("-q", "-f", "ndjson", *arguments, **how)[0].splitlines()
        return [json.loads(line) for line in lines]

    def table_of(self, *arguments, **how):
        text = self.run_mxdinfo("-q", "-f", "csv", "--no-bom", *arguments, **how)[0]
        return list(csv.DictReader(io.StringIO(text)))

    def page_of(self, *arguments, **how):
        page = Page()
        page.feed(self.run_mxdinfo("-q", "-f", "html", *arguments, **how)[0])
        page.close()
        self.assertEqual([], page.open, "every tag is closed")
        self.assertEqual([], page.wrong)
        return page


class Page(html.parser.HTMLParser):
    """What a page shows, and whether its tags are in order."""

    def __init__(self):
        super().__init__()
        self.tags, self.attributes, self.texts = set(), [], []
        self.open, self.wrong = [], []
        self.swatches = 0

    def handle_starttag(self, tag, attrs):
        self.tags.add(tag)
        self.attributes += attrs
        self.swatches += ("class", "swatch") in attrs
        if tag not in VOID_TAGS:
            self.open.append(tag)

    def handle_startendtag(self, tag, attrs):
        self.tags.add(tag)
        self.attributes += attrs

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.wrong.append(tag)

    def handle_data(self, data):
        self.texts.append(data)


def slashes(path):
    """The path with the separators that tests are written with."""
    return path.replace("\\", "/")


def legend_classes(document, kind=None):
    """The classes of all legends, or of those of one kind of renderer."""
    renderers = [layer["renderer"] for map_ in document["maps"] for layer in map_["layers"]]
    return [item for renderer in renderers if renderer and kind in (None, renderer["kind"])
            for item in renderer["classes"]]


def schema_errors(document):
    """What the schema says against a document's JSON."""
    with open(SCHEMA, encoding="utf-8") as file:
        validator = jsonschema.Draft202012Validator(json.load(file))
    return [error.message[:500] for error in validator.iter_errors(document)]
