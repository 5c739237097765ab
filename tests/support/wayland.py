"""Desktops of today: what is Wayland's in them, without a screen."""

import socket
import struct
import time

from desktop import LIMIT, PAUSE, X11, wait_for
from gi.repository import Gio, GLib

# The keys' numbers on a keyboard from the United States, as the kernel counts them: rows of keys behind the first one's.
ROWS = {1: "Escape 1 2 3 4 5 6 7 8 9 0 minus equal BackSpace Tab", 16: "q w e r t y u i o p", 28: "Return ctrl a s d f g h j k l",
        42: "shift", 44: "z x c v b n m", 56: "alt space", 59: "F1 F2 F3 F4 F5 F6 F7 F8 F9 F10",
        102: "Home Up Prior Left Right End Down Next Insert Delete", 125: "super"}
CODES = {key: number for first, row in ROWS.items() for number, key in enumerate(row.split(), first)} | {"Alt_L": 56}


class Wayland:
    """A display for a desktop with an accessibility bus, which is how its windows are seen."""

    def start(self, desktop):
        self._desktop = desktop
        X11.start_server(desktop, "640x480")  # beside it, as there always is one: Orca asks that for the keyboard
        desktop.env |= {"WAYLAND_DISPLAY": "wayland-kelvora", "XDG_SESSION_TYPE": "wayland"}
        self._start()
        # There is no keyboard before its first key, and that one no program gets.
        self.press(["shift"], PAUSE)

    def has_window(self, title):
        return title in self._desktop.windows()

    def active(self):
        """The title of the window that has the keyboard."""
        return next((title for title, is_active in self._desktop.windows().items() if is_active), "")

    def activate(self, title):
        """Waits until a window has the keyboard, which cannot be given to it."""
        self._desktop.wait_active(title)

    def press(self, keys, pause):
        for key in keys:
            parts = [CODES[part] for part in key.split("+")]
            for part, down in [(part, True) for part in parts] + [(part, False) for part in reversed(parts)]:
                self._event(part, down)
                time.sleep(pause)

    def _set(self, file, settings):
        """Writes the desktop's settings: no key repeats itself, see `X11`."""
        path = self._desktop.home / ".config" / file
        path.parent.mkdir(parents=True)
        path.write_text(settings)


class Mutter(Wayland):
    """GNOME's, with a screen of this size and more of GNOME's `settings`, as their keyfile has them."""

    command = ("mutter",)

    def __init__(self, screen="1366x768", settings=""):
        self._screen = screen
        self._settings = "[org/gnome/desktop/peripherals/keyboard]\nrepeat=false\n" + settings

    def _start(self):
        desktop = self._desktop
        desktop.env |= {"XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "keyfile"}
        self._set("glib-2.0/settings/keyfile", self._settings)
        desktop.start(*self.command, "--headless", "--wayland", "--no-x11", "--wayland-display",
                      desktop.env["WAYLAND_DISPLAY"], "--virtual-monitor", self._screen)
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._hands, = wait_for(self._ask_for_hands, self.command[0])
        self._tell_hands("Start")

    def _ask_for_hands(self):
        try:
            return self.ask("org.gnome.Mutter.RemoteDesktop", "CreateSession")
        except GLib.Error:  # it is not there yet
            return None

    def _event(self, number, down):
        self._tell_hands("NotifyKeyboardKeycode", "(ub)", number, down)

    def _tell_hands(self, method, types="()", *arguments):
        self.ask("org.gnome.Mutter.RemoteDesktop", method, types, *arguments, place=self._hands, interface=".Session")

    def ask(self, name, method, types="()", *arguments, place=None, interface=""):
        """Calls a method of what has this name on the bus; the answer."""
        place = place or "/" + name.replace(".", "/")
        return self._bus.call_sync(name, place, name + interface, method, GLib.Variant(types, arguments), None, 0, -1,
                                   None).unpack()


class KWin(Wayland):
    """KDE's."""

    def _start(self):
        desktop = self._desktop
        desktop.env |= {"XDG_CURRENT_DESKTOP": "KDE", "KWIN_WAYLAND_NO_PERMISSION_CHECKS": "1"}
        self._set("kcminputrc", "[Keyboard]\nKeyRepeat=nothing\n")
        desktop.start("kwin_wayland", "--virtual", "--width", "1366", "--height", "768", "--no-lockscreen",
                      "--socket", desktop.env["WAYLAND_DISPLAY"])
        place = desktop.runtime / desktop.env["WAYLAND_DISPLAY"]
        wait_for(place.exists, "KWin")
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(LIMIT)
        self._socket.connect(str(place))
        display, registry, self._hands = 1, 2, 3
        self._request(display, 1, registry)  # get_registry
        name = self._find(b"org_kde_kwin_fake_input\0")
        self._request(registry, 0, name, "org_kde_kwin_fake_input", 4, self._hands)  # bind
        self._request(self._hands, 0, "Kelvora", "a lesson")  # authenticate

    def _event(self, number, down):
        self._request(self._hands, 10, number, int(down))  # keyboard_key

    def _request(self, thing, request, *arguments):
        """Sends a request of Wayland's protocol; `arguments` are numbers and texts."""
        body = b""
        for argument in arguments:
            if isinstance(argument, str):
                text = argument.encode() + b"\0"
                body += struct.pack("=I", len(text)) + text + bytes(-len(text) % 4)
            else:
                body += struct.pack("=I", argument)
        self._socket.sendall(struct.pack("=II", thing, (8 + len(body)) << 16 | request) + body)

    def _find(self, interface):
        """The number under which the registry, which has been asked for, offers an interface."""
        told = b""
        while True:
            told += (more := self._socket.recv(65536))
            if not more:
                raise RuntimeError("KWin has ended")
            while len(told) >= 8 and len(told) >= (size := struct.unpack_from("=I", told, 4)[0] >> 16):
                name, length = struct.unpack_from("=II", told, 8)
                if told[16:16 + length] == interface:
                    return name
                told = told[size:]
