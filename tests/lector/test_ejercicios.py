"""A blind pupil's sessions on the other exercise screens. The pupil knows of an exercise only what was heard: the answers
typed are computed from the words.
"""

import re
import unittest

from pupil import *

CHARACTERS = {" ": "espacio", "|": "barra vertical" if OLD else "|"}
NUMBER = re.compile(r"(\d+)\.?")  # the content of a box that is not known


class ExerciseLesson(Lesson):
    name = title = None

    def open_exercise(self, first, reading):
        """Opens the screen, whose first stop is called `first`, and understands what it says at opening."""
        self.open_screen(PROGRAM, self.name, first)
        match = self.hear_match(reading)
        self.expect_window(self.title, self.first_stop(), said(match.group()))
        return match

    def first_stop(self):
        """The instruction: its first row, and the keys."""
        window, = (window for window in GIVEN if window["title"] == self.title)
        stop = min((control for control in window["controls"] if "tab" in control), key=lambda control: control["tab"])
        return locked(stop["says"], stop["text"].split("\n")[0]) + [stop["keys"]]

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
        self.press("7", echo("7"), said("solo lectura"))
        self.press("7", echo("7"))
        self.press("Tab", locked("Palabra entre la fracción y la cantidad", "de"))
        self.press("Tab", locked("Cantidad", f"{CARDINALS.index(match[3])}"))

        # Wrong, and the answer is selected for the next try.
        self.press("alt+r", editable("Resultado", ""))
        self.type("0")
        self.press("Return", selected("0"), said("Resultado incorrecto"))
        self.type(f"{result}", replacing=True)
        self.press("Return", button("Continuar"), said("resultado correcto"))

        match = self.exchange("Return", self.reading, editable("Resultado", ""))
        solution = f"{self.result(match)}"
        self.press("alt+o", ["Denominador."])
        self.press("Right", ["Hasta 10 marcada."])
        self.press("Down", [unchecked("Hasta 20")])
        self.press("Return", editable("Resultado", ""))
        self.press("Tab", locked("Ejercicio en palabras", match.group()))
        self.press("ctrl+r", editable("Resultado", ""))
        self.press("Tab", locked("Ejercicio en palabras", match.group()))
        self.press("alt+v", editable_selected("Resultado", solution))

        # A fraction of the pupil's own, with a quantity that it does not divide.
        self.session.press("F2")
        self.expect_input("Introducir fracción", "Introduzca el numerador de la fracción:",
                          f"{CARDINALS.index(match[1])}")
        self.type("3", replacing=True)
        self.session.press("Return")
        self.expect_input("Introducir fracción", "Introduzca el denominador de la fracción:",
                          f"{PARTS.index(match[2])}", behind=editable_selected("Resultado", solution))
        self.press("Escape", window_again(self.title), editable_selected("Resultado", solution))
        self.session.press("F3")
        self.expect_input("Introducir cantidad", "Introduzca la cantidad:", f"{CARDINALS.index(match[3])}")
        self.type("1", replacing=True)
        self.press_return_for_box("Introducir cantidad", "La división de la cantidad entre el denominador no es exacta "
                                  "¿desea continuar?", "Sí", behind=editable_selected("Resultado", solution))
        reading = match.group().split("  de ")[0] + "  de un"
        self.press("alt+s", window_again(self.title), editable_selected("Resultado", solution), said(reading))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Representacion(ExerciseLesson):
    name, title = "Representación gráfica", "Representación gráfica de fracciones"
    reading = r"(\w+) (\w+?)(s?)"

    def numbers(self, match):
        numerator = 1 if match[1] == "uno" else CARDINALS.index(match[1])
        return numerator, PARTS.index(match[2])

    def colour(self, total, parts):
        """Types a total into its box and colours the first parts, hearing each of them change."""
        self.type(f"{total}")
        self.press("Tab", locked("Partes coloreadas:", "0"))
        for part in range(1, parts + 1):
            self.press("Tab", button(f"{part} - verde"))
            count = f"partes coloreadas: {part}"
            name = f"{part} - rojo"
            told = renamed(name) + said(count) if NAMES_ARE_READ else said(f"{name}; {count}")
            self.press("space", [Perhaps(text) for text in echo("espacio")], told)

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", rf" ?{self.reading}")
        numerator, total = self.numbers(match)
        self.press("F3", said(f"{match[1]}  {match[2]}{match[3]} "))
        self.press("F3", said(f"{match[1]} {match[2]}{match[3]}"))

        # Too many parts are put right, and the number that stands there then is heard.
        self.press("alt+p", editable("Partes en total:", ""))
        self.type("1")
        self.press("2", echo("2"), said("10"))
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
        return locked("Instrucciones", rows[-1].removesuffix(".")) + ["L repite el ejercicio. F4 dice el marcador."]

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


class Ordenar(ExerciseLesson):
    name, title = "Ordenar fracciones", "Ordenar fracciones"
    reading = ", ".join([r"\w+ \w+"] * 4)

    @staticmethod
    def row(match):
        """The fractions of a reading from left to right: words, numerator and denominator."""
        return [(words, CARDINALS.index(words.split()[0]), PARTS.index(re.sub("s$", "", words.split()[1])))
                for words in match.group().split(", ")]

    @staticmethod
    def is_smaller(one, other):
        return one[1] * other[2] < other[1] * one[2]

    def put_in_order(self, row):
        """From the first fraction on: moves each that is smaller than the one to its left, and ends on the first again."""
        for _ in range(3):
            for i in range(1, 4):
                self.press("Tab", button(row[i][0]))
                if self.is_smaller(row[i], row[i - 1]):
                    row[i - 1], row[i] = row[i], row[i - 1]
                    self.press("Return", renamed(row[i][0]) if NAMES_ARE_READ else [], said(f"{row[i - 1][0]}, posición {i} de 4"))
            for i in (2, 1, 0):
                self.press("shift+Tab", button(row[i][0]))

    def continue_with(self, key):
        """Goes on to a new exercise. Orca 48 hears of the button's new name and of the focus, and may begin it twice."""
        self.session.press(key)
        match = self.hear_match(self.reading)
        first = button(self.row(match)[0][0])
        self.expect([] if OLD else [Perhaps(first[0])], first, said(match.group()))
        return self.row(match)

    def test_a_lesson(self):
        row = self.row(self.open_exercise("Instrucciones", self.reading))
        self.press("F3", said(", ".join(words for words, _, _ in row)))
        self.press("Tab", button(row[0][0]))
        self.press("alt+h", said("Resultado incorrecto"))  # the focus is back on the first fraction
        self.put_in_order(row)
        self.press("alt+h", button("Continuar"), said(" Resultado correcto"))
        self.press("alt+v", button("Ver solución"), said(", ".join(words for words, _, _ in row)))

        match = self.exchange("alt+b", self.reading, button("Borrar"))
        self.assertCountEqual(self.row(match), row)
        solution = self.row(self.exchange("alt+v", self.reading, button("Ver solución")))
        self.assertEqual(solution, row)
        self.press("alt+h", button("Continuar"), said(" Resultado correcto "))
        row = self.continue_with("Return")
        self.put_in_order(row)
        self.press("alt+h", button("Continuar"), said(" Resultado correcto"))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Conversion(ExerciseLesson):
    name, title = "Conversión al mismo denominador", "Convertir a común denominador"
    boxes = [f"{part} de la {which} fracción" for which in ("primera", "segunda") for part in ("Numerador", "Denominador")]

    def test_a_lesson(self):
        self.open_screen(PROGRAM, self.name, "Instrucciones")
        self.expect_window(self.title, locked("Instrucciones", "Convierte estas fracciones al mismo denominador."))
        given = []
        for i, box in enumerate(self.boxes):
            name, number = locked(f"{box} inicial", "")[0], NUMBER
            match, = self.press("Tab", group("Iniciales") if i == 0 else [], [name, number])
            given.append(int(match[1]))
        a, b, c, d = given
        for i, box in enumerate(self.boxes):
            self.press("Tab", group("Intermedios") if i == 0 else [], editable(f"{box} intermedia", ""))
        self.press("alt+h", button("Hecho"), said("Resultado incorrecto"))
        self.press("Return", said("Resultado incorrecto"))  # the same words again
        for i in (3, 2, 1, 0):
            self.press("shift+Tab", group("Finales") if i == 3 else [], editable(f"{self.boxes[i]} final", ""))
        for i, value in enumerate((a * d, b * d, c * b, b * d)):
            if i > 0:
                self.press("Tab", editable(f"{self.boxes[i]} final", ""))
            self.type(f"{value}")
        self.press("alt+h", button("Continuar"), said("Resultado correcto"))
        self.press("alt+v", button("Ver solución"))
        self.press("alt+h", button("Continuar"), said("Resultado correcto"))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Series(ExerciseLesson):
    name, title = "Completa la serie", "Completa la serie"
    reading = r"(\w+(?: y \w+)? \w+(?: y \w+)?, )+\w+(?: y \w+)? \w+(?: y \w+)?; falta el término (\d)"

    @staticmethod
    def next_term(match):
        """What comes next after the terms told, whose numerators and denominators each have one step."""
        terms = []
        for words in match.group().split(";")[0].split(", "):
            # Where the words of the numerator end tells only which words there are.
            numerator, denominator = next(
                (number, denominator) for number, cardinal in enumerate(CARDINALS)
                for denominator, part in enumerate(PARTS)
                if part and f"{cardinal} {part}{'' if number == 1 else 's'}" == words)
            terms.append((numerator, denominator))
        return [2 * last - previous for last, previous in zip(terms[-1], terms[-2])]

    def blank(self, match):
        return int(match[2])

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", self.reading)
        self.press("F3", said(match.group()))
        self.press("alt+b", editable("Numerador del término 5", ""))
        self.press("alt+b", said("Numerador del término 5"))  # where the focus was before
        self.press("Return", said("Respuesta incorrecta"))
        numerator, denominator = self.next_term(match)
        self.type(f"{numerator}")
        self.press("Tab", editable("Denominador del término 5", ""))
        self.type(f"{denominator}")
        self.press("F4", said("Ejercicios:   0; Errores:  1."))
        self.press("Return", button("Continuar"), said("Respuesta correcta"))
        match = self.exchange("Return", self.reading, editable("Numerador del término 5", ""))
        numerator, denominator = self.next_term(match)
        self.type(f"{numerator}")
        self.press("Tab", editable("Denominador del término 5", ""))
        self.type(f"{denominator}")
        self.press("Return", button("Continuar"), said("Respuesta correcta"))

        # A term that is given stays.
        self.press("shift+Tab", locked("Mensajes", "Respuesta correcta"))
        self.press("shift+Tab", button("Hecho"))
        self.press("shift+Tab", editable("Denominador del término 5", f"{denominator}"))
        self.press("shift+Tab", editable("Numerador del término 5", f"{numerator}"))
        given, = self.press("shift+Tab", editable("Denominador del término 4", ""), [NUMBER])
        self.press("7", echo("7"), said(given[1]))

        # A harder series has its blank one term later, which the solution fills.
        self.press("alt+o", ["Dificultad."])
        self.press("Right", ["1A marcada."])
        self.press("Down", [unchecked("1B")])
        self.press("Down", [unchecked("2A")])
        self.press("Return", editable("Numerador del término 5", f"{numerator}"))
        match = self.exchange("alt+c", self.reading, editable("Numerador del término 6", ""))
        self.assertEqual(match[2], "6")
        self.press("alt+v", said(fraction(*self.next_term(match))))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


class Factores(ExerciseLesson):
    name, title = "Descomposición en factores primos", "DESCOMPOSICIÓN EN FACTORES PRIMOS"
    empty_row = "     |    "
    reading = "|".join(["uno"] + CARDINALS)

    def ladder(self, row):
        return ["Escalera texto.", row]

    @staticmethod
    def value(match):
        return 1 if match.group() == "uno" else CARDINALS.index(match.group())

    def go(self, key, characters):
        """Steps from character to character, hearing each that it comes to."""
        for character in characters:
            self.press(key, [CHARACTERS.get(character, character)])

    def write_divisors(self, divisors):
        """Writes them below each other, from the caret on, hearing each row whole."""
        for divisor in divisors:
            self.type(f"{divisor}")
            self.press("Down", [self.empty_row])
            self.go("Left", " " * len(f"{divisor}"))

    def test_a_lesson(self):
        match = self.open_exercise("Instrucciones", self.reading)
        self.press("F3", said(match.group()))
        self.press("alt+b", self.ladder(self.empty_row))
        while self.value(match) == 1:  # which an empty ladder solves
            match = self.exchange("alt+c", self.reading, [])
        value = self.value(match)

        self.press("Tab", locked("Factores primos", ""))
        self.press("Tab", button("Hecho"))
        self.press_return_for_box("Kelvora", f"El producto de los factores calculados (1 es distinto del valor inicial "
                                  f"({value})", verdict="Resultado incorrecto")
        self.press("Return", window_again(self.title), button("Hecho"))

        # A bar stays, and what is refused says the row as it is.
        self.press("alt+b", self.ladder(self.empty_row))
        self.type(f"9{value}")
        self.press("BackSpace", ["espacio"])
        self.press("Home", ["9"])
        self.press("Delete", ["espacio"])
        self.type(f"{value}")
        self.go("Right", f"{value}".ljust(5)[len(f"{value}") + 1:] + "|")
        self.press("6", echo("6"), said(f"{value:<5}|    "))
        self.go("Right", " ")
        divisors, rest = [], value
        while rest > 1:
            divisors.append(next(d for d in range(2, rest + 1) if rest % d == 0))
            rest //= divisors[-1]
        self.write_divisors(divisors)
        for row in [f"     |{divisor:<4}" for divisor in reversed(divisors[1:])] + [f"{value:<5}|{divisors[0]:<4}"]:
            self.press("Up", [row])
        self.press("Tab", locked("Factores primos", " * ".join(str(d) for d in divisors) + " "))
        self.press("alt+h", button("Continuar"), said("Resultado correcto"))

        self.exchange("Return", self.reading, self.ladder(self.empty_row))
        self.press("F4", said("Ejercicios:  2; Errores:  1"))
        self.press("alt+o", ["Valores."])
        self.press("Right", [unchecked("Hasta 10")])
        self.press("Return", self.ladder(self.empty_row))
        self.session.press("F2")
        self.expect_input("Introducir valor", "Introduzca valor a descomponer: ", "")
        self.type("12")
        self.press("Return", window_again(self.title), self.ladder(self.empty_row), said("doce"))
        self.press("alt+v", said("Escalera 12|2"))  # where the focus was before
        self.press("Tab", locked_selected("Factores primos", "2 * 2 * 3 "))
        self.press("alt+F4", window_again("KELVORA"), button(self.name))


if __name__ == "__main__":
    unittest.main(verbosity=2)
