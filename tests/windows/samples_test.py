"""Real documents, where there are any beside the project: XML and dump of the Windows program are
those of the native one with CR LF line ends. Where the code page has no place for a character, the
native program writes "?" and Windows may write a similar character; these are counted."""

import os
import subprocess
import sys
import tempfile

native, samples, *windows = sys.argv[1:]
SKIPPED = 77

if not os.path.isdir(samples):
    print("no sample documents beside the project")
    sys.exit(SKIPPED)
if not os.path.exists(native):
    print("no native mxdinfo to compare with: " + native)
    sys.exit(SKIPPED)


def outputs(mxdinfo, document, xml):
    def run(*arguments):
        command = [*mxdinfo, *arguments, document]
        return subprocess.run(command, cwd=samples, capture_output=True, check=True).stdout

    dump = run("--dump")
    run("--xml", xml)
    with open(xml, "rb") as file:
        return dump, file.read()


def best_fits(expected, found):
    """How many characters have a best fit; None when anything else differs."""
    expected = expected.replace(b"\n", b"\r\n")
    differing = [(e, f) for e, f in zip(expected, found) if e != f]
    if len(expected) != len(found) or any(e != ord("?") for e, _ in differing):
        return None
    return len(differing)


documents = sorted(name for name in os.listdir(samples) if name.endswith(".mxd"))
failed = 0
total = 0
os.environ["VQK_WINE_LOCALE"] = "ru_RU.CP1251"
with tempfile.TemporaryDirectory() as folder:
    for document in documents:
        xml = os.path.join(folder, "out.xml")
        native_outputs = outputs([native], document, xml)
        windows_outputs = outputs(windows, document, xml)
        for what, expected, found in zip(("dump", "XML"), native_outputs, windows_outputs):
            count = best_fits(expected, found)
            if count is None:
                failed += 1
                print(f"{document}: the {what} differs")
            elif count:
                print(f"{document}: {count} best-fit characters in the {what}")
            total += count or 0
print(f"{len(documents)} documents, {failed} outputs differ, {total} best-fit characters")
sys.exit(1 if failed or not documents else 0)
