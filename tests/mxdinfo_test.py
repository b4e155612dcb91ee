"""mxdinfo as its users call it: outputs, streams and exit codes."""

import os
import subprocess
import sys
import tempfile

*mxdinfo, sample = sys.argv[1:]
# Windows has no names that are no text, but many that its 8-bit code page has no place for.
odd_bytes = "\u0436 \u5730.mxd".encode() if mxdinfo[-1].endswith(".exe") else b"\xff \xd0\xb6.mxd"
failures = []


def run(*arguments):
    result = subprocess.run([*mxdinfo, *arguments], capture_output=True, check=False)
    return result.returncode, result.stdout, result.stderr


def expect(condition, what):
    if not condition:
        failures.append(what)


with tempfile.TemporaryDirectory() as folder:
    no_document = os.path.join(folder, "no document.mxd")
    with open(no_document, "wb") as file:
        file.write(b"x" * 5000)
    odd_name = os.path.join(os.fsencode(folder), odd_bytes)
    with open(odd_name, "wb") as copy, open(sample, "rb") as original:
        copy.write(original.read())
    xml = os.path.join(folder, "out.xml")

    code, out, err = run(sample)
    expect(code == 0 and err == b"", "a good document")
    expect(b"Map \"" in out and b"feature layer" in out, "the tree shows maps and layers")

    code, out, err = run(no_document, sample)
    expect(code == 1, "a bad document among good ones")
    expect(b"Map \"" in out, "the good one is still shown")
    expect(b"no document.mxd" in err, "the bad one is named on standard error")

    code, out, err = run("--dump", sample)
    expect(code == 0 and out.split()[:5] == b"mxd_map = { number =".split(), "the dump")

    code, out, err = run("--xml", xml, sample)
    expect(code == 0 and out == b"", "the XML goes to its file alone")
    with open(xml, "rb") as file:
        expect(file.read().startswith(b'<?xml version = "1.0"'), "the XML file")
    expect(run("--xml", os.path.join(folder, "none", "x"), sample)[0] == 1, "no place for XML")

    expect(run(odd_name)[0] == 0, "a name that few programs can read")
    for usage in ([], ["--dump"], ["--dump", sample, sample], ["--no-such", sample]):
        expect(run(*usage)[0] == 2, f"usage {usage}")
    expect(run("--help")[0] == 0 and run("--version")[0] == 0, "help and version")

if failures:
    sys.exit("failed: " + "; ".join(failures))
print("mxdinfo behaves")
