"""Runs mxdinfo for the tests: MXDINFO, SAMPLE, SCHEMA and SAMPLES are set by CMake."""

import html.parser
import json
import os
import subprocess
import tempfile
import unittest

import jsonschema

MXDINFO = os.environ["MXDINFO"]
SAMPLE = os.environ["SAMPLE"]
SCHEMA = os.environ["SCHEMA"]
SAMPLES = os.environ["SAMPLES"]

VOID_TAGS = {"meta", "input", "rect", "circle", "path", "use"}


class Case(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name

    def write(self, name, data):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(data)
        return path

    def run_mxdinfo(self, *arguments, code=0, stdin=b"", env=None, binary=False):
        """Standard output and error, as text unless `binary`."""
        result = subprocess.run([MXDINFO, *arguments], input=stdin, capture_output=True,
                                check=False, cwd=self.folder, env={**os.environ, **(env or {})})
        self.assertEqual(code, result.returncode, (arguments, result.stderr[-2000:]))
        return (result.stdout if binary else result.stdout.decode()), result.stderr.decode()

    def json_of(self, *arguments, **how):
        return json.loads(self.run_mxdinfo("-q", "-f", "json", *arguments, **how)[0])

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
