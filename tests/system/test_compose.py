"""Characters that take several keys, as a Spanish keyboard has them: no box asks for one, but what is typed is to stand there."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import AccessibleDesktop, wait_for
from edition import PROGRAM

SUM = "SUMA DE FRACCIONES"


class Compose(unittest.TestCase):
    def test_a_dead_key(self):
        desktop = AccessibleDesktop(LANG="C.UTF-8")
        self.addCleanup(desktop.close)
        desktop.output("setxkbmap", "es")
        desktop.start(PROGRAM)
        desktop.wait_window("KELVORA")
        desktop.press(*["Tab"] * 6, "Return")
        desktop.wait_window(SUM)
        desktop.press("ctrl+Left")
        for keys, typed in ((["1", "dead_acute", "a"], "1á"), (["dead_grave", "o", "2"], "1áò2")):
            desktop.press(*keys)
            wait_for(lambda: desktop.box_texts(SUM)["Numerador del resultado"] == typed, typed,
                     said=lambda: desktop.box_texts(SUM))
