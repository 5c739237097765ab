"""What the scripts say: of what takes long, of what goes wrong and of how they are called. Their tools only pretend."""

import fcntl
import json
import os
import pathlib
import pty
import re
import shutil
import subprocess
import tempfile
import time
import unittest

SOURCE = pathlib.Path(__file__).parents[2]
# A call that each refuses, and the word that it does not take.
REFUSED = {
    "bench": "latency nothing", "changelog": "suffix nothing", "check": "nothing", "commits": "-nothing", "coverage": "nothing",
    "exercises": "nothing", "fuzz": "10 1 nothing", "lint": "format nothing", "monkey": "1 nothing", "mutants": "nothing",
    "package": "nothing", "pictures": "nothing", "pictures-gnome": "a/folder nothing", "portable": "nothing", "release": "nothing",
    "run": "--nothing", "test": "inprocess --nothing", "test-debian13": "--nothing", "test-package": "bookworm nothing",
    "test-portable": "--nothing", "tidy": "build kept nothing", "windows": "nothing",
}
FOR_USERS = {"package", "run"}


class Scripts(unittest.TestCase):
    def setUp(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="kelvora-"))
        self.addCleanup(shutil.rmtree, folder)
        self.tree = folder / "tree"
        shutil.copytree(SOURCE, self.tree, ignore=shutil.ignore_patterns("build", ".git"))
        (folder / "tools").mkdir()
        self.calls = folder / "calls"
        for name in "apt-get", "ccache", "clang++", "clang-tidy-22", "cmake", "dpkg-buildpackage", "dpkg-checkbuilddeps", "dpkg-query", "id", "sudo", "xwininfo":
            (folder / "tools" / name).symlink_to(SOURCE / "tests/scripts/pretend")
        self.env = {"PATH": f"{folder / 'tools'}:{os.environ['PATH']}", "HOME": str(folder), "LC_ALL": "C.UTF-8",
                    "DISPLAY": ":pretended", "TMPDIR": str(folder), "CALLS": str(self.calls),
                    "DPKG_ADMINDIR": str(folder)}  # another test or script may hold the machine's own

    def called(self, call, status=0, **more):
        """What a script says, with the time of day left out."""
        done = subprocess.run(call.split(), cwd=self.tree, env=self.env | more, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=120)
        self.assertEqual(done.returncode, status, done.stdout)
        return re.sub(r"(?m)^\[\d\d:\d\d:\d\d\]", "[]", done.stdout)

    def test_a_call_that_is_wrong_is_refused_in_a_line_before_anything_is_done(self):
        scripts = {path.name for path in (SOURCE / "script").iterdir() if os.access(path, os.X_OK)}
        self.assertEqual(scripts, set(REFUSED))
        for name, words in REFUSED.items():
            with self.subTest(name):
                with open(self.tree / "script" / name) as script:
                    in_python = "python" in script.readline()
                said = self.called(f"script/{name} {words}", status=2 if in_python else 1).splitlines()
                self.assertEqual(len(said), 2 if in_python else 1, said)
                self.assertIn(words.split()[-1], said[-1])
                self.assertIn(name, said[-1])
                self.assertEqual(bool(re.search(r"\bno (admite|tiene)\b", said[-1])), name in FOR_USERS, said)
        self.assertFalse((self.tree / "build").exists())

    def test_asked_for_help_a_script_says_what_it_is_for(self):
        for name in set(REFUSED) - FOR_USERS:
            with self.subTest(name):
                said = self.called(f"../tree/script/{name} --help")
                self.assertGreater(len(said.split()), 7, said)
                self.assertNotRegex(said, r"(?m)^#|set -|import ")

    def test_the_first_start_tells_how_much_it_downloads_and_how_far_it_is(self):
        said = self.called("script/run")
        lines = said.splitlines()
        self.assertRegex(lines[0], r"^\[\] Faltan paquetes: g\+\+ cmake .*qt6-base-dev")
        self.assertRegex(lines[1], r"^\[\] Por descargar: 122 MB \(/.*\)$")
        self.assertIn("[] Descargado e instalado, en %: 50 de 100", lines)
        self.assertIn("[] Descargado e instalado, en %: 100 de 100", lines)
        self.assertRegex(said, r"Se compila por primera vez: de uno a diez minutos \(build/release\.log\)")
        self.assertEqual(said.count("Compilado: "), 10, said)
        self.assertIn("[] Compilado: 40 de 40\n", said)
        self.assertEqual(lines[-2:], ["[] Kelvora se abre", "It opens."])

    def test_what_is_missing_is_installed_as_root_without_a_question(self):
        self.called("script/run")
        update, install, *_ = (call for call in self.calls.read_text().splitlines() if call.startswith("sudo "))
        self.assertEqual(update, "sudo apt-get update")
        for word in "DEBIAN_FRONTEND=noninteractive", "-y", "--no-install-recommends", "install", "g++", "cmake", "at-spi2-core":
            self.assertIn(word, install.split())

    def test_only_what_is_asked_for_is_built(self):
        self.called("script/fuzz 1", status=1, INSTALLED="yes")  # there is nothing to be run then
        self.assertIn("\ncmake --build --preset fuzz\n", self.calls.read_text())
        self.called("script/exercises", status=127, INSTALLED="yes")
        self.assertIn("\ncmake --build --preset tests --target exercises\n", self.calls.read_text())

    def test_a_second_start_says_only_that_the_program_is_built_and_opens(self):
        self.called("script/run")
        said = self.called("script/run", INSTALLED="yes")
        self.assertNotRegex(said, "(?i)paquete|descarga|primera vez")
        self.assertIn("It opens.", said)

    def test_a_newer_preset_is_configured_again(self):
        self.called("script/run")
        self.called("script/run", INSTALLED="yes")
        configured = "\ncmake --preset release\n"
        self.assertEqual(self.calls.read_text().count(configured), 1)
        os.utime(self.tree / "CMakePresets.json", times=(time.time() + 9, time.time() + 9))
        self.called("script/run", INSTALLED="yes")
        self.assertEqual(self.calls.read_text().count(configured), 2)

    def test_who_waits_for_another_script_says_so(self):
        (self.tree / "build").mkdir()
        with open(self.tree / "build/release.lock", "w") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            script = subprocess.Popen(["script/run"], cwd=self.tree, env=self.env | {"INSTALLED": "yes"}, stdin=subprocess.DEVNULL,
                                      stdout=subprocess.PIPE, text=True)
            said = script.stdout.readline()
        self.assertIn("It opens.", script.communicate(timeout=120)[0])
        self.assertRegex(said, r"^\[[\d:]+\] Hay que esperar a otro script\n$")

    def test_on_a_terminal_progress_stays_in_its_line_and_tells_a_number_once(self):
        master, terminal = pty.openpty()
        with open(master, "rb", buffering=0) as said:
            with subprocess.Popen(["script/run"], cwd=self.tree, env=self.env, stdin=subprocess.DEVNULL,
                                  stdout=terminal, stderr=terminal) as script:
                os.close(terminal)
                text = b""
                while True:
                    try:
                        text += said.read(4096)
                    except OSError:  # the other end is closed
                        break
            self.assertEqual(script.returncode, 0, text)
        for what, all_of, numbers in (("Descargado e instalado, en %", 100, [0, 15, 27, 50, 60, 80, 100]), ("Compilado", 40, range(1, 41))):
            line, *_ = (line for line in text.decode().split("\r\n") if what in line)
            self.assertEqual(re.findall(rf"\r{what}: (\d+) de {all_of}", line), [str(number) for number in numbers])

    def test_what_the_system_objects_to_is_said_in_its_own_words(self):
        said = self.called("script/run", status=1, REASON="Unable to fetch: no space left")
        self.assertIn("\nE: Unable to fetch: no space left\nkelvora: no se ha podido instalar: g++ cmake", said)
        self.assertIn("\nE: held\n qt : Depends: another\nkelvora: ", self.called("script/run", status=1, UNMET="another"))
        self.assertNotIn("after it", said)
        said = self.called("script/lint format", status=1, REASON="You must be somebody else")
        self.assertIn("\nE: You must be somebody else\nkelvora: could not install: clang-format", said)

    def test_what_the_compiler_objects_to_is_said_and_where_the_rest_is(self):
        said = self.called("script/run", status=1, INSTALLED="yes", BROKEN="yes")
        self.assertIn("error: what is this", said)
        self.assertTrue(said.endswith("\nkelvora: la compilación ha fallado (build/release.log)\n"), said)

    def test_the_build_of_a_package_says_how_far_it_is_and_what_the_compiler_objects_to(self):
        said = self.called("script/package", status=1, INSTALLED="yes")  # there is no package then
        self.assertIn("\n[] Compilado: 40 de 40\n", said)
        said = self.called("script/package", status=1, INSTALLED="yes", BROKEN="yes")
        self.assertIn("error: what is this", said)
        self.assertRegex(said, r"kelvora: no se ha podido construir el paquete \(/.*/build\.log\)\n$")

    def test_clang_tidy_looks_again_at_what_has_changed_and_leaves_the_build_alone(self):
        build, source = self.tree / "build", self.tree / "one.cpp"
        build.mkdir()
        (build / "one.o").write_text("compiled")
        (build / "compile_commands.json").write_text(json.dumps(
            [{"directory": str(build), "file": str(source), "command": f"c++ -Wall -o one.o -c {source}"}]))

        def looks():
            return self.calls.read_text().count("clang-tidy-22 -p build --quiet")

        source.write_text("int one;")
        self.assertEqual(self.called("script/tidy build kept"), "1 1\n")
        self.assertEqual(looks(), 1)
        self.called("script/tidy build kept")
        self.assertEqual(looks(), 1)
        source.write_text("int wrong;")
        self.assertIn("int wrong;", self.called("script/tidy build kept", status=1))
        self.assertEqual(looks(), 2)
        self.assertEqual((build / "one.o").read_text(), "compiled")
