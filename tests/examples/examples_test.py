"""All examples print the same of the sample: examples_test.py SOURCE PROGRAM... [-- PROGRAM...]..."""

import os
import subprocess
import sys

source, *words = (os.path.abspath(word) if os.path.exists(word) else word for word in sys.argv[1:])
programs = [[]]
for word in words:
    programs.append([]) if word == "--" else programs[-1].append(word)

shown = []
for program in programs:
    done = subprocess.run([*program, "examples/sample.mxd"], cwd=source, capture_output=True)
    if done.returncode != 0:
        sys.exit(f"{program} ended with {done.returncode}:\n{done.stderr.decode()}")
    shown.append(done.stdout.decode("utf-8").splitlines())
    if shown[-1] != shown[0]:
        sys.exit(f"{program} prints\n{shown[-1]}\nand not\n{shown[0]}")
    unread = subprocess.run([*program, "no such file"], cwd=source, capture_output=True)
    if unread.returncode != 1 or b"not readable" not in unread.stderr:
        sys.exit(f"{program} ends with {unread.returncode} where there is no file:\n{unread.stderr.decode()}")
if len(shown[0]) != 16:
    sys.exit(f"{len(shown[0])} lines")
print(f"{len(shown)} programs print the same")
