"""What the keys of a Wayland desktop that lead from window to window do to a pupil. For X11 see test_modal."""

import re
import unittest

from pupil import *
from session import DISPLAY, OLD, wait_for

PRODUCT = "PRODUCTO DE FRACCIONES"
BOX = "Combinaciones de teclas"

# Seconds that the program gives to a reader which hears of keys beside it.
LEAD = 0.03

# Those that lead to another window, take this one away, or make it smaller.
KEYS = {"mutter": ["alt+Escape", "alt+Tab", "super+h", "super+Down", "super+Up", "super+Down"],
        "kwin": ["alt+Tab", "alt+shift+Tab", "super+Next", "super+Down"]}[DISPLAY]


HIDE = {"mutter": "super+h", "kwin": "super+Next"}[DISPLAY]


class Front(Lesson):
    first = "Numerador de la primera fracción"  # which has the focus
    name, title, sign = "Producto de fracciones", PRODUCT, " por "

    def setUp(self):
        super().setUp()
        self.open_screen(PROGRAM, self.name, self.first)
        self.session.wait_active(self.title)

    def tearDown(self):
        pass  # how much of a window that came and went was read is the reader's affair

    def lead_to(self, title, key):
        """Presses a key of the desktop; afterwards it is the window of this title that is in front, if not by itself, then by
        the key that leads to the next. What is heard of it."""
        self.session.press(key)
        texts = self.session.heard()
        if not self.session.display.active():
            self.session.press("alt+Tab")
        wait_for(lambda: self.session.display.active() == title, f"{title} in front after {key}",
                 said=self.session.display.active)
        return texts + self.session.heard()

    def hear_reading(self, key):
        """Asks for the reading after a key of the desktop, and hears it."""
        reading = re.compile(rf" ?\w+ \w+{re.escape(self.sign)}\w+ \w+=")
        self.session.press("F3")
        wait_for(lambda: any(map(reading.fullmatch, self.session.heard_so_far())), f"the reading after {key}")


class FrontWaiting(Front):
    """A window waits for the pupil: it is never one of those behind it that is in front, which are blocked, dead to every key
    and silent."""

    def test_a_screen(self):
        delays = []
        for key in KEYS:
            self.lead_to(PRODUCT, key)
            self.hear_reading(key)
            delays.append(self.session.delay())
        if not OLD:  # the key itself has reached the reader before, which on a busy machine could cut its answer off
            self.assertGreater(min(delays), LEAD, delays)

    def test_a_box(self):
        self.session.press("alt+o", "Down", "Return")
        self.session.wait_active(BOX)
        for key in KEYS:
            self.lead_to(BOX, key)
        self.session.press("Return")
        self.session.wait_active(PRODUCT)


class FrontMenus(Front):
    name, title, sign = "Suma de fracciones", "SUMA DE FRACCIONES", "+"

    def test_an_open_one_closes_where_another_window_gets_the_keyboard(self):
        self.session.press("alt+o")
        self.session.wait_heard("Cantidades")
        self.lead_to("KELVORA", HIDE)
        self.assertEqual(set(self.session.windows()), {"KELVORA", self.title})  # and no menu, which would be one, too
        self.assertIn(self.first, " ".join(self.lead_to(self.title, "alt+Tab")))
        self.hear_reading(HIDE)


if __name__ == "__main__":
    unittest.main(verbosity=2)
