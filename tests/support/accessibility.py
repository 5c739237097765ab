"""The accessibility bus for who asks programs there: a test, or the screen reader."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi

# A program is given up for dead after 0.8 s without an answer, and the reader then says nothing more of it. Here the
# machine may stand still for as long.
Atspi.set_timeout(30000, 30000)
