"""What the keys of a Wayland desktop do while a window waits for the pupil: it is never one of those behind it that is in
front, which are blocked, dead to every key and silent. For X11 see test_modal.
"""

import re
import unittest

from pupil import *
from session import DISPLAY, wait_for

PRODUCT = "PRODUCTO DE FRACCIONES"
BOX = "Combinaciones de teclas"

# Those that lead to another window, take this one away, or make it smaller.
KEYS = {"mutter": ["alt+Escape", "alt+Tab", "super+h", "super+Down", "super+Up", "super+Down"],
        "kwin": ["alt+Tab", "alt+shift+Tab", "super+Next", "super+Down"]}[DISPLAY]


class Front(Lesson):
    title = PRODUCT

    def setUp(self):
        super().setUp()
        self.open_screen(PROGRAM, "Producto de fracciones", "Numerador de la primera fracción")
        self.session.wait_active(PRODUCT)

    def tearDown(self):
        pass  # how much of a window that came and went was read is the reader's affair

    def press_each(self, title):
        """Presses each key of the desktop; afterwards it is the window of this title that is in front, if not by itself, then
        by the key that leads to the next."""
        for key in KEYS:
            self.session.press(key)
            self.session.heard()
            if not self.session.display.active():
                self.session.press("alt+Tab")
            wait_for(lambda: self.session.display.active() == title, f"{title} in front after {key}",
                     said=self.session.display.active)
            yield key

    def test_of_a_screen(self):
        reading = re.compile(r" ?\w+ \w+ por \w+ \w+=")
        for key in self.press_each(PRODUCT):
            self.session.heard()
            self.session.press("F3")
            wait_for(lambda: any(map(reading.fullmatch, self.session.heard_so_far())), f"the reading after {key}")

    def test_of_a_box(self):
        self.session.press("alt+o", "Down", "Return")
        self.session.wait_active(BOX)
        for key in self.press_each(BOX):
            pass
        self.session.press("Return")
        self.session.wait_active(PRODUCT)


if __name__ == "__main__":
    unittest.main(verbosity=2)
