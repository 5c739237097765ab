"""A message is told in the way that the screen reader understands: as an announcement, which the older ones do not know, or
by a notification.
"""

import pathlib
import sys
import unittest

SUPPORT = pathlib.Path(__file__).parent.parent / "support"
sys.path.insert(0, str(SUPPORT))
from desktop import AccessibleDesktop, wait_for
from edition import PROGRAM, QT

OLD = ["object:state-changed"]
OF_TODAY = ["object:state-changed", "object:announcement"]
AS_OF_TODAY = "announcement" if QT >= (6, 8) else "notification"


class Readers(unittest.TestCase):
    def setUp(self):
        self.desktop = AccessibleDesktop()
        self.addCleanup(self.desktop.close)
        self.heard = self.desktop.home / "heard"

    def start_reader(self, events):
        with open(self.heard, "w") as file:
            reader = self.desktop.start("/usr/bin/python3", str(SUPPORT / "listener.py"), *events, stdout=file)
        wait_for(lambda: self.heard.read_text().startswith("listening\n"), "the reader")
        return reader

    def open_sum(self):
        self.desktop.start(PROGRAM)
        self.desktop.wait_window("KELVORA")
        self.desktop.press(*["Tab"] * 6, "Return")
        self.desktop.wait_window("SUMA DE FRACCIONES")

    def expect_exercise(self, way):
        """The first message after the reader's start is the exercise of the sum, told in this way."""
        told, text = wait_for(lambda: self.heard.read_text().splitlines()[1:2], "a message")[0].split(" ", 1)
        self.assertRegex(text, r"\w+ \w+\+\w+ \w+=")
        self.assertEqual(told, way)

    def test_of_old_asks_for_no_announcements(self):
        self.start_reader(OLD)
        self.open_sum()
        self.expect_exercise("notification")

    def test_of_today_asks_for_them(self):
        self.start_reader(OF_TODAY)
        self.open_sum()
        self.expect_exercise(AS_OF_TODAY)

    def test_one_goes_and_another_comes(self):
        reader = self.start_reader(OLD)
        self.open_sum()
        self.expect_exercise("notification")
        for events, way in (OF_TODAY, AS_OF_TODAY), (OLD, "notification"):
            self.desktop.end(reader)
            reader = self.start_reader(events)
            self.desktop.press("F3")
            self.expect_exercise(way)


if __name__ == "__main__":
    unittest.main(verbosity=2)
