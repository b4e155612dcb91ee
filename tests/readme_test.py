"""What the README shows is what the programs print: readme_test.py ROOT MXDINFO LEGEND"""

import os
import subprocess
import sys

root, *programs = (os.path.abspath(argument) for argument in sys.argv[1:])

with open(os.path.join(root, "README.md"), encoding="utf-8") as text:
    readme = text.read()
for program in programs:
    shown = subprocess.run(
        [program, "examples/sample.mxd"], cwd=root, capture_output=True, check=True
    ).stdout.decode("utf-8")
    block = "".join("    " + line.rstrip() + "\n" if line.strip() else "\n" for line in shown.splitlines())
    if block not in readme:
        sys.exit(f"README.md does not show what {os.path.basename(program)} prints:\n{block}")
print("the README shows what is printed")
