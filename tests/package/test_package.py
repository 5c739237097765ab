"""The package in a new system: installed, used from its menu entry, removed, and nothing left of it."""

import contextlib
import os
import pathlib
import re
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import AccessibleDesktop, wait_for

SUM = "SUMA DE FRACCIONES"
ENTRY = "/usr/share/applications/org.kelvora.kelvora.desktop"
# What packages and programs of the system itself write at any time.
ELSEWHERE = ("/proc", "/sys", "/dev", "/run", "/tmp", "/kelvora", "/var/log", "/var/lib/dpkg", "/var/cache")


def files():
    """All files of the system and of the user's home."""
    found = set()
    for folder, folders, names in os.walk("/"):
        folders[:] = [name for name in folders if not os.path.join(folder, name).startswith(ELSEWHERE)]
        found.update(os.path.join(folder, name) for name in folders + names)
    return found


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def running():
    for path in pathlib.Path("/proc").glob("[0-9]*/comm"):
        with contextlib.suppress(OSError):  # it may have ended meanwhile
            if path.read_text().strip() == "kelvora":
                return True
    return False


class Package(unittest.TestCase):
    def setUp(self):
        self.desktop = AccessibleDesktop(HOME=os.environ["HOME"])
        self.addCleanup(self.desktop.close)

    def test_is_installed_used_and_removed(self):
        before = files()
        run("dpkg", "--install", "kelvora.deb")
        self.assertIn(ENTRY, files() - before)
        manual = re.search(r"\nExec=xdg-open (.*)\n", pathlib.Path(ENTRY).read_text())[1]
        self.assertIn(manual, files() - before)
        self.use()
        run("dpkg", "--purge", "kelvora")
        self.assertEqual(files() - before, set())

    def use(self):
        """Works one exercise, as the menu entry starts the program, and leaves it."""
        self.desktop.start("gio", "launch", ENTRY)
        self.desktop.wait_window("KELVORA")
        self.desktop.press(*["Tab"] * 6, "Return")
        exercise = wait_for(lambda: self.desktop.box_texts(SUM), "the sum")
        self.assertRegex(exercise["Mensajes"], r"\w+ \w+\+\w+ \w+=")
        self.desktop.press("ctrl+Left")
        total = sum(int(exercise[f"Numerador de la {which} fracción"]) for which in ("primera", "segunda"))
        self.desktop.type(f"{total}")
        self.desktop.press("Tab")
        self.desktop.type(exercise["Denominador de la primera fracción"])
        self.desktop.press("Return")
        wait_for(lambda: self.desktop.box_texts(SUM)["Resultado"] == "Resultado correcto ", "the verdict")
        self.assertEqual(self.desktop.box_texts(SUM)["Marcador"], "Ejercicios:  1; Errores:  0")
        self.desktop.press("alt+F4")
        self.desktop.wait_closed(SUM)
        self.assertTrue(running())
        self.desktop.press("alt+F4")
        wait_for(lambda: not running(), "the program to end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
