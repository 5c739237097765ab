"""What the program costs until its window stands still, counted in instructions, which a busy machine does not change.

As a program it prints the figure, in millions, of each program that it is given.
"""

import json
import pathlib
import re
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "support"))
import edition
from desktop import Desktop, wait_for

# The last ones, of each Qt, with the linker and the fonts of its Debian, and of the program that brings its own.
FIGURES = HERE / "instructions.json"
MARGIN = 1.05


def count(program, title):
    """Millions of instructions from the start to a window of this title in which nothing moves any more."""
    desktop = Desktop(LC_ALL="C.UTF-8", QT_HASH_SEED="0", QT_STYLE_OVERRIDE="Fusion", NO_AT_BRIDGE="1")
    try:
        child = desktop.start("valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program)
        desktop.wait_window(title)
        seen = [-1]

        def stands_still():
            """Whether the processor has had nothing to do for it in a number of looks."""
            times = pathlib.Path(f"/proc/{child.pid}/stat").read_text().rsplit(")", 1)[1].split()[11:13]
            seen[:] = seen + [times] if seen[-1] == times else [times]
            return len(seen) > 40

        wait_for(stands_still, "rest")
        desktop.end(child)
        log = (desktop.home / "valgrind.log").read_text()
        return int(re.search(rf"=={child.pid}== Collected : (\d+)", log)[1]) / 1e6  # what it forks counts for itself
    finally:
        desktop.close()


class Cost(unittest.TestCase):
    def test_of_the_start(self):
        figures = json.loads(FIGURES.read_text())
        which = "portable" if edition.IS_OTHER else ".".join(map(str, edition.QT))
        now = count(edition.PROGRAM, "KELVORA")
        self.assertIn(which, figures, f"{now:.1f} million; {FIGURES} has no figure for that yet")
        self.assertLess(now, figures[which] * MARGIN)


if __name__ == "__main__":
    for program in sys.argv[1:]:
        print(f"{count(program, 'KELVORA'):.1f}")
