"""The program for Windows under Wine: what a screen reader finds in its windows, what it is told in a lesson on each
screen, and that it leaves nothing behind.

Wine's side of the accessibility interface has no screen reader; it writes down each announcement as it comes in.
"""

import os
import pathlib
import re
import subprocess
import sys
import unittest
import zipfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import LIMIT, Desktop, wait_for

ZIP = pathlib.Path(os.environ["KELVORA_ZIP"])
TOOLS = pathlib.Path(os.environ["KELVORA_TOOLS"])
PREFIX = pathlib.Path(os.environ["WINEPREFIX"])
MENU = "KELVORA"
ANNOUNCED = re.compile(r'UiaRaiseNotificationEvent \(\w+, (\d+), (\d+), L"(.*)", L"[^"]*"\)')
WINDOW, BUTTON, EDIT = "50032", "50000", "50004"

WORDS = r"[a-zA-Záéíóú ]+"
OPERATION = {sign: rf" ?{WORDS}{re.escape(sign)}{WORDS}=" for sign in "+-÷"} | {" por ": rf" ?{WORDS} por {WORDS}="}
NOTHING = " ?cero ceros ?"
SCORE = r"Ejercicios: +\d+; Errores: +\d+\.?"
ROW = rf"{WORDS}, {WORDS}, {WORDS}, {WORDS}"
SERIES = rf"{ROW}; falta el término 5"


def operation(sign):
    """The keys of a lesson on one of the four operations, each with what it has to say."""
    wrong, reading = "Resultado incorrecto ?", OPERATION[sign]
    keys = [("F3", [reading]), ("F3", [reading]), ("ctrl+Left", [NOTHING])]
    keys += [("1", []), ("Tab", []), ("F3", [f"{reading}{WORDS}"])]
    keys += [("alt+h", [wrong]), ("alt+v", [WORDS]), ("F8", []), ("alt+c", [reading])]
    return [reading], keys


# For each screen, in the order of the menu's buttons: its title, what it says at opening, and keys with what they say.
LESSONS = [
    ("Representación gráfica de fracciones", [rf" ?{WORDS}"],
     [("F3", [WORDS]), ("alt+p", []), ("3", []), ("Tab", []), ("Tab", []),
      ("space", ["1 - rojo; partes coloreadas: 1"]), ("space", ["1 - verde; partes coloreadas: 0"]),
      ("alt+h", ["Respuesta incorrecta"]), ("F4", [SCORE]), ("alt+c", [WORDS])]),
    ("Expresa con fracciones", [r"Rojas: \d+; Amarillas: \d+; Verdes: \d+; Total: \d+\."],
     [("l", [r"Rojas: \d+; Amarillas: \d+; Verdes: \d+; Total: \d+\."]), ("alt+h", ["Respuesta incorrecta"]),
      ("alt+h", [" Respuesta incorrecta"])]),
    ("Fracción de una cantidad", [rf"{WORDS} de {WORDS}"],
     [("F1", [rf"{WORDS} de {WORDS}"]), ("alt+r", []), ("0", []), ("Return", ["Resultado incorrecto"])]),
    ("DESCOMPOSICIÓN EN FACTORES PRIMOS", [WORDS],
     [("F3", [WORDS]), ("Tab", []), ("Tab", []), ("alt+v", [r"Escalera [\d| ]+"]), ("alt+c", [WORDS]), ("F4", [SCORE])]),
    ("Ordenar fracciones", [ROW],
     [("7", ["solo lectura"]), ("Tab", []), ("Tab", []), ("Return", [rf"{WORDS}, posición 1 de 4"]), ("F3", [ROW]),
      ("alt+v", [ROW]), ("alt+b", [ROW]), ("alt+c", [ROW])]),
    ("Convertir a común denominador", [],
     [("alt+h", ["Resultado incorrecto"]), ("Return", ["Resultado incorrecto"])]),
    ("SUMA DE FRACCIONES", *operation("+")),
    ("DIFERENCIA DE FRACCIONES", *operation("-")),
    ("PRODUCTO DE FRACCIONES", *operation(" por ")),
    ("COCIENTE DE FRACCIONES", *operation("÷")),
    ("Completa la serie", [SERIES],
     [("F3", [SERIES]), ("Tab", []), ("Tab", []), ("7", [r"\d+"]), ("Return", ["Respuesta incorrecta"]), ("F4", [SCORE]),
      ("alt+c", [SERIES]), ("alt+v", [WORDS])]),
]


def unescape(text):
    return re.sub(r"\\([0-9a-f]{4})", lambda match: chr(int(match[1], 16)), text)


def counters_aside(names):
    """The names in order; of the counters, of which each exercise has another number, only that there are some."""
    return sorted({re.sub(r"^CBFicha\(\d+\)$", "CBFicha", name) for name in names})


class Wine(Desktop):
    """A desktop with the program's folder on it, unpacked anew, from which the program is started."""

    def __init__(self):
        super().__init__(WINEPREFIX=str(PREFIX), WINEDEBUG="-all,fixme+uiautomation", WINEDLLOVERRIDES="mscoree,mshtml=",
                         LANG="C.UTF-8")

    def _set_up(self):
        super()._set_up()
        self.folder = self.home / "Un lápiz"
        with zipfile.ZipFile(ZIP) as archive:
            archive.extractall(self.folder)
        self.program, = self.folder.glob("*/kelvora.exe")
        self._heard = 0

    def open(self):
        self.process = self.start("wine", str(self.program))
        self.wait_window(MENU)

    def wine(self, *command):
        subprocess.run(["wine", *map(str, command)], env=self.env, check=True, timeout=LIMIT, capture_output=True)

    def tree(self):
        """The elements of all windows: depth, control type, name, identifier, access key, states."""
        found = self.home / "tree"
        self.wine(TOOLS / "uia.exe", MENU, f"Z:{found}")
        return [line.split("\t") for line in found.read_text().splitlines()]

    def announced(self):
        """All announcements so far."""
        log = (self.home / "wine.log").read_text(errors="replace")
        return [unescape(match[3]) for match in ANNOUNCED.finditer(log)]

    def hear(self, count):
        """The announcements since the last call, of which so many are expected."""
        try:
            wait_for(lambda: len(self.announced()) >= self._heard + count, "", 5)
        except TimeoutError:
            pass  # the caller sees what is missing
        new = self.announced()[self._heard:]
        self._heard += len(new)
        return new

    def end_wine(self):
        """Ends Wine's own programs, which write the registry then."""
        self.wine("wineboot", "--end-session")
        subprocess.run(["wineserver", "-w"], env=self.env, check=True, timeout=60)


class Windows(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.desktop = Wine()
        self.addCleanup(self.close)

    def close(self):
        failed = any(case is self for case, _ in self._outcome.result.errors + self._outcome.result.failures)
        self.desktop.close(keep=failed)

    def open_screen(self, number):
        """Opens a screen from the menu, where the focus is on the button before."""
        self.desktop.press(*["Tab"] * (1 if number else 0), "Return")
        self.desktop.wait_window(LESSONS[number][0])

    def close_screen(self, number):
        self.desktop.press("alt+F4")
        self.desktop.wait_closed(LESSONS[number][0])
        self.desktop.wait_window(MENU)

    def test_the_tree_is_that_of_the_windows(self):
        names = self.desktop.home / "names"
        self.desktop.wine(TOOLS / "names.exe", f"Z:{names}")
        objects = {line.split("\t")[0]: sorted(line.split("\t")[1:]) for line in names.read_text().splitlines()}
        self.assertEqual(len(objects), len(LESSONS) + 1)
        self.desktop.open()
        self.audit(MENU, objects)
        for number, (title, _, _) in enumerate(LESSONS):
            self.open_screen(number)
            self.audit(title, objects)
            self.close_screen(number)

    def audit(self, title, objects):
        tree = self.desktop.tree()
        window = next(i for i, (depth, _, name, *_) in enumerate(tree) if depth == "0" and name == title)
        self.assertEqual(tree[window][1], WINDOW)
        elements = []
        for element in tree[window + 1:]:
            if element[0] == "0":
                break
            elements.append(element)
        focusable = [element for element in elements if "focusable" in element[5]]
        self.assertEqual(counters_aside(element[3].rsplit(".", 1)[-1] for element in focusable), counters_aside(objects[title]))
        names = [element[2] for element in focusable]
        self.assertEqual(len(set(names)), len(names), names)
        self.assertNotIn("", names)
        focused = [element[2] for element in focusable if "focused" in element[5]]
        self.assertEqual(len(focused), 1, (title, focused))
        for _, kind, name, identifier, key, states in focusable:
            self.assertIn(kind, (BUTTON, EDIT), name)
            if kind == BUTTON:
                self.assertNotIn("readonly", states, name)
            if name in ("Hecho", "Continuar", "Borrar", "Ver solución"):
                self.assertEqual(key, f"Alt+{name[0]}", identifier)
        if title != MENU:
            self.assertIn("readonly", " ".join(element[5] for element in focusable))

    def test_every_announcement_comes_in_once_and_in_order(self):
        self.desktop.open()
        self.desktop.tree()  # somebody listens
        for number, (title, opening, keys) in enumerate(LESSONS):
            self.open_screen(number)
            self.expect(title, opening)
            for key, texts in keys:
                self.desktop.press(key)
                self.expect(f"{title}: {key}", texts)
            self.close_screen(number)

    def expect(self, what, patterns):
        heard = self.desktop.hear(len(patterns))
        self.assertEqual(len(heard), len(patterns), (what, heard))
        for text, pattern in zip(heard, patterns):
            self.assertRegex(text, f"^(?:{pattern})$", what)

    def test_nothing_is_left_behind(self):
        def files():
            return {path: path.stat().st_size for path in self.desktop.folder.rglob("*")}

        def registry():
            """The keys and values, without the times of their last change and of Wine's display driver."""
            return {name: [re.sub(r"(?<=\]) \d+$", "", line)
                           for line in (PREFIX / name).read_text(errors="replace").splitlines()
                           if not line.startswith(("#time", '"DriverDate'))] for name in ("user.reg", "system.reg")}

        def lesson():
            self.desktop.open()
            self.open_screen(0)
            self.desktop.press("F3", "alt+h", "alt+v", "alt+c", "alt+F4")
            self.desktop.wait_window(MENU)
            self.desktop.press("alt+F4")
            self.assertEqual(self.desktop.process.wait(LIMIT), 0)
            self.desktop.end_wine()

        lesson()  # Wine notes things of its own the first time
        before = files(), registry()
        lesson()
        after = files(), registry()
        self.assertEqual(before[0], after[0])
        for name in before[1]:
            self.assertEqual([line for line in after[1][name] if line not in set(before[1][name])], [])

    def test_the_folder_is_small_and_complete(self):
        self.assertLess(ZIP.stat().st_size, 15_000_000)
        top = self.desktop.program.parent
        for name in ("manual/index.html", "LICENSE.txt", "CHANGELOG.md", "licencias/qt6-base.txt", "licencias/LGPL-3.txt"):
            self.assertTrue((top / name).is_file(), name)
        version = re.search(r"kelvora-(.*)-windows", ZIP.name)[1]
        manifest = self.desktop.output("wrestool", "--raw", "--extract", "--type=24", str(self.desktop.program))
        self.assertIn("PerMonitorV2", manifest)
        self.assertIn("UTF-8", manifest)
        self.assertIn(version.encode("utf-16-le"), self.desktop.program.read_bytes())
        icons = self.desktop.output("wrestool", "--list", "--type=icon", str(self.desktop.program)).splitlines()
        self.assertEqual(len(icons), 8, icons)


if __name__ == "__main__":
    unittest.main(verbosity=2)
