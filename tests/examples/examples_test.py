"""All examples print the same of the sample, whatever the name of its file, as far as they can be given it:
examples_test.py SOURCE --ascii|--utf-8|--bytes PROGRAM... [--ascii|--utf-8|--bytes PROGRAM...]..."""

import os
import shutil
import subprocess
import sys
import tempfile

NAMES = {
    "--ascii": [],
    "--utf-8": ["sample \u0444 \u5730 \U0001f5fa.mxd".encode()],
    "--bytes": [b"sample \xff \xe4b \xed\xa0\x80 \xf0\x9f\x97.mxd"],
}
NAMES["--bytes"] += NAMES["--utf-8"]

source, *words = (os.path.abspath(word) if os.path.exists(word) else word for word in sys.argv[1:])
programs = []
for word in words:
    programs.append((NAMES[word], [])) if word in NAMES else programs[-1][1].append(word)


def legend(program, path, folder=source):
    done = subprocess.run([*program, path], cwd=folder, capture_output=True)
    if done.returncode != 0:
        sys.exit(f"{program} {path} ended with {done.returncode}:\n{done.stderr.decode()}")
    return done.stdout.splitlines()


shown = []
with tempfile.TemporaryDirectory() as folder:
    for names, program in programs:
        shown.append(legend(program, "examples/sample.mxd"))
        if shown[-1] != shown[0]:
            sys.exit(f"{program} prints\n{shown[-1]}\nand not\n{shown[0]}")
        for name in names:
            shutil.copy(f"{source}/examples/sample.mxd", os.fsencode(folder) + b"/" + name)
            if legend(program, name, folder) != [name, *shown[0][1:]]:
                sys.exit(f"{program} does not print the same of {name}")
        unread = subprocess.run([*program, "no such file"], cwd=source, capture_output=True)
        if unread.returncode != 1 or b"not readable" not in unread.stderr:
            sys.exit(f"{program} ends with {unread.returncode} where there is no file:\n{unread.stderr.decode()}")
if len(shown[0]) != 16:
    sys.exit(f"{len(shown[0])} lines")
print(f"{len(shown)} programs print the same")
