"""The steps of script/portable, with tools that only pretend."""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(__file__).parents[2]
TOOLS = ("apt-get cmake cp dpkg-architecture dpkg-buildflags dpkg-query dpkg-source install make meson ninja objdump patch "
         "readelf").split()


class Steps(unittest.TestCase):
    def setUp(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="kelvora-"))
        self.addCleanup(shutil.rmtree, folder)
        self.tree = folder / "tree"
        shutil.copytree(SOURCE, self.tree, ignore=shutil.ignore_patterns("build", ".git"))
        for name in TOOLS:
            (folder / "tools" / name).parent.mkdir(exist_ok=True)
            (folder / "tools" / name).symlink_to(SOURCE / "tests/portable/pretend")
        self.libraries = folder / "libraries"
        self.libraries.mkdir()
        self.calls = folder / "calls"
        self.env = {"PATH": f"{folder / 'tools'}:{os.environ['PATH']}", "HOME": str(folder), "LC_ALL": "C.UTF-8",
                    "LIBRARIES": os.path.relpath(self.libraries, "/usr/lib"), "CALLS": str(self.calls),
                    "VERSION_OF_SOURCES": "1", "KELVORA_INSIDE": "yes"}

    def run_script(self, **more):
        """Runs the script's part inside the system, and tells what it prints and which tools it calls."""
        self.calls.write_text("")
        done = subprocess.run(["script/portable"], cwd=self.tree, env=self.env | more, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=120)
        self.assertEqual(done.returncode == 0, not {"FAILING", "NEEDED"} & set(more), done.stdout)
        return done.stdout, self.calls.read_text()

    def sum(self):
        archive, = (self.tree / "build/portable").glob("kelvora-*-linux-*.tar.xz")
        self.assertEqual(archive.name, f"kelvora-{os.environ['VERSION']}-linux-{os.uname().machine}.tar.xz")
        return hashlib.sha256(archive.read_bytes()).hexdigest()

    def test_each_library_is_built_before_what_it_is_linked_into(self):
        said, calls = self.run_script()
        steps = [r"^meson .*/libxkbcommon\b", r"^meson .*/wayland\b", r"^make -C dbus", r"^patch .*/portable-qt\.patch",
                 r"^cmake .*/qtbase .*-DBUILD_SHARED_LIBS=OFF.*-DFEATURE_xcb=ON", r"^cmake --install .*/qtbase.build",
                 r"^qt-cmake .*/qtwayland ", r"^cmake --install .*/qtwayland.build",
                 r"^qt-cmake .*-DKELVORA_PORTABLE=ON.*-Wl,-hardened", r"^cmake --install \S+/kelvora --strip --prefix"]
        places = []
        for step in steps:
            found = re.search(step, calls, re.MULTILINE)
            self.assertTrue(found, f"{step} in {calls}")
            places.append(found.start())
        self.assertEqual(places, sorted(places), calls)
        self.assertIn("Done", said)
        sources = (self.tree / "build/portable/licencias/LEEME.txt").read_text()
        for package in "libxkbcommon", "dbus", "wayland", "qt6-base", "qt6-wayland":
            self.assertIn(f"\n{package} 1\n", sources)
        self.assertIn("script/portable construye", sources)
        for library in "xcb", "xkbcommon", "dbus-1", "wayland-client":
            archives = re.fullmatch(r"GROUP \( (.*) \)\n", (self.libraries / f"lib{library}.so").read_text())[1].split()
            self.assertIn(f"lib{library}.a", [pathlib.Path(archive).name for archive in archives])
            for archive in archives:
                self.assertTrue("/qt/archives/" not in archive or pathlib.Path(archive).exists(), archive)
        for package, suite in ("wayland", "bookworm"), ("qt6-base", "trixie"), ("qt6-wayland", "trixie"):
            self.assertIn(f" {suite} main\n", (self.tree / f"build/portable/source/{package}_1.dsc").read_text())

    def test_a_second_run_keeps_qt_and_gives_the_same_archive(self):
        self.run_script()
        first = self.sum()
        _, calls = self.run_script()
        self.assertNotIn("qtbase", calls)
        self.assertIn("-DKELVORA_PORTABLE=ON", calls)
        self.assertEqual(self.sum(), first)

    def test_qt_is_built_anew_where_its_patch_is_another(self):
        self.run_script()
        with open(self.tree / "cmake/portable-qt.patch", "a") as patch:
            patch.write("\n")
        self.assertIn("qtbase", self.run_script()[1])

    def test_all_is_built_anew_of_newer_sources(self):
        self.run_script()
        self.assertIn("qtbase", self.run_script(VERSION_OF_SOURCES="2")[1])
        sources = (self.tree / "build/portable/licencias/LEEME.txt").read_text()
        self.assertIn("\nqt6-base 2\n", sources)
        self.assertNotIn("\nqt6-base 1\n", sources)
        self.assertEqual(len(list((self.tree / "build/portable").glob("qt-*.tar.xz"))), 1)

    def test_a_program_that_needs_more_than_the_c_library_is_none(self):
        said, _ = self.run_script(NEEDED="libz.so.1")
        self.assertIn("kelvora: the program needs a library: libz.so.1", said)

    def test_a_program_that_cannot_be_read_is_none(self):
        for tool in "objdump", "readelf":
            with self.subTest(tool):
                said, _ = self.run_script(FAILING=tool)
                self.assertRegex(said, "(?m)^kelvora: cannot read /.*/kelvora$")

    def test_what_has_been_interrupted_goes_on(self):
        self.run_script(FAILING="patch")
        _, calls = self.run_script()
        self.assertNotIn("meson setup", calls)
        self.assertIn("-DKELVORA_PORTABLE=ON", calls)

    def test_it_ends_with_the_first_tool_that_fails(self):
        for tool in sorted(set(TOOLS) - {"dpkg-query", "objdump", "readelf"}):
            with self.subTest(tool):
                said, calls = self.run_script(FAILING=tool)
                self.assertTrue(calls.splitlines()[-1].startswith(tool + " "), calls)
                self.assertRegex(said, r"(?m)^kelvora: ")
                shutil.rmtree(self.tree / "build", ignore_errors=True)  # it may be that nothing has been begun
