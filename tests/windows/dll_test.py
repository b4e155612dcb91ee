"""The DLL as a file: what it exports, what it imports, and that nothing in it tells when or where it
was built."""

import re
import subprocess
import sys

objdump, dll, gnu_library, msvc_library, export_list, version, source_folder = sys.argv[1:]

system_dlls = re.compile(r"(KERNEL32|msvcrt|ucrtbase|api-ms-win-crt-[\w-]+)\.dll", re.IGNORECASE)


def content(path):
    with open(path, "rb") as file:
        return file.read()


def utf_16(text):
    return text.encode("utf-16-le")


listed = re.findall(r"\b(vq_mxd_\w+)\(", content(export_list).decode("ascii"))
dump = subprocess.run([objdump, "-p", dll], capture_output=True, text=True, check=True).stdout
names_table = dump.partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
exported = re.findall(r"\[ *\d+\] (\S+)", names_table)
imported = re.findall(r"DLL Name: (\S+)", dump)
binary = content(dll)

for what, names in (
    ("exported", exported),
    ("in the import library of MinGW", set(re.findall(rb"__imp_(\w+)", content(gnu_library)))),
    ("in the import library of MSVC", set(re.findall(rb"__imp_(\w+)", content(msvc_library)))),
):
    names = [name if isinstance(name, str) else name.decode("ascii") for name in names]
    if sorted(names) != sorted(listed):
        sys.exit(f"{what}: {sorted(set(names) ^ set(listed))}, {len(names)} of {len(listed)}")

foreign = [name for name in imported if not system_dlls.fullmatch(name)]
if foreign or not imported:
    sys.exit(f"imported: {imported}")
for what, good in (
    ("the file holds the time of the link", re.findall(r"Time/Date\s.*?(1970|\b0)$", dump, re.MULTILINE)),
    ("no fixed image base", "ImageBase\t\t0000000180000000" in dump),
    ("no version", all(utf_16(text) in binary for text in ("ProductVersion", version + "\0"))),
    ("the file holds the source folder", source_folder.encode() not in binary),
):
    if not good:
        sys.exit(what)
print(f"{len(listed)} names exported; imports from {', '.join(imported)}")
