"""A desktop without a screen: a display, a window manager, and the programs that somebody starts there."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

LIMIT = 30  # seconds to wait for anything at all; only a failure takes that long


def wait_for(condition, what):
    """Waits until `condition` gives something true, which is returned."""
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"waited {LIMIT} s for {what}")


class Desktop:
    """`more` is added to the environment, in which there is nothing but where programs are and a home of its own."""

    def __init__(self, **more):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="kelvora-desktop-"))
        self.env = {"PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home)} | more
        self.children = []
        read, write = os.pipe()
        # Without -noreset it starts anew when its first client goes, and refuses the window manager meanwhile.
        self.display = self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset",
                                  pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            self.env["DISPLAY"] = f":{pipe.readline().strip()}"
        self.start("openbox", "--sm-disable")
        # A window that comes while the manager is still starting may never be shown.
        wait_for(lambda: "window id" in self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")

    def start(self, *command, **options):
        options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL} | options
        child = subprocess.Popen(command, env=self.env, start_new_session=True, **options)
        self.children.append(child)
        return child

    def output(self, *command):
        """What a command prints, whether it succeeds or not."""
        return subprocess.run(command, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout

    def has_window(self, title):
        return bool(self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$"))

    def wait_window(self, title):
        """Waits for a window and gives it the keyboard; its number."""
        window = wait_for(lambda: self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").strip(), title)
        subprocess.run(["xdotool", "windowactivate", "--sync", window], env=self.env, check=True)
        return window

    def press(self, *keys):
        subprocess.run(["xdotool", "key", *keys], env=self.env, check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "50", text], env=self.env, check=True)

    def end(self, child):
        """Ends a program and those that it has started."""
        try:
            os.killpg(child.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass  # all of them have ended themselves
        child.wait()
        self.children.remove(child)

    def close(self):
        for child in reversed(self.children[:]):
            self.end(child)
        shutil.rmtree(self.home, ignore_errors=True)
