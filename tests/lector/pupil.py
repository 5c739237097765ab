"""A blind pupil: what is to be heard of each kind of control, in the words of either generation of Qt and Orca, and
what every lesson does.
"""

import os
import unittest

from session import Session

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


# With Qt before 6.8 (and the Orca of its time, 43) an announcement is a notification; the two readers also differ in
# their words for a button, in stops after a text and in how they read punctuation.
OLD = tuple(int(part) for part in os.environ["KELVORA_QT"].split(".")[:2]) < (6, 8)
SUBMENU_HELP = "Combinaciones de teclaspunto punto punto " if OLD else "Combinaciones de teclas..."
CREDITS = "Acerca depunto punto punto " if OLD else "Acerca de..."


def sentence(text):
    """A sentence that ends in a letter or digit is given a full stop."""
    return text + "." if text[-1].isalnum() else text


def said(text):
    """An announcement. Of a single character, see `echo`."""
    if OLD:
        return ["notificación.", sentence(text)]
    return [text] if len(text) > 1 else []


def window(title):
    return [f"{title} marco."] if OLD else [f"{title} marco"]


class Perhaps(str):
    """A text that may be missing."""


def window_again(title):
    """The window comes back. Orca 48 may take it for the one where it was; see `expect_window`."""
    return window(title) if OLD else [Perhaps(title)]


def button(name):
    return [f"{name} botón de pulsación."] if OLD else [f"{name} botón."]


def locked(name, content):
    return [f"{name} sólo lectura texto."] + ([sentence(content)] if content else [])


def unchecked(entry):
    return sentence(entry) if OLD else f"{entry} no marcada."


def editable(name, content):
    return [f"{name} texto."] + ([sentence(content)] if content else [])


def selected(content):
    """The whole text of the box in focus is selected, right before an announcement. Orca 48 says that alone."""
    return [content, "seleccionado"] if OLD else []


def editable_selected(name, content):
    return [f"{name} texto.", f"{content} seleccionado."]


def locked_selected(name, content):
    return [f"{name} sólo lectura texto.", f"{content} seleccionado."]


def echo(character):
    """A character typed. What Speech Dispatcher 0.12 hands on of it is not its text."""
    return [f"{character} "] if OLD else []


def group(name):
    """The focus comes into a frame."""
    return [f"{name} panel."] if OLD else [f"{name} panel"]


def renamed(name):
    """A button in focus that gets another caption."""
    return said(name) if OLD else button(name)


class Lesson(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.session = Session()
        self.addCleanup(self.close)

    def close(self):
        outcome = self._outcome.result
        failed = any(case is self for case, _ in outcome.errors + outcome.failures)
        self.session.close(keep=failed)

    def expect(self, *parts):
        """What was heard since the last call is exactly this, each text once and to its end."""
        expected = [text for part in parts for text in part]
        certain = [text for text in expected if not isinstance(text, Perhaps)]
        heard = self.session.heard(len(certain))
        self.assertEqual(heard, certain if len(heard) == len(certain) else expected)

    def press(self, key, *parts):
        self.session.press(key)
        self.expect(*parts)

    def expect_window(self, title, *parts):
        """A window has opened by a key. Orca 48 gets keys beside the program and not before it: where it notices the
        key only when the window is there, it takes that for the one where it was, and does not say its name."""
        self.expect(window(title) if OLD else [Perhaps(text) for text in window(title)], *parts)

    def open_screen(self, program, name, first):
        """Opens a screen from the menu, whose first box is called `first`."""
        self.session.run(program)
        self.session.wait_heard("botón")
        texts = self.session.heard()
        for _ in range(12):
            if texts[-1:] == button(name):
                break
            self.session.press("Tab")
            texts = self.session.heard()
        self.session.press("Return")
        self.session.wait_heard(first)

    def type(self, digits, replacing=False):
        """Types a number, perhaps over a selection; the voice echoes each digit, of which the next key may cut off the
        echo and what follows it."""
        self.session.type(digits)
        echoed = [text.removesuffix(" [cut]").strip() for text in self.session.heard()]
        if replacing:
            echoed = [text for text in echoed if text != "Selección eliminada."]
        if OLD:
            self.assertEqual(echoed, ["guión" if digit == "-" else digit for digit in digits])

    def expect_input(self, title, prompt, offered):
        """An input box has opened by a key."""
        box = editable_selected(prompt, offered) if offered else editable(prompt, "")
        self.session.wait_heard(box[-1])
        heard = self.session.heard()
        if OLD and heard[:2] == selected(offered):
            heard = heard[2:]  # Qt selects the text before the box is there, and Orca may hear of that first
        if OLD or heard[:1] == [f"{title} diálogo"]:  # see expect_window
            self.assertEqual(heard[:1], [f"{title} diálogo." if OLD else f"{title} diálogo"])
            heard = heard[1:]
        self.assertEqual(heard, box)

    def press_return_for_box(self, title, text):
        """Presses Enter, which opens a message box."""
        self.session.press("Return")
        heard = self.session.heard(3)
        if OLD:
            self.assertEqual(heard, [f"alerta {title}.", text] + button("Aceptar"))
        else:
            # Orca 48 gets keys beside the program and not before it: the box can be there before the key that opened
            # it has been noticed, and that key then cuts off what had begun to be read.
            self.assertTrue(self.session.presented(f"alerta {title}."))
            self.assertTrue(self.session.presented(text))
            self.assertEqual(heard[-1:], button("Aceptar"))
