"""Keys that follow each other without a pause, as macro keys and braille keyboards send them, with the screen reader on: they
take effect in the order in which they were pressed, and none is lost.
"""

import json
import os
import subprocess
import unittest

from pupil import MENU, PROGRAM
from session import SUPPORT, Session, wait_for

ROUNDS = max(1, int(os.environ.get("KELVORA_ROUNDS", "20")))


class Keys(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.close)

    def close(self):
        failed = any(case is self for case, _ in self._outcome.result.errors + self._outcome.result.failures)
        self.session.close(keep=failed)

    def open_screen(self, name, title):
        self.session.start(PROGRAM)
        self.session.wait_heard("botón")
        for _ in range(MENU.index(name)):
            self.session.press("Tab")
        self.session.press("Return")
        self.session.wait_window(title)
        self.eye = self.session.start("/usr/bin/python3", str(SUPPORT / "things.py"), "--each-line", title,
                                      stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def boxes(self):
        """The texts of the boxes, by their names."""
        print(file=self.eye.stdin, flush=True)
        return {name: text for role, name, text in json.loads(self.eye.stdout.readline()) if role == "text"}

    def wait_boxes(self, condition, what):
        """Waits until the boxes are so; their texts."""
        seen = {}

        def look():
            seen.update(self.boxes())
            return condition(seen)

        wait_for(look, what, said=lambda: seen)
        return self.boxes()  # what was read before that, of one look, may be older

    def open_product(self):
        self.open_screen("Producto de fracciones", "PRODUCTO DE FRACCIONES")
        self.clear()

    def clear(self, box="Numerador del resultado"):
        """Empties the answer, and goes there."""
        self.session.press("alt+b")
        self.wait_boxes(lambda boxes: boxes[box] == "", "an empty answer")

    def judge_a_digit(self, key):
        """The digit empties the verdict box, and the key fills it: the last of the two is seen."""
        self.open_product()
        before = self.boxes()
        for i in range(ROUNDS):
            self.session.send("5", key)
            answer = "5" * (i % 10 + 1)
            after = self.wait_boxes(lambda boxes: boxes["Marcador"] != before["Marcador"]
                                    and boxes["Numerador del resultado"] == answer, f"{answer} and its verdict")
            self.assertEqual(after["Resultado"].strip(), "Resultado incorrecto", i)
            before = after
            if len(answer) == 10:
                self.clear()

    def test_a_digit_and_the_access_key_behind_it(self):
        self.judge_a_digit("alt+h")

    def test_a_digit_and_enter_behind_it(self):
        self.judge_a_digit("Return")

    def test_a_digit_and_a_key_of_the_screen_behind_it(self):
        self.open_product()
        for i in range(ROUNDS):
            before = self.boxes()["Mensajes"]
            self.session.send("5", "F3")
            after = self.wait_boxes(lambda boxes: boxes["Mensajes"] != before and boxes["Numerador del resultado"] == "5",
                                    "the reading")
            self.assertTrue(after["Mensajes"].endswith("=cinco ceros"), (i, after["Mensajes"]))
            self.clear()

    def test_a_digit_and_control_with_a_cursor_key_behind_it(self):
        self.open_product()
        for _ in range(ROUNDS):
            before = self.boxes()["Mensajes"]
            self.session.send("5", "ctrl+Left")
            # Afterwards it would have come into the box that the cursor key leads to, which is locked.
            self.wait_boxes(lambda boxes: boxes["Mensajes"] != before and boxes["Numerador del resultado"] == "5",
                            "the digit in the answer")
            self.clear()

    def test_a_digit_and_the_key_of_a_menu_entry_behind_it(self):
        self.open_screen("Fracción de una cantidad", "Fracción de una cantidad")
        self.clear("Resultado")
        for _ in range(ROUNDS):
            self.session.send("5", "F3")
            wait_for(lambda: self.session.has_window("Introducir cantidad"), "the input box")
            self.wait_boxes(lambda boxes: boxes["Resultado"] == "5", "the digit in the answer")
            self.session.press("Escape")
            self.session.wait_closed("Introducir cantidad")
            self.session.wait_active("Fracción de una cantidad")
            self.clear("Resultado")

    def test_the_key_of_a_menu_and_those_that_lead_through_it_behind_it(self):
        self.open_screen("Suma de fracciones", "SUMA DE FRACCIONES")
        for _ in range(ROUNDS):
            self.session.send("alt+o", "Down", "Down", "Return")
            self.session.wait_window("Combinaciones de teclas")
            self.session.press("Return")
            self.session.wait_closed("Combinaciones de teclas")
            self.session.wait_active("SUMA DE FRACCIONES")


if __name__ == "__main__":
    unittest.main(verbosity=2)
