"""A desktop without screen or loudspeaker on which a real screen reader runs, and a pupil's hands and ears.

The voice writes down what it says, see `voice`.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
SUPPORT = HERE.parent / "support"
sys.path.insert(0, str(SUPPORT))
import transcript
from desktop import LIMIT, X11, AccessibleDesktop, wait_for
from wayland import KWin, Mutter

READY = "Lector de pantalla activado."

# So many looks, 20 ms apart, at which there is nothing new, and the reader has finished. Looks, not time, which passes
# while the machine stands still.
QUIET = 25

SPEECHD_CONF = """\
LogLevel 3
Timeout 0
CommunicationMethod "unix_socket"
AudioOutputMethod "alsa"
DefaultRate 0
DefaultLanguage "es"
AddModule "transcript" "{voice}" "transcript.conf"
DefaultModule transcript
Include "clients/*.conf"
"""

DISPLAYS = {"x11": X11, "gnome": lambda: X11(XDG_CURRENT_DESKTOP="GNOME"), "mutter": Mutter, "kwin": KWin}

DISPLAY = os.environ.get("KELVORA_DISPLAY", "x11")

# The reader before Orca 46, which takes no announcements: Debian 12's. It is not asked itself, since before it says its
# version it may start an accessibility bus, in the way of that of the lesson.
OLD = int(re.search(r'^version *= "(\d+)', pathlib.Path("/usr/lib/python3/dist-packages/orca/orca_platform.py").read_text(),
                    re.MULTILINE)[1]) < 46

# The reader's commands for the title of a window and for where one is, in full. Where the machine stands still, a key that
# the reader does not claim in time is the program's: the reader's own Insert+KP_Enter would press the button in focus; and
# of KP_Enter twice it would see two single ones. To the program these two are nothing.
TITLE_KEY, WHERE_KEY = "F9", "F8"
# With all modifiers looked at, none pressed, once.
KEY_BINDINGS = {handler: [[key, "365", "0", "1"]]
                for handler, key in (("getTitleHandler", TITLE_KEY), ("whereAmIDetailedHandler", WHERE_KEY))}

# Of the keys, only the characters typed are echoed: names of function keys and the like are cut off, or not, by the
# speed of the fingers, and are the reader's own affair.
ORCA_SETTINGS = {"enableKeyEcho": True, "enableFunctionKeys": False, "enableModifierKeys": False, "enableActionKeys": False,
                 "enableNavigationKeys": False}

ACCESSIBILITY_BUS = (SUPPORT / "accessibility.py").read_text() + """
from gi.repository import Gio, GLib
session = Gio.bus_get_sync(Gio.BusType.SESSION)
address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, -1, None)
flags = Gio.DBusConnectionFlags
bus = Gio.DBusConnection.new_for_address_sync(address.unpack()[0], flags.AUTHENTICATION_CLIENT |
                                              flags.MESSAGE_BUS_CONNECTION, None, None)
"""

# Whoever is on the bus answers: Orca 48 sometimes hangs over its own arrival there.
PING = ACCESSIBILITY_BUS + """
daemon = "org.freedesktop.DBus"
names = bus.call_sync(daemon, "/org/freedesktop/DBus", daemon, "ListNames", None, None, 0, -1, None).unpack()[0]
for name in names:
    if name.startswith(":") and name != bus.get_unique_name():
        bus.call_sync(name, "/", "org.freedesktop.DBus.Peer", "Ping", None, None, 0, 5000, None)
"""

LANGUAGE = ACCESSIBILITY_BUS + """
desktop = Atspi.get_desktop(0)
programs = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
program = next(program for program in programs if program.get_name() == "Kelvora")
print(bus.call_sync(program.app.bus_name, "/org/a11y/atspi/accessible/root", "org.a11y.atspi.Application", "GetLocale",
                    GLib.Variant("(u)", (0,)), None, 0, -1, None).unpack()[0])
"""


class Session(AccessibleDesktop):
    """A desktop with voice and reader; `start` starts a program there."""

    def __init__(self):
        self._read = 0
        self._letters = set()  # pressed beside Alt or Control since the last `heard`
        super().__init__(DISPLAYS[DISPLAY](), LANG="es_ES.UTF-8", LANGUAGE="es", QT_ACCESSIBILITY="1", GTK_MODULES="", NO_AT_BRIDGE="0",
                         **{key: os.environ[key] for key in ("ASAN_OPTIONS", "LOCPATH") if key in os.environ})

    def _set_up(self):
        self.transcript = self.home / "transcript"
        self.orca_debug = self.home / "orca-debug"
        super()._set_up()
        self._start_voice()
        self._set_reader()
        self.start_reader()

    def _start_voice(self):
        conf = self.home / "speechd"
        (conf / "modules").mkdir(parents=True)
        (conf / "clients").mkdir()
        (conf / "speechd.conf").write_text(SPEECHD_CONF.format(voice=HERE / "voice"))
        (conf / "clients" / "none.conf").write_text("")
        (conf / "modules" / "transcript.conf").write_text(str(self.transcript))
        self.transcript.touch()
        socket = self.home / "runtime/speech-dispatcher/speechd.sock"
        # Debian 13's now and then hangs over a second voice of its own choice, which is not installed.
        self._start_surely("speech-dispatcher", "--run-single", "--config-dir", str(conf), "--log-dir", str(self.home),
                           ready=lambda _: wait_for(socket.exists, "Speech Dispatcher", 15))

    def _set_reader(self):
        folder = self.home / ".local/share/orca"
        folder.mkdir(parents=True)
        (folder / "orca-customizations.py").write_text(
            f"import sys\nsys.path[:0] = {[str(SUPPORT), str(HERE)]}\nimport accessibility, interruptions\n"
            # Whatever becomes of the reader, its log is whole.
            "from orca import debug\ndebug.debugFile.reconfigure(line_buffering=True)\n")
        self.env["KELVORA_TRANSCRIPT"] = str(self.transcript)
        (folder / "user-settings.conf").write_text(json.dumps({
            "general": ORCA_SETTINGS, "pronunciations": {}, "keybindings": KEY_BINDINGS, "profiles": {
                "default": ORCA_SETTINGS | {"profile": ["Default", "default"], "pronunciations": {},
                                            "keybindings": KEY_BINDINGS}}}))

    def start_reader(self):
        """Starts the reader; what is heard of it."""
        def ready(before):
            wait_for(lambda: any(text.ended for text in transcript.texts(self._lines()[before:]) if text == READY), "Orca", 15)
            time.sleep(0.5)  # until it is on the bus itself
            self._ask(PING)

        self._reader = self._start_surely("/usr/bin/orca", f"--debug-file={self.orca_debug}", ready=ready)
        return self.heard()

    def _start_surely(self, *command, ready):
        """Starts a program that does not always come up at once: a few times, until `ready`, which is given the number of
        lines in the transcript before, ends without an error."""
        for _ in range(5):
            before = len(self._lines())
            child = self.start(*command)
            try:
                ready(before)
                return child
            except (TimeoutError, subprocess.SubprocessError):
                self.end(child)
        raise RuntimeError(f"{command[0]} did not start in five tries; its logs are in {self.home}")

    def end_reader(self):
        self.end(self._reader)

    def braille(self):
        """The lines that a braille display has shown, in order."""
        return re.findall(r"BRAILLE LINE:  '(.*)'$", self.orca_debug.read_text(errors="replace"), re.MULTILINE)

    def wait_heard(self, text):
        """Waits until a text with `text` in it has been spoken to its end since the last `heard`."""
        wait_for(lambda: any(text in ended for ended in self._ended()), f"the voice to say {text!r}", said=self._ended)

    def wait_heard_match(self, pattern):
        """Waits until a text that begins with the compiled `pattern` has been spoken to its end since the last `heard`;
        the match."""
        return wait_for(lambda: next((found for found in map(pattern.match, self._ended()) if found), None),
                        f"the voice to say {pattern.pattern!r}", said=self._ended)

    def press(self, *keys):
        for key in keys:
            transcript.write(self.transcript, "KEY", key)
            super().press(key)
        self._letters.update(key[-1] for key in keys if re.search(r"\+\w$", key))

    def _lines(self):
        return self.transcript.read_text(errors="replace").splitlines()

    def all_texts(self):
        """All texts since the voice was there."""
        return transcript.texts(self._lines())

    def _new(self):
        return transcript.texts(self._lines()[self._read:])

    def _ended(self):
        return [text for text in self._new() if text.ended]

    def language(self):
        """The language that the program tells of itself on the accessibility bus."""
        return self._ask(LANGUAGE)

    def _ask(self, question):
        return subprocess.run(["/usr/bin/python3", "-c", question], env=self.env, check=True, capture_output=True,
                              text=True, timeout=LIMIT).stdout.strip()

    def heard_so_far(self):
        """The texts that the voice has begun since the last `heard`, which will give them again."""
        return self._new()

    def delay(self):
        """Seconds from the last key to the first text that the voice has begun behind it."""
        moves = [line.split(" ", 2)[:2] for line in self._lines()]
        pressed = max(i for i, (_, mark) in enumerate(moves) if mark == "KEY")
        return next(float(when) for when, mark in moves[pressed:] if mark == "START") - float(moves[pressed][0])

    def await_heard(self, at_least):
        """Waits until so many texts have been spoken to their end since the last `heard`."""
        wait_for(lambda: sum(text.strip() not in self._letters for text in self._ended()) >= at_least,
                 f"{at_least} texts to be said", said=self._new)

    def heard(self, at_least=0):
        """The texts spoken since the last call; one that was cut off ends in "[cut]". Waits until there are `at_least`
        so many, and then until the voice has been quiet for a while. Letters pressed beside Alt or Control, which the
        reader may echo or not, are left out."""
        self.await_heard(at_least)
        last = self._lines()
        quiet = 0
        while quiet < QUIET or self._speaking(last):
            time.sleep(0.02)
            now = self._lines()
            quiet = quiet + 1 if now == last else 0
            last = now
        new = transcript.texts(last[self._read:])
        self._read = len(last)
        letters, self._letters = self._letters, set()
        return [text if text.ended and not text.cut else text + " [cut]" for text in new if text.strip() not in letters]

    def _speaking(self, lines):
        """Whether a text has been begun and nothing has come after it; for a while, since the voice may be gone."""
        return bool(lines) and " START " in lines[-1] and time.time() - self.transcript.stat().st_mtime < 10
