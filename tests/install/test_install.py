"""What is installed works where it lies, and greets people in the language of their system."""

from __future__ import annotations

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

LOCALE_VARIABLES = ("LC_ALL", "LC_MESSAGES", "LANG")


class InstallTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.prefix = Path(folder.name) / "programs"

    def install(self, **locale: str) -> None:
        environment = {k: v for k, v in os.environ.items() if k not in LOCALE_VARIABLES}
        subprocess.run(
            [os.environ["CMAKE"], "--install", os.environ["BUILD"], "--prefix", self.prefix],
            env=environment | locale,
            check=True,
            capture_output=True,
        )

    def settings(self) -> bytes:
        return (self.prefix / "vendlingua.ini").read_bytes()

    def test_programs_lie_beside_what_they_read(self) -> None:
        self.install()
        subprocess.run([self.prefix / "vendlingua-cli", "--version"], check=True)
        self.assertTrue(os.access(self.prefix / "vendlingua", os.X_OK))
        self.assertEqual(len(list(self.prefix.glob("*.lng"))), 9)
        fonts = sorted(font.name for font in (self.prefix / "fonts").iterdir())
        self.assertEqual(fonts, ["LCD.ttf", "LCD_CY.ttf", "LCD_HBR.ttf", "LCD_KTV.ttf"])

    def test_the_language_of_the_system_is_set(self) -> None:
        self.install(LANG="nl_BE.UTF-8")
        self.assertEqual(self.settings(), b"Lingua=nederlands\r\n")

    def test_a_category_goes_before_the_general_locale(self) -> None:
        self.install(LC_ALL="", LC_MESSAGES="sv_SE", LANG="da_DK")
        self.assertEqual(self.settings(), b"Lingua=svenska\r\n")

    def test_other_systems_get_english(self) -> None:
        self.install(LC_ALL="frr_DE.UTF-8")
        self.assertEqual(self.settings(), b"Lingua=english\r\n")

    def test_a_choice_that_was_made_stays(self) -> None:
        self.install(LANG="de_DE")
        (self.prefix / "vendlingua.ini").write_bytes(b"Lingua=dansk\r\n")
        self.install(LANG="de_DE")
        self.assertEqual(self.settings(), b"Lingua=dansk\r\n")


if __name__ == "__main__":
    unittest.main()
