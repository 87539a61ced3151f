"""vendlingua-cli import: a firmware assembler source becomes a .MES file."""

from __future__ import annotations

import unittest

from import_case import SOURCE, ImportCase, answers, block, source_of
from message_files import MesFile, header
from support import on_stderr


class ImportTest(ImportCase):
    def test_the_texts_become_reference_and_first_language(self) -> None:
        printed = self.import_source(SOURCE, "--languages=2", "--memory-length=32").out
        self.assertEqual(printed, "OUT.MES: 2 messages of 4 cells\n")
        # 32 / 2 / 4 = 4 slots and one more a block, of which three hold no text.
        blanks = 12 * b" "
        self.assertEqual(
            self.read("OUT.MES"),
            header(2, 4, b"00", 1, 1, 0x6000, 32)
            + block(b"Default", b"ABCDEFGH", blanks)
            + block(b"ITALIANO", b"ABCDEFGH", blanks),
        )

    def test_json_tells_what_was_written(self) -> None:
        printed = self.import_source(SOURCE, "--json").json
        self.assertEqual(printed, {"written": ["OUT.MES"], "messageCount": 2, "notices": []})

    def test_the_source_stays_and_nothing_else_is_left_behind(self) -> None:
        self.import_source(SOURCE)
        self.assertEqual(self.read("source.asm"), SOURCE)
        self.assertEqual(self.names(), ["OUT.MES", "source.asm"])

    def test_numbers_in_every_notation(self) -> None:
        for start, length in (
            ("&HFF8000", "&H2000"),
            ("&hff8000", "&h2000"),
            ("0xFF8000", "0x2000"),
            ("0Xff8000", "0X2000"),
            ("16744448", "8192"),
        ):
            self.import_source(SOURCE, f"--memory-start={start}", f"--memory-length={length}")
            self.assert_header(header(1, 4, b"00", 1, 1, 0xFF8000, 0x2000))

    def test_hexadecimal_numbers_from_8000_on_are_positive(self) -> None:
        numbers = ("--memory-start=&HFFFFFFFF", "--memory-length=&HFFF0")
        self.import_source(SOURCE, "--languages=3", *numbers)
        self.assert_header(header(3, 4, b"00", 1, 1, 0xFFFFFFFF, 0xFFF0))

    def test_the_number_of_languages_may_be_hexadecimal(self) -> None:
        self.import_source(SOURCE, "--languages=&H1F", "--memory-length=0x2000")
        self.assert_header(header(31, 4, b"00", 1, 1, 0x6000, 0x2000))

    def test_only_the_low_digits_of_a_long_memory_are_stored(self) -> None:
        texts = ("--languages=9", "--memory-length=&H10000")
        self.import_source(source_of(455, 16), *texts)
        self.assert_header(header(9, 16, b"00", 1, 454, 0x6000, 0))
        self.assertEqual(len(self.read("OUT.MES")), 24 + 2 * (20 + 456 * 16))

    def test_an_older_file_is_replaced_whole(self) -> None:
        self.write("OUT.MES", b"x" * 9999)
        self.import_source(SOURCE, "--memory-length=32")
        self.assertEqual(len(self.read("OUT.MES")), 24 + 2 * (20 + 9 * 4))

    def test_an_older_file_stays_when_the_import_fails(self) -> None:
        self.write("OUT.MES", MesFile().content())
        later_error = SectionTest.FIRST + b" ORG $7000\r\n DC.B 'IJKL'\r\n DC.B 'MNO'\r\n"
        self.refused_source(later_error, "--name=ITALIANO", "--name=ENGLISH")

    def test_an_output_without_extension_gets_one(self) -> None:
        printed = self.import_source(SOURCE, output="OUT").out
        self.assertEqual(printed, "OUT.MES: 2 messages of 4 cells\n")
        self.assertIn("OUT.MES", self.names())

    def test_an_output_that_could_not_be_opened_again_is_refused(self) -> None:
        for output in ("OUT.MSX", "OUT.bin", "A.B.MES", "OUT.MES.old"):
            self.assertIn(f"{output}: ", self.refused_source(SOURCE, output=output).err)

    def test_an_output_in_a_missing_folder_is_refused_by_its_name(self) -> None:
        self.assertIn("no/OUT.MES: ", self.refused_source(SOURCE, output="no/OUT.MES").err)

    def test_an_output_that_is_a_folder_is_refused(self) -> None:
        (self.folder / "OUT.MES").mkdir()
        self.assertIn("OUT.MES: ", self.refused_source(SOURCE).err)

    def test_the_source_is_not_overwritten(self) -> None:
        self.write("A.MES", SOURCE)
        arguments = ("--languages=1", "--language-message=1", "--memory-start=1")
        more = ("--memory-length=64", "--name=ITALIANO", "--output=A.MES")
        self.refused("import", "A.MES", *arguments, *more)

    def test_a_binary_message_file_is_refused(self) -> None:
        err = self.refused_source(MesFile().content()).err
        self.assertIn("source.asm: is a binary message file", err)

    def test_a_first_byte_of_32_is_a_source_and_31_is_none(self) -> None:
        self.import_source(b"\x20" + SOURCE)
        self.refused_source(b"\x1f" + SOURCE)


class MemoryTest(ImportCase):
    def test_messages_that_fit_exactly_are_taken(self) -> None:
        self.import_source(source_of(455, 16), "--languages=9", "--memory-length=65520")

    def test_one_language_fits_where_two_do_not(self) -> None:
        self.import_source(source_of(455, 16), "--languages=1", "--memory-length=&H2000")
        result = self.refused_source(source_of(455, 16), "--languages=2", "--memory-length=&H2000")
        box = "ERRORE: Memoria messaggi\ninsufficente\nMessaggi N° 455\nMemoria usata 14560\n"
        self.assertTrue(result.err.startswith(on_stderr(box)), result.err)
        self.assertIn("source.asm", result.err)

    def test_one_byte_too_few_is_refused(self) -> None:
        self.import_source(SOURCE, "--languages=2", "--memory-length=16")
        err = self.refused_source(SOURCE, "--languages=2", "--memory-length=15").err
        self.assertIn("Memoria usata 16\n", err)

    def test_an_answer_of_0_is_refused(self) -> None:
        for option in ("--languages", "--language-message", "--memory-start", "--memory-length"):
            err = self.refused_source(SOURCE, f"{option}=0").err
            self.assertIn("source.asm: was not imported", err)

    def test_an_answer_that_is_too_large_is_refused_by_its_value(self) -> None:
        for option, value in (
            ("--languages", "32"),
            ("--languages", "256"),
            ("--languages", "99999999999999999999999999"),
            ("--language-message", "65536"),
            ("--memory-start", "0x100000000"),
            ("--memory-length", "0x80000000"),
        ):
            err = self.refused_source(SOURCE, f"{option}={value}").err
            value_in_full = min(int(value, 0), 2**64 - 1)
            self.assertIn(f": {value_in_full} is too large", err)

    def test_more_slots_than_can_be_counted_are_refused(self) -> None:
        for length, slots in (("0x7FFFFFFF", 536870911), ("262144", 65536)):
            err = self.refused_source(SOURCE, f"--memory-length={length}").err
            self.assertIn(f"gives {slots} messages", err)

    def test_slots_whose_block_length_wraps_are_refused(self) -> None:
        # 65520 / 16 = 4095; 16 x (4095 + 1) + 20 = 65556, which is 20 in 16 bits.
        err = self.refused_source(source_of(3, 16), "--memory-length=&HFFF0").err
        self.assertIn("source.asm: 4096 message slots of 16 cells", err)
        self.assertIn(" 20 bytes", err)

    def test_slots_whose_block_length_wraps_below_0_are_refused(self) -> None:
        # 4 x (8191 + 1) + 20 = 32788, which is -32748 in 16 bits.
        self.assertIn("-32748", self.refused_source(SOURCE, "--memory-length=32764").err)
        self.import_source(SOURCE, "--memory-length=32740")  # 4 x (8185 + 1) + 20 = 32764


class SectionTest(ImportCase):
    FIRST = b" ORG $6000\r\n DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n"
    SECOND = b" ORG $7000\r\n DC.B 'IJKL'\r\n DC.B 'MNOP'\r\n"
    THIRD = b" .SECT\r\n DC.B 'QRST'\r\n DC.B 'UVWX'\r\n"
    TWO_NAMES = ("--name=ITALIANO", "--name=english")

    def test_two_sections_are_two_languages(self) -> None:
        options = ("--languages=2", "--memory-length=16", *self.TWO_NAMES)
        self.import_source(self.FIRST + self.SECOND, *options)
        # 16 / 2 / 4 = 2 slots and one more a block.
        self.assertEqual(
            self.read("OUT.MES"),
            header(2, 4, b"00", 1, 1, 0x6000, 16)
            + block(b"Default", b"ABCDEFGH    ")
            + block(b"ITALIANO", b"ABCDEFGH    ")
            + block(b"ENGLISH", b"IJKLMNOP"),
        )

    def test_three_sections_are_three_languages(self) -> None:
        options = ("--languages=3", "--memory-length=24", *self.TWO_NAMES, "--name=Deutsch")
        self.import_source(self.FIRST + self.SECOND + self.THIRD, *options)
        self.assertEqual(
            self.read("OUT.MES"),
            header(3, 4, b"00", 1, 1, 0x6000, 24)
            + block(b"Default", b"ABCDEFGH    ")
            + block(b"ITALIANO", b"ABCDEFGH    ")
            + block(b"ENGLISH", b"IJKLMNOP")
            + bytes(4)
            + block(b"DEUTSCH", b"QRSTUVWX"),
        )

    def test_a_directive_that_is_the_last_line_begins_no_section(self) -> None:
        for end in (b" ORG $8000\r\n", b" .SECT"):
            self.import_source(self.FIRST + self.SECOND + end, *self.TWO_NAMES)
            self.assertEqual(self.texts(2), ["IJKL", "MNOP"])
            self.refused("texts", "OUT.MES", "--language=3")

    def test_the_line_that_ends_a_section_holds_no_text(self) -> None:
        source = self.FIRST + b" ORG 'ZZZZ' MNLING .SDATA\r\n DC.B 'IJKL'\r\n DC.B 'MNOP'\r\n"
        self.import_source(source, *self.TWO_NAMES)
        self.assertEqual(self.texts(2), ["IJKL", "MNOP"])
        self.assertEqual(self.read("OUT.MES")[2:4], b"00")

    def test_texts_before_the_first_directive_belong_to_the_first_section(self) -> None:
        self.import_source(b" DC.B '0123'\r\n" + self.FIRST)
        self.assertEqual(self.texts(1), ["0123", "ABCD", "EFGH"])

    def test_a_word_that_contains_a_directive_counts(self) -> None:
        options = (*self.TWO_NAMES, "--name=DEUTSCH")
        self.import_source(
            self.FIRST + b"; FORGET\r\n" + SOURCE + b"; X.SECTION\r\n" + SOURCE, *options
        )
        self.assertEqual(self.texts(2), ["ABCD", "EFGH"])
        self.assertEqual(self.texts(3), ["ABCD", "EFGH"])

    def test_fewer_names_than_sections_are_refused(self) -> None:
        err = self.refused_source(self.FIRST + self.SECOND, "--name=ITALIANO").err
        self.assertIn("--name", err)

    def test_more_names_than_sections_are_refused(self) -> None:
        err = self.refused_source(self.FIRST, *self.TWO_NAMES).err
        self.assertIn('"english"', err)

    def test_a_blank_name_is_passed_over_with_a_message_box(self) -> None:
        self.write("source.asm", SOURCE)
        names = ("--name= ", "--name=ITALIANO")
        result = self.done_with_message("import", "source.asm", *answers(names), "--json")
        text = "The language name cannot be empty."
        self.assertEqual(result.err, f"vendlingua-cli: {text}\n")
        box = {"icon": "critical", "title": "", "text": text}
        self.assertEqual(result.json["notices"], [box])
        self.assertIn("language 1: ITALIANO\n", self.done("info", "OUT.MES").out)

    def test_a_name_is_upper_case_and_at_most_20_characters(self) -> None:
        self.import_source(SOURCE, "--name=abcdefghijklmnopqrstuvwxyz")
        self.assertIn("language 1: ABCDEFGHIJKLMNOPQRST\n", self.done("info", "OUT.MES").out)

    def test_a_later_section_without_texts_is_refused(self) -> None:
        err = self.refused_source(self.FIRST + b" ORG $7000\r\n; end\r\n", *self.TWO_NAMES).err
        self.assertIn("source.asm: line 5: ", err)

    def test_an_error_in_a_later_section_leaves_no_file(self) -> None:
        shorter = b" ORG $7000\r\n DC.B 'IJKL'\r\n DC.B 'MNO'\r\n"
        self.assertIn("ERRORE", self.refused_source(self.FIRST + shorter, *self.TWO_NAMES).err)

    def test_a_later_section_of_another_width_is_refused(self) -> None:
        for width in (3, 5, 6):
            with self.subTest(width):
                other = b" ORG $7000\r\n" + source_of(2, width)
                err = self.refused_source(self.FIRST + other, *self.TWO_NAMES).err
                self.assertIn(f"source.asm: the texts of section 2 are {width} cells", err)


if __name__ == "__main__":
    unittest.main()
