"""vendlingua-cli display-type: the type in the header of a .MES file."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_file
from support import CliTest


class DisplayTypeTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.content = MesFile(flags=b"03").content()
        self.write("A.MES", self.content)

    def test_the_flags_change_and_no_other_byte(self) -> None:
        for name, number, flags in (
            ("cyrillic", 1, b"07"),
            ("Katakana", 2, b"0B"),
            ("normal", 0, b"03"),
        ):
            out = self.done("display-type", "A.MES", name).out
            self.assertEqual(out, f"A.MES: display type {number}\n")
            self.assertEqual(self.read("A.MES"), self.content[:2] + flags + self.content[4:])
            self.assertEqual(self.done("info", "A.MES", "--json").json["displayType"], number)

    def test_json_tells_the_type_as_info_does(self) -> None:
        printed = self.done("display-type", "A.MES", "katakana", "--json").json
        self.assertEqual(printed, {"file": "A.MES", "displayType": 2})

    def test_a_mes_file_cannot_hold_the_hebrew_type(self) -> None:
        err = self.refused("display-type", "A.MES", "hebrew").err
        self.assertIn("A.MES: a .MES file cannot hold the Hebrew display type", err)

    def test_an_msx_file_holds_no_type(self) -> None:
        self.write("A.MSX", msx_file(1))
        err = self.refused("display-type", "A.MSX", "cyrillic").err
        self.assertIn("A.MSX: a .MSX file does not hold a display type", err)

    def test_a_type_that_is_none(self) -> None:
        for name in ("greek", "4", "-1", ""):
            self.wrong_usage("display-type", "A.MES", name)


if __name__ == "__main__":
    unittest.main()
