"""How long the program takes from its start to its window, by the clock and of the processors, and how much memory it takes,
beside a bare window, two programs of other makers and perhaps more, in turns and in one run; with an accessibility bus and
without.

Arguments: the program and the bare window, and more as NAME=PROGRAM.
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


def processes(child):
    """The folders in which the kernel tells of a process and of those that it has started."""
    waiting = [child.pid]
    while waiting:
        proc = pathlib.Path(f"/proc/{waiting.pop()}")
        yield proc
        waiting += map(int, (proc / f"task/{proc.name}/children").read_text().split())


def memory(child, kind="Pss"):
    """MiB of a process and of those that it has started: their proportional set, or what the kernel counts as another kind."""
    return sum(int(line.split()[1]) for proc in processes(child) for line in (proc / "smaps_rollup").read_text().splitlines()
               if line.startswith(f"{kind}:")) / 1024


def processor_time(child):
    """Milliseconds that its threads have been running until now."""
    return sum(int((thread / "schedstat").read_text().split()[0]) for proc in processes(child)
               for thread in (proc / "task").iterdir()) / 1e6


def open_modeless(desktop):
    """Opens every screen that may stand beside the menu."""
    before = 0
    for button in MODELESS:
        desktop.wait_window("KELVORA")
        desktop.press(*["Tab"] * (button - before), "Return")
        before = button
        time.sleep(0.5)


def table(title, unit, rows):
    """Of each program's values the least, the median and the greatest, and of the ratios of ours to it, run by run."""
    print(f"\n{title:62}{unit}{'Kelvora to it':>24}")
    for name, values in rows.items():
        ratios = [ours / value for ours, value in zip(rows["Kelvora"], values)]
        figures = "".join(f"{figure(values):8.1f}" for figure in (min, statistics.median, max))
        print(f"{name:34}{figures}    {''.join(f'{figure(ratios):8.2f}' for figure in (min, statistics.median, max))}")


def main(program, bare, *others):
    commands = {"Kelvora": [program], "bare window": [bare], "kbruch": ["kbruch"], "jfractionlab": ["JFractionLab"]}
    commands |= {name: [other] for name, other in (other.split("=") for other in others)}
    for bus in (True, False):
        desktop = Desktop(LANG="C.UTF-8", NO_AT_BRIDGE="0" if bus else "1")
        events = Display(desktop.env["DISPLAY"])
        try:
            if bus:
                start_bus(desktop)
            times, busy, sizes, own = ({name: [] for name in commands} for _ in range(4))
            for run in range(RUNS):
                for name, command in commands.items():
                    elapsed, child = open_program(desktop, events, *command)
                    times[name].append(elapsed)
                    busy[name].append(processor_time(child))
                    if run < 3:
                        time.sleep(2)  # until it has settled
                        sizes[name].append(memory(child))
                        own[name].append(memory(child, "Private_Dirty"))
                        if name == "Kelvora":
                            open_modeless(desktop)
                            time.sleep(1)
                            sizes.setdefault("Kelvora, all modeless screens", []).append(memory(child))
                    desktop.end(child)
                    time.sleep(0.1)
            where = "with an accessibility bus" if bus else "without an accessibility bus"
            table(f"Start, {where}", "ms", times)
            table(f"Processor time to the window, {where}", "ms", busy)
            table(f"Memory, {where}", "MiB", sizes)
            table(f"Memory written to, {where}", "MiB", own)
        finally:
            events.close()
            desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
