"""Faults from outside the program: what the pupil's desktop may do to it in the middle of a lesson."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

HERE = pathlib.Path(__file__).parent
sys.path += [str(HERE.parent / "lector"), str(HERE.parent / "support")]
from desktop import LIMIT, AccessibleDesktop, wait_for
from pupil import MENU, button, editable, said, window
from session import OLD, TITLE_KEY, Session

PROGRAM = os.environ["KELVORA"]
SUM = "SUMA DE FRACCIONES"
KEYS = "F4 dice el marcador."
QUANTITY = "Fracción de una cantidad"
ANSWER = "Numerador del resultado"
READING = re.compile(r" ?(\w+ \w+\+\w+ \w+=)")


def buttons(desktop, title):
    """The buttons of a box, when it is there."""
    return wait_for(lambda: {name for role, name, _ in desktop.things(title) if "button" in role}, title)


class Reader(unittest.TestCase):
    """With a screen reader on."""

    maxDiff = None

    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)

    def open_sum(self):
        """Starts the program and opens the sum; the program, and the exercise as it is read."""
        session = self.session
        program = session.start(PROGRAM)
        session.wait_heard("botón")
        session.heard()
        for name in MENU[1:MENU.index("Suma de fracciones") + 1]:
            session.press("Tab")
            self.assertEqual(session.heard(1), button(name))
        session.press("Return")
        match = session.wait_heard_match(READING)
        heard = session.heard()
        self.assertEqual(heard[-len(said("")):], said(match.group()))
        return program, match[1]

    def press(self, key, *parts):
        self.session.press(key)
        expected = [text for part in parts for text in part]
        self.assertEqual(self.session.heard(len(expected)), expected)

    def work_from_the_start(self, exercise):
        """Goes to the answer and works there."""
        self.press("ctrl+Left", editable(ANSWER, ""), said("cero ceros"))
        self.press("F3", said(" " + exercise))
        self.press("alt+b", said(ANSWER))
        self.press("BackSpace")
        self.work(exercise)

    def work(self, exercise):
        """Reads, types an answer and hears what becomes of it; the focus is in the empty numerator of the answer."""
        self.press("F3", said(exercise))
        self.press("3", ["3 " if OLD else "3"])
        self.press("F3", said(" " + exercise + "tres ceros"))
        self.press("Return", said("Resultado incorrecto"))

    def leave(self, program):
        """Closes the sum and the menu by their keys: the program still answers, and ends as it should."""
        self.session.press("alt+F4")
        self.session.press("alt+F4")
        self.assertEqual(program.wait(LIMIT), 0)

    def test_the_reader_dies_and_comes_back(self):
        program, exercise = self.open_sum()
        self.session.end_reader()
        before = self.session.all_texts()
        self.session.press("ctrl+Left", "3", "BackSpace")
        wait_for(lambda: self.session.box_texts(SUM).get("Mensajes") == "cero ceros", "the key in silence")
        self.assertEqual(self.session.all_texts(), before)
        back = self.session.start_reader()
        expected = window(SUM, KEYS if OLD else "") + editable(ANSWER, "")
        self.assertEqual(back[-len(expected):], expected)
        self.press(TITLE_KEY, [SUM])
        self.press("F3", said(" " + exercise))
        self.press("BackSpace")
        self.work(exercise)
        self.leave(program)

    def test_the_accessibility_bus_dies(self):
        program, _ = self.open_sum()
        self.session.end(self.session.bus)
        self.session.end_reader()
        before = self.session.all_texts()
        self.session.press("F3", "ctrl+Left", "3", "Return", "alt+F4")
        self.session.wait_closed(SUM)
        self.session.press("Tab", "Return")
        self.session.wait_window("DIFERENCIA DE FRACCIONES")
        self.leave(program)
        self.assertEqual(self.session.all_texts(), before)

        # When the bus is back, the program started anew is heard.
        self.session.start_bus()
        self.session.start_reader()
        self.session.heard()
        program, exercise = self.open_sum()
        self.work_from_the_start(exercise)
        self.leave(program)

    def test_without_translations(self):
        session = self.session
        folder = session.home / "bin"
        folder.mkdir()
        shutil.copy(PROGRAM, folder)
        plugins, = pathlib.Path("/usr/lib").glob("*/qt6/plugins")
        (folder / "qt.conf").write_text(f"[Paths]\nPlugins={plugins}\nTranslations=/nonexistent\n")
        program = session.start(folder / "kelvora")
        session.wait_heard("botón")
        session.press("Alt_L", "Return")
        session.wait_heard("Aceptar")
        self.assertEqual(buttons(session, "Kelvora"), {"Aceptar"})
        session.press("Return")
        session.wait_active("KELVORA")
        session.press("Tab", "Tab", "Return")
        session.wait_active(QUANTITY)
        session.press("F3")
        session.wait_active("Introducir cantidad")
        self.assertEqual(buttons(session, "Introducir cantidad"), {"Aceptar", "Cancelar"})
        session.press("Escape")
        session.wait_active(QUANTITY)
        session.heard()
        session.press("Menu")
        session.heard()
        session.press("Down")
        session.wait_heard("Select All")
        session.press("Escape")
        self.leave(program)

    def test_without_fonts(self):
        session = self.session
        nothing = session.home / "fonts.conf"
        nothing.write_text('<?xml version="1.0"?><fontconfig><dir>/nonexistent</dir></fontconfig>')
        session.env["FONTCONFIG_FILE"] = str(nothing)
        program, exercise = self.open_sum()
        self.work_from_the_start(exercise)
        self.leave(program)


class Alone(unittest.TestCase):
    def setUp(self):
        self.desktop = AccessibleDesktop()
        self.addCleanup(self.desktop.close)

    def texts(self, title=SUM):
        return self.desktop.box_texts(title)

    def begin(self, *command):
        program = self.desktop.start(*(command or [PROGRAM]))
        self.desktop.wait_window("KELVORA")
        self.desktop.wait_active("KELVORA")
        return program

    def open(self, name, title):
        self.desktop.press(*["Tab"] * MENU.index(name), "Return")
        wait_for(lambda: self.texts(title), title)
        self.desktop.wait_active(title)

    def work(self):
        """Works at a sum: what is read, typed, judged, cleared and solved, and the next exercise, all by its texts."""
        self.open("Suma de fracciones", SUM)
        texts = self.texts()
        self.assertRegex(texts["Mensajes"], READING)
        exercise = texts["Mensajes"].strip()
        self.desktop.press("F3")
        wait_for(lambda: self.texts().get("Mensajes") == exercise, "the reading")
        self.desktop.press("ctrl+Left", "9", "Tab", "9", "9", "Return")
        wait_for(lambda: self.texts().get("Resultado") == "Resultado incorrecto", "the verdict")
        self.assertEqual(self.texts()["Marcador"], "Ejercicios:  1; Errores:  1")
        self.assertEqual(self.texts()[ANSWER], "9")
        self.desktop.press("alt+v")
        total = sum(int(texts[f"Numerador de la {which} fracción"]) for which in ("primera", "segunda"))
        wait_for(lambda: self.texts().get(ANSWER) == f"{total}", "the solution")
        self.desktop.press("alt+c")
        wait_for(lambda: self.texts().get(ANSWER) == "" and READING.fullmatch(self.texts().get("Mensajes", "")), "another exercise")

    def leave(self, program, title=SUM):
        self.desktop.press("alt+F4")
        self.desktop.wait_active("KELVORA")
        self.desktop.press("alt+F4")
        self.assertEqual(program.wait(LIMIT), 0)

    def enter(self, key, title, *values):
        """Gives values of one's own into boxes that a key opens, one after the other."""
        self.desktop.press(key)
        for value in values:
            self.desktop.wait_active(title)
            box = wait_for(lambda: self.texts(title), title)
            self.desktop.type(value)
            self.desktop.press("Return")
            wait_for(lambda: self.texts(title) != box | dict.fromkeys(box, value), "the next box, or none")

    def test_in_any_locale(self):
        kept = []
        for locale, point in (("C", "."), ("es_ES.UTF-8", ","), ("ar_EG.UTF-8", "٫"), ("", ".")):
            with self.subTest(locale=locale):
                program = self.begin("env", f"LANG={locale}", PROGRAM)
                self.open(QUANTITY, QUANTITY)
                kept.append([(role, name) for role, name, _ in self.desktop.things(QUANTITY) if role != "label"])
                # Of zero anything is a whole part, so that nothing is asked before the quantity that is no multiple.
                self.enter("F3", "Introducir cantidad", "0")
                self.enter("F2", "Introducir fracción", "1", "3")
                self.enter("F3", "Introducir cantidad", "10")
                self.assertEqual(buttons(self.desktop, "Introducir cantidad"), {"Sí", "No"})
                self.desktop.press("alt+s")
                self.desktop.wait_active(QUANTITY)
                texts = self.texts(QUANTITY)
                self.assertEqual([texts[name] for name in ("Numerador", "Denominador", "Cantidad")], ["1", "3", "10"])
                self.desktop.press("alt+v")
                wait_for(lambda: self.texts(QUANTITY).get("Resultado") == f"3{point}333", "the solution")
                self.leave(program, QUANTITY)
        self.assertEqual(kept[1:], kept[:1] * 3)

    def test_the_clock_is_set_back(self):
        library, = pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1")
        clock = self.desktop.home / "clock"
        clock.write_text("@2026-11-21 12:00:00")
        bus = dict(self.desktop.env)
        self.desktop.env |= {"LD_PRELOAD": str(library), "FAKETIME_NO_CACHE": "1", "FAKETIME_TIMESTAMP_FILE": str(clock),
                             "FAKETIME_DONT_FAKE_MONOTONIC": "1"}
        program = self.begin()
        self.desktop.env = bus
        clock.write_text("@2020-01-01 12:00:00")
        self.work()
        self.leave(program)

    def test_the_display_goes_away(self):
        program = self.desktop.start(PROGRAM, stderr=subprocess.PIPE, text=True)
        self.desktop.wait_window("KELVORA")
        self.desktop.end(self.desktop.display.server)
        self.assertEqual(program.wait(LIMIT), 1)  # and no signal
        self.assertIn("X11 connection broke", program.stderr.read())
        program.stderr.close()

    def test_the_screen_gets_smaller(self):
        program = self.begin()
        for command in (["--newmode", "small", "0", "640", "0", "0", "640", "480", "0", "0", "480"],
                        ["--addmode", "screen", "small"], ["--output", "screen", "--mode", "small"]):
            subprocess.run(["xrandr", *command], env=self.desktop.env, check=True)
        wait_for(lambda: "640 x 480" in self.desktop.output("xrandr"), "the smaller screen")
        self.open("Completa la serie", "Completa la serie")  # 800 pixels wide on a larger screen
        shown = self.desktop.output("xdotool", "search", "--name", "^Completa la serie$", "getwindowgeometry")
        width, height = map(int, re.search(r"Geometry: (\d+)x(\d+)", shown).groups())
        self.assertTrue(width <= 640 and height <= 480, shown)
        self.leave(program, "Completa la serie")
        program = self.begin()
        self.work()
        self.leave(program)

    def test_little_memory(self):
        program = self.begin("prlimit", f"--as={300 * 1024 * 1024}", PROGRAM)
        self.work()
        self.leave(program)
        program = self.desktop.start("prlimit", f"--as={60 * 1024 * 1024}", PROGRAM, stderr=subprocess.PIPE, text=True)
        self.assertNotEqual(program.wait(LIMIT), 0)
        self.assertNotEqual(program.stderr.read(), "")
        program.stderr.close()

    def test_the_menu_is_closed_first(self):
        program = self.begin()
        self.open("Suma de fracciones", SUM)
        self.desktop.wait_window("KELVORA")
        self.desktop.press("alt+F4")
        self.desktop.wait_closed("KELVORA")
        self.desktop.wait_window(SUM)
        self.desktop.press("F3")
        wait_for(lambda: not self.texts().get("Mensajes", " ").startswith(" "), "the reading")
        self.assertIsNone(program.poll())
        self.desktop.press("alt+F4")
        self.assertEqual(program.wait(LIMIT), 0)

    def test_words_behind_its_name_change_nothing(self):
        program = self.begin(PROGRAM, "suma", "/dev/null")
        self.assertEqual({name for role, name, _ in self.desktop.things("KELVORA") if "button" in role}, set(MENU))
        self.desktop.press("Tab", "alt+F4")  # the window manager may not see a desktop's very first key
        self.assertEqual(program.wait(LIMIT), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
