"""A blind pupil's session on the sum screen: every utterance of the screen reader, from the menu and back to it.

The pupil knows of the exercise only what was heard: the answers typed are computed from the words of the reading.
"""

import os
import re
import unittest

from session import Session

PROGRAM = os.environ["KELVORA"]
MUTE_PROGRAM = os.environ["KELVORA_MUTE"]  # the same program, but for the announcements

NUMBERS = ("cero un dos tres cuatro cinco seis siete ocho nueve diez once doce trece catorce quince dieciséis "
           "diecisiete dieciocho diecinueve veinte").split()
PARTS = [None, "entero", "medio", "tercio", "cuarto", "quinto", "Sexto", "séptimo", "octavo", "noveno", "décimo"]
HELP = ("F2: Lee la fracción seleccionada.|F3: Lee la operación completa.|"
        "Control + cursor derecha: Pasa de una fracción a la de su derecha.|"
        "Control + cursor izquierda: Pasa de una fracción a la de su izquierda.")


# With Qt before 6.8 (and the Orca of its time, 43) an announcement is a notification; the two readers also differ in
# their words for a button, in stops after a text and in how they read punctuation.
OLD = tuple(int(part) for part in os.environ["KELVORA_QT"].split(".")[:2]) < (6, 8)
SUBMENU_HELP = "Combinaciones de teclaspunto punto punto " if OLD else "Combinaciones de teclas..."
CREDITS = "Acerca depunto punto punto " if OLD else "Acerca de..."


def sentence(text):
    """A sentence that ends in a letter or digit is given a full stop."""
    return text + "." if text[-1].isalnum() else text


def said(text):
    return ["notificación.", sentence(text)] if OLD else [text]


def window(title):
    return [f"{title} marco."] if OLD else [f"{title} marco"]


def window_again(title):
    return window(title) if OLD else [title]


def button(name):
    return [f"{name} botón de pulsación."] if OLD else [f"{name} botón."]


def locked(name, content):
    return [f"{name} sólo lectura texto."] + ([sentence(content)] if content else [])


def editable(name, content):
    return [f"{name} texto."] + ([sentence(content)] if content else [])


class Suma(unittest.TestCase):
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
        self.assertEqual(self.session.heard(len(expected)), expected)

    def press(self, key, *parts):
        self.session.press(key)
        self.expect(*parts)

    def open_sum(self, program):
        self.session.run(program)
        self.session.wait_heard("botón")
        self.session.heard()
        for _ in range(12):
            self.session.press("Tab")
            if self.session.heard() == button("Suma de fracciones"):
                break
        self.session.press("Return")
        self.session.wait_heard("Numerador")

    def hear_exercise(self, texts):
        """Understands the reading of a new exercise, the last of `texts`; the number in the box is the one read."""
        reading = re.fullmatch(r" ?(\w+) (\w+?)s?\+(\w+) (\w+?)s?=", texts[-1])
        self.assertIsNotNone(reading, texts)
        first, part, second, other = reading.groups()
        self.assertEqual(part, other)  # one denominator for both, unless the pupil chooses otherwise
        self.n1, self.d, self.n2 = NUMBERS.index(first), PARTS.index(part), NUMBERS.index(second)

    def fraction(self, numerator):
        return f"{NUMBERS[numerator]} {PARTS[self.d]}{'' if numerator == 1 else 's'}"

    def operation(self, result=""):
        return f"{self.fraction(self.n1)}+{self.fraction(self.n2)}={result}"

    def test_a_lesson(self):
        self.open_sum(PROGRAM)
        self.session.wait_heard("=")
        texts = self.session.heard()
        self.hear_exercise(texts)
        self.assertEqual(texts, window("SUMA DE FRACCIONES")
                         + locked("Numerador de la primera fracción", f"{self.n1}") + said(" " + self.operation()))
        first, second, total = self.fraction(self.n1), self.fraction(self.n2), self.n1 + self.n2

        # The reading keys, each twice: the same words with a blank more, or less.
        self.press("F2", said(first))
        self.press("F2", said(first + " "))
        self.press("F3", said(" " + self.operation()))
        self.press("F3", said(self.operation()))

        # Round the fractions to the right, and back in the row of the denominators.
        self.press("ctrl+Right", locked("Numerador de la segunda fracción", f"{self.n2}"), said(second))
        self.press("ctrl+Right", editable("Numerador del resultado", ""), said("cero ceros"))
        self.press("ctrl+Right", locked("Numerador de la primera fracción", f"{self.n1}"), said(first))
        self.press("Tab", locked("Denominador de la primera fracción", f"{self.d}"))
        self.press("ctrl+Left", editable("Denominador del resultado", ""), said("cero ceros"))
        self.press("ctrl+Left", locked("Denominador de la segunda fracción", f"{self.d}"), said(second))
        self.press("ctrl+Left", locked("Denominador de la primera fracción", f"{self.d}"), said(first))
        self.press("shift+Tab", locked("Numerador de la primera fracción", f"{self.n1}"))
        self.press("ctrl+Left", editable("Numerador del resultado", ""), said("cero ceros"))

        # A wrong answer, two times; the focus stays.
        self.type("1")
        self.press("Return", said("Resultado incorrecto"))
        self.press("Return", said("Resultado incorrecto "))
        self.press("Tab", editable("Denominador del resultado", ""))
        self.type(f"{self.d}")
        self.press("shift+Tab", editable("Numerador del resultado", "1"))

        # The right one; the verdict is heard on "Continuar", and Enter there brings the next exercise.
        self.press("alt+b")  # nothing to say: the focus is where it was, and the boxes are empty
        self.type(f"{total}")
        self.press("Tab", editable("Denominador del resultado", ""))
        self.type(f"{self.d}")
        self.press("F3", said(" " + self.operation(self.fraction(total))))
        self.press("shift+Tab", editable("Numerador del resultado", f"{total}"))
        self.press("Return", button("Continuar"), said("Resultado correcto "))
        self.press("shift+Tab", locked("Resultado", "Resultado correcto "))
        self.press("Tab", button("Continuar"))
        self.session.press("Return")
        self.session.wait_heard("=")
        texts = self.session.heard()
        self.hear_exercise(texts)
        self.assertEqual(texts[:-1], editable("Numerador del resultado", "") + said("=")[:-1])

        # The solution is in the box and in the message, the same.
        total = self.n1 + self.n2
        self.press("Tab", editable("Denominador del resultado", ""))
        self.press("alt+v", editable("Numerador del resultado", f"{total}"), said(self.fraction(total)))
        self.press("Tab", editable("Denominador del resultado", f"{self.d}"))

        # An option, the key help, the score, and back to the menu.
        self.press("alt+o", ["Cantidades."])
        self.press("Right", ["Hasta 10 marcada."])
        self.press("Down", ["Hasta 20." if OLD else "Hasta 20 no marcada."])
        self.press("Return", editable("Denominador del resultado", f"{self.d}"))
        self.press("alt+o", ["Cantidades."])
        self.press("Down", ["Denominador."])
        self.press("Down", [SUBMENU_HELP])
        self.press_return_for_help()
        self.press("Return", window_again("SUMA DE FRACCIONES"), editable("Denominador del resultado", f"{self.d}"))
        self.press("Tab", button("Hecho"))
        self.press("F2", said("No hay ninguna fracción seleccionada"))
        self.press("F2", said("No hay ninguna fracción seleccionada"))
        self.press("Tab", locked("Resultado", "Resultado correcto "))
        self.press("Tab", button("Continuar"))
        self.press("Tab", button("Borrar"))
        self.press("Tab", button("Ver solución"))
        self.press("Tab", locked("Mensajes", "No hay ninguna fracción seleccionada"))
        self.press("Tab", locked("Marcador", "Ejercicios:  3; Errores:  2"))
        self.press("alt+F4", window_again("KELVORA"), button("Suma de fracciones"))

        braille = self.session.braille()
        for message in (first, "Resultado incorrecto", self.fraction(total), "No hay ninguna fracción seleccionada"):
            self.assertIn(message, braille)
        self.assertNotIn("", braille)

    def type(self, digits):
        """Types a number; the voice echoes each digit, of which the next key may cut off the echo."""
        self.session.type(digits)
        echoed = [text.removesuffix(" [cut]").strip() for text in self.session.heard()]
        if OLD:
            self.assertEqual(echoed, list(digits))

    def press_return_for_help(self):
        self.session.press("Return")
        heard = self.session.heard(3)
        if OLD:
            self.assertEqual(heard, ["alerta Combinaciones de teclas.", HELP] + button("Aceptar"))
        else:
            # Orca 48 gets keys beside the program and not before it: the box can be there before the key that opened
            # it has been noticed, and that key then cuts off what had begun to be read.
            self.assertTrue(self.session.presented("alerta Combinaciones de teclas."))
            self.assertTrue(self.session.presented(HELP))
            self.assertEqual(heard[-1:], button("Aceptar"))

    def test_the_credits_are_heard(self):
        self.session.run(PROGRAM)
        self.session.wait_heard("botón")
        self.expect(window("KELVORA"), button("Suma de fracciones"))
        self.press("Alt_L", [CREDITS])
        self.session.press("Return")
        self.session.wait_heard("Aceptar")
        texts = self.session.heard()
        self.assertEqual(texts[-1:], button("Aceptar"))
        if OLD:
            self.assertEqual(texts[0], "alerta Kelvora.")
            self.assertIn("Autores", texts[1])
            self.assertEqual(len(texts), 3)
        self.assertTrue(self.session.presented("alerta Kelvora."))

    def test_without_announcements_the_suite_fails(self):
        """The suite proves itself: it is the announcements that it hears, and their absence does not pass."""
        self.open_sum(MUTE_PROGRAM)
        texts = self.session.heard()
        self.assertEqual(texts[:1], window("SUMA DE FRACCIONES"))
        with self.assertRaises(AssertionError):
            self.hear_exercise(texts)
        self.session.press("ctrl+Left")
        self.assertEqual(self.session.heard(), editable("Numerador del resultado", ""))
        with self.assertRaises(AssertionError):
            self.press("Return", said("Resultado incorrecto"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
