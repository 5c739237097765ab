"""What is installed, out of the archive that runs from any folder: the program, what the desktop knows of it, the manuals."""

import collections
import configparser
import html.parser
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
import xml.etree.ElementTree

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, Gio

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import LIMIT, Desktop, wait_for

SOURCE = pathlib.Path(__file__).parents[2]
ID = "org.kelvora.kelvora"


def output(*command, **options):
    """All that a command has to say, which must succeed."""
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options).stdout


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.language, self.headings, self.pictures, self.links, self.names, self.texts = None, [], {}, [], set(), []
        self.tag = None
        self.feed(path.read_text())

    def handle_starttag(self, tag, attrs):
        self.tag, attrs = tag, dict(attrs)
        self.names.add(attrs.get("id"))
        if tag == "html":
            self.language = attrs.get("lang")
        elif tag in ("h1", "h2", "h3", "h4"):
            self.headings.append(int(tag[1]))
        elif tag == "img":
            self.pictures[attrs["src"]] = attrs.get("alt", "")
        elif tag in ("a", "link", "script"):
            self.links.append(attrs.get("href") or attrs.get("src"))

    def handle_data(self, data):
        if data.strip():
            self.texts.append((self.tag, data))


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="Kelvora en una carpeta "))
        cls.addClassCleanup(shutil.rmtree, folder)
        output(os.environ["CPACK"], "--config", os.environ["CPACK_CONFIG"], "-B", str(folder))
        archive, = folder.glob("*.tar.gz")
        shutil.unpack_archive(archive, folder / "unpacked")
        cls.root, = (folder / "unpacked").iterdir()
        cls.share = cls.root / "share"
        cls.entry = configparser.ConfigParser(interpolation=None)
        cls.entry.optionxform = str
        cls.entry.read(cls.share / f"applications/{ID}.desktop")
        cls.entry = cls.entry["Desktop Entry"]

    def test_the_desktop_entry_is_valid(self):
        self.assertEqual(output("desktop-file-validate", self.share / f"applications/{ID}.desktop"), "")
        self.assertTrue(os.access(self.root / "bin" / self.entry["Exec"], os.X_OK))

    def test_the_icon_is_there_in_all_sizes(self):
        icons = self.share / "icons/hicolor"
        for size in (16, 22, 24, 32, 48, 64, 128, 256):
            with open(icons / f"{size}x{size}/apps/{self.entry['Icon']}.png", "rb") as picture:
                self.assertEqual(struct.unpack(">II", picture.read(24)[16:]), (size, size))
        for name in (f"scalable/apps/{ID}.svg", f"symbolic/apps/{ID}-symbolic.svg"):
            self.assertTrue(xml.etree.ElementTree.parse(icons / name).getroot().tag.endswith("svg"))

    def test_the_smallest_icon_has_lines_of_whole_pixels(self):
        picture = GdkPixbuf.Pixbuf.new_from_file(str(self.share / f"icons/hicolor/16x16/apps/{ID}.png"))
        self.assertTrue(picture.get_has_alpha())
        pixels, stride = picture.get_pixels(), picture.get_rowstride()

        def dots(x, y):
            return tuple(pixels[stride * y + 4 * x:][:4])

        for place in range(3, 13):
            for line in (dots(7, place), dots(place, 8)):
                self.assertEqual(line, (0, 0, 0, 255))
        self.assertEqual({dots(x, y) for x in (6, 8) for y in (5, 6, 10)}, {(0, 170, 0, 255), (255, 255, 255, 255)})

    def test_the_icon_of_the_windows_is_the_same(self):
        installed = self.share / f"icons/hicolor/64x64/apps/{ID}.png"
        carried = SOURCE / "ui/widgets/kelvora.png"
        one, other = (GdkPixbuf.Pixbuf.new_from_file(str(path)).get_pixels() for path in (installed, carried))
        self.assertEqual(len(one), len(other))
        self.assertLess(max(abs(a - b) for a, b in zip(one, other)), 16)  # librsvg may round otherwise another time

    def test_the_metainfo_is_valid_and_of_this_version(self):
        path = self.share / f"metainfo/{ID}.metainfo.xml"
        root = xml.etree.ElementTree.parse(path)
        validated = subprocess.run(["appstreamcli", "validate", "--pedantic", "--no-net", path], stdout=subprocess.PIPE, text=True)
        objections = re.findall(r"^[EWIP]: .*: (\S+)$", validated.stdout, re.MULTILINE)
        if root.find("url") is None and objections == ["url-homepage-missing"]:
            objections = []  # there is no address yet
        elif not objections:
            self.assertEqual(validated.returncode, 0, validated.stdout)
        self.assertEqual(objections, [])
        self.assertEqual(root.find("releases/release").get("version"), os.environ["VERSION"])
        self.assertEqual(root.findtext("launchable"), f"{ID}.desktop")
        for image in root.iterfind("screenshots/screenshot/image"):
            self.assertTrue((self.share / "doc/kelvora" / image.text.removeprefix(root.findtext("url"))).exists())

    def test_the_manual_page_is_well_formed(self):
        page = self.share / "man/man1/kelvora.1"
        self.assertEqual(output("man", "--warnings", "-E", "UTF-8", "-Z", "-l", page, env=os.environ | {"MANWIDTH": "80"},
                                encoding="latin-1").count("warning"), 0)
        self.assertIn(f"Kelvora {os.environ['VERSION']}", page.read_text())

    def test_the_manual_page_says_where_the_manual_is(self):
        page = output("man", "-E", "UTF-8", "-l", self.share / "man/man1/kelvora.1", env=os.environ | {"MANWIDTH": "80", "MANPAGER": "cat"})
        for name in "index.html", "manual.pdf":
            self.assertIn(f"{os.environ['DOCDIR']}/manual/{name}", page)

    def test_the_manual_can_be_read_without_eyes_and_without_a_network(self):
        folder = self.share / "doc/kelvora/manual"
        page = Page(folder / "index.html")
        self.assertEqual(output("tidy", "-errors", "-quiet", folder / "index.html"), "")
        self.assertEqual(page.language, "es")
        self.assertEqual(page.headings.count(1), 1)
        for before, heading in zip(page.headings, page.headings[1:]):
            self.assertLessEqual(heading, before + 1)
        self.assertEqual(set(page.pictures), {picture.name for picture in folder.glob("*.png")})
        for alternative in page.pictures.values():
            self.assertGreater(len(alternative), 40)
        self.assertEqual({link.removeprefix("#") for link in page.links} - page.names, set())

    def test_the_manual_is_there_for_paper_and_as_plain_text_with_every_word(self):
        folder = self.share / "doc/kelvora/manual"
        page = Page(folder / "index.html")
        texts = [(tag, text) for tag, text in page.texts if tag not in ("style", "title", "footer")]
        words = {word for _, text in texts for word in re.findall(r"\w+", text)}
        self.assertGreater(len(words), 900)
        plain = (folder / "manual.txt").read_text()
        columns = {word for tag, text in texts if tag == "th" for word in re.findall(r"\w+", text)}
        self.assertEqual(words - columns - set(re.findall(r"\w+", plain)), set())
        self.assertIn("- Alt+B. Dónde: en todos los ejercicios. Qué hacen: Borrar: vacía la respuesta y lleva a ella",
                      re.sub(r"\s+", " ", plain))
        self.assertLessEqual(max(map(len, plain.splitlines())), 80)
        self.assertNotRegex(plain, "[|─]|-----")  # nothing that is drawn
        paper = output("pdftotext", "-raw", folder / "manual.pdf", "-")
        self.assertEqual(words - set(re.findall(r"\w+", paper)), set())
        about = dict(re.findall(r"(?m)^(\w+): +(.*)$", output("pdfinfo", folder / "manual.pdf")))
        self.assertEqual((about["Title"], about["Tagged"]), ("Manual de Kelvora", "yes"))
        begin = texts.index(("h2", "Las teclas de un vistazo"))
        end = next(i for i in range(begin + 1, len(texts)) if texts[i][0] == "h2")
        keys, = (text for text in paper.split("\f") if text.startswith(texts[begin][1]))
        self.assertEqual(collections.Counter(word for _, text in texts[begin:end] for word in re.findall(r"\w+", text)) -
                         collections.Counter(re.findall(r"\w+", keys)), collections.Counter())

    def test_the_braille_fits_on_its_pages_and_its_contents_lead_to_them(self):
        folder = self.share / "doc/kelvora/manual"
        text = (folder / "manual.brf").read_bytes().decode("ascii")
        pages = [page.split("\r\n") for page in text.split("\f")]
        self.assertEqual(pages.pop(), [""])
        for place, page in enumerate(pages, 1):
            self.assertEqual(len(page), 25 + 1)  # its end is the last line's
            self.assertLessEqual(max(map(len, page)), 40)
            self.assertEqual(page[0].strip(), "#" + "".join("JABCDEFGHI"[int(digit)] for digit in str(place)))
        # The dots, looked up by hand, of 4.8. Diferencia de fracciones, with one sign of numbers or two, and of Alt+H.
        heading = r"#D'#?H' \.DIFERENCIA DE FRACCIONES"
        entry, = re.findall(rf"(?m)^{heading} +(#[A-J]+)\r$", text)
        page, = (page for page in pages if any(re.fullmatch(heading, line) for line in page))
        self.assertEqual(page[0].strip(), entry)
        self.assertIn(".ALT6.H", text)
        headings = [text for tag, text in Page(folder / "index.html").texts if tag in ("h2", "h3")]
        # A line of a paragraph may begin with a number, too.
        self.assertGreaterEqual(len(re.findall(r"(?m)^#[A-J]+'(?:#?[A-J]+')? ", text)), 2 * len(headings))

    def portable(self, name):
        """A folder of this name as the portable edition is, but for its program."""
        folder = self.root.parent / name
        shutil.copytree(self.share, folder / "share")
        for script in (SOURCE / "data/portable").iterdir():
            shutil.copy(script, folder)
        return folder

    def test_the_portable_edition_enters_the_menu_of_all_and_leaves_it(self):
        folder, menu = self.portable("of all"), self.root.parent / "menu of all"
        menu.mkdir()
        entry = menu / f"applications/{ID}.desktop"
        # There /usr/local/share is another folder; who is not root is it in a namespace.
        there = ["unshare", "--mount", *(["--map-root-user"] if os.getuid() else []),
                 "sh", "-c", 'mount --bind "$0" /usr/local/share && exec "$@"', menu]
        self.assertEqual(output(*there, folder / "instalar", "todos"), "Kelvora está en el menú de aplicaciones.\n")
        self.assertIn(f'\nExec=env "{folder}/kelvora"\n', entry.read_text())
        self.assertEqual(output(*there, folder / "desinstalar", "todos"), "Kelvora ya no está en el menú de aplicaciones.\n")
        self.assertEqual([path for path in menu.rglob("*") if path.is_file()], [])

    def test_the_portable_edition_says_why_a_menu_stays_as_it_is(self):
        folder, home = self.portable("refused"), self.root.parent / "a home"
        (home / f"applications/{ID}.desktop").mkdir(parents=True)  # which rm does not remove
        (home / "icons").write_text("")
        for call, reason in {"instalar": f"No se puede escribir en {home}.",
                             "desinstalar": f"No se puede borrar en {home}.",
                             "instalar nadie": "instalar no admite nadie: va solo o con «todos».",
                             "desinstalar nadie": "desinstalar no admite nadie: va solo o con «todos»."}.items():
            script, *words = call.split()
            done = subprocess.run([folder / script, *words], env=os.environ | {"XDG_DATA_HOME": str(home)}, capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stdout, done.stderr.splitlines()[-1]), (1, "", reason))

    def test_the_portable_edition_enters_the_menu_and_leaves_it(self):
        folder = self.portable('Kelvora de "Ñ" por $5 al 100%u en `C:\\`')  # all that means something in a menu entry
        home = self.root.parent / "home"
        (folder / "kelvora").write_text(f'#!/bin/sh\necho started >"{home}/started"\n')
        (folder / "kelvora").chmod(0o755)
        environment = os.environ | {"XDG_DATA_HOME": str(home)}

        self.assertEqual(output(folder / "instalar", env=environment), "Kelvora está en el menú de aplicaciones.\n")
        entry = home / f"applications/{ID}.desktop"
        self.assertEqual(output("desktop-file-validate", entry), "")
        self.assertTrue((home / f"icons/hicolor/64x64/apps/{ID}.png").exists())
        program = Gio.DesktopAppInfo.new_from_filename(str(entry))
        self.assertTrue(program.launch([], None))
        wait_for((home / "started").exists, "the program")
        (home / "xdg-open").write_text(f'#!/bin/sh\nprintf %s "$1" >"{home}/opened"\n')
        (home / "xdg-open").chmod(0o755)
        with unittest.mock.patch.dict(os.environ, PATH=f"{home}:{os.environ['PATH']}"):
            program.launch_action("manual", None)
        wait_for(lambda: (home / "opened").exists() and (home / "opened").read_text() == f"{folder}/manual/index.html", "the manual")

        self.assertEqual(output(folder / "desinstalar", env=environment), "Kelvora ya no está en el menú de aplicaciones.\n")
        self.assertEqual({path.name for path in home.rglob("*") if path.is_file()}, {"started", "xdg-open", "opened"})

    def test_the_program_runs_from_its_folder(self):
        desktop = Desktop()
        self.addCleanup(desktop.close)
        program = desktop.start(self.root / "bin/kelvora", cwd="/")
        window = desktop.wait_window("KELVORA")
        self.assertIn(f'"{self.entry["StartupWMClass"]}"', desktop.output("xprop", "-id", window, "WM_CLASS"))
        self.assertIn("Icon (64 x 64)", desktop.output("xprop", "-id", window, "_NET_WM_ICON"))
        desktop.press("shift+Tab", "Return")
        self.assertEqual(program.wait(LIMIT), 0)


class Braille(unittest.TestCase):
    """Texts of small letters, which stand for themselves in a BRF, as capitals."""

    def translated(self, text, is_refused=False):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="kelvora-"))
        self.addCleanup(shutil.rmtree, folder)
        (folder / "text").write_text(text)
        done = subprocess.run([SOURCE / "docs/manual/braille.py", folder / "text", folder / "brf"], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=60)
        self.assertEqual(done.returncode != 0, is_refused, done.stdout)
        return done.stdout if is_refused else (folder / "brf").read_bytes().decode("ascii").replace("\r\n", "\n")

    def test_no_word_is_lost_and_each_heading_is_on_its_page(self):
        letters = "abcdefghij"
        for length in range(0, 450, 8):
            words = ["".join(letters[int(digit)] for digit in str(number)) for number in range(1, length + 2)]
            pages = self.translated(f"titulo\n\n{' '.join(words)}\n\n1. uno\n\n{' '.join(words)}\n\n1.1. otro\n\n- {' '.join(words)}\n"
                                    f"\n    dentro\n").split("\f")[:-1]
            contents = dict(re.findall(r"(?m)^\S+ (UNO|OTRO) +(#[A-J]+)$", pages[0]))
            self.assertIn("TITULO", pages[0])
            for page in pages[1:]:
                number, text = page.split("\n", 1)
                for heading in re.findall(r"(?m)^#A'(?:#?A')? (UNO|OTRO)$", text):
                    self.assertEqual(contents.pop(heading), number.strip())
                    self.assertNotRegex(text, rf"{heading}\n*$")  # it is not left behind
            self.assertEqual(contents, {})
            said = " ".join(page.split("\n", 1)[1] for page in pages[1:]).split()
            expected = [word.upper() for word in words]
            said = [word for word in said if not word.startswith("#")]
            self.assertEqual(said, expected + ["UNO"] + expected + ["OTRO"] + expected + ["DENTRO"])

    def test_what_belongs_together_is_seen_by_its_margin(self):
        page = self.translated("titulo\n\n1. uno\n\n" + "parrafo " * 6 + "\n\n- " + "elemento " * 5 + "\n\n    " + "dentro " * 6).split("\f")[1]
        self.assertEqual(page.rstrip("\n").split("\n")[1:], [
            "#A' UNO", "  PARRAFO PARRAFO PARRAFO PARRAFO", "PARRAFO PARRAFO", "ELEMENTO ELEMENTO ELEMENTO ELEMENTO", "  ELEMENTO",
            "    DENTRO DENTRO DENTRO DENTRO DENTRO", "  DENTRO"])

    def test_what_braille_cannot_show_is_no_braille(self):
        for text in "una \N{SNOWMAN}", "palabra" * 6:
            self.assertIn(text, self.translated(f"titulo\n\n1. uno\n\n{text}\n", is_refused=True))
        self.assertIn("UNA", self.translated("titulo\n\n1. uno\n\nuna C:\\Kelvora\n"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
