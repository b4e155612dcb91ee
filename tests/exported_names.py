"""The library exports exactly the listed names, and the header declares exactly these."""

import re
import subprocess
import sys

nm, library, export_list, header = sys.argv[1:]

with open(export_list, encoding="ascii") as lines:
    listed = lines.read().split()
with open(header, encoding="ascii") as text:
    declared = re.findall(r"\b(vq_mxd_\w+)\(", text.read())
symbols = subprocess.run(
    [nm, "-D", "--defined-only", library], capture_output=True, text=True, check=True
).stdout.splitlines()
exported = [line.split()[2] for line in symbols]

for what, names in (("exported", exported), ("declared", declared)):
    missing = sorted(set(listed) - set(names))
    surplus = sorted(set(names) - set(listed))
    if missing or surplus or len(names) != len(listed):
        sys.exit(f"{what}: missing {missing}, surplus {surplus}, {len(names)} of {len(listed)}")
print(f"{len(listed)} names listed, exported and declared")
