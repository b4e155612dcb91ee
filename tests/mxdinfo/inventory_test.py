"""The queries of docs/inventory.md, on the samples where there are any."""

import json
import os
import re
import sqlite3
import unittest

import documents
from support import SAMPLE, SAMPLES, Case

DOCUMENT = os.path.join(os.path.dirname(os.path.dirname(SAMPLE)), "docs", "inventory.md")


def sql_blocks():
    """The views, and the queries by their numbers."""
    with open(DOCUMENT, encoding="utf-8") as file:
        blocks = re.findall(r"```sql\n(.*?)```", file.read(), re.DOTALL)
    return blocks[0], dict(enumerate(blocks[1:], 1))


class Inventory(Case):
    def setUp(self):
        super().setUp()
        self.write("bad.mxd", b"x" * 5000)
        for name in ("one", "copy"):
            self.write(f"{name}.mxd", documents.document("same", "D:\\old", "roads", ""))
        inputs = [".", SAMPLE, *([SAMPLES] if os.path.isdir(SAMPLES) else [])]
        text = self.run_mxdinfo("-q", "-f", "ndjson", "--check-sources", *inputs, code=1)[0]
        self.documents = [json.loads(line) for line in text.splitlines()]
        self.layers = [(document["file"]["path"], layer) for document in self.documents
                       for map_ in document["maps"] for layer in map_["layers"]]
        self.database = sqlite3.connect(":memory:")
        self.database.execute("create table lines (json text)")
        self.database.executemany("insert into lines values (?)",
                                  [(line,) for line in text.splitlines()])
        views, self.queries = sql_blocks()
        self.database.executescript(views)

    def rows(self, number):
        return self.database.execute(self.queries[number]).fetchall()

    def test_ten_questions_are_answered(self):
        self.assertEqual(list(range(1, 11)), sorted(self.queries))
        self.assertEqual(len(self.documents), sum(row[1] for row in self.rows(1)))
        self.assertEqual([("./bad.mxd", "not readable as a map document")],
                         [(path.replace("\\", "/"), reason) for path, reason in self.rows(2)])
        copies = [row for row in self.rows(3) if "one.mxd" in row[2]]
        self.assertEqual([2], [row[1] for row in copies])
        with_data = [layer["source"] for _, layer in self.layers if layer["source"]]
        self.assertEqual(sum(source["workspace"] is not None for source in with_data),
                         sum(row[3] for row in self.rows(4)))
        self.assertTrue({"./copy.mxd", "./one.mxd"} <= {row[0].replace("\\", "/")
                                                       for row in self.rows(5)})
        self.assertEqual(len({((source["workspace"] or "").lower(), source["dataset"].lower())
                              for source in with_data if source["state"] == "missing"}),
                         len(self.rows(6)))
        self.assertEqual(sum(bool(layer["differs_from_map"]) for _, layer in self.layers),
                         sum(row[2] or 0 for row in self.rows(7)))
        losses = [loss for document in self.documents for loss in document["losses"]]
        self.assertEqual(len(losses), sum(row[2] for row in self.rows(8)))
        fonts = set(re.findall(r'"font_name": "([^"]*)"', json.dumps(self.documents)))
        self.assertEqual(fonts, {json.loads(f'"{row[0]}"') for row in self.rows(9)})
        self.assertEqual({document["file"]["path"] for document in self.documents
                          if (document["last_saved"]["date"] or "9") < "2018"},
                         {row[0] for row in self.rows(10)})


if __name__ == "__main__":
    unittest.main()
