"""The main menu through the screen reader."""

import os
import re
import unittest

import test_ejercicios
import test_operaciones
from pupil import *

CREDITS_TEXT = ("Kelvora: ejercicios de fracciones.|Autores: el equipo de Kelvora.|"
                "Contacto: el apartado «Ayuda» del manual de Kelvora.|"
                f"Manual: {os.environ['KELVORA_MANUAL']}.|Versión {os.environ['VERSION']}.")


class Screens(unittest.TestCase):
    def test_each_has_a_lesson(self):
        lessons = {lesson.title for module in (test_ejercicios, test_operaciones) for lesson in vars(module).values()
                   if isinstance(lesson, type) and "test_a_lesson" in vars(lesson)}
        self.assertEqual(lessons, {window["title"] for window in GIVEN[1:]})

    def test_each_has_one_under_wine_in_the_order_of_the_menu(self):
        titles = {window["opened by"]: window["title"] for window in GIVEN[1:]}
        source = (SUPPORT.parent / "windows/test_windows.py").read_text()
        self.assertEqual(re.findall(r'^    \("(.*?)", ', source, re.MULTILINE),
                         [titles[f"Command1({i})"] for i in range(len(titles))])


class Menu(Lesson):
    def test_a_round_and_the_credits(self):
        program = self.session.start(PROGRAM)
        self.session.wait_heard("botón")
        self.expect_window("KELVORA", button(MENU[0]))
        self.assertEqual(self.session.language(), "es_ES")
        for name in MENU[1:] + MENU[:1]:
            self.press("Tab", button(name))
        self.press("Alt_L", [CREDITS])
        self.press_return_for_box("Kelvora", CREDITS_TEXT, behind=button(MENU[0]))
        self.press("Return", window_again("KELVORA"), button(MENU[0]))
        self.press("shift+Tab", button("Salir"))
        self.session.press("Return")
        self.assertEqual(program.wait(20), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
