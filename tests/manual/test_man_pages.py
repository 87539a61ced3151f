"""The manual pages are sound and tell everything that the program's help does."""

from __future__ import annotations

import gzip
import re
import subprocess
import unittest

from help_texts import MANUAL, commands, examples, options

PAGES = ("vendlingua-cli.1", "vendlingua.1")


def shown(page: str) -> str:
    """What a reader sees, without line breaks of the terminal's width."""
    done = subprocess.run(
        ["mandoc", "-T", "utf8", "-O", "width=1000", MANUAL / page],
        check=True,
        capture_output=True,
        text=True,
    )
    return re.sub(".\b", "", done.stdout)


class ManPageTest(unittest.TestCase):
    def setUp(self) -> None:
        self.pages = [page for page in PAGES if (MANUAL / page).exists()]

    def test_the_pages_are_sound(self) -> None:
        for page in self.pages:
            lint = subprocess.run(
                ["mandoc", "-T", "lint", "-W", "warning", MANUAL / page], capture_output=True, text=True
            )
            self.assertEqual((lint.stdout, lint.returncode), ("", 0))

    def test_the_packed_pages_are_the_same_and_bear_no_time(self) -> None:
        for page in self.pages:
            packed = (MANUAL / (page + ".gz")).read_bytes()
            self.assertEqual(gzip.decompress(packed), (MANUAL / page).read_bytes())
            self.assertEqual(packed[4:8], bytes(4))

    def test_every_command_has_its_section(self) -> None:
        page = shown("vendlingua-cli.1")
        self.assertGreater(len(commands()), 5)
        for command in commands():
            self.assertRegex(page, rf"(?m)^   {command}$")
            self.assertRegex(page, rf"(?m)^ +vendlingua-cli {command}( |$)")

    def test_every_option_and_example_of_a_command_is_told(self) -> None:
        page = shown("vendlingua-cli.1")
        for command in commands():
            section = re.split(r"(?m)^ {0,3}\S.*$", page.split(f"\n   {command}\n")[1])[0]
            for option in options(command):
                self.assertRegex(section, rf"(?m)^ +{option}( |$)", command)
            for example in examples(command):
                self.assertIn(example.strip(), section)

    def test_values_of_a_set_are_listed(self) -> None:
        self.assertIn("--display normal|cyrillic|katakana|hebrew", shown("vendlingua-cli.1"))

    def test_characters_that_are_requests_are_shown(self) -> None:
        page = shown("vendlingua-cli.1")
        self.assertIn(" &H… or 0x….", page)  # not ASCII
        self.assertIn("the file's", page)
        self.assertIn(".MES files: header, sizes", page)  # begins a line with a full stop


if __name__ == "__main__":
    unittest.main()
