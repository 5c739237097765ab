"""A blind pupil: what is to be heard of each kind of control, in the words of either generation of Qt and Orca, and
what every lesson does.
"""

import os
import re
import unittest

from session import OLD, Session

PROGRAM = os.environ["KELVORA"]

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
    "group": (["{text} panel."], ["{text} panel"]),  # the focus comes into a frame
    "button": (["{text} botón de pulsación."], ["{text} botón."]),
    "box": ["{text} texto."],
    "locked box": ["{text} sólo lectura texto."],
    "content": ["{sentence}"],
    "selected content": ["{text} seleccionado."],
    "selection": (["{text}", "seleccionado"], []),  # the whole text is selected, right before an announcement
    "unchecked entry": (["{sentence}"], ["{text} no marcada."]),
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
    """The title of a window or box, which may be missing, or be cut off, or be followed by its role."""

    def drop_from(self, heard):
        said = heard[0].removesuffix(" [cut]") if heard else None
        if said in [self] + utterances("window", self) + utterances("dialog", self):
            del heard[0]


def brailled(kind, text, braille):
    return [Brailled(utterance, braille) for utterance in utterances(kind, text)]


class Announced(Brailled):
    """What the program itself has to say."""


def said(text):
    """An announcement."""
    return [Announced(utterance, text) for utterance in utterances("announcement", text)]


def window(title):
    return utterances("window", title)


def window_again(title):
    """The window comes back. Orca 48 may take it for the one where it was; see `expect_window`."""
    return window(title) if OLD else [Perhaps(title)]


def button(name):
    return brailled("button", name, f"{name} botón")


def renamed(name):
    """A button in focus that gets another caption."""
    return said(name) if OLD else button(name)


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
    return utterances("unchecked entry", entry)[0]


def echo(character):
    return utterances("echo", character)


SUBMENU_HELP = utterances("submenu with dots", "Combinaciones de teclas")[0]
CREDITS = utterances("submenu with dots", "Acerca de")[0]
MENU = ["Representación gráfica", "Expresa con fracciones", "Fracción de una cantidad",
        "Descomposición en factores primos", "Ordenar fracciones", "Conversión al mismo denominador", "Suma de fracciones",
        "Diferencia de fracciones", "Producto de fracciones", "Cociente de fracciones", "Completa la serie", "Salir"]
ENGLISH = r"\b(button|push|text|frame|box|window|dialog|menu bar|read only|checked|selected|label|blank|ok|cancel|yes)\b"
MARKS = r"[&<>{}]"  # of captions and of the toolkit's own texts


class Lesson(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.session = Session()
        self.expected = []
        self.addCleanup(self.close)

    def close(self):
        outcome = self._outcome.result
        failed = any(case is self for case, _ in outcome.errors + outcome.failures)
        self.session.close(keep=failed)

    def tearDown(self):
        """Of a whole lesson, also of what no single expectation looked at: nothing was English or made of the program's
        inner workings, each announcement was heard to its end and as often as it was made, and braille showed, in the
        same order, all that was heard of messages and boxes."""
        if not self._outcome.success:
            return
        begun, ended = self.session.all_heard()
        for text in begun:
            self.assertIsNone(re.search(ENGLISH, text, re.IGNORECASE), text)
            self.assertIsNone(re.search(MARKS, text), text)
        for text in {text for text in self.expected if isinstance(text, Announced)}:
            times = self.expected.count(text)
            self.assertEqual((begun.count(text), ended.count(text)), (times, times), text)
        self.session.end_reader()  # which writes its log late
        lines = self.session.braille()
        line = 0
        for text in (text.braille for text in self.expected if isinstance(text, Brailled)):
            found = next((i for i in range(line, len(lines)) if text in lines[i]), None)
            self.assertIsNotNone(found, f"{text!r} not in {lines[line:]}")
            line = found

    def hear(self, at_least=0):
        """What was heard since the last call, at least so many texts; for the caller to judge."""
        heard = self.session.heard(at_least)
        self.expected += [text for text in heard if not text.endswith(" [cut]")]
        return heard

    def expect(self, *parts):
        """What was heard since the last call is exactly this, each text once and to its end."""
        expected = [text for part in parts for text in part]
        certain = [text for text in expected if not isinstance(text, Perhaps)]
        heard = self.session.heard(len(certain))
        for text in expected:
            if isinstance(text, Perhaps):
                text.drop_from(heard)
        self.assertEqual(heard, certain)
        self.expected += certain

    def press(self, key, *parts):
        self.session.press(key)
        self.expect(*parts)

    def expect_window(self, title, *parts):
        """A window has opened by a key. Orca 48 gets keys beside the program and not before it: where it notices the
        key only when the window is there, it takes that for the one where it was, and does not say its name."""
        self.expect(window_again(title), *parts)

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
        for count, digit in enumerate(digits, 1):
            self.session.type(digit)
            self.session.await_heard(count)
        heard = self.hear()
        if replacing:
            heard = [text for text in heard
                     if text.removesuffix(" [cut]") not in ("Selección eliminada.", "Texto no seleccionado.")]
        self.assertEqual(heard, [text for digit in digits for text in echo("guión" if OLD and digit == "-" else digit)])

    def expect_input(self, title, prompt, offered):
        """An input box has opened by a key."""
        box = editable_selected(prompt, offered) if offered else editable(prompt, "")
        self.session.wait_heard(box[-1])
        heard = self.hear()
        if OLD and heard[:2] == selected(offered):
            heard = heard[2:]  # Qt selects the text before the box is there, and Orca may hear of that first
        if OLD:
            self.assertEqual(heard[:1], utterances("dialog", title))
            heard = heard[1:]
        else:
            Perhaps(title).drop_from(heard)  # see expect_window
        self.assertEqual(heard, box)

    def press_return_for_box(self, title, text, answer="Aceptar", behind=()):
        """Presses Enter, which opens a message box with the focus on the button `answer`. If Enter chooses from a menu, that
        closes first, and the reader may have the time to say what has the focus `behind` it."""
        self.session.press("Return")
        self.session.wait_heard(button(answer)[-1])
        heard = self.hear()
        while heard and heard[0].removesuffix(" [cut]") in behind:
            del heard[0]
        if OLD:
            self.assertEqual(heard, [f"alerta {title}.", text] + button(answer))
        else:
            # Orca 48 gets keys beside the program and not before it: the box can be there before the key that opened
            # it has been noticed, and that key then cuts off what had begun to be read.
            self.assertTrue(self.session.presented(f"alerta {title}."))
            self.assertTrue(self.session.presented(text))
            self.assertEqual(heard[-1:], button(answer))
