"""vendlingua-cli new-language: a language is added behind the others of a .MES file."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_file
from support import CliTest


class NewLanguageTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile()
        self.write("A.MES", self.file.content())

    def test_texts_of_another_language_are_the_start(self) -> None:
        printed = self.done("new-language", "A.MES", "--from=1", "--name=POLSKI").out
        self.assertEqual(printed, "language 3: POLSKI\n")
        self.assert_appended(b"POLSKI".ljust(20) + b"100011111222")

    def test_texts_of_the_reference_are_the_start(self) -> None:
        self.done("new-language", "A.MES", "--from=0", "--name=POLSKI")
        self.assert_appended(b"POLSKI".ljust(20) + b"000001110222")

    def test_a_language_without_a_start_is_blank(self) -> None:
        self.done("new-language", "A.MES", "--name=POLSKI")
        self.assert_appended(b"POLSKI".ljust(20) + 12 * b" ")

    def test_json_tells_number_and_name(self) -> None:
        printed = self.done("new-language", "A.MES", "--name=polski", "--json").json
        expected = {"file": "A.MES", "language": 3, "name": "POLSKI", "notices": []}
        self.assertEqual(printed, expected)

    def test_the_gap_behind_a_shorter_block_is_filled_with_zeros(self) -> None:
        self.done("new-language", "A.MES", "--from=1", "--name=POLSKI")
        self.done("new-language", "A.MES", "--from=2", "--name=SUOMI")
        self.assert_appended(
            b"POLSKI".ljust(20) + b"100011111222" + bytes(4) + b"SUOMI".ljust(20) + b"200021112222"
        )
        self.assertIn("language 4: SUOMI\n", self.done("info", "A.MES").out)

    def test_the_first_language_can_be_added(self) -> None:
        self.file.names = [b"Default"]
        self.write("A.MES", self.file.content())
        self.assertEqual(self.done("new-language", "A.MES", "--name=A").out, "language 1: A\n")

    def test_a_name_is_stored_in_upper_case(self) -> None:
        self.done("new-language", "A.MES", "--name=Française Ÿšœß")
        self.assert_appended(b"FRAN\xc7AISE \x9f\x8a\x8c\xdf".ljust(20) + 12 * b" ")

    def test_a_name_is_cut_to_20_characters(self) -> None:
        self.done("new-language", "A.MES", "--name=abcdefghijklmnopqrstuvwxyz")
        self.assert_appended(b"ABCDEFGHIJKLMNOPQRST" + 12 * b" ")

    def test_a_blank_at_the_start_of_a_name_stays(self) -> None:
        self.assertEqual(
            self.done("new-language", "A.MES", "--name= english").out, "language 3:  ENGLISH\n"
        )

    def test_cells_that_the_board_fills_are_copied(self) -> None:
        texts = {
            (0, 0): b"a\xfe\xfe ",
            (0, 2): b"b \xfe\xfe",
            (1, 0): b"c\xfe\xfe ",
            (1, 2): b"d \xfe\xfe",
        }
        for start in (0, 1):
            self.file = MesFile(texts=texts)
            self.write("A.MES", self.file.content())
            self.done("new-language", "A.MES", f"--from={start}", "--name=POLSKI")
            self.assert_appended(b"POLSKI".ljust(20) + self.file.messages(start))

    def test_messages_of_every_width_are_copied_whole(self) -> None:
        for width in (1, 16, 20, 21, 40):
            for start in (0, 1):
                with self.subTest(width=width, start=start):
                    self.file = MesFile(width=width)
                    self.write("A.MES", self.file.content())
                    self.done("new-language", "A.MES", f"--from={start}", "--name=POLSKI")
                    self.assert_appended(b"POLSKI".ljust(20) + self.file.messages(start))

    def test_language_100_is_the_last(self) -> None:
        self.file.names = [b"Default"] + [f"N{k}".encode() for k in range(1, 100)]
        self.write("A.MES", self.file.content())
        self.assertEqual(self.done("new-language", "A.MES", "--name=X").out, "language 100: X\n")
        for start in ((), ("--from=1",)):
            err = self.refused("new-language", "A.MES", *start, "--name=Y").err
            self.assertIn("A.MES: the file already holds 100 languages", err)

    def test_a_name_that_is_taken_is_refused_once(self) -> None:
        for name in ("ENGLISH", "english", "English  "):
            err = self.refused("new-language", "A.MES", f"--name={name}").err
            reason = 'A.MES: another language is named "ENGLISH"'
            self.assertEqual(err, f"vendlingua-cli: {reason}\n")

    def test_the_name_of_the_reference_may_be_used(self) -> None:
        self.file.names = [b"DEFAULT", b"ITALIANO"]
        self.write("A.MES", self.file.content())
        self.done("new-language", "A.MES", "--name=default")

    def test_a_blank_name_is_refused_once(self) -> None:
        for name in ("", " ", " " * 20 + "X"):
            err = self.refused("new-language", "A.MES", "--name", name).err
            reason = "A.MES: the name of a language cannot be blank"
            self.assertEqual(err, f"vendlingua-cli: {reason}\n")

    def test_a_name_the_display_cannot_show_is_refused(self) -> None:
        err = self.refused("new-language", "A.MES", "--name=РУССКИЙ").err
        self.assertIn('"Р"', err)

    def test_a_start_that_is_not_in_the_file_is_refused(self) -> None:
        for start in (3, 101, -1):
            err = self.refused("new-language", "A.MES", f"--from={start}", "--name=X").err
            self.assertIn(f"A.MES: has no language {start}", err)

    def test_a_start_that_is_cut_has_blanks_for_what_is_missing(self) -> None:
        cut = self.file.content()[: self.file.at(2, 1) + 1]
        self.write("A.MES", cut)
        err = self.done_with_message("new-language", "A.MES", "--from=2", "--name=X").err
        self.assertIn("A.MES: Language 2 ends early in the file", err)
        gap = bytes(self.file.block(3) - len(cut))
        self.assertEqual(self.read("A.MES"), cut + gap + b"X".ljust(20) + b"20002       ")

    def test_an_msx_file_takes_no_new_language(self) -> None:
        self.write("A.MSX", msx_file(1))
        err = self.refused("new-language", "A.MSX", "--name=X").err
        self.assertIn("A.MSX: a .MSX file cannot take a new language", err)

    def assert_appended(self, expected: bytes) -> None:
        self.assertEqual(self.read("A.MES"), self.file.content() + expected)


if __name__ == "__main__":
    unittest.main()
