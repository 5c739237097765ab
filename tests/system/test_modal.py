"""A screen that blocks the menu is one window with it to the desktop: whatever a pupil does with the one or the other, it is
never the dead menu that is in front.
"""

import os
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import AccessibleDesktop, wait_for

MENU = "KELVORA"
PRODUCT = "PRODUCTO DE FRACCIONES"


class Modal(unittest.TestCase):
    def setUp(self):
        self.desktop = AccessibleDesktop()
        self.addCleanup(self.desktop.close)
        self.desktop.start(os.environ["KELVORA"])
        self.menu = self.desktop.wait_window(MENU)
        self.desktop.press(*["Tab"] * 8, "Return")
        self.product = self.desktop.wait_window(PRODUCT)

    def do(self, action, window):
        subprocess.run(["xdotool", action, window], env=self.desktop.env, check=True)

    def expect_it_in_front(self):
        """It is the window that gets the keys, and answers."""
        self.desktop.wait_active(PRODUCT)
        before = wait_for(lambda: self.desktop.box_texts(PRODUCT), PRODUCT)["Mensajes"]
        self.desktop.press("F3")
        wait_for(lambda: self.desktop.box_texts(PRODUCT)["Mensajes"] != before, "the reading")

    def test_it_is_known_as_the_menus(self):
        told = self.desktop.output("xprop", "-id", self.product, "WM_TRANSIENT_FOR", "_NET_WM_STATE")
        self.assertIn(f"WM_TRANSIENT_FOR(WINDOW): window id # {int(self.menu):#x}", told)
        self.assertIn("_NET_WM_STATE_MODAL", told)

    def test_asking_for_the_menu_brings_it(self):
        self.do("windowactivate", self.menu)
        self.expect_it_in_front()

    def test_minimised_it_takes_the_menu_along_and_both_come_back(self):
        for window in (self.product, self.menu):
            self.do("windowminimize", window)
            wait_for(lambda: not self.desktop.has_window(PRODUCT) and not self.desktop.has_window(MENU), "both to be away")
            self.do("windowactivate", self.menu)
            self.expect_it_in_front()
            self.assertTrue(self.desktop.has_window(MENU))

    def test_closed_it_leaves_the_menu_alive(self):
        self.desktop.press("alt+F4")
        self.desktop.wait_closed(PRODUCT)
        self.desktop.wait_active(MENU)
        self.desktop.press("Return")
        self.desktop.wait_window(PRODUCT)


if __name__ == "__main__":
    unittest.main(verbosity=2)
