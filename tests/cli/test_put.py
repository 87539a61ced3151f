"""vendlingua-cli put: one message is changed, every other byte of the file stays."""

from __future__ import annotations

import unittest

from message_files import MesFile
from on_windows import ONLY_UNICODE, not_on_windows
from support import CliTest


class PutIntoMesFileTest(CliTest):
    def test_only_the_cells_of_the_message_change(self) -> None:
        file = MesFile()
        self.write("A.MES", file.content())
        printed = self.put("--language=1", "--message=2", "--text=Ciao")
        self.assertEqual(printed, "2\tCiao\n")
        file.texts[1, 2] = b"Ciao"
        self.assertEqual(self.read("A.MES"), file.content())

    def test_every_message_of_every_language_can_be_changed(self) -> None:
        for language in (1, 2):
            for message in (0, 1, 2):
                file = MesFile()
                self.write("A.MES", file.content())
                self.put(f"--language={language}", f"--message={message}", "--text=wxyz")
                file.texts[language, message] = b"wxyz"
                self.assertEqual(self.read("A.MES"), file.content())

    def test_json_tells_what_was_stored(self) -> None:
        self.write("A.MES", MesFile().content())
        arguments = ("A.MES", "--language=2", "--message=1", "--text=Tè", "--json")
        printed = self.done("put", *arguments).json
        self.assertEqual(printed["file"], "A.MES")
        self.assertEqual(printed["language"], 2)
        self.assertEqual(printed["message"], 1)
        self.assertEqual(printed["text"], "Tè  ")
        self.assertEqual(printed["notices"], [])

    def test_a_language_that_ends_early_is_completed(self) -> None:
        file = MesFile()
        cut = file.content()[: file.at(2, 1) + 1]
        self.write("A.MES", cut)
        self.done_with_message("put", "A.MES", "--language=2", "--message=0", "--text=new")
        self.assertEqual(self.read("A.MES"), cut[: file.at(2, 0)] + b"new " + b"2   " + b"    ")
        self.done("verify", "A.MES")

    def test_a_short_text_is_padded_with_blanks(self) -> None:
        self.assert_stored(b"ab  ", "--text=ab")

    def test_an_empty_text_leaves_blanks(self) -> None:
        self.assert_stored(b"    ", "--text", "")
        self.assert_stored(b"    ", "--hex", "")

    def test_a_long_text_is_cut_and_the_user_is_told(self) -> None:
        file = MesFile()
        self.write("A.MES", file.content())
        result = self.done_with_message(
            "put", "A.MES", "--language=1", "--message=1", "--text=abcde", "--json"
        )
        warning = "warning: A.MES: message 1: the text was cut to 4 cells"
        self.assertEqual(result.err, f"vendlingua-cli: {warning}\n")
        self.assertEqual((result.json["text"], result.json["cut"]), ("abcd", True))
        file.texts[1, 1] = b"abcd"
        self.assertEqual(self.read("A.MES"), file.content())

    def test_blanks_at_the_start_stay(self) -> None:
        self.assert_stored(b"  a ", "--text=  a")

    def test_a_text_that_looks_like_an_option_is_a_text(self) -> None:
        self.assert_stored(b"-h  ", "--text", "-h")
        self.assert_stored(b"--oo", "--text", "--oo")
        self.assert_stored(b"--  ", "--text=--")

    def test_utf8_becomes_display_codes(self) -> None:
        self.assert_stored(b"\xe8\x80\xfe\x9f", "--text=è€þŸ")
        self.assert_stored(b"\xdf\xff\xa0\x81", "--text=ßÿ\u00a0\u0081")

    def test_text_is_taken_in_the_characters_of_the_display(self) -> None:
        self.write("A.MES", MesFile(width=6, flags=b"04").content())
        self.done("put", "A.MES", "--language=1", "--message=1", "--text=Привет")
        message = self.done("texts", "A.MES", "--language=1", "--json").json["messages"][1]
        self.assertEqual(message, {"index": 1, "text": "Привет", "hex": "A870B8B365BF"})

    def test_every_character_that_the_display_cannot_draw_is_named(self) -> None:
        self.write("A.MES", MesFile().content())
        result = self.refused("put", "A.MES", "--language=1", "--message=1", "--text=Пaж")
        self.assertIn('"П", "ж"', result.err)

    def test_hexadecimal_text_gives_the_codes(self) -> None:
        self.assert_stored(b"\x01\xff\x41\x0d", "--hex=01FF410D")
        self.assert_stored(b"\xab\xcd  ", "--hex=abcd")

    def test_hexadecimal_text_in_odd_pairs_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        for hexadecimal in ("4", "414", "4G", "0x41", " 41", "41 "):
            arguments = ("A.MES", "--language=1", "--message=1", f"--hex={hexadecimal}")
            self.assertIn("hexadecimal", self.refused("put", *arguments).err)

    def test_a_character_the_display_does_not_have_is_refused_by_name(self) -> None:
        self.write("A.MES", MesFile().content())
        for character in ("Ж", "ę", "😀", "e\u0300", "\u2014\u2015"):
            arguments = ("A.MES", "--language=1", "--message=1", f"--text=a{character}")
            self.assertIn(f'"{character[-1]}"', self.refused("put", *arguments).err)

    @not_on_windows(ONLY_UNICODE)
    def test_malformed_utf8_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        for malformed in (
            b"\xff",
            b"\x80",
            b"\xc3",
            b"\xc3a",
            b"\xe2\x82",
            b"\xc0\xaf",  # longer spellings of "/" than its own
            b"\xe0\x80\xaf",
            b"\xf0\x80\x80\xaf",
            b"\xed\xa0\x80",
            b"\xf5\x80\x80\x80",
        ):
            with self.subTest(malformed):
                text = b"--text=" + malformed
                self.refused("put", "A.MES", "--language=1", "--message=1", text)

    def test_cells_that_the_board_fills_stay(self) -> None:
        texts = {(0, 1): b"a\xfe\xfe ", (1, 1): b"b\xfe\xfe "}
        self.write("A.MES", MesFile(texts=texts).content())
        self.put("--language=1", "--message=1", "--text=wxyz")
        texts[1, 1] = b"w\xfe\xfez"
        self.assertEqual(self.read("A.MES"), MesFile(texts=texts).content())

    def test_cells_that_the_board_fills_return_when_the_language_lost_them(self) -> None:
        texts = {(0, 1): b"a\xfe\xfe ", (1, 1): b"lost"}
        self.write("A.MES", MesFile(texts=texts).content())
        self.put("--language=1", "--message=1", "--text=new")
        texts[1, 1] = b"n\xfe\xfe "
        self.assertEqual(self.read("A.MES"), MesFile(texts=texts).content())

    def test_cells_that_the_board_fills_stay_in_every_column(self) -> None:
        for cell in (0, 15, 19, 20, 39):
            with self.subTest(cell):
                placeholder = b"." * cell + b"\xfe" + b"." * (39 - cell)
                texts = {(0, 1): placeholder, (1, 1): placeholder}
                self.write("A.MES", MesFile(width=40, texts=texts).content())
                self.put("--language=1", "--message=1", "--text=" + 40 * "x")
                texts[1, 1] = placeholder.replace(b".", b"x")
                self.assertEqual(self.read("A.MES"), MesFile(width=40, texts=texts).content())

    def test_messages_that_are_not_named_keep_cells_the_reference_does_not_fill(self) -> None:
        texts = {(1, 0): b"\xfe\xfe\xfe\xfe", (1, 2): b"x\xfe  "}
        self.write("A.MES", MesFile(texts=texts).content())
        self.put("--language=1", "--message=1", "--text=new")
        texts[1, 1] = b"new "
        self.assertEqual(self.read("A.MES"), MesFile(texts=texts).content())

    def test_the_display_type_is_kept_up_to_2_and_3_is_stored_as_0(self) -> None:
        for flags, stored in {b"07": b"07", b"0B": b"0B", b"0F": b"03", b"0C": b"00"}.items():
            with self.subTest(flags):
                self.write("A.MES", MesFile(flags=flags).content())
                self.put("--language=1", "--message=1", "--text=new")
                expected = MesFile(flags=stored, texts={(1, 1): b"new "}).content()
                self.assertEqual(self.read("A.MES"), expected)

    def test_the_name_keeps_its_case_and_its_bytes(self) -> None:
        names = [b"default", b" iTaLi\xe0no\xfe  \x80"]
        self.write("A.MES", MesFile(names=names).content())
        self.put("--language=1", "--message=0", "--text=new")
        expected = MesFile(names=names, texts={(1, 0): b"new "}).content()
        self.assertEqual(self.read("A.MES"), expected)

    def test_a_block_that_was_never_saved_whole_is_completed_with_blanks(self) -> None:
        file = MesFile()
        self.write("A.MES", file.content()[: file.at(2, 1)])
        arguments = ("A.MES", "--language=2", "--message=2", "--text=new")
        err = self.done_with_message("put", *arguments).err
        self.assertIn("A.MES: Language 2 ends early in the file", err)
        expected = file.content()[: file.at(2, 1)] + b"    " + b"new "
        self.assertEqual(self.read("A.MES"), expected)

    def test_the_reference_is_not_changed(self) -> None:
        self.write("A.MES", MesFile().content())
        arguments = ("A.MES", "--language=0", "--message=1", "--text=new")
        self.assertIn("A.MES: ", self.refused("put", *arguments).err)

    def test_a_language_or_message_that_is_not_there_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        for language, message in ((3, 0), (-1, 0), (101, 0), (1, 3), (1, -1), (1, 70000)):
            err = self.refused(
                "put", "A.MES", f"--language={language}", f"--message={message}", "--text=x"
            ).err
            self.assertIn("A.MES: has no ", err)

    def test_a_save_that_would_overwrite_the_next_language_is_refused(self) -> None:
        content = bytearray(MesFile().content())
        content[8:12] = b"0004"  # five messages in a block of four slots
        self.write("A.MES", bytes(content))
        arguments = ("A.MES", "--language=1", "--message=0", "--text=x")
        self.assertIn("A.MES: a language block of 36 bytes", self.refused("put", *arguments).err)

    @not_on_windows(ONLY_UNICODE)
    def test_a_path_that_is_no_utf8_is_fine(self) -> None:
        name = self.write(b"Caff\xe8.MES", MesFile().content())
        for text, flags in (("one", []), ("two", ["--json"])):
            arguments = (name, "--language=1", "--message=1", f"--text={text}", *flags)
            self.assertEqual(self.cli.run("put", *arguments).status, 0)
            self.assertIn(text.encode(), self.read(name))

    def put(self, *arguments: str) -> str:
        return self.done("put", "A.MES", *arguments).out

    def assert_stored(self, expected: bytes, *arguments: str) -> None:
        file = MesFile()
        self.write("A.MES", file.content())
        self.put("--language=1", "--message=1", *arguments)
        file.texts[1, 1] = expected
        self.assertEqual(self.read("A.MES"), file.content())


if __name__ == "__main__":
    unittest.main()
