"""vendlingua-cli put: messages of .MSX files."""

from __future__ import annotations

import unittest

from message_files import msx_at, msx_file, msx_header
from support import CliTest


class PutIntoMsxFileTest(CliTest):
    def test_only_the_line_of_the_message_changes(self) -> None:
        content = msx_file(2)
        self.write("A.MSX", content)
        arguments = ("--language=2", "--message=0", "--text=AAAAAAAAAAAAAAAA")
        printed = self.done("put", "A.MSX", *arguments).out
        self.assertEqual(printed, "0\tAAAAAAAAAAAAAAAA\n")
        # 14 + FF + 1C + 70 + 16 x 41 = 5AF, of which AF is complemented.
        line = b"S214FF1C7041414141414141414141414141414141" + b"50\r\n"
        expected = content[: msx_at(2, 0)] + line + content[msx_at(2, 1) :]
        self.assertEqual(self.read("A.MSX"), expected)

    def test_a_line_at_address_ff8000_gets_its_checksum(self) -> None:
        start = msx_at(1, 0)
        content = bytearray(msx_file(1))
        content[start : start + 10] = b"S214FF8000"
        self.write("A.MSX", bytes(content))
        self.done("put", "A.MSX", "--language=1", "--message=0", "--text=AAAAAAAAAAAAAAAA")
        content[start : start + 44] = b"S214FF8000" + b"41" * 16 + b"5C"
        self.assertEqual(self.read("A.MSX"), bytes(content))

    def test_wrong_checksums_of_the_language_are_put_right(self) -> None:
        content = bytearray(msx_file(2))
        content[msx_at(1, 7) - 4 : msx_at(1, 7) - 2] = b"00"
        self.write("A.MSX", bytes(content))
        self.done("put", "A.MSX", "--language=1", "--message=0", "--text=L1 M0")
        self.assertEqual(self.read("A.MSX"), msx_file(2))

    def test_what_follows_the_language_stays(self) -> None:
        content = msx_file(1) + b"S9030000FC\r\nany thing"
        self.write("A.MSX", content)
        self.done("put", "A.MSX", "--language=1", "--message=454", "--text=L1 M454")
        self.assertEqual(self.read("A.MSX"), content)

    def test_cells_that_the_board_fills_are_not_forced(self) -> None:
        # Message 3 of the built-in table is "Credito þ þþþþþþ".
        self.write("A.MSX", msx_file(1))
        self.done("put", "A.MSX", "--language=1", "--message=3", "--text=Credit")
        self.assertEqual(self.text_of(3), "Credit          ")
        self.done("put", "A.MSX", "--language=1", "--message=3", "--text=Credit þ þþþþ")
        self.assertEqual(self.text_of(3), "Credit þ þþþþ   ")

    def test_the_built_in_language_is_not_changed(self) -> None:
        self.write("A.MSX", msx_file(1))
        self.refused("put", "A.MSX", "--language=0", "--message=1", "--text=x")

    def test_a_message_that_is_not_there_is_refused(self) -> None:
        self.write("A.MSX", msx_file(1))
        self.refused("put", "A.MSX", "--language=1", "--message=455", "--text=x")
        self.refused("put", "A.MSX", "--language=2", "--message=0", "--text=x")

    def test_a_language_that_is_partly_behind_the_end_is_refused(self) -> None:
        self.write("A.MSX", msx_file(2)[: msx_at(2, 300)])
        self.refused("put", "A.MSX", "--language=2", "--message=0", "--text=x")

    def test_lines_that_end_in_lf_alone_are_refused(self) -> None:
        whole = msx_file(2)
        one_line_feed = whole[: msx_at(1, 9) - 2] + b"\n" + whole[msx_at(1, 9) :]
        for content in (whole.replace(b"\r\n", b"\n"), one_line_feed):
            self.write("A.MSX", content)
            err = self.refused("put", "A.MSX", "--language=1", "--message=0", "--text=x").err
            self.assertRegex(err, r"A\.MSX: line \d+: ends in LF alone")

    def test_a_last_line_without_its_end_gets_one(self) -> None:
        self.write("A.MSX", msx_file(1))
        self.done("put", "A.MSX", "--language=1", "--message=0", "--text=x")
        with_end = self.read("A.MSX")
        self.write("A.MSX", msx_file(1)[:-2])
        self.done("put", "A.MSX", "--language=1", "--message=0", "--text=x")
        self.assertEqual(self.read("A.MSX"), with_end)

    def test_a_line_whose_head_is_not_hexadecimal_is_refused(self) -> None:
        content = bytearray(msx_file(1))
        content[msx_at(1, 6) + 5] = ord("x")
        self.write("A.MSX", bytes(content))
        err = self.refused("put", "A.MSX", "--language=1", "--message=0", "--text=x").err
        self.assertIn("A.MSX: line 8, column 5", err)

    def test_a_file_without_languages_is_refused(self) -> None:
        self.write("A.MSX", msx_header())
        self.refused("put", "A.MSX", "--language=1", "--message=0", "--text=x")

    def text_of(self, message: int) -> str:
        printed = self.done("texts", "A.MSX", "--language=1", "--json").json
        return printed["messages"][message]["text"]


if __name__ == "__main__":
    unittest.main()
