"""What is installed, out of the archive that runs from any folder: the program, what the desktop knows of it, the manuals."""

import configparser
import html.parser
import os
import pathlib
import shutil
import struct
import subprocess
import tempfile
import time
import unittest
import xml.etree.ElementTree

ID = "org.kelvora.kelvora"
LIMIT = 30  # seconds to wait for anything at all; only a failure takes that long


def output(*command, **options):
    """All that a command has to say, which must succeed."""
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options).stdout


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.language, self.headings, self.pictures, self.links, self.names = None, [], {}, [], set()
        self.feed(path.read_text())

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        self.names.add(attrs.get("id"))
        if tag == "html":
            self.language = attrs.get("lang")
        elif tag in ("h1", "h2", "h3", "h4"):
            self.headings.append(int(tag[1]))
        elif tag == "img":
            self.pictures[attrs["src"]] = attrs.get("alt", "")
        elif tag in ("a", "link", "script"):
            self.links.append(attrs.get("href") or attrs.get("src"))


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

    def test_the_metainfo_is_valid_and_of_this_version(self):
        path = self.share / f"metainfo/{ID}.metainfo.xml"
        output("appstreamcli", "validate", "--no-net", path)
        root = xml.etree.ElementTree.parse(path)
        self.assertEqual(root.find("releases/release").get("version"), os.environ["VERSION"])
        self.assertEqual(root.findtext("launchable"), f"{ID}.desktop")
        for image in root.iterfind("screenshots/screenshot/image"):
            self.assertTrue((self.share / "doc/kelvora" / image.text.removeprefix(root.findtext("url"))).exists())

    def test_the_manual_page_is_well_formed(self):
        page = self.share / "man/man1/kelvora.1"
        self.assertEqual(output("man", "--warnings", "-E", "UTF-8", "-Z", "-l", page, env=os.environ | {"MANWIDTH": "80"},
                                encoding="latin-1").count("warning"), 0)
        self.assertIn(f"Kelvora {os.environ['VERSION']}", page.read_text())

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

    def test_the_program_runs_from_its_folder(self):
        env = {key: os.environ[key] for key in ("PATH", "HOME") if key in os.environ}
        read, write = os.pipe()
        self.start(env, "Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp",
                   pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            env["DISPLAY"] = f":{pipe.readline().strip()}"
        self.start(env, "openbox", "--sm-disable")
        self.wait_for(env, "window id", "xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        program = self.start(env, self.root / "bin/kelvora", cwd="/")
        window = self.wait_for(env, "", "xdotool", "search", "--onlyvisible", "--name", "^KELVORA$")
        self.assertIn(f'"{self.entry["StartupWMClass"]}"', output("xprop", "-id", window, "WM_CLASS", env=env))
        output("xdotool", "windowactivate", "--sync", window, "key", "shift+Tab", "Return", env=env)
        self.assertEqual(program.wait(LIMIT), 0)

    def wait_for(self, env, text, *command):
        """Runs a command until it succeeds and says `text`; all that it says."""
        end = time.monotonic() + LIMIT
        while time.monotonic() < end:
            done = subprocess.run(command, env=env, capture_output=True, text=True)
            if done.returncode == 0 and text in done.stdout:
                return done.stdout.strip()
            time.sleep(0.1)
        self.fail(f"waited {LIMIT} s for {command}")

    def start(self, env, *command, **options):
        child = subprocess.Popen(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(child.wait)
        self.addCleanup(child.terminate)
        return child


if __name__ == "__main__":
    unittest.main(verbosity=2)
