"""How long the program takes from its start to its window, and how much memory it takes, beside a bare window and two
programs of other makers, in turns and in one run; with an accessibility bus and without.

Arguments: the program and the bare window.
"""

import pathlib
import statistics
import subprocess
import sys
import time

from Xlib import X
from Xlib.display import Display

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests/support"))
from desktop import LIMIT, Desktop

RUNS = 20
# The program's buttons whose screens leave the menu usable, in the order of tab.
MODELESS = (3, 4, 5, 6, 7, 10)


def start_bus(desktop):
    bus = desktop.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE, text=True)
    desktop.env |= {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip(), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    desktop.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
    time.sleep(1)


def open_program(desktop, events, *command):
    """Starts a program and waits for its window: milliseconds, and its process. `events` is a connection to the display."""
    root = events.screen().root
    root.change_attributes(event_mask=X.SubstructureNotifyMask)
    while events.pending_events():
        events.next_event()
    begin = time.monotonic()
    child = desktop.start(*command)
    while time.monotonic() - begin < LIMIT:
        if not events.pending_events():
            time.sleep(0.0005)
            continue
        event = events.next_event()
        if event.type != X.MapNotify or event.override:
            continue
        size = event.window.get_geometry()
        if size.width > 150 and size.height > 40:
            return 1000 * (time.monotonic() - begin), child
    raise RuntimeError(f"{command[0]} shows no window")


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
        desktop.wait_window("KELVORA")
        desktop.press(*["Tab"] * (button - before), "Return")
        before = button
        time.sleep(0.5)


def table(title, unit, rows):
    """Each program's median, and the ratios of ours to it, run by run."""
    print(f"\n{title:34}{unit:>8}{'Kelvora to it: min':>22}{'median':>8}{'max':>8}")
    for name, values in rows.items():
        ratios = [own / value for own, value in zip(rows["Kelvora"], values)]
        print(f"{name:34}{statistics.median(values):8.1f}{min(ratios):22.2f}{statistics.median(ratios):8.2f}{max(ratios):8.2f}")


def main(program, bare):
    commands = {"Kelvora": [program], "bare window": [bare], "kbruch": ["kbruch"], "jfractionlab": ["JFractionLab"]}
    for bus in (True, False):
        desktop = Desktop(LANG="C.UTF-8", NO_AT_BRIDGE="0" if bus else "1")
        events = Display(desktop.env["DISPLAY"])
        try:
            if bus:
                start_bus(desktop)
            times = {name: [] for name in commands}
            sizes = {name: [] for name in commands}
            for run in range(RUNS):
                for name, command in commands.items():
                    elapsed, child = open_program(desktop, events, *command)
                    times[name].append(elapsed)
                    if run < 3:
                        time.sleep(2)  # until it has settled
                        sizes[name].append(memory(child))
                        if name == "Kelvora":
                            open_modeless(desktop)
                            time.sleep(1)
                            sizes.setdefault("Kelvora, all modeless screens", []).append(memory(child))
                    desktop.end(child)
                    time.sleep(0.1)
            where = "with an accessibility bus" if bus else "without an accessibility bus"
            table(f"Start, {where}", "ms", times)
            table(f"Memory, {where}", "MiB", sizes)
        finally:
            events.close()
            desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
