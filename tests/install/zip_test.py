"""The Windows .zip has what a host needs, and that is enough to build the C example with the DLL and with
the static library: zip_test.py CPACK BUILD CC SOURCE RUN..."""

import os
import subprocess
import sys
import tempfile
import zipfile

cpack, build, cc, source, *run = sys.argv[1:]

wanted = """
bin/mxdinfo.exe
bin/vqk_file_mxd.dll
include/vqk_file_mxd.h
lib/cmake/vqk_file_mxd/vqk_file_mxd-config-version.cmake
lib/cmake/vqk_file_mxd/vqk_file_mxd-config.cmake
lib/cmake/vqk_file_mxd/vqk_file_mxd-targets-release.cmake
lib/cmake/vqk_file_mxd/vqk_file_mxd-targets.cmake
lib/libvqk_file_mxd.a
lib/libvqk_file_mxd.dll.a
lib/pkgconfig/vqk_file_mxd.pc
lib/pkgconfig/vqk_file_mxd_static.pc
lib/vqk_file_mxd.def
lib/vqk_file_mxd.lib
share/doc/vqk-file-mxd/LICENSE
share/doc/vqk-file-mxd/mxdinfo.schema.json
""".split()


def output(*command):
    return subprocess.run(command, cwd=source, check=True, stdout=subprocess.PIPE, text=True).stdout


with tempfile.TemporaryDirectory(prefix="a folder ") as folder:
    output(cpack, "-G", "ZIP", "-B", folder, "--config", os.path.join(build, "CPackConfig.cmake"))
    name, = (name for name in os.listdir(folder) if name.endswith(".zip"))
    root = os.path.join(folder, name.removesuffix(".zip"))
    with zipfile.ZipFile(os.path.join(folder, name)) as package:
        files = [file for file in package.namelist() if not file.endswith("/")]
        found = [os.path.relpath(file, os.path.basename(root)) for file in files]
        if sorted(found) != wanted:
            sys.exit(f"{name}: {sorted(set(found) ^ set(wanted))}")
        package.extractall(folder)

    shown = []
    for kind, link in (("shared", ["-lvqk_file_mxd"]),
                       ("static", ["-DVQK_FILE_MXD_STATIC", "-l:libvqk_file_mxd.a", "-lstdc++", "-static"])):
        program = os.path.join(root, "bin", f"legend_{kind}.exe")
        output(cc, "-std=c99", "examples/legend.c", "-o", program, f"-I{root}/include", f"-L{root}/lib", *link)
        if kind == "static":
            os.remove(os.path.join(root, "bin", "vqk_file_mxd.dll"))
        shown.append(output(*run, program, "examples/sample.mxd"))
    if shown[0] != shown[1] or "mxd_marker_fill_symbol" not in shown[0]:
        sys.exit(f"not the legend:\n{shown[0]}\n{shown[1]}")
print(f"{name}: {len(found)} files; the example runs with the DLL and without")
