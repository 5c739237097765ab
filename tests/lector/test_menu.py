"""The main menu through the screen reader."""

import unittest

from pupil import *


class Menu(Lesson):
    def test_the_credits_are_heard(self):
        self.session.run(PROGRAM)
        self.session.wait_heard("botón")
        self.expect(window("KELVORA"), button("Representación gráfica"))
        self.assertEqual(self.session.language(), "es_ES")
        self.press("Alt_L", [CREDITS])
        self.session.press("Return")
        self.session.wait_heard("Aceptar")
        texts = self.session.heard()
        self.assertEqual(texts[-1:], button("Aceptar"))
        if OLD:
            self.assertEqual(texts[0], "alerta Kelvora.")
            self.assertIn("Autores", texts[1])
            self.assertEqual(len(texts), 3)
        self.assertTrue(self.session.presented("alerta Kelvora."))


if __name__ == "__main__":
    unittest.main(verbosity=2)
