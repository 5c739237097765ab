"""A message is told in the way that the screen reader understands: as an announcement, which the older ones do not know, or
by a notification.
"""

import os
import pathlib
import sys
import unittest

SUPPORT = pathlib.Path(__file__).parent.parent / "support"
sys.path.insert(0, str(SUPPORT))
from desktop import AccessibleDesktop, wait_for

QT = tuple(int(part) for part in os.environ["KELVORA_QT"].split(".")[:2])


class Readers(unittest.TestCase):
    def tell(self, *events):
        """How a reader that has asked for these events is told the first exercise of the sum."""
        desktop = AccessibleDesktop()
        self.addCleanup(desktop.close)
        heard = desktop.home / "heard"
        with open(heard, "w") as file:
            desktop.start("/usr/bin/python3", str(SUPPORT / "listener.py"), *events, stdout=file)
        wait_for(lambda: heard.read_text().startswith("listening\n"), "the reader")
        desktop.start(os.environ["KELVORA"])
        desktop.wait_window("KELVORA")
        desktop.press(*["Tab"] * 6, "Return")
        way, text = wait_for(lambda: heard.read_text().splitlines()[1:2], "a message")[0].split(" ", 1)
        self.assertRegex(text, r"\w+ \w+\+\w+ \w+=")
        return way

    def test_of_old_asks_for_no_announcements(self):
        self.assertEqual(self.tell("object:state-changed"), "notification")

    def test_of_today_asks_for_them(self):
        self.assertEqual(self.tell("object:state-changed", "object:announcement"),
                         "announcement" if QT >= (6, 8) else "notification")


if __name__ == "__main__":
    unittest.main(verbosity=2)
