"""An installation is enough to build the C example and run it, through CMake and through pkg-config,
also after it was moved. From the environment: CMAKE, SOURCE, BUILD, GENERATOR, CC, FLAGS."""

import glob
import os
import shlex
import shutil
import subprocess
import tempfile
import unittest

CMAKE, SOURCE, BUILD, GENERATOR, CC = (
    os.environ[name] for name in ("CMAKE", "SOURCE", "BUILD", "GENERATOR", "CC")
)
FLAGS = os.environ.get("FLAGS", "")
CONSUMER = os.path.join(SOURCE, "tests", "install", "consumer")
LEGEND = os.path.join(SOURCE, "examples", "legend.c")


def run(*command, **more):
    done = subprocess.run(command, capture_output=True, encoding="utf-8", **more)
    if done.returncode != 0:
        raise AssertionError(f"{shlex.join(command)}\n{done.stdout}{done.stderr}")
    return done.stdout


def linked(program):
    return run("ldd", program)


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp(prefix="a folder ")
        cls.first = os.path.join(cls.folder, "first prefix")
        run(CMAKE, "--install", BUILD, "--prefix", cls.first)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def setUp(self):
        self.work = tempfile.mkdtemp(dir=self.folder, prefix="of one test ")

    def expect_runs(self, program, prefix=None):
        more = {"LD_LIBRARY_PATH": os.path.join(prefix, "lib")} if prefix else {}
        shown = run(program, "examples/sample.mxd", cwd=SOURCE, env={**os.environ, **more})
        self.assertIn("      some: mxd_marker_fill_symbol\n", shown)
        self.assertEqual(16, shown.count("\n"))

    def configured(self, *settings):
        run(CMAKE, "-S", CONSUMER, "-B", self.work, "-G", GENERATOR, "-DCMAKE_C_COMPILER=" + CC,
            "-DCMAKE_C_FLAGS=" + FLAGS, "-DLEGEND=" + LEGEND, "-DCMAKE_BUILD_TYPE=Debug", *settings)

    def built_by_cmake(self, prefix, *settings):
        self.configured("-DCMAKE_PREFIX_PATH=" + prefix, *settings)
        run(CMAKE, "--build", self.work)
        return os.path.join(self.work, "legend")

    def built_by_pkg_config(self, prefix, package="vqk_file_mxd"):
        folder, = glob.glob(os.path.join(glob.escape(prefix), "**", "pkgconfig"), recursive=True)
        flags = run("pkg-config", "--cflags", "--libs", package,
                    env={**os.environ, "PKG_CONFIG_PATH": folder})
        program = os.path.join(self.work, "legend")
        run(CC, "-std=c99", *shlex.split(FLAGS), LEGEND, "-o", program, *shlex.split(flags))
        return program

    def test_cmake_finds_the_shared_library(self):
        program = self.built_by_cmake(self.first)
        self.assertIn("libvqk_file_mxd.so.1 ", linked(program))
        self.expect_runs(program)

    def test_cmake_finds_the_static_library(self):
        for settings in (["-DVQK_KIND=static"], ["-DVQK_KIND=", "-DBUILD_SHARED_LIBS=OFF"]):
            program = self.built_by_cmake(self.first, *settings)
            self.assertNotIn("vqk_file_mxd", linked(program))
            self.expect_runs(program)

    def test_cmake_finds_no_unknown_component(self):
        with self.assertRaisesRegex(AssertionError, "no other library"):
            self.configured("-DCMAKE_PREFIX_PATH=" + self.first, "-DVQK_KIND=other")

    def test_pkg_config_finds_the_shared_library(self):
        program = self.built_by_pkg_config(self.first)
        self.assertIn("libvqk_file_mxd.so.1 ", linked(program))
        self.expect_runs(program, self.first)

    def test_pkg_config_finds_the_static_library(self):
        program = self.built_by_pkg_config(self.first, "vqk_file_mxd_static")
        self.assertNotIn("vqk_file_mxd", linked(program))
        self.expect_runs(program)

    def test_the_prefix_can_be_moved(self):
        moved = os.path.join(self.folder, "moved prefix")
        shutil.copytree(self.first, moved, symlinks=True)
        hidden = self.first + " of before"
        os.rename(self.first, hidden)
        try:
            self.expect_runs(self.built_by_cmake(moved))
            self.expect_runs(self.built_by_pkg_config(moved), moved)
        finally:
            os.rename(hidden, self.first)

    def test_another_project_takes_it_in(self):
        self.configured("-DVQK_SOURCE=" + SOURCE)
        shown = run(CMAKE, "--install", self.work, "--prefix", self.work + "/out")
        self.assertNotIn("Installing", shown)

    def test_nothing_is_missing(self):
        files = {os.path.relpath(path, self.first)
                 for path in glob.glob(glob.escape(self.first) + "/**", recursive=True)
                 if os.path.isfile(path)}
        for name in ("bin/mxdinfo", "include/vqk_file_mxd.h", "lib/libvqk_file_mxd.so.1.0.0",
                     "lib/libvqk_file_mxd.a", "share/man/man1/mxdinfo.1",
                     "share/bash-completion/completions/mxdinfo", "lib/pkgconfig/vqk_file_mxd.pc"):
            self.assertIn(name, files)
        for name in files:
            if name.endswith((".cmake", ".pc")):
                with open(os.path.join(self.first, name), encoding="utf-8") as text:
                    content = text.read()
                for folder in (self.first, SOURCE, BUILD):
                    self.assertNotIn(folder, content, name)


if __name__ == "__main__":
    unittest.main()
