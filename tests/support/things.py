"""Prints, in JSON, what the windows of the program hold for whoever asks the accessibility bus: of each thing its role, name
and text. With an argument, of the window of that title; with --each-line, anew for each line that it is given; with
--windows, of each window that is shown its title and whether it is the active one.

A program of its own, since what is on the bus and does not answer, as a test that waits, keeps others from starting.
"""

import json
import sys

from accessibility import Atspi


def collect(thing):
    text = Atspi.Text.get_text(thing, 0, -1) if "Text" in thing.get_interfaces() else ""
    return [(thing.get_role_name(), thing.get_name(), text)] + [
        entry for i in range(thing.get_child_count()) for entry in collect(thing.get_child_at_index(i))]


def windows():
    desktop = Atspi.get_desktop(0)
    programs = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    return [program.get_child_at_index(i) for program in programs if program and program.get_name() == "Kelvora"
            for i in range(program.get_child_count())]


def things(titles):
    return [entry for window in windows() if titles in ([], [window.get_name()]) for entry in collect(window)]


def active():
    return [(window.get_name(), window.get_state_set().contains(Atspi.StateType.ACTIVE)) for window in windows()
            if window.get_state_set().contains(Atspi.StateType.SHOWING)]


titles = [word for word in sys.argv[1:] if not word.startswith("--")]
for _ in sys.stdin if "--each-line" in sys.argv else [""]:
    print(json.dumps(active() if "--windows" in sys.argv else things(titles)), flush=True)
