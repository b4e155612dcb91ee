"""The outputs of commands are those in tests/golden/mxdinfo, and agree with their descriptions."""

import base64
import hashlib
import os
import re
import shlex
import unittest

from support import IS_WINDOWS, ROOT, SAMPLE, Case, made, named, schema_errors, slashes

GOLDEN = os.path.join(ROOT, "tests", "golden", "mxdinfo")
VARYING = (
    (r'(mxdinfo |"version": ?")[0-9.]+', r"\1VERSION"),
    (r'("modified": ?")[^"]+', r"\1TIME"),
    (r"(<(style|script)>).*?(</\2>)", r"\1\3"),
    (r"(script-src 'sha256-)[^']+", r"\1HASH"),
    (r"[0-9.]+ s, [0-9]+ documents a second", "TIME"),
)


class Commands(Case):
    def write_documents(self):
        for name in ("sample", "gallery", "facts", "lossy"):
            self.write(f"{name}.mxd", made(name))
        for name in ("bad.mxd", "share/sub/bad.mxd"):
            self.write(name, b"bad")
        for name in ("share/b.mxd", "share/A.MXD", "share/sub/c.Mxd", "share/sub/deeper/d.mxt"):
            self.write(name, named("good"))
        for name, data in (("brackets", ("[x,y]",)), ("cyrillic", ("Дороги",)),
                           ("names", ("Light", "C:\\data", "roads", "")),
                           ("sources/present", ("P", "..\\data", "roads", "")),
                           ("sources/absent", ("A", "C:\\none", "roads", "")),
                           ("totals/a", ("T", "C:\\base", "roads", "")),
                           ("totals/b", ("T", "c:\\BASE", "roads", "")),
                           ("totals/c", ("T", "C:\\other", "roads", ""))):
            self.write(f"{name}.mxd", named(*data))
        for name in ("shp", "shx", "dbf"):
            self.write(f"data/roads.{name}")
        for name, text in (("wide", "\\\\OLDserver\\Дороги".encode("utf-16-le")),
                           ("narrow", b"server=OLDserver;user=x!"), ("none", b"nothing here")):
            hidden = b"\1\2\3" + text + b"\0\0\0"
            self.write(f"deep/{name}.mxd", named("plain", hidden=hidden))

    def output_of(self, arguments):
        code, output, errors = self.outcome(*arguments)
        text = self.with_slashes(output.decode() + errors)
        if code != 0:
            text += f"exit code {code}\n"
        text = re.sub("(Z:)?" + re.escape(os.path.realpath(self.folder)), "HERE", text)
        for varying, word in VARYING:
            text = re.sub(varying, word, text, flags=re.DOTALL)
        return text

    def with_slashes(self, text):
        """On Windows, where the paths of files have others."""
        return re.sub(r"[\\/]+", "/", text) if IS_WINDOWS else text

    def compare(self, name, text):
        path = os.path.join(GOLDEN, name)
        if "VQK_WRITE_GOLDEN" in os.environ:
            with open(path, "w", encoding="utf-8", newline="") as file:
                file.write(text)
        with open(path, encoding="utf-8", newline="") as file:
            expected = file.read()
        self.assertEqual(self.with_slashes(expected), self.with_slashes(text))

    def test_commands(self):
        """Each command of commands.txt prints what is there below it, or in the file that it names."""
        self.write_documents()
        with open(os.path.join(GOLDEN, "commands.txt"), encoding="utf-8", newline="") as file:
            session = re.findall(r"^(?:# .*|\$ mxdinfo.*)\n", file.read(), re.MULTILINE)
        for index, line in enumerate(session):
            if line.startswith("$ "):
                command, _, name = line[len("$ mxdinfo"):].strip().partition(" > ")
                with self.subTest(command):
                    text = self.output_of(shlex.split(command))
                    if name:
                        self.compare(name, text)
                    else:
                        session[index] += text
        self.compare("commands.txt", "".join(session))


class Formats(Case):
    def test_the_schema_describes_the_json(self):
        def extended(value):
            if isinstance(value, dict):
                return {**{key: extended(item) for key, item in value.items()}, "added": 1}
            return [extended(item) for item in value] if isinstance(value, list) else value

        self.write("bad.mxd", b"bad")
        self.write("lossy.mxd", made("lossy"))
        document = self.json_of(SAMPLE)
        for allowed in (document, [document], extended(document), self.json_of("lossy.mxd"),
                        self.json_of("bad.mxd", code=1)):
            self.assertEqual([], schema_errors(allowed))
        del document["maps"][0]["layers"][0]["name"]
        self.assertNotEqual([], schema_errors(document))

    def test_one_document_is_an_object_and_several_are_an_array(self):
        self.write("one.mxd", named("one"))
        self.assertIsInstance(self.json_of("one.mxd"), dict)
        self.assertEqual(1, len(self.json_of(".")))
        both = self.json_of("one.mxd", SAMPLE)
        self.assertEqual(["one.mxd", SAMPLE], [d["file"]["path"] for d in both])
        self.assertEqual(both, self.lines_of("one.mxd", SAMPLE))
        os.mkdir(self.path("empty"))
        self.assertEqual([], self.json_of("empty"))

    def test_forms_have_options_of_their_own(self):
        self.assertEqual(self.run_mxdinfo("-f", "dump", SAMPLE), self.run_mxdinfo("--dump", SAMPLE))
        self.run_mxdinfo("--xml", "out.xml", SAMPLE)
        self.assertEqual(self.run_mxdinfo("-f", "xml", SAMPLE, binary=True)[0], self.read("out.xml"))

    def test_byte_order_mark(self):
        for arguments in ([], ["--losses"], ["--totals", "--crs"], ["--check-sources"]):
            marked, plain = (self.run_mxdinfo("-f", "csv", *arguments, *switch, SAMPLE, binary=True)[0]
                             for switch in ([], ["--no-bom"]))
            self.assertEqual(b"\xef\xbb\xbf" + plain, marked)

    def test_the_page_allows_its_script_and_no_other(self):
        text = self.run_mxdinfo("-f", "html", SAMPLE)[0]
        script, = re.findall("<script>(.*?)</script>", text, re.DOTALL)
        digest = base64.b64encode(hashlib.sha256(script.encode()).digest()).decode()
        self.assertIn(f"script-src 'sha256-{digest}'\"", text)

    def test_a_page_for_each_folder(self):
        for name in ("top.mxd", "a/1.mxd", "a/2.mxd", "a/b/3.mxd"):
            self.write(name, named(name))
        self.write("a/bad.mxd", b"bad")
        os.mkdir(self.path("pages"))
        self.run_mxdinfo("-q", "-r", "-f", "html", "-o", "pages", ".", code=1)
        pages = {name: self.read(f"pages/{name}").decode() for name in os.listdir(self.path("pages"))}
        rows = re.findall(r'<tr>.*?href="(.*?)"><bdi>(.*?)<.*?>(\d+)</td>.*?>(\d+)</td>',
                          slashes(pages.pop("index.html")))
        self.assertEqual([("page-1.html", ".", "1", "0"), ("page-2.html", "./a", "3", "1"),
                          ("page-3.html", "./a/b", "1", "0")], rows)
        self.assertEqual({row[0] for row in rows}, set(pages))
        for page in pages.values():
            self.assertIn('<a href="index.html">', page)
            links = re.findall('href="#(.*?)"', page)
            self.assertEqual([], [link for link in links if f'id="{link}"' not in page])

    def test_options_are_documented(self):
        options = set(re.findall(r"--[a-z-]+", self.run_mxdinfo("--help")[0]))
        for name in ("docs/mxdinfo.1", "tools/mxdinfo.bash"):
            with open(os.path.join(ROOT, name), encoding="utf-8") as file:
                text = file.read().replace("\\-", "-")
            self.assertEqual(options, set(re.findall(r"--[a-z][a-z-]+", text)), name)


if __name__ == "__main__":
    unittest.main()
