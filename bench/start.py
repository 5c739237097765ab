"""How long the program takes from its start to its window, and how much memory it takes, beside a bare window and two
programs of other makers, in turns and in one run; with an accessibility bus and without.

Arguments: the program and the bare window.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, display

RUNS = 20
LIMIT = 30  # seconds to wait for anything
# The program's buttons whose screens leave the menu usable, in the order of tab.
MODELESS = (3, 4, 5, 6, 7, 10)


class Desktop:
    def __init__(self, bus):
        self.home = tempfile.TemporaryDirectory()
        self.env = {"PATH": os.environ["PATH"], "HOME": self.home.name, "XDG_RUNTIME_DIR": self.home.name,
                    "LANG": "C.UTF-8", "NO_AT_BRIDGE": "0" if bus else "1"}
        os.chmod(self.home.name, 0o700)
        self.children = []
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            self.env["DISPLAY"] = f":{pipe.readline().strip()}"
        if bus:
            self.env |= {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1"}
            address = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"], env=self.env,
                                       stdout=subprocess.PIPE, text=True)
            self.children.append(address)
            self.env["DBUS_SESSION_BUS_ADDRESS"] = address.stdout.readline().strip()
            self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
        self.start("openbox", "--sm-disable")
        self.display = display.Display(self.env["DISPLAY"])
        self.root = self.display.screen().root
        check = self.display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        end = time.monotonic() + LIMIT
        while not self.root.get_full_property(check, X.AnyPropertyType) and time.monotonic() < end:
            time.sleep(0.05)
        time.sleep(1)

    def start(self, *command, **options):
        child = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL, **options)
        self.children.append(child)
        return child

    def open(self, *command):
        """Starts a program and waits for its window: milliseconds, and its process."""
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        while self.display.pending_events():
            self.display.next_event()
        begin = time.monotonic()
        child = self.start(*command)
        while time.monotonic() - begin < LIMIT:
            if not self.display.pending_events():
                time.sleep(0.0005)
                continue
            event = self.display.next_event()
            if event.type != X.MapNotify or event.override:
                continue
            size = event.window.get_geometry()
            if size.width > 150 and size.height > 40:
                return 1000 * (time.monotonic() - begin), child
        raise RuntimeError(f"{command[0]} shows no window")

    def end(self, child):
        child.kill()
        child.wait()
        self.children.remove(child)
        time.sleep(0.1)

    def close(self):
        self.display.close()
        for child in reversed(self.children[:]):
            self.end(child)
        self.home.cleanup()


def memory(child):
    """Proportional set size in MiB, of a process and of those that it has started."""
    kib, waiting = 0, [child.pid]
    while waiting:
        pid = waiting.pop()
        proc = pathlib.Path(f"/proc/{pid}")
        kib += sum(int(line.split()[1]) for line in (proc / "smaps_rollup").read_text().splitlines()
                   if line.startswith("Pss:"))
        waiting += map(int, (proc / f"task/{pid}/children").read_text().split())
    return kib / 1024


def open_modeless(desktop):
    """Opens every screen that may stand beside the menu."""
    before = 0
    for button in MODELESS:
        subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^KELVORA$", "windowactivate", "--sync",
                        "key", *["Tab"] * (button - before), "Return"], env=desktop.env, check=True)
        before = button
        time.sleep(0.5)


def table(title, unit, rows, bare):
    print(f"\n{title:34}{unit:>8}{'ratio to bare':>16}")
    for name, values in rows.items():
        value = statistics.median(values)
        print(f"{name:34}{value:8.1f}{value / statistics.median(rows[bare]):16.2f}")


def main(program, bare):
    commands = {"bare window": [bare], "Kelvora": [program], "kbruch": ["kbruch"], "jfractionlab": ["JFractionLab"]}
    for bus in (True, False):
        desktop = Desktop(bus)
        try:
            times = {name: [] for name in commands}
            sizes = {name: [] for name in commands}
            for run in range(RUNS):
                for name, command in commands.items():
                    elapsed, child = desktop.open(*command)
                    times[name].append(elapsed)
                    if run < 3:
                        time.sleep(2)  # until it has settled
                        sizes[name].append(memory(child))
                        if name == "Kelvora":
                            open_modeless(desktop)
                            time.sleep(1)
                            sizes.setdefault("Kelvora, all modeless screens", []).append(memory(child))
                    desktop.end(child)
            where = "with an accessibility bus" if bus else "without an accessibility bus"
            table(f"Start, {where}", "ms", times, "bare window")
            table(f"Memory, {where}", "MiB", sizes, "bare window")
        finally:
            desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
