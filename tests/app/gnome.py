"""Takes pictures of all windows as a new GNOME shows them, at each enlargement and in each of the looks that it can be switched
to, and puts them on a sheet, a row for each window. Its arguments are the sheet and a folder for the single pictures.
"""

import json
import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
import gi

gi.require_version("GdkPixbuf", "2.0")
from desktop import SUPPORT, AccessibleDesktop, wait_for
from gi.repository import GdkPixbuf
from wayland import Mutter

WINDOWS = json.loads((SUPPORT / "given.json").read_text())
SCREEN = "2520x1680"  # which all the enlargements divide
SHRINK = 0.4  # of the sheet
GAP = 16  # pixels between its pictures
INTERFACE = "[org/gnome/desktop/interface]\n"
LOOKS = [("100", 1, ""), ("125", 1.25, ""), ("150", 1.5, ""), ("175", 1.75, ""), ("200", 2, ""),
         ("dark", 1, f"{INTERFACE}color-scheme='prefer-dark'\ngtk-theme='Adwaita-dark'\n"),
         ("contrast", 1, "[org/gnome/desktop/a11y/interface]\nhigh-contrast=true\n"),
         ("large-text", 1, f"{INTERFACE}text-scaling-factor=1.25\n")]


class GnomeShell(Mutter):
    """With all that GNOME puts round windows."""

    command = ("gnome-shell", "--unsafe-mode")  # or it lets nobody take pictures

    def _start(self):
        super()._start()
        environment = {name: self._desktop.env[name] for name in
                       ("HOME", "XDG_RUNTIME_DIR", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "GSETTINGS_BACKEND")}
        # Of the programs that the bus starts for others, as of the one that tells Qt of GNOME's settings.
        self.ask("org.freedesktop.DBus", "UpdateActivationEnvironment", "(a{ss})", environment)
        wait_for(lambda: self._eval("Main.layoutManager._startingUp") == "false", "GNOME")
        self._eval("Main.overview.hide()")
        wait_for(lambda: self._eval("Main.overview.visible") == "false", "the overview to be away")

    def _eval(self, script):
        return self.ask("org.gnome.Shell", "Eval", "(s)", script)[1]

    def enlarge(self, factor):
        name = "org.gnome.Mutter.DisplayConfig"
        serial, monitors, _, _ = self.ask(name, "GetCurrentState")
        (connector, *_), modes, _ = monitors[0]
        self.ask(name, "ApplyMonitorsConfig", "(uua(iiduba(ssa{sv}))a{sv})", serial, 1,
                 [(0, 0, factor, 0, True, [(connector, modes[0][0], {})])], {})

    def picture(self, path):
        """Takes a picture of the window in front, with what is round it, in the screen's own pixels."""
        area = json.loads(json.loads(self._eval("(r => JSON.stringify([r.x, r.y, r.width, r.height]))"
                                                "(global.display.focus_window.get_frame_rect())")))
        self.ask("org.gnome.Shell.Screenshot", "ScreenshotArea", "(iiiibs)", *area, False, str(path),
                 place="/org/gnome/Shell/Screenshot")
        return GdkPixbuf.Pixbuf.new_from_file(str(path))


def pictures(look, factor, settings, folder):
    """Of all windows in a look, one after the other."""
    desktop = AccessibleDesktop(GnomeShell(SCREEN, settings), LANG="es_ES.UTF-8", LANGUAGE="es",
                                **{key: os.environ[key] for key in ("LOCPATH",) if key in os.environ})
    try:
        desktop.display.enlarge(factor)
        desktop.start(os.environ["KELVORA"])
        for i, window in enumerate(WINDOWS):
            if i > 0:
                number = int(window["opened by"].removeprefix("Command1(").removesuffix(")"))
                desktop.press(*["Tab"] * number, "Return")
            desktop.wait_window(window["title"])
            time.sleep(1)  # until GNOME has faded it in
            yield desktop.display.picture(folder / f"{i:02}-{look}.png")
            if i > 0:
                desktop.press("alt+F4")
                desktop.wait_window(WINDOWS[0]["title"])
                desktop.press(*["shift+Tab"] * number)
    finally:
        desktop.close()


def sheet(columns):
    rows = list(zip(*columns))
    widths = [max(picture.get_width() for picture in column) for column in columns]
    heights = [max(picture.get_height() for picture in row) for row in rows]
    whole = GdkPixbuf.Pixbuf.new(GdkPixbuf.Colorspace.RGB, False, 8, sum(widths) + GAP * (len(widths) + 1),
                                 sum(heights) + GAP * (len(heights) + 1))
    whole.fill(0xA0A0A0FF)
    top = GAP
    for row, height in zip(rows, heights):
        left = GAP
        for picture, width in zip(row, widths):
            picture.composite(whole, left, top, picture.get_width(), picture.get_height(), left, top, 1, 1,
                              GdkPixbuf.InterpType.NEAREST, 255)
            left += width + GAP
        top += height + GAP
    return whole


def shrunk(picture, factor):
    return picture.scale_simple(round(picture.get_width() * SHRINK / factor), round(picture.get_height() * SHRINK / factor),
                                GdkPixbuf.InterpType.HYPER)


if __name__ == "__main__":
    place, folder = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    sheet([[shrunk(picture, factor) for picture in pictures(look, factor, settings, folder)]
           for look, factor, settings in LOOKS]).savev(place, "png", [], [])
