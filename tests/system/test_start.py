"""What the program says for itself on the command line, with no window and in Spanish."""

import os
import subprocess
import unittest

PROGRAM = os.environ["KELVORA"]


class Start(unittest.TestCase):
    maxDiff = None

    def run_program(self, *arguments, **more):
        """Its exit status, what it prints and what it complains of; the display and all else are taken away."""
        ended = subprocess.run([PROGRAM, *arguments], env={"PATH": os.environ["PATH"], "XDG_RUNTIME_DIR": "/nowhere"} | more,
                               capture_output=True, text=True, timeout=60)
        return ended.returncode, ended.stdout, ended.stderr

    def test_without_a_display_it_ends_with_a_line(self):
        for more in ({}, {"DISPLAY": ":4711"}, {"WAYLAND_DISPLAY": "nothing"}, {"QT_QPA_PLATFORM": "nothing"},
                     {"WAYLAND_DISPLAY": "nothing", "DISPLAY": ":4711", "XDG_SESSION_TYPE": "wayland"}):
            with self.subTest(more):
                self.assertEqual(self.run_program(**more),
                                 (1, "", "kelvora: no se puede abrir ninguna ventana: no hay pantalla, o falta la parte de Qt "
                                         "que la usa\n"))

    def test_the_version(self):
        self.assertEqual(self.run_program("--version"), (0, f"Kelvora {os.environ['VERSION']}\n", ""))

    def test_help(self):
        status, said, complaint = self.run_program("--help")
        self.assertEqual((status, complaint), (0, ""))
        self.assertTrue(said.startswith("Uso: kelvora [--help | --version]\n"), said)

    def test_another_option_is_refused(self):
        for option in ("--nada", "-h", "-platform", "--"):
            self.assertEqual(self.run_program("suma", option, "--help"),
                             (2, "", f"kelvora: opción desconocida: «{option}»; véase «kelvora --help»\n"))

    def test_what_a_desktop_adds_when_it_opens_programs_anew_is_no_option(self):
        status, _, complaint = self.run_program("-session", "--nada")
        self.assertEqual(status, 1)
        self.assertIn("no hay pantalla", complaint)

    def test_what_is_missing_beside_a_display_is_told(self):
        program = subprocess.Popen([PROGRAM], stderr=subprocess.PIPE, text=True,
                                   env={"PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "nothing;offscreen",
                                        "LC_ALL": "C.UTF-8"})  # of another locale newer Qt complains first
        self.addCleanup(program.stderr.close)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        self.assertIn('"nothing"', program.stderr.readline())


if __name__ == "__main__":
    unittest.main(verbosity=2)
