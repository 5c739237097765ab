"""What is in the unpacked archive for any Linux, KELVORA_FOLDER, as whoever has got it uses it."""

import os
import pathlib
import subprocess
import tempfile
import unittest

FOLDER = pathlib.Path(os.environ["KELVORA_FOLDER"])
LICENCES = """LEEME LGPL-3 fonts-comic-neue fonts-dejavu-core fonts-liberation libdbus-1 libffi libstdc++-12 libwayland libxau
    libxcb-cursor libxcb-icccm4 libxcb-image0 libxcb-keysyms1 libxcb-render-util0 libxcb-util libxcb1 libxdmcp libxkbcommon
    qt6-base qt6-translations-l10n qt6-wayland""".split()


class Archive(unittest.TestCase):
    def test_holds_what_it_should(self):
        self.assertEqual({path.name for path in FOLDER.iterdir()},
                         {"CHANGELOG.md", "LICENSE", "desinstalar", "instalar", "kelvora", "licencias", "manual", "share"})
        self.assertEqual({path.name for path in (FOLDER / "licencias").iterdir()}, {f"{name}.txt" for name in LICENCES})
        for path in FOLDER.rglob("*"):
            mode = path.stat().st_mode & 0o777
            runs = path.is_dir() or path.parent == FOLDER and path.suffix == "" and path.name != "LICENSE"
            self.assertEqual(mode, 0o755 if runs else 0o644, path)
            self.assertTrue(path.is_dir() or path.stat().st_size > 0, path)

    def test_is_of_this_version(self):
        self.assertEqual(subprocess.check_output([FOLDER / "kelvora", "--version"], text=True), f"Kelvora {os.environ['VERSION']}\n")

    def test_enters_the_menu_and_leaves_it(self):
        with tempfile.TemporaryDirectory() as home:
            environment = os.environ | {"XDG_DATA_HOME": home}
            subprocess.check_call([FOLDER / "instalar"], env=environment, stdout=subprocess.DEVNULL)
            entry, = pathlib.Path(home).glob("applications/*.desktop")
            self.assertIn(f'\nExec=env "{FOLDER}/kelvora"\n', entry.read_text())
            subprocess.check_call([FOLDER / "desinstalar"], env=environment, stdout=subprocess.DEVNULL)
            self.assertEqual([path for path in pathlib.Path(home).rglob("*") if path.is_file()], [])
