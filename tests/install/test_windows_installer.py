"""The installer for Windows and the notes of a release are made, wherever that is done."""

from __future__ import annotations

import os
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES = Path(os.environ["SOURCES"])
sys.path[:0] = [str(SOURCES / "packaging"), str(SOURCES / "packaging/windows")]
from installer import LANGUAGES, make_installer  # noqa: E402
from release_notes import notes_of  # noqa: E402

ICON = Path("/usr/share/nsis/Contrib/Graphics/Icons/modern-install.ico")


class WindowsInstallerTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def tree(self, name: str, time: int) -> Path:
        """A program's folder with something in it, whose files are of `time`."""
        tree = self.folder / name
        shutil.copytree(SOURCES / "data/fonts", tree / "fonts")
        shutil.copytree(SOURCES / "data/languages", tree / "languages")
        (tree / "samples").mkdir()
        for file in tree.rglob("*"):
            os.utime(file, (time, time))
        return tree

    def installer_of(self, tree: Path) -> bytes:
        installer = tree.with_suffix(".exe")
        make_installer(tree, ICON, "1.2.3", installer)
        return installer.read_bytes()

    def test_it_is_for_64_bit_windows(self) -> None:
        content = self.installer_of(self.tree("one", 1_700_000_000))
        header = int.from_bytes(content[0x3C:0x40], "little")
        self.assertEqual(content[header : header + 6], b"PE\0\0\x64\x86")

    def test_the_same_files_give_the_same_bytes_in_another_folder_at_another_time(self) -> None:
        one = self.installer_of(self.tree("one", 1_700_000_000))
        other = self.installer_of(self.tree("another name", 1_600_000_000))
        self.assertEqual(one, other)

    def test_the_tree_is_left_as_it_was(self) -> None:
        tree = self.tree("one", 1_700_000_000)
        before = sorted(tree.rglob("*"))
        self.installer_of(tree)
        self.assertEqual(sorted(tree.rglob("*")), before)

    def test_it_speaks_as_many_languages_as_the_program(self) -> None:
        self.assertEqual(len(LANGUAGES), len(list((SOURCES / "data/languages").glob("*.lng"))))


class ReleaseNotesTest(unittest.TestCase):
    CHANGELOG = "# Changelog\n\n## 1.10.0 (2027-01-02)\n\n- New.\n\n## 1.1.0 (2026-12-31)\n\n- Old.\n"

    def test_they_are_the_part_of_the_version(self) -> None:
        self.assertEqual(notes_of("1.1.0", self.CHANGELOG), "# Vendlingua 1.1.0\n\n- Old.\n")
        self.assertEqual(notes_of("1.10.0", self.CHANGELOG), "# Vendlingua 1.10.0\n\n- New.\n")

    def test_a_version_without_notes_is_an_error(self) -> None:
        with self.assertRaises(SystemExit):
            notes_of("1.0.0", self.CHANGELOG)


if __name__ == "__main__":
    unittest.main()
