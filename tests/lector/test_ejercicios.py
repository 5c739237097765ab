"""A blind pupil's sessions on the other exercise screens. The pupil knows of an exercise only what was heard: the answers
typed are computed from the words.
"""

import re
import unittest

from pupil import *


class ExerciseLesson(Lesson):
    name = title = None

    def open_exercise(self, first, reading):
        """Opens the screen, whose first stop is called `first`, and understands what it says at opening."""
        self.open_screen(PROGRAM, self.name, first)
        match = self.hear_match(reading)
        self.expect_window(self.title, self.first_stop(), said(match.group()))
        return match

    def hear_match(self, reading):
        """Waits for a text that fits `reading`, with or without the stop of a sentence."""
        return self.session.wait_heard_match(re.compile(rf"(?:{reading})(?=\.?$)"))

    def exchange(self, key, reading, *parts):
        """Presses a key that brings a new exercise, which is said after `parts`."""
        self.session.press(key)
        match = self.hear_match(reading)
        self.expect(*parts, said(match.group()))
        return match


class Cantidad(ExerciseLesson):
    name, title = "Fracción de una cantidad", "Fracción de una cantidad"
    reading = r"(\w+) (\w+?)s?  de (\w+(?: y \w+)?)"

    def first_stop(self):
        return locked("Instrucciones", "CALCULA")

    def result(self, match):
        numerator, part, quantity = match.groups()
        return CARDINALS.index(quantity) * CARDINALS.index(numerator) // PARTS.index(part)

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", self.reading)
        text = match.group()
        result = self.result(match)
        self.press("F1", said(" " + text))
        self.press("F1", said(text))
        self.press("Tab", locked("Numerador", f"{CARDINALS.index(match[1])}"))
        self.press("Tab", locked("Denominador", f"{PARTS.index(match[2])}"))
        self.press("Tab", locked("Palabra entre la fracción y la cantidad", "de"))
        self.press("Tab", locked("Cantidad", f"{CARDINALS.index(match[3])}"))

        # Wrong, and the answer is selected for the next try.
        self.session.press("alt+r")
        self.assertEqual([text for text in self.session.heard(1) if text.strip() != "r"], editable("Resultado", ""))
        self.type("0")
        self.press("Return", selected("0"), said("Resultado incorrecto"))
        self.type(f"{result}", replacing=True)
        self.press("Return", button("Continuar"), said("resultado correcto"))

        match = self.exchange("Return", self.reading, editable("Resultado", ""))
        solution = f"{self.result(match)}"
        self.press("Tab", locked("Ejercicio en palabras", match.group()))
        self.press("alt+v", editable_selected("Resultado", solution))

        # A fraction of the pupil's own, with a quantity that it does not divide.
        self.session.press("F2")
        self.expect_input("Introducir fracción", "Introduzca el numerador de la fracción:",
                          f"{CARDINALS.index(match[1])}")
        self.type("3", replacing=True)
        self.session.press("Return")
        self.expect_input("Introducir fracción", "Introduzca el denominador de la fracción:",
                          f"{PARTS.index(match[2])}")
        self.session.press("Escape")
        self.session.heard(1)
        self.session.press("F3")
        self.expect_input("Introducir cantidad", "Introduzca la cantidad:", f"{CARDINALS.index(match[3])}")
        self.type("1", replacing=True)
        self.session.press("Return")
        self.session.wait_heard("desea continuar")
        self.session.heard()
        self.session.press("alt+s")
        self.session.wait_heard(" de un")
        self.session.heard()
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Representacion(ExerciseLesson):
    name, title = "Representación gráfica", "Representación gráfica de fracciones"
    reading = r"(\w+) (\w+?)(s?)"

    def first_stop(self):
        return locked("Instrucciones", "Escribe el número de partes a realizar y colorea las ")

    def numbers(self, match):
        numerator = 1 if match[1] == "uno" else CARDINALS.index(match[1])
        return numerator, PARTS.index(match[2])

    def colour(self, total, parts):
        """Types a total into its box and colours the first parts, hearing each of them change."""
        self.type(f"{total}")
        self.press("Tab", locked("Partes coloreadas:", "0"))
        for part in range(1, parts + 1):
            self.press("Tab", button(f"{part} - verde"))
            self.session.press("space")
            expected = renamed(f"{part} - rojo")
            heard = self.session.heard(len(expected))
            self.assertEqual([text for text in heard if not text.startswith("espacio")], expected)

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", rf" ?{self.reading}")
        numerator, total = self.numbers(match)
        self.press("F3", said(f"{match[1]}  {match[2]}{match[3]} "))
        self.press("F3", said(f"{match[1]} {match[2]}{match[3]}"))

        # Too many parts are put right, and the number that stands there then is heard.
        self.press("alt+p", editable("Partes en total:", ""))
        self.session.type("12")
        self.session.wait_heard("10")
        self.assertIn(said("10")[-1], self.session.heard())
        self.press("alt+h", button("Hecho"), said("Respuesta incorrecta"))
        self.press("alt+b", editable("Partes en total:", ""))

        self.colour(total, numerator)
        self.press("alt+h", button("Continuar"), said("Respuesta correcta"))
        match = self.exchange("Return", self.reading, editable("Partes en total:", ""))
        numerator, total = self.numbers(match)
        self.press("Tab", locked("Partes coloreadas:", "0"))
        self.press("alt+v", editable_selected("Partes en total:", f"{total}"))
        self.press("Tab", locked_selected("Partes coloreadas:", f"{numerator}"))
        self.press("Tab", button("1 - rojo"))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Fichas(ExerciseLesson):
    name, title = "Expresa con fracciones", "Expresa con fracciones"
    reading = r"Rojas: (\d+); Amarillas: (\d+); Verdes: (\d+); Total: (\d+)\."
    frames = ["ROJO", "AMARILLO", "VERDE"]
    boxes = [f"{part} {colour}" for colour in ("rojo", "amarillo", "verde") for part in ("Numerador", "Denominador")]

    def first_stop(self):
        # The first row of the instruction, as far as it goes in the type that there is.
        rows = [text for text in self.session.heard_so_far() if text.startswith("Expresa con una fracción ")]
        self.assertIn(rows[-1].removesuffix(".").strip(), "Expresa con una fracción la parte que representa cada color")
        return locked("Instrucciones", rows[-1])

    def answer(self, match):
        """Fills the six boxes from the first one on."""
        total = match[4]
        for i, value in enumerate((match[1], total, match[2], total, match[3], total)):
            if i > 0:
                self.press("Tab", group(self.frames[i // 2]) if i % 2 == 0 else [], editable(self.boxes[i], ""))
            self.type(value)

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", self.reading)
        self.press("l", echo("l"), said(match.group()))
        self.press("l", echo("l"), said(match.group()))
        self.press("Tab", group("ROJO"), editable(self.boxes[0], ""))
        self.press("alt+h", button("Hecho"), said("Respuesta incorrecta"))
        self.press("Return", said(" Respuesta incorrecta"))
        self.press("alt+b", group("ROJO"), editable(self.boxes[0], ""))
        self.answer(match)
        self.press("alt+h", button("Continuar"), said("Respuesta correcta"))
        self.press("Tab", button("Borrar"))
        self.press("Tab", button("Ver solución"))
        self.press("Tab", button("ficha roja 1"))
        self.exchange("alt+c", self.reading, group("ROJO"), editable(self.boxes[0], ""))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


if __name__ == "__main__":
    unittest.main(verbosity=2)
