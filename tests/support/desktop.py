#!/usr/bin/python3
"""A desktop without a screen, and the programs that somebody starts there; perhaps with an accessibility bus. As a program
it runs the command that it is given on a large one.
"""

import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SUPPORT = pathlib.Path(__file__).resolve().parent
LIMIT = 30  # seconds to wait for anything at all; only a failure takes that long
PAUSE = 0.02  # seconds that fingers leave, at least, between the press and the release of keys


def wait_for(condition, what, limit=LIMIT, said=lambda: ""):
    """Waits until `condition` gives something true, which is returned. A failure tells what there is instead: `said`."""
    end = time.monotonic() + limit
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise TimeoutError(f"waited {limit} s for {what}; {said()}")


class Desktop:
    """`more` is added to the environment, in which there is nothing but where programs are and a home of its own. There
    each of them has its log. Keys and windows are those of its `display`.
    """

    def __init__(self, display=None, **more):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="kelvora-"))
        self.runtime = self.home / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.env = {"PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.runtime)} | more
        self.display = display or X11()
        self._children = []
        try:
            self._set_up()
        except BaseException:
            self.close(keep=True)
            raise

    def _set_up(self):
        self.display.start(self)

    def start(self, *command, **options):
        with open(self.home / f"{pathlib.Path(command[0]).name}.log", "ab") as log:
            options = {"stdin": subprocess.DEVNULL, "stdout": log, "stderr": log} | options
            child = subprocess.Popen(command, env=self.env, start_new_session=True, **options)
        self._children.append(child)
        return child

    def output(self, *command):
        """What a command prints, whether it succeeds or not."""
        return subprocess.run(command, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout

    def has_window(self, title):
        return self.display.has_window(title)

    def wait_window(self, title):
        """Waits for a window and gives it the keyboard; on X11 its number."""
        return self.display.activate(title)

    def wait_closed(self, title):
        wait_for(lambda: not self.has_window(title), f"{title} to close")

    def wait_active(self, title):
        wait_for(lambda: self.display.active() == title, f"{title} in front", said=self.display.active)

    def press(self, *keys):
        """Presses keys, or combinations as "ctrl+Left", one after the other as fingers do."""
        for key in keys:
            self.display.press([key], PAUSE)

    def send(self, *keys):
        """Presses keys as `press` does, but all at once."""
        self.display.press(keys, 0)

    def type(self, text):
        self.press(*("minus" if character == "-" else character for character in text))

    def end(self, child):
        """Ends a program and those that it has started."""
        with contextlib.suppress(ProcessLookupError, subprocess.TimeoutExpired):
            os.killpg(child.pid, signal.SIGTERM)
            child.wait(5)
        with contextlib.suppress(ProcessLookupError):
            os.killpg(child.pid, signal.SIGKILL)
        child.wait()
        self._children.remove(child)

    def close(self, keep=False):
        for child in reversed(self._children[:]):
            self.end(child)
        if keep:
            print(f"logs kept in {self.home}", file=sys.stderr)
        else:
            shutil.rmtree(self.home, ignore_errors=True)


class AccessibleDesktop(Desktop):
    """With an accessibility bus, where programs tell of themselves; the bus of the session has to be there."""

    def __init__(self, display=None, **more):
        super().__init__(display, DBUS_SESSION_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"],
                         QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", **more)

    def _set_up(self):
        super()._set_up()
        self.start_bus()

    def start_bus(self):
        self.bus = self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")

    def things(self, title=None):
        """What a window of the program holds, or all of its windows: role, name and text of each thing; nothing where there
        is no such window yet."""
        return [tuple(thing) for thing in self._look(*([title] if title else []))]

    def windows(self):
        """The titles of the program's windows and boxes, and of each whether it is the active one."""
        return dict(self._look("--windows"))

    def _look(self, *words):
        return json.loads(self.output("/usr/bin/python3", SUPPORT / "things.py", *words) or "[]")  # one may go meanwhile

    def box_texts(self, title):
        """The texts of the boxes of a window of the program, by their names, or nothing where there is no such window yet."""
        return {name: text for role, name, text in self.things(title) if role == "text"}


class X11:
    """A display for a desktop: Xvfb and openbox, with the hands and eyes of xdotool. `more` is for its environment."""

    def __init__(self, screen="1366x768", **more):
        self._screen = screen
        self._more = more

    def start(self, desktop):
        self._desktop = desktop
        desktop.env |= self._more
        self.server = self.start_server(desktop, self._screen)
        # A window that comes while the manager is still starting may never be shown: it is there when it runs its command.
        ready = desktop.home / "ready"
        desktop.start("openbox", "--sm-disable", "--startup", f"touch {ready}")
        wait_for(ready.exists, "the window manager")

    @staticmethod
    def start_server(desktop, screen):
        read, write = os.pipe()
        # Without -noreset it starts anew when its first client goes, and refuses the window manager meanwhile. -r: no key
        # repeats itself, lest one count for many where the machine stands still between its press and its release.
        server = desktop.start("Xvfb", "-displayfd", str(write), "-screen", "0", f"{screen}x24", "-nolisten", "tcp",
                               "-noreset", "-r", pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        desktop.env["DISPLAY"] = f":{number}"
        return server

    def has_window(self, title):
        return bool(self._find(title))

    def active(self):
        """The title of the window that has the keyboard."""
        return self._desktop.output("xdotool", "getactivewindow", "getwindowname").strip()

    def activate(self, title):
        """Waits for a window and gives it the keyboard; its number."""
        window = wait_for(lambda: self._find(title), title)
        self._do("windowactivate", "--sync", window)
        return window

    def press(self, keys, pause):
        between_presses = round(2000 * pause)  # of which it leaves a half between press and release
        self._do("key", "--clearmodifiers", "--delay", str(between_presses), *keys)

    def _find(self, title):
        return self._desktop.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").strip()

    def _do(self, *command):
        subprocess.run(["xdotool", *command], env=self._desktop.env, check=True)


if __name__ == "__main__":
    DESKTOP = Desktop(X11("5000x4000"))
    try:
        status = subprocess.run(sys.argv[1:], env=os.environ | {"DISPLAY": DESKTOP.env["DISPLAY"]}).returncode
    finally:
        DESKTOP.close()
    sys.exit(status)
