"""vendlingua-cli texts."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_at, msx_file, msx_header, msx_message
from support import CliTest

ALL_CODES = [bytes(range(start, start + 16)) for start in range(0, 256, 16)]

# Pictures without a character of their own; 176 shows the same degree sign as 223.
PICTURES = {*range(32), 127, 129, 141, 143, 144, 157, 173, 176}


def normal_character(code: int) -> str:
    """What the normal display draws for a code: Windows-1252 but for pictures and degree sign."""
    if code in PICTURES:
        return chr(0xF000 + code)
    return "°" if code == 223 else bytes([code]).decode("cp1252")


class TextsOfMesFileTest(CliTest):
    def test_json_holds_every_message(self) -> None:
        file = MesFile(texts={(2, 0): b"Te\xe8\xfe", (2, 2): b"  x "})
        self.write("A.MES", file.content())
        self.assertEqual(
            self.done("texts", "A.MES", "--language", "2", "--json").json,
            {
                "language": 2,
                "name": "ENGLISH",
                "messages": [
                    {"index": 0, "text": "Teèþ", "hex": "5465E8FE"},
                    {"index": 1, "text": "2111", "hex": "32313131"},
                    {"index": 2, "text": "  x ", "hex": "20207820"},
                ],
            },
        )

    def test_text_has_one_line_a_message(self) -> None:
        self.write("A.MES", MesFile(texts={(1, 1): b"t\xe8  "}).content())
        printed = self.done("texts", "A.MES", "--language", "1").out
        self.assertEqual(printed, "0\t1000\n1\ttè  \n2\t1222\n")

    def test_language_0_is_the_reference_block(self) -> None:
        self.write("A.MES", MesFile().content())
        self.assertEqual(self.texts("A.MES", 0), ["0000", "0111", "0222"])

    def test_texts_are_in_the_characters_of_the_display(self) -> None:
        self.write("A.MES", MesFile(texts={(1, 0): b"\xa8p\xb8\xb3"}, flags=b"04").content())
        self.assertEqual(self.texts("A.MES", 1)[0], "Прив")

    def test_another_display_than_that_of_the_file_can_be_given(self) -> None:
        self.write("A.MES", MesFile(texts={(1, 0): b"\xa8p\xb8\xb3"}).content())
        arguments = ("texts", "A.MES", "--language=1", "--display")
        self.assertEqual(self.done(*arguments, "cyrillic").out[:7], "0\tПрив\n")
        self.assertEqual(self.done(*arguments, "katakana").out[:7], "0\tィpクウ\n")
        self.assertEqual(self.done(*arguments, "hebrew").out[:7], "0\t¨p¸³\n")

    def test_a_language_goes_by_its_name_too(self) -> None:
        self.write("A.MES", MesFile().content())
        self.assertEqual(
            self.done("texts", "A.MES", "--language=english").out,
            self.done("texts", "A.MES", "--language=2").out,
        )

    def test_every_display_code_is_printed(self) -> None:
        texts = {(1, m): codes for m, codes in enumerate(ALL_CODES)}
        file = MesFile(width=16, last_msg=15, stride=16, texts=texts)
        self.write("A.MES", file.content())
        printed = self.done("texts", "A.MES", "--language", "1", "--json").json["messages"]
        expected = "".join(map(normal_character, range(256)))
        self.assertEqual("".join(message["text"] for message in printed), expected)
        self.assertEqual(
            [message["hex"] for message in printed], [c.hex().upper() for c in ALL_CODES]
        )

    def test_messages_run_up_to_the_last_one_of_the_header(self) -> None:
        self.write("A.MES", MesFile(last_msg=0).content())
        self.assertEqual(self.texts("A.MES", 1), ["1000"])

    def test_a_text_is_as_wide_as_the_set(self) -> None:
        for width in (1, 2, 20, 21, 40):
            file = MesFile(width=width)
            self.write("A.MES", file.content())
            expected = [file.message(1, m).decode() for m in range(3)]
            self.assertEqual(self.texts("A.MES", 1), expected)

    def test_a_language_that_is_not_in_the_file_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        for language in ("3", "-1", "100", "101", "2000000000", "-2000000000"):
            err = self.refused("texts", "A.MES", "--language", language).err
            self.assertIn(f"A.MES: has no language {language}", err)

    def test_blanks_stand_for_what_a_language_lacks_that_ends_early(self) -> None:
        file = MesFile()
        for end, texts in (
            (file.at(2, 0), ["    ", "    ", "    "]),
            (file.at(2, 1), ["2000", "    ", "    "]),
            (file.at(2, 1) + 1, ["2000", "2   ", "    "]),
            (file.at(2, 2) + 3, ["2000", "2111", "222 "]),
        ):
            self.write("A.MES", file.content()[:end])
            result = self.done_with_message("texts", "A.MES", "--language", "2", "--json")
            self.assertEqual([message["text"] for message in result.json["messages"]], texts)
            self.assertIn("A.MES: Language 2 ends early in the file", result.err)
            self.assertEqual(self.texts("A.MES", 1), ["1000", "1111", "1222"])

    def texts(self, name: str, language: int) -> list[str]:
        printed = self.done("texts", name, "--language", str(language), "--json").json
        return [message["text"] for message in printed["messages"]]


class TextsOfMsxFileTest(CliTest):
    def test_every_message_of_a_language_is_read(self) -> None:
        self.write("A.MSX", msx_file(2))
        printed = self.done("texts", "A.MSX", "--language", "2", "--json").json
        self.assertEqual((printed["language"], printed["name"]), (2, "LANGUAGE 2"))
        expected = [
            {"index": m, "text": msx_message(2, m).decode(), "hex": msx_message(2, m).hex().upper()}
            for m in range(455)
        ]
        self.assertEqual(printed["messages"], expected)

    def test_language_0_is_the_built_in_table_whatever_the_file_holds(self) -> None:
        self.write("A.MSX", msx_file(1))
        printed = self.done("texts", "A.MSX", "--language", "0", "--json").json
        self.assertEqual(printed["name"], "Italiano")
        messages = {message["index"]: message["text"] for message in printed["messages"]}
        self.assertEqual(len(messages), 455)
        self.assertEqual(messages[0], "    MP0417AA    ")
        self.assertEqual(messages[3], "Credito þ þþþþþþ")
        self.assertEqual(messages[43], "E12 Tcaffe<60 °C")
        self.assertEqual(messages[169], "    Italiano    ")
        self.assertEqual(messages[454], "  454 Messaggio ")

    def test_language_0_needs_no_language_in_the_file(self) -> None:
        self.write("A.MSX", msx_header())
        self.assertEqual(self.done("texts", "A.MSX", "--language", "0").out.count("\n"), 455)

    def test_a_language_that_is_not_in_the_file_is_refused(self) -> None:
        self.write("A.MSX", msx_file(2))
        for language in ("3", "9", "10"):
            err = self.refused("texts", "A.MSX", "--language", language).err
            self.assertIn(f"A.MSX: has no language {language}", err)

    def test_a_missing_line_is_refused(self) -> None:
        self.write("A.MSX", msx_file(2)[: msx_at(2, 454)])
        err = self.refused("texts", "A.MSX", "--language", "2").err
        self.assertIn("A.MSX: the file ends after line 910", err)  # 1 + 455 + 454
        self.done("texts", "A.MSX", "--language", "1")

    def test_a_line_that_holds_no_message_is_refused_by_its_number(self) -> None:
        for bad_line in (b"", b"S2", b"S214FF0000" + b"41" * 15, b"S214FF0000" + b"4G" * 16):
            content = msx_file(1)
            content = content[: msx_at(1, 5)] + bad_line + b"\r\n" + content[msx_at(1, 6) :]
            self.write("A.MSX", content)
            self.assertIn("A.MSX: line 7 ", self.refused("texts", "A.MSX", "--language", "1").err)

    def test_the_checksum_is_no_part_of_the_text(self) -> None:
        self.write("A.MSX", msx_file(1))
        printed = self.done("texts", "A.MSX", "--language", "1").out
        self.assertTrue(printed.endswith("\n454\tL1 M454         \n"))


if __name__ == "__main__":
    unittest.main()
