"""The package in a new system: installed, used from its menu entry, removed, and nothing left of it."""

import os
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import Desktop, wait_for

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
    return any(path.read_text().strip() == "kelvora" for path in pathlib.Path("/proc").glob("[0-9]*/comm"))


def box_texts(window):
    """The texts of the boxes of a window of the program, by their names, or nothing where there is no such window yet."""
    from gi.repository import Atspi
    texts = {}

    def collect(thing):
        if "Text" in thing.get_interfaces():
            texts[thing.get_name()] = Atspi.Text.get_text(thing, 0, -1)
        for i in range(thing.get_child_count()):
            collect(thing.get_child_at_index(i))

    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        if program and program.get_name() == "Kelvora":
            for j in range(program.get_child_count()):
                if program.get_child_at_index(j).get_name() == window:
                    collect(program.get_child_at_index(j))
    return texts


class Package(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(HOME=os.environ["HOME"], QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                               DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.desktop.close)
        self.desktop.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
        os.environ |= self.desktop.env  # for what asks the bus here
        import gi
        gi.require_version("Atspi", "2.0")

    def test_is_installed_used_and_removed(self):
        before = files()
        run("dpkg", "--install", "kelvora.deb")
        self.assertIn(ENTRY, files() - before)
        self.use()
        run("dpkg", "--purge", "kelvora")
        self.assertEqual(files() - before, set())

    def use(self):
        """Works one exercise, as the menu entry starts the program, and leaves it."""
        self.desktop.start("gio", "launch", ENTRY)
        self.desktop.wait_window("KELVORA")
        self.desktop.press(*["Tab"] * 6, "Return")
        exercise = wait_for(lambda: box_texts("SUMA DE FRACCIONES"), "the sum")
        self.assertRegex(exercise["Mensajes"], r"\w+ \w+\+\w+ \w+=")
        self.desktop.press("ctrl+Left")
        total = sum(int(exercise[f"Numerador de la {which} fracción"]) for which in ("primera", "segunda"))
        self.desktop.type(f"{total}")
        self.desktop.press("Tab")
        self.desktop.type(exercise["Denominador de la primera fracción"])
        self.desktop.press("Return")
        wait_for(lambda: box_texts("SUMA DE FRACCIONES")["Resultado"] == "Resultado correcto ", "the verdict")
        self.assertEqual(box_texts("SUMA DE FRACCIONES")["Marcador"], "Ejercicios:  1; Errores:  0")
        self.desktop.press("alt+F4")
        wait_for(lambda: not self.desktop.has_window("SUMA DE FRACCIONES"), "the sum to close")
        self.assertTrue(running())
        self.desktop.press("alt+F4")
        wait_for(lambda: not running(), "the program to end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
