"""A blind pupil: what is to be heard of each kind of control, in the words of either generation of Qt and Orca, and
what every lesson does.
"""

import json
import re
import unittest

from session import DISPLAY, OLD, SUPPORT, TITLE_KEY, WHERE_KEY, Session
from edition import PROGRAM, QT  # beside what the session has made known

NAMES_ARE_READ = QT >= (6, 8)  # of controls in focus, when they change: older versions of Qt tell of none

UNITS = ("cero un dos tres cuatro cinco seis siete ocho nueve diez once doce trece catorce quince dieciséis "
         "diecisiete dieciocho diecinueve veinte").split()
TENS = "treinta cuarenta cincuenta sesenta setenta ochenta noventa".split()
CARDINALS = UNITS + ["veintiuno"] + [f"veinti{unit}" for unit in UNITS[2:10]]
for ten in TENS:
    CARDINALS += [ten, f"{ten} y uno"] + [f"{ten} y {unit}" for unit in UNITS[2:10]]
CARDINALS += ["cien"]
PARTS = ([None] + "entero medio tercio cuarto quinto Sexto séptimo octavo noveno décimo".split()
         + [f"{cardinal}avo" for cardinal in CARDINALS[11:]])


def fraction(numerator, denominator):
    """A fraction in words, up to hundredths and a hundred of them."""
    sign = "menos " if numerator < 0 else ""
    return f"{sign}{CARDINALS[abs(numerator)]} {PARTS[denominator]}{'' if abs(numerator) == 1 else 's'}"


# What is heard of each kind of thing; two columns where the older and the newer reader differ. To the older one an
# announcement is a notification.
UTTERANCES = {
    "announcement": (["notificación.", "{sentence}"], ["{text}"]),
    "window": (["{text} marco."], ["{text} marco"]),
    "dialog": (["{text} diálogo."], ["{text} diálogo"]),
    "message": ["alerta {text}."],
    "group": (["{text} panel."], ["{text} panel"]),  # the focus comes into a frame
    "button": (["{text} botón de pulsación."], ["{text} botón."]),
    "box": ["{text} texto."],
    "locked box": ["{text} sólo lectura texto."],
    "content": ["{sentence}"],
    "selected content": ["{text} seleccionado."],
    "selection": (["{text}", "seleccionado"], []),  # the whole text is selected, right before an announcement
    "submenu with dots": (["{text}punto punto punto "], ["{text}..."]),
    "echo": (["{text} "], ["{text}"]),  # a character typed
}


def sentence(text):
    """A sentence that ends in a letter or digit is given a full stop."""
    return text + "." if text[-1:].isalnum() else text


def utterances(kind, text):
    found = UTTERANCES[kind]
    if isinstance(found, tuple):
        found = found[0 if OLD else 1]
    return [utterance.format(text=text, sentence=sentence(text)) for utterance in found]


class Brailled(str):
    """A text that is heard while a braille line shows `braille`, whole."""

    def __new__(cls, text, braille):
        self = super().__new__(cls, text)
        self.braille = braille.strip()
        return self


class Perhaps(str):
    """What may be missing, or be cut off, at its place; the title of a window or box may be followed by its role, and by the
    keys that it describes."""

    def __new__(cls, text, keys=""):
        self = super().__new__(cls, text)
        self.keys = keys
        return self

    def is_said_by(self, text):
        return text.removesuffix(" [cut]") in ([self, *(f"{self} marco 1 diálogo sin foco{stop}" for stop in ("", "."))]
                                               + window(self) + window(self, self.keys) + utterances("dialog", self))


def brailled(kind, text, braille):
    return [Brailled(utterance, braille) for utterance in utterances(kind, text)]


def said(text):
    """An announcement."""
    return [Brailled(utterance, text) for utterance in utterances("announcement", text)]


def said_like(pattern):
    """An announcement of which only the form is known; it may get the stop of a sentence."""
    return [re.compile(utterance) for utterance in (["notificación\\.", rf"({pattern})\.?"] if OLD else [rf"({pattern})"])]


def window(title, keys=""):
    """A window, perhaps with a description."""
    if not OLD and keys:
        return [f"{title} marco {keys}"]
    return utterances("window", title) + ([keys] if keys else [])


def window_again(title, keys=""):
    """The window comes back. Orca 48 may take it for the one where it was; see `expect_window`. On Wayland Orca 43 does so
    where it hears late that it was away."""
    certain = OLD and DISPLAY in ("x11", "gnome")
    return window(title, keys) if certain else [Perhaps(title, keys)] + [Perhaps(text) for text in [keys] if OLD and keys]


def button(name):
    return brailled("button", name, f"{name} botón")


def renamed(name):
    """A button in focus that gets another caption, where such are read."""
    return [name] if OLD else button(name)


def group(name):
    return utterances("group", name)


def with_content(kind, name, content):
    return brailled(kind, name, f"{name} {content}") + (utterances("content", content) if content else [])


def locked(name, content):
    return with_content("locked box", name, content)


def editable(name, content):
    return with_content("box", name, content)


def locked_selected(name, content):
    return brailled("locked box", name, f"{name} {content}") + utterances("selected content", content)


def editable_selected(name, content):
    return brailled("box", name, f"{name} {content}") + utterances("selected content", content)


def selected(content):
    return utterances("selection", content)


def unchecked(entry):
    """Of older versions of Qt a reader does not learn that it could be checked."""
    return f"{entry} no marcada." if QT >= (6, 8) else sentence(entry)


def echo(character):
    return utterances("echo", character)


SUBMENU_HELP = utterances("submenu with dots", "Combinaciones de teclas")[0]
CREDITS = utterances("submenu with dots", "Acerca de")[0]
# What is given of all windows, the menu first.
GIVEN = json.loads((SUPPORT / "given.json").read_text())
MENU = [control["text"].replace("&", "") for control in GIVEN[0]["controls"]]
ENGLISH = r"\b(button|push|text|frame|box|window|dialog|menu bar|read only|checked|selected|label|blank|ok|cancel|yes)\b"
MARKS = r"[&<>{}]"  # of captions and of the toolkit's own texts


class Lesson(unittest.TestCase):
    maxDiff = None
    title = "KELVORA"  # of the window where the lesson is
    keys = ""  # that this window describes

    def setUp(self):
        self.session = Session()
        self.expected = []
        self.spared = []  # what was not there for certain, and perhaps not whole
        self.addCleanup(self.close)

    def close(self):
        outcome = self._outcome.result
        failed = any(case is self for case, _ in outcome.errors + outcome.failures)
        self.session.close(keep=failed)

    def tearDown(self):
        """Of a whole lesson, also of what no single expectation looked at: nothing came behind the last key, nothing was
        English or made of the program's inner workings, all was heard to its end and as often as it was expected, and
        braille showed, in the same order, all that was heard of messages and boxes."""
        if not self._outcome.success:
            return
        self.expect()
        texts = self.session.all_texts()
        # Letters pressed beside Alt may be echoed, or cut off by what they do.
        cut = [text + " [cut]" for text in texts if (text.cut or not text.ended) and len(text.strip()) > 1]
        self.assertEqual(cut, [text for text in self.spared if text.endswith(" [cut]")])
        for text in texts:
            self.assertIsNone(re.search(ENGLISH, text, re.IGNORECASE), text)
            self.assertIsNone(re.search(MARKS, text), text)
        self.session.end_reader()
        lines = self.session.braille()
        line = 0
        for text in (text.braille for text in self.expected if isinstance(text, Brailled)):
            found = next((i for i in range(line, len(lines)) if text in lines[i]), None)
            self.assertIsNotNone(found, f"{text!r} not in {lines[line:]}")
            line = found

    def expect(self, *parts):
        """What was heard since the last call is exactly this, each text once and to its end. A pattern stands for what
        only the ear can know; the matches are returned."""
        expected = [text for part in parts for text in part]
        certain = [text for text in expected if not isinstance(text, Perhaps)]
        heard = self.session.heard(len(certain))
        place = 0
        for text in expected:
            if not isinstance(text, Perhaps):
                place += 1
            elif place < len(heard) and text.is_said_by(heard[place]):
                self.spared.append(heard.pop(place))
        matches = []
        for i, text in enumerate(certain):
            if isinstance(text, re.Pattern) and i < len(heard) and text.fullmatch(heard[i]):
                matches.append(text.fullmatch(heard[i]))
                certain[i] = heard[i]
        self.assertEqual(heard, certain)
        self.expected += certain
        return matches

    def press(self, key, *parts):
        self.session.press(key)
        return self.expect(*parts)

    def expect_window(self, title, *parts):
        """A window has opened by a key. Orca 48 gets keys beside the program and not before it: where it notices the
        key only when the window is there, it takes that for the one where it was, and does not say its name. So the
        reader is asked for it again."""
        self.expect(window_again(title, self.keys if title == self.title else ""), *parts)
        self.ask_title(title)

    def ask_title(self, title):
        """The reader's own command: which window is this?"""
        self.press(TITLE_KEY, [title])

    def open_screen(self, program, name, first):
        """Opens a screen from the menu, whose first box is called `first`."""
        self.session.start(program)
        self.session.wait_heard("botón")
        self.expect_window("KELVORA", button(MENU[0]))
        for entry in MENU[1:MENU.index(name) + 1]:
            self.press("Tab", button(entry))
        self.session.press("Return")
        self.session.wait_heard(first)

    def type(self, digits, replacing=False):
        """Types a number, perhaps over a selection, and hears each character."""
        for i, digit in enumerate(digits):
            self.session.type(digit)
            gone = [Perhaps("Selección eliminada."), Perhaps("Texto no seleccionado.")] if replacing and i == 0 else []
            self.expect(gone, echo("guión" if OLD and digit == "-" else digit), gone)

    def expect_input(self, title, prompt, offered, behind=()):
        """An input box has opened by a key, perhaps after another one. Between the two the window comes to the front for an
        instant, which the reader may tell, with what has the focus `behind` the boxes."""
        box = editable_selected(prompt, offered) if offered else editable(prompt, "")
        self.session.wait_heard(box[-1])
        # Qt selects the text before the box is there, and Orca 43 may hear of that first.
        early = [Perhaps(text) for text in selected(offered)]
        window_behind = [] if OLD and not behind else [Perhaps(self.title, self.keys)]
        behind = [Perhaps(text) for text in behind]
        self.expect(window_behind, early, behind, utterances("dialog", title) if OLD else [Perhaps(title)], box)
        self.ask_title(title)

    def press_return_for_box(self, title, text, answer="Aceptar", behind=(), verdict=None):
        """Presses Enter, which opens a message box with the focus on the button `answer`. If Enter chooses from a menu, that
        closes first, and the reader may have the time to say the window and what has the focus `behind` it. A verdict is
        heard before the text."""
        announced = said(verdict) if verdict and OLD else []
        text = f"{verdict}. {text}" if verdict and not OLD else text
        self.session.press("Return")
        self.session.wait_heard(button(answer)[-1])
        behind = [Perhaps(self.title, self.keys), Perhaps(self.keys), *map(Perhaps, behind)]
        box = utterances("message", title) + [text] + button(answer)
        if OLD:
            self.expect(announced, behind, box)
        else:
            # Orca 48 gets keys beside the program and not before it: the box can be there before the key that opened
            # it has been noticed, and that key then cuts off what had begun to be read. So it is asked where it is.
            self.expect([Perhaps(box[0])], behind, [Perhaps(text) for text in box[:-1]], button(answer))
            # Of the key that presses the button too, it says the last letter ("Intro", "Alt+S").
            key = [Perhaps("o."), Perhaps("S.")]
            self.press(WHERE_KEY, key, box, key)
        self.ask_title(title)
