"""Faults from outside the program: what the pupil's desktop may do to it in the middle of a lesson."""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest

HERE = pathlib.Path(__file__).parent
sys.path += [str(HERE.parent / "lector"), str(HERE.parent / "support")]
from desktop import LIMIT, Desktop, wait_for
from session import Session

PROGRAM = os.environ["KELVORA"]
SUM = "SUMA DE FRACCIONES"


class Reader(unittest.TestCase):
    """With a screen reader on."""

    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)
        self.program = self.session.start(PROGRAM)
        self.session.wait_heard("botón")
        for _ in range(6):
            self.session.press("Tab")
            self.session.heard(1)
        self.session.press("Return")
        self.session.wait_heard("=")
        self.reading = self.session.heard()[-1].strip()

    def leave(self):
        """Closes the sum and the menu by their keys: the program still answers, and ends as it should."""
        self.session.press("alt+F4")
        self.session.press("alt+F4")
        self.assertEqual(self.program.wait(LIMIT), 0)

    def test_the_reader_dies_and_comes_back(self):
        self.session.end_reader()
        self.session.press("ctrl+Left", "3")
        self.session.start_reader()
        self.session.press("F3")
        self.session.wait_heard(self.reading.removesuffix("."))
        self.leave()

    def test_the_accessibility_bus_dies(self):
        self.session.end(self.session.bus)
        self.session.press("F3", "ctrl+Left", "3", "Return")
        self.leave()


class Alone(unittest.TestCase):
    def desktop(self):
        desktop = Desktop()
        self.addCleanup(desktop.close)
        return desktop

    def work(self, desktop, *command, before=lambda: None):
        """Starts the program, works at a sum and leaves."""
        program = desktop.start(*(command or [PROGRAM]))
        desktop.wait_window("KELVORA")
        before()
        desktop.press(*["Tab"] * 6, "Return")
        desktop.wait_window(SUM)
        desktop.press("F3", "ctrl+Left", "3", "Return", "alt+c", "alt+v", "alt+F4")
        desktop.wait_closed(SUM)
        desktop.wait_window("KELVORA")
        desktop.press("alt+F4")
        self.assertEqual(program.wait(LIMIT), 0)

    def test_without_fonts(self):
        desktop = self.desktop()
        nothing = desktop.home / "fonts.conf"
        nothing.write_text('<?xml version="1.0"?><fontconfig><dir>/nonexistent</dir></fontconfig>')
        desktop.env["FONTCONFIG_FILE"] = str(nothing)
        self.work(desktop)

    def test_without_translations(self):
        desktop = self.desktop()
        folder = desktop.home / "bin"
        folder.mkdir()
        shutil.copy(PROGRAM, folder)
        plugins, = pathlib.Path("/usr/lib").glob("*/qt6/plugins")
        (folder / "qt.conf").write_text(f"[Paths]\nPlugins={plugins}\nTranslations=/nonexistent\n")
        self.work(desktop, folder / "kelvora")

    def test_in_any_locale(self):
        desktop = self.desktop()
        for locale in ("C", "es_ES.UTF-8", "ar_EG.UTF-8", ""):
            with self.subTest(locale=locale):
                self.work(desktop, "env", f"LANG={locale}", PROGRAM)

    def test_the_clock_is_set_back(self):
        library, = pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1")
        desktop = self.desktop()
        clock = desktop.home / "clock"
        clock.write_text("@2026-11-21 12:00:00")
        desktop.env |= {"LD_PRELOAD": str(library), "FAKETIME_NO_CACHE": "1", "FAKETIME_TIMESTAMP_FILE": str(clock),
                        "FAKETIME_DONT_FAKE_MONOTONIC": "1"}
        self.work(desktop, before=lambda: clock.write_text("@2020-01-01 12:00:00"))

    def test_the_display_goes_away(self):
        desktop = self.desktop()
        program = desktop.start(PROGRAM, stderr=subprocess.PIPE, text=True)
        desktop.wait_window("KELVORA")
        desktop.end(desktop.display)
        self.assertEqual(program.wait(LIMIT), 1)  # and no signal
        self.assertIn("X11 connection broke", program.stderr.read())
        program.stderr.close()

    def test_the_screen_gets_smaller(self):
        desktop = self.desktop()

        def shrink():
            for command in (["--newmode", "small", "0", "800", "0", "0", "800", "600", "0", "0", "600"],
                            ["--addmode", "screen", "small"], ["--output", "screen", "--mode", "small"]):
                subprocess.run(["xrandr", *command], env=desktop.env, check=True)
            wait_for(lambda: "800 x 600" in desktop.output("xrandr"), "the smaller screen")

        self.work(desktop, before=shrink)

    def test_little_memory(self):
        desktop = self.desktop()
        self.work(desktop, "prlimit", f"--as={300 * 1024 * 1024}", PROGRAM)


if __name__ == "__main__":
    unittest.main(verbosity=2)
