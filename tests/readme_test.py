"""The README shows what the programs print, and the guide the code that stands in examples:
readme_test.py ROOT MXDINFO LEGEND"""

import glob
import os
import re
import subprocess
import sys

root, *programs = (os.path.abspath(argument) for argument in sys.argv[1:])


def content(*name):
    with open(os.path.join(root, *name), encoding="utf-8") as text:
        return text.read()


readme = content("README.md")
for program in programs:
    shown = subprocess.run(
        [program, "examples/sample.mxd"], cwd=root, capture_output=True, check=True
    ).stdout.decode("utf-8")
    block = "".join("    " + line.rstrip() + "\n" if line.strip() else "\n" for line in shown.splitlines())
    if block not in readme:
        sys.exit(f"README.md does not show what {os.path.basename(program)} prints:\n{block}")

endings = {"c": ["c"], "cpp": ["cpp", "hpp"], "python": ["py"], "csharp": ["cs"]}
shown = []
for language, block in re.findall(r"^```(\w+)\n(.*?)^```$", content("docs", "using.md"), re.DOTALL | re.MULTILINE):
    names = [name for ending in endings.get(language, []) for name in glob.glob(f"{root}/examples/*.{ending}")]
    if names and not any(block in content(name) for name in names):
        sys.exit(f"no example has this code of docs/using.md:\n{block}")
    shown.append(language)
if not set(endings) <= set(shown):
    sys.exit(f"docs/using.md shows code in {shown} only")
print("README and guide show what is printed and what is in the examples")
