"""A desktop without screen or loudspeaker on which a real screen reader runs, and a pupil's hands and ears.

The voice is a transcript: Speech Dispatcher passes each text to a shell command that writes it down when the voice
begins, takes some time for it, and notes when it has come to the end. A text that is cut off has no end.
"""

import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

LIMIT = 30  # seconds to wait for anything at all; only a failure takes that long
READY = "END Lector de pantalla activado."
QUIET = 0.5  # seconds without a new utterance after which the reader has finished

SPEECHD_CONF = """\
LogLevel 3
Timeout 0
CommunicationMethod "unix_socket"
AudioOutputMethod "alsa"
DefaultRate 0
DefaultLanguage "es"
AddModule "transcript" "sd_generic" "transcript.conf"
DefaultModule transcript
Include "clients/*.conf"
"""

# One text is one line: the delimiters at which the module would cut it never occur.
VOICE_CONF = """\
GenericExecuteSynth "{voice} \\'$DATA\\'"
GenericMaxChunkLength 100000
GenericDelimiters "~"
GenericPunctNone "none"
GenericRecodeFallback "?"
GenericLanguage "es" "es" "utf-8"
GenericLanguage "en" "en" "utf-8"
AddVoice "es" "MALE1" "es"
AddVoice "en" "MALE1" "en"
Debug 0
"""

VOICE = """\
#!/bin/sh
text=$(printf '%s' "$1" | tr -d '\\r' | tr '\\n' '|')
printf 'START %s\\n' "$text" >> '{transcript}'
ms=$((100 + 5 * ${{#text}}))
sleep $((ms / 1000)).$(printf %03d $((ms % 1000)))
printf 'END %s\\n' "$text" >> '{transcript}'
"""

# Qt before 6.8, and the Orca of its time, 43.
OLD = tuple(int(part) for part in os.environ["KELVORA_QT"].split(".")[:2]) < (6, 8)

# Of the keys, only the characters typed are echoed: names of function keys and the like are cut off, or not, by the
# speed of the fingers, and are the reader's own affair. With the newer reader not even those: what Speech Dispatcher 0.12
# hands on of a single character is not its text.
ORCA_SETTINGS = {"enableKeyEcho": OLD, "enableFunctionKeys": False, "enableModifierKeys": False, "enableActionKeys": False,
                 "enableNavigationKeys": False}

ACCESSIBILITY_BUS = """\
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib
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

ASOUNDRC = "pcm.!default { type null }\n"


class NotReady(Exception):
    """The desktop or its screen reader did not start."""


def wait_for(condition, what, limit=LIMIT):
    end = time.monotonic() + limit
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise NotReady(f"waited {limit} s for {what}")


def is_text(text):
    """What Speech Dispatcher 0.12 hands on for a single character or key is not its text."""
    return text and "\N{REPLACEMENT CHARACTER}" not in text and text.isprintable()


class Session:
    """Display, window manager, accessibility bus, voice and reader; `run` starts a program among them."""

    def __init__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="lector-"))
        self.transcript = self.home / "transcript"
        self.orca_log = self.home / "orca.log"
        self._children = []
        self._read = 0
        try:
            self._start_desktop()
            self._set_reader()
            self.start_reader()
        except BaseException:
            self.close(keep=True)
            raise

    def _start(self, name, *command, **options):
        with open(self.home / f"{name}.log", "wb") as log:
            child = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                     start_new_session=True, **options)
        self._children.append(child)
        return child

    def _start_desktop(self):
        self.env = {key: os.environ[key] for key in ("PATH", "DBUS_SESSION_BUS_ADDRESS", "ASAN_OPTIONS") if key in os.environ}
        runtime = self.home / "runtime"
        runtime.mkdir(mode=0o700)
        locales = self.home / "locale"
        locales.mkdir()
        subprocess.run(["localedef", "-i", "es_ES", "-f", "UTF-8", locales / "es_ES.UTF-8"], check=True)
        self.env |= {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(runtime), "LOCPATH": str(locales),
                     "LANG": "es_ES.UTF-8", "LANGUAGE": "es", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                     "QT_ACCESSIBILITY": "1", "QT_QPA_PLATFORM": "xcb", "GTK_MODULES": "", "NO_AT_BRIDGE": "0"}
        read, write = os.pipe()
        # Without -noreset it starts anew when its first client goes, and refuses the window manager meanwhile.
        self._start("xvfb", "Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset",
                    pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise NotReady("Xvfb did not start")
        self.env["DISPLAY"] = f":{number}"
        self._start("openbox", "openbox", "--sm-disable")
        self._bus = self._start("bus", "/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
        conf = self.home / "speechd"
        (conf / "modules").mkdir(parents=True)
        (conf / "clients").mkdir()
        voice = self.home / "voice"
        voice.write_text(VOICE.format(transcript=self.transcript))
        voice.chmod(0o755)
        (conf / "speechd.conf").write_text(SPEECHD_CONF)
        (conf / "clients" / "none.conf").write_text("")
        (conf / "modules" / "transcript.conf").write_text(VOICE_CONF.format(voice=voice))
        (self.home / ".asoundrc").write_text(ASOUNDRC)
        self.transcript.touch()
        self._start("speechd", "speech-dispatcher", "--run-single", "--config-dir", str(conf), "--log-dir",
                    str(self.home))
        wait_for(lambda: list(runtime.glob("speech-dispatcher/speechd.sock")), "Speech Dispatcher")

    def _set_reader(self):
        settings = self.home / ".local/share/orca/user-settings.conf"
        settings.parent.mkdir(parents=True)
        settings.write_text(json.dumps({"general": ORCA_SETTINGS, "pronunciations": {}, "keybindings": {}, "profiles": {
            "default": ORCA_SETTINGS | {"profile": ["Default", "default"], "pronunciations": {}, "keybindings": {}}}}))

    def start_reader(self):
        for _ in range(5):  # it does not always come up at once
            before = self.transcript.read_text().count(READY)
            self._reader = self._start("orca-output", "/usr/bin/python3", "/usr/bin/orca", "--replace",
                                 f"--debug-file={self.orca_log}")
            try:
                wait_for(lambda: self.transcript.read_text().count(READY) > before, "Orca", 15)
                time.sleep(0.5)  # until it is on the bus itself
                self._ask(PING)
                break
            except (NotReady, subprocess.SubprocessError):
                self._end(self._reader)
        else:
            raise NotReady(f"Orca did not start in five tries; its logs are in {self.home}")
        self.heard()

    def end_reader(self):
        self._end(self._reader)

    def end_bus(self):
        self._end(self._bus)

    def braille(self):
        """The lines that a braille display has shown, in order."""
        return re.findall(r"BRAILLE LINE:  '(.*)'$", self.orca_log.read_text(errors="replace"), re.MULTILINE)

    def presented(self, text):
        """Whether the reader has sent `text`, with "|" between lines, to the voice, be it heard to its end or not."""
        log = self.orca_log.read_text(errors="replace")
        return f"SPEECH OUTPUT: '{text}'" in re.sub(r"\r?\n +(?=\S)", "|", log)

    def wait_heard(self, text):
        """Waits until a text with `text` in it has been spoken to its end since the last `heard`."""
        wait_for(lambda: any(line.startswith("END ") and text in line for line in self._lines()[self._read:]),
                 f"the voice to say {text!r}")

    def wait_heard_match(self, pattern):
        """Waits until a text that begins with the compiled `pattern` has been spoken to its end since the last `heard`;
        the match."""
        def match():
            ended = (line[4:] for line in self._lines()[self._read:] if line.startswith("END "))
            return next((found for found in map(pattern.match, ended) if found), None)
        return wait_for(match, f"the voice to say {pattern.pattern!r}")

    def _lines(self):
        return self.transcript.read_text(errors="replace").splitlines()

    def run(self, *command):
        return self._start("program", *command)

    def press(self, *keys):
        for key in keys:
            subprocess.run(["xdotool", "key", "--clearmodifiers", key], env=self.env, check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "120", "--", text], env=self.env, check=True)

    def all_heard(self):
        """All texts since the voice was there: those that it has begun, and those that it has spoken to their end."""
        lines = self._lines()
        return tuple([line.removeprefix(mark) for line in lines if line.startswith(mark) and is_text(line.removeprefix(mark))]
                     for mark in ("START ", "END "))

    def language(self):
        """The language that the program tells of itself on the accessibility bus."""
        return self._ask(LANGUAGE)

    def _ask(self, question):
        return subprocess.run(["/usr/bin/python3", "-c", question], env=self.env, check=True, capture_output=True,
                              text=True, timeout=LIMIT).stdout.strip()

    def heard_so_far(self):
        """The texts that the voice has begun since the last `heard`, which will give them again."""
        return [line[6:] for line in self._lines()[self._read:] if line.startswith("START ")]

    def await_heard(self, at_least):
        """Waits until so many texts have been spoken to their end since the last `heard`, or the limit has passed."""
        try:
            wait_for(lambda: sum(line.startswith("END ") for line in self._lines()[self._read:]) >= at_least, "", 10)
        except NotReady:
            pass  # the caller sees what is missing

    def heard(self, at_least=0):
        """The texts spoken since the last call; one that was cut off ends in "[cut]". Waits until there are `at_least`
        so many, or the limit has passed, and then until the voice has been quiet for a while."""
        self.await_heard(at_least)
        last = None
        since = time.monotonic()
        while last is None or time.monotonic() - since < QUIET or self._speaking(last):
            now = self._lines()
            if now != last:
                last, since = now, time.monotonic()
            time.sleep(0.02)
        new = last[self._read:]
        self._read = len(last)
        ended = [line[4:] for line in new if line.startswith("END ")]
        texts = []
        for line in new:
            if line.startswith("START "):
                text = line[6:]
                if not is_text(text):
                    continue
                if text in ended:
                    ended.remove(text)
                    texts.append(text)
                else:
                    texts.append(text + " [cut]")
        return texts

    def _speaking(self, lines):
        return bool(lines) and lines[-1].startswith("START ") and time.time() - self.transcript.stat().st_mtime < 3

    def _end(self, child):
        if child.poll() is None:
            try:
                os.killpg(child.pid, signal.SIGTERM)
                child.wait(5)
            except (ProcessLookupError, subprocess.TimeoutExpired):
                os.killpg(child.pid, signal.SIGKILL)
                child.wait()
        self._children.remove(child)

    def close(self, keep=False):
        for child in reversed(self._children[:]):
            self._end(child)
        if keep:
            print(f"logs kept in {self.home}", file=sys.stderr)
        else:
            shutil.rmtree(self.home, ignore_errors=True)
