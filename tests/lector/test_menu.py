"""The main menu through the screen reader."""

import unittest

from pupil import *


class Menu(Lesson):
    def test_a_round_and_the_credits(self):
        program = self.session.start(PROGRAM)
        self.session.wait_heard("botón")
        self.expect_window("KELVORA", button(MENU[0]))
        self.assertEqual(self.session.language(), "es_ES")
        for name in MENU[1:] + MENU[:1]:
            self.press("Tab", button(name))
        self.press("Alt_L", [CREDITS])
        self.session.press("Return")
        self.session.wait_heard("Aceptar")
        texts = self.hear()
        self.assertEqual(texts[-1:], button("Aceptar"))
        if OLD:
            self.assertEqual(texts[-3], "alerta Kelvora.")
            self.assertIn("Autores", texts[-2])
            # The menu closes first, and the reader may have the time to say what has the focus behind it.
            self.assertIn(texts[:-3], ([], button(MENU[0])))
        self.assertTrue(self.session.presented("alerta Kelvora."))
        self.press("Return", window_again("KELVORA"), button(MENU[0]))
        self.press("shift+Tab", button("Salir"))
        self.session.press("Return")
        self.assertEqual(program.wait(20), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
