"""How long a pupil waits for the first sound: from the press of a key to the accessibility event of what it says, as seen
on the accessibility bus with a screen reader on: for keys of the sum screen, each beside a character that is typed into a
bare window, which Qt tells of by itself, in turns.

Arguments: the program and the bare window.
"""

import os
import pathlib
import statistics
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests/lector"))
os.environ.setdefault("KELVORA_QT", "6.8")  # of the reader's habits nothing is asked here
from session import Session

ROUNDS = 4
PRESSES = 12  # of each key in each round

# Presses a key on the display and waits for the announcement, in one process, so that none of the time is a process's
# start. It reads names of keys and prints milliseconds.
PRESSER = """\
import ctypes, sys, time
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

xlib, xtest = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
xlib.XOpenDisplay.restype = ctypes.c_void_p
xlib.XStringToKeysym.restype = ctypes.c_ulong
display = ctypes.c_void_p(xlib.XOpenDisplay(None))
loop = GLib.MainLoop()
context = loop.get_context()
heard = []
listener = Atspi.EventListener.new(lambda event: heard.append(time.monotonic()))
for event in ("object:announcement", "object:state-changed:showing", "object:text-changed:insert"):
    listener.register(event)

def settle(seconds):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        context.iteration(False)
        time.sleep(0.001)

settle(0.5)
for line in sys.stdin:
    *held, key = (xlib.XKeysymToKeycode(display, ctypes.c_ulong(xlib.XStringToKeysym(name.encode())))
                  for name in line.strip().split("+"))
    for code in held:
        xtest.XTestFakeKeyEvent(display, code, 1, 0)
    xlib.XFlush(display)
    settle(0.05)  # a finger holds Alt before another presses the letter
    heard.clear()
    start = time.monotonic()
    for code, down in [(key, 1), (key, 0)] + [(code, 0) for code in held]:
        xtest.XTestFakeKeyEvent(display, code, down, 0)
    xlib.XFlush(display)
    while not heard and time.monotonic() - start < 5:
        context.iteration(False)
    print(1000 * (heard[0] - start) if heard else "nothing", flush=True)
    settle(0.25)
"""


def main(program, bare):
    session = Session()
    try:
        session.start(bare)
        session.wait_heard("Mensajes")
        session.start(program)
        session.wait_heard("botón")
        for _ in range(6):
            session.press("Tab")
        session.wait_heard("Suma de fracciones")
        session.press("Return")
        session.wait_heard("=")
        presser = subprocess.Popen(["/usr/bin/python3", "-c", PRESSER], env=session.env, stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, text=True)

        def bring(title):
            subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$", "windowactivate", "--sync"],
                           env=session.env, check=True, capture_output=True)
            session.heard()

        def press(key):
            presser.stdin.write(key + "\n")
            presser.stdin.flush()
            answer = presser.stdout.readline().strip()
            if answer == "nothing":
                raise RuntimeError(f"{key} was not answered; logs in {session.home}")
            return float(answer)

        # What leads to the control where the key is pressed, and the key.
        keys = {"F2": ([], "F2"), "Enter on an answer": (["ctrl+Left"], "Return"), "Continuar": ([], "Alt_L+c")}
        times = {name: ([], []) for name in keys}
        for _ in range(ROUNDS):
            for name, (way, key) in keys.items():
                bring("SUMA DE FRACCIONES")
                session.press(*way)
                session.heard()
                times[name][0].extend(press(key) for _ in range(PRESSES))
                bring("bare")
                times[name][1].extend(press("7") for _ in range(PRESSES))
        print(f"{'key':20}{'Kelvora ms':>12}{'bare ms':>10}{'ratio: min':>13}{'median':>8}{'max':>8}   "
              f"of {ROUNDS * PRESSES} pairs")
        for name, (own, others) in times.items():
            ratios = [a / b for a, b in zip(own, others)]
            print(f"{name:20}{statistics.median(own):12.2f}{statistics.median(others):10.2f}"
                  f"{min(ratios):13.2f}{statistics.median(ratios):8.2f}{max(ratios):8.2f}")
        presser.stdin.close()
        presser.wait(10)
    finally:
        session.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
