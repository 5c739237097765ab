"""The package in a new system: installed, used from its menu entry, removed, and nothing left of it."""

import os
import pathlib
import re
import subprocess
import tempfile
import time
import unittest

LIMIT = 30  # seconds to wait for anything at all; only a failure takes that long
ENTRY = "/usr/share/applications/org.kelvora.kelvora.desktop"
# What packages and programs of the system itself write at any time.
ELSEWHERE = ("/proc", "/sys", "/dev", "/run", "/tmp", "/kelvora", "/var/log", "/var/lib/dpkg", "/var/cache")


def wait_for(condition, what):
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.1)
    raise AssertionError(f"waited {LIMIT} s for {what}")


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
        os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp()
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            os.environ["DISPLAY"] = f":{pipe.readline().strip()}"
        self.start("openbox", "--sm-disable")
        wait_for(lambda: "window id" in run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")
        self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        import gi
        gi.require_version("Atspi", "2.0")

    def start(self, *command, **options):
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(child.wait)
        self.addCleanup(child.terminate)

    def press(self, *keys):
        run("xdotool", "key", *keys)

    def test_is_installed_used_and_removed(self):
        before = files()
        run("dpkg", "--install", "kelvora.deb")
        self.assertIn(ENTRY, files() - before)
        self.use()
        run("dpkg", "--purge", "kelvora")
        self.assertEqual(files() - before, set())

    def use(self):
        """Works one exercise, as the menu entry starts the program, and leaves it."""
        subprocess.run(["gio", "launch", ENTRY], check=True, stdout=subprocess.DEVNULL)  # a pipe would stay open with it
        wait_for(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^KELVORA$"],
                                        stdout=subprocess.DEVNULL).returncode == 0, "the menu")
        time.sleep(1)  # until the window manager has given it the keyboard
        self.press(*["Tab"] * 6, "Return")
        exercise = wait_for(lambda: box_texts("SUMA DE FRACCIONES"), "the sum")
        reading = exercise["Mensajes"]
        self.assertRegex(reading, r"\w+ \w+\+\w+ \w+=")
        self.press("ctrl+Left")
        total = sum(int(exercise[f"Numerador de la {which} fracción"]) for which in ("primera", "segunda"))
        run("xdotool", "type", "--delay", "50", f"{total}")
        self.press("Tab")
        run("xdotool", "type", "--delay", "50", exercise["Denominador de la primera fracción"])
        self.press("Return")
        wait_for(lambda: box_texts("SUMA DE FRACCIONES")["Resultado"] == "Resultado correcto ", "the verdict")
        self.assertEqual(box_texts("SUMA DE FRACCIONES")["Marcador"], "Ejercicios:  1; Errores:  0")
        self.press("alt+F4")
        wait_for(lambda: not box_texts("SUMA DE FRACCIONES"), "the sum to close")
        self.assertTrue(running())
        self.press("alt+F4")
        wait_for(lambda: not running(), "the program to end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
