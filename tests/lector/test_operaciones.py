"""A blind pupil's sessions on the screens of the four operations: every utterance of the screen reader, from the menu
and back to it.

The pupil knows of the exercise only what was heard: the answers typed are computed from the words of the reading.
"""

import math
import os
import re
import unittest

from pupil import *

HELP = ("F2: Lee la fracción seleccionada.|F3: Lee la operación completa.|"
        "Control + cursor derecha: Pasa de una fracción a la de su derecha.|"
        "Control + cursor izquierda: Pasa de una fracción a la de su izquierda.")


class OperationLesson(Lesson):
    name = title = sign = None
    keys = "F4 dice el marcador."
    alternates = True  # the blank before the reading of the operation
    line = ""  # what the message line holds

    def open_operation(self, program=PROGRAM):
        """Opens the screen and hears it, with its first exercise."""
        self.open_screen(program, self.name, "Numerador")
        self.hear_exercise()
        self.expect_window(self.title, locked("Numerador de la primera fracción", f"{self.n1}"), self.says_operation())

    def hear_exercise(self):
        """Waits for the reading of a new exercise, and understands it."""
        reading = rf" ?(\w+) (\w+?)s?{re.escape(self.sign)}(\w+) (\w+?)s?=$"
        n1, d1, n2, d2 = self.session.wait_heard_match(re.compile(reading)).groups()
        self.n1, self.d1, self.n2, self.d2 = CARDINALS.index(n1), PARTS.index(d1), CARDINALS.index(n2), PARTS.index(d2)

    def says_operation(self, result=""):
        lead = " " if self.alternates and not self.line.startswith(" ") else ""
        return self.says(f"{lead}{fraction(self.n1, self.d1)}{self.sign}{fraction(self.n2, self.d2)}={result}")

    def says_fraction(self, words):
        """Read by a key: a reading that the line holds already comes with a blank more."""
        return self.says(words + (" " if words == self.line else ""))

    def says(self, text):
        self.line = text
        return said(text)

    def next_exercise(self):
        """Presses Enter, which brings a new exercise."""
        self.session.press("Return")
        self.hear_exercise()
        self.expect(editable("Numerador del resultado", ""), self.says_operation())

    def show_solution(self, numerator, denominator):
        """Has the solution written into the boxes and read. It is written behind the focus: Orca 43 on a busy machine may have
        read the box already when it hears of that, and says the number once more."""
        once_more = [Perhaps(f"{numerator}")] if OLD else []
        self.press("alt+v", editable("Numerador del resultado", f"{numerator}"), once_more, self.says(fraction(numerator, denominator)))

    def answer(self, numerator, denominator):
        """Types an answer from the empty numerator on."""
        self.type(f"{numerator}")
        self.press("Tab", editable("Denominador del resultado", ""))
        self.type(f"{denominator}")


class SumLesson(OperationLesson):
    name, title, sign = "Suma de fracciones", "SUMA DE FRACCIONES", "+"

    def work(self, program=PROGRAM):
        self.open_operation(program)
        self.assertEqual(self.d1, self.d2)
        first, second, total = fraction(self.n1, self.d1), fraction(self.n2, self.d2), self.n1 + self.n2

        # The reading keys, each twice: the same words with a blank more, or less.
        self.press("F2", self.says_fraction(first))
        self.press("F2", self.says_fraction(first))
        self.press("F3", self.says_operation())
        self.press("F3", self.says_operation())

        self.press("Escape")  # nothing happens, and there is nothing to say
        self.press("Alt_L", ["Opciones."])
        self.press("Alt_L", locked("Numerador de la primera fracción", f"{self.n1}"))

        # Round the fractions to the right, and back in the row of the denominators.
        self.press("ctrl+Right", locked("Numerador de la segunda fracción", f"{self.n2}"), self.says_fraction(second))
        self.press("ctrl+Right", editable("Numerador del resultado", ""), self.says_fraction("cero ceros"))
        self.press("ctrl+Right", locked("Numerador de la primera fracción", f"{self.n1}"), self.says_fraction(first))
        self.press("Tab", locked("Denominador de la primera fracción", f"{self.d1}"))
        self.press("ctrl+Left", editable("Denominador del resultado", ""), self.says_fraction("cero ceros"))
        self.press("ctrl+Left", locked("Denominador de la segunda fracción", f"{self.d1}"), self.says_fraction(second))
        self.press("ctrl+Left", locked("Denominador de la primera fracción", f"{self.d1}"), self.says_fraction(first))
        self.press("shift+Tab", locked("Numerador de la primera fracción", f"{self.n1}"))
        self.press("ctrl+Left", editable("Numerador del resultado", ""), self.says_fraction("cero ceros"))

        # A wrong answer, two times; the focus stays.
        self.type("1")
        self.press("Return", said("Resultado incorrecto"))
        self.press("Return", said("Resultado incorrecto "))
        self.press("Tab", editable("Denominador del resultado", ""))
        self.type(f"{self.d1}")
        self.press("shift+Tab", editable("Numerador del resultado", "1"))

        self.press("F4", said("Ejercicios:  2; Errores:  2"))

        # The right one; the verdict is heard on "Continuar", and Enter there brings the next exercise.
        self.press("alt+b", said("Numerador del resultado"))  # where the focus was before
        self.answer(total, self.d1)
        self.press("F3", self.says_operation(fraction(total, self.d1)))
        self.press("shift+Tab", editable("Numerador del resultado", f"{total}"))
        self.press("Return", button("Continuar"), said("Resultado correcto "))
        self.press("shift+Tab", locked("Resultado", "Resultado correcto "))
        self.press("Tab", button("Continuar"))
        self.next_exercise()

        # The solution is in the box and in the message, the same.
        total = self.n1 + self.n2
        self.press("Tab", editable("Denominador del resultado", ""))
        self.show_solution(total, self.d1)
        self.press("Tab", editable("Denominador del resultado", f"{self.d1}"))

        # An option, the key help, the score, and back to the menu.
        self.press("alt+o", ["Cantidades."])
        self.press("Right", ["Hasta 10 marcada."])
        self.press("Down", [unchecked("Hasta 20")])
        self.press("Return", editable("Denominador del resultado", f"{self.d1}"))
        self.press("alt+o", ["Cantidades."])
        self.press("Down", ["Denominador."])
        self.press("Down", [SUBMENU_HELP])
        behind = editable("Denominador del resultado", f"{self.d1}")
        self.press_return_for_box("Combinaciones de teclas", HELP, behind=behind)
        self.press("Return", window_again(self.title, self.keys), editable("Denominador del resultado", f"{self.d1}"))
        self.press("Tab", button("Hecho"))
        self.press("F2", self.says("No hay ninguna fracción seleccionada"))
        self.press("F2", self.says("No hay ninguna fracción seleccionada"))
        self.press("Tab", locked("Resultado", "Resultado correcto "))
        self.press("Tab", button("Continuar"))
        self.press("Tab", button("Borrar"))
        self.press("Tab", button("Ver solución"))
        self.press("Tab", locked("Mensajes", "No hay ninguna fracción seleccionada"))
        self.press("Tab", locked("Marcador", "Ejercicios:  3; Errores:  2"))
        self.press("alt+F4", window_again("KELVORA"), button("Suma de fracciones"))


class Suma(SumLesson):
    def test_a_lesson(self):
        self.work()
        self.assertNotIn("", self.session.braille())


class Broken(SumLesson):
    """The lesson proves itself: programs with one fault each do not pass it."""

    def tearDown(self):
        pass  # what was heard is wrong

    def fails(self, fault, *signs):
        """The lesson fails where the fault shows, and by what is heard: the failure shows the signs of it."""
        self.session.env["KELVORA_FAULT"] = fault
        with self.assertRaises((AssertionError, TimeoutError)) as failure:
            self.work(os.environ["KELVORA_BROKEN"])
        for sign in signs:
            self.assertRegex(str(failure.exception), sign)

    def test_announces_nothing(self):
        self.fails("mute", r"waited .*=\$")

    def test_announces_twice(self):
        self.fails("twice", r"(notificación\.|\+[ \w]+=)( \[cut\])?'")  # as far as the next question let it be heard

    def test_announces_without_the_last_character(self):
        self.fails("short", r"waited .*=\$")

    def test_announces_and_cuts_itself_off(self):
        self.fails("cut", "Hecho" if OLD else r"\[cut\]")  # to the older reader only keys are a reason to fall silent

    def test_announces_after_the_next_key(self):
        self.fails("late", r"waited .*=\$")

    def test_announces_in_english(self):
        self.fails("english", "Wrong result")

    def test_leaves_a_button_without_a_name(self):
        self.fails("nameless", "Borrar")

    def test_moves_the_focus_to_the_score_at_escape(self):
        self.fails("astray", "Marcador")


class Diferencia(OperationLesson):
    name, title, sign = "Diferencia de fracciones", "DIFERENCIA DE FRACCIONES", "-"

    def test_a_lesson(self):
        self.open_operation()
        self.assertEqual(self.d1, self.d2)
        self.press("F3", self.says_operation())
        self.press("ctrl+Down", self.says_operation())
        self.press("ctrl+Up", self.says_fraction(fraction(self.n1, self.d1)))
        self.press("ctrl+Left", editable("Numerador del resultado", ""), self.says_fraction("cero ceros"))

        # A negative number is read as such; being wrong, it is cleared away.
        self.answer("-3", 4)
        self.press("F2", self.says_fraction("menos tres cuartos"))
        self.press("F3", self.says_operation("menos tres cuartos"))
        self.press("Return", editable("Numerador del resultado", ""), said("Resultado incorrecto "))
        self.press("F3", self.says_operation())
        self.press("Return", said("Resultado incorrecto  "))
        self.answer("-1", 2)
        self.press("F2", self.says_fraction("menos un medios"))
        self.press("F3", self.says_operation("menos un medio"))
        self.press("alt+b", editable("Numerador del resultado", ""))
        self.answer(self.n1 - self.n2, self.d1)
        self.press("Return", button("Continuar"), said("Resultado correcto "))

        # Different denominators: the solution may be negative.
        self.press("alt+o", ["Cantidades."])
        self.press("Down", ["Denominador."])
        self.press("Right", ["El mismo denominador marcada."])
        self.press("Down", [unchecked("Distinto denominador ")])
        self.press("Return", button("Continuar"))
        self.next_exercise()
        self.assertNotEqual(self.d1, self.d2)
        common = math.lcm(self.d1, self.d2)
        difference = common // self.d1 * self.n1 - common // self.d2 * self.n2
        self.press("Tab", editable("Denominador del resultado", ""))
        self.show_solution(difference, common)
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Producto(OperationLesson):
    name, title, sign = "Producto de fracciones", "PRODUCTO DE FRACCIONES", " por "

    def test_a_lesson(self):
        self.open_operation()
        self.press("F3", self.says_operation())
        self.press("F3", self.says_operation())
        self.press("Return")  # checks nothing here, and there is nothing to say
        self.press("ctrl+Left", editable("Numerador del resultado", ""), self.says_fraction("cero ceros"))

        # A wrong answer stays, and its verdict is the same each time, since the key has emptied it.
        self.answer(1, 1000)
        self.press("Return", editable("Numerador del resultado", "1"), said("Resultado incorrecto "))
        self.press("Return", said("Resultado incorrecto "))
        self.press("alt+h", said("Resultado incorrecto  "))  # the focus is back where it was
        self.press("alt+b", said("Numerador del resultado"))
        self.answer(self.n1 * self.n2, self.d1 * self.d2)
        result = fraction(self.n1 * self.n2, self.d1 * self.d2)
        self.press("F3", self.says_operation(result))
        self.press("Return", button("Continuar"), said("Resultado correcto "))
        self.next_exercise()

        product = self.n1 * self.n2, self.d1 * self.d2
        self.press("Tab", editable("Denominador del resultado", ""))
        self.show_solution(*product)

        # No denominators to choose here.
        self.press("alt+o", ["Cantidades."])
        self.press("Down", [SUBMENU_HELP])
        self.press("Escape", ["Opciones."])
        self.press("Escape", editable("Numerador del resultado", f"{product[0]}"))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Cociente(OperationLesson):
    name, title, sign = "Cociente de fracciones", "COCIENTE DE FRACCIONES", "÷"
    alternates = False

    def test_a_lesson(self):
        self.open_operation()
        self.press("F3", self.says_operation())
        self.press("F3", self.says_operation())
        self.press("Return", editable("Numerador del resultado", ""), said("Resultado incorrecto "))
        self.answer(1, 1000)

        # The focus stays on the buttons.
        self.press("alt+b", button("Borrar"))
        self.press("shift+Tab", button("Continuar"))
        self.press("alt+v", button("Ver solución"), self.says(fraction(self.n1 * self.d2, self.d1 * self.n2)))
        self.press("alt+b", button("Borrar"))
        self.press("Return")
        self.press("shift+Tab", button("Continuar"))
        self.next_exercise()

        self.answer(self.n1 * self.d2, self.d1 * self.n2)
        self.press("F3", self.says_operation(fraction(self.n1 * self.d2, self.d1 * self.n2)))
        self.press("Return", button("Continuar"), said("Resultado correcto "))
        self.press("alt+o", ["Cantidades."])
        self.press("Down", ["Combinaciones de teclas."])
        self.press_return_for_box("Combinaciones de teclas", HELP, behind=button("Continuar"))
        self.press("Return", window_again(self.title, self.keys), button("Continuar"))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


if __name__ == "__main__":
    unittest.main(verbosity=2)
