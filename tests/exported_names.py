"""The library exports exactly the listed functions, and the header declares them with the listed types,
which are what the listed typedefs say.
A change of a line breaks hosts that were built before: exported_names.py NM LIBRARY LIST HEADER"""

import re
import subprocess
import sys

nm, library, export_list, header = sys.argv[1:]


def without_names(parameters):
    """The types of the parameters; a lone word is a type."""
    return ", ".join(re.sub(r"(?<=[ *])\w+$", "", each.strip()).strip() for each in parameters.split(","))


with open(export_list, encoding="ascii") as lines:
    listed = lines.read().splitlines()
with open(header, encoding="ascii") as text:
    code = re.sub(r"/\*.*?\*/", " ", text.read(), flags=re.DOTALL)
# Platform-dependent names follow their condition.
typedefs = re.findall(r"^(?:#((?:if|elif|else).*)\n(?:#include.*\n)?)?(typedef [^;]+);", code, re.MULTILINE)
code = " ".join(code.split())
declared = [" ".join(words).strip() for words in typedefs] + [
    f"{result} {name}({without_names(parameters)})"
    for result, name, parameters in re.findall(r"VQ_MXD_API ([^;()]+?) (vq_mxd_\w+)\(([^)]*)\);", code)
]
symbols = subprocess.run(
    [nm, "-D", "--defined-only", library], capture_output=True, text=True, check=True
).stdout.splitlines()
exported = [line.split()[2] for line in symbols]
listed_names = re.findall(r"(vq_mxd_\w+)\(", "\n".join(listed))

for what, found, wanted in (("declared", declared, listed), ("exported", exported, listed_names)):
    missing = sorted(set(wanted) - set(found))
    surplus = sorted(set(found) - set(wanted))
    if missing or surplus or len(found) != len(wanted):
        sys.exit(f"{what}: missing {missing}, surplus {surplus}, {len(found)} of {len(wanted)}")
print(f"{len(exported)} functions listed, exported, and declared with their types")
