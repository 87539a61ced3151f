"""vendlingua-cli import: labels, quotes and widths of a source."""

from __future__ import annotations

import unittest

from import_case import SOURCE, ImportCase, answers, source_of
from message_files import header
from support import on_stderr


class LabelTest(ImportCase):
    def test_mnling_before_the_12th_text_names_message_11(self) -> None:
        source = source_of(11, 4) + b"MNLING\r\n" + source_of(3, 4)
        self.import_source(source, "--language-message=none")
        self.assert_header(header(1, 4, b"01", 11, 13, 0x6000, 0x2000))

    def test_mnling_may_stand_on_the_line_of_its_text(self) -> None:
        source = source_of(2, 4) + b"MNLING DC.B 'NAME'\r\n"
        self.import_source(source, "--language-message=none")
        self.assert_header(header(1, 4, b"01", 2, 2, 0x6000, 0x2000))

    def test_the_first_mnling_counts(self) -> None:
        source = source_of(2, 4) + b"MNLING\r\n" + source_of(2, 4) + b"MNLING\r\n"
        self.import_source(source, "--language-message=none")
        self.assert_header(header(1, 4, b"01", 2, 3, 0x6000, 0x2000))

    def test_mnling_before_the_first_text_leaves_the_number_to_the_option(self) -> None:
        source = b"MNLING\r\n" + source_of(2, 4)
        self.import_source(source, "--language-message=1")
        self.assert_header(header(1, 4, b"01", 1, 1, 0x6000, 0x2000))

    def test_with_mnling_the_option_is_not_asked(self) -> None:
        source = source_of(2, 4) + b"MNLING\r\n"
        self.import_source(source, "--language-message=9")
        self.assert_header(header(1, 4, b"01", 2, 1, 0x6000, 0x2000))

    def test_without_mnling_the_option_is_needed(self) -> None:
        err = self.refused_source(SOURCE, "--language-message=none").err
        self.assertIn("--language-message", err)

    def test_the_option_gives_the_number(self) -> None:
        self.import_source(SOURCE, "--language-message=0x1FF")
        self.assert_header(header(1, 4, b"00", 0x1FF, 1, 0x6000, 0x2000))

    def test_sdata_sets_the_family(self) -> None:
        self.import_source(b" .SDATA\r\n" + SOURCE)
        self.assert_header(header(1, 4, b"02", 1, 1, 0x6000, 0x2000))

    def test_labels_are_read_with_regard_to_case(self) -> None:
        self.import_source(b" .sdata mnling org .sect\r\n" + SOURCE)
        self.assert_header(header(1, 4, b"00", 1, 1, 0x6000, 0x2000))


class QuoteTest(ImportCase):
    def test_apostrophes_and_double_quotes_enclose_a_text(self) -> None:
        self.import_source(b" DC.B 'ABCD'\r\n DC.B \"EFGH\"\r\n no text\r\n\r\n")
        self.assertEqual(self.texts(), ["ABCD", "EFGH"])

    def test_the_outermost_quotes_win(self) -> None:
        self.import_source(b" DC.B \"l'un\" ; 0\r\n DC.B '\"ab\"'\r\n DC.B 'a','b'\r\n")
        self.assertEqual(self.texts(), ["l'un ", '"ab" ', "a','b"])

    def test_a_doubled_apostrophe_stands_for_one(self) -> None:
        self.import_source(b"DC.B 'AB''CD'\r\n")
        self.assertEqual(self.texts(), ["AB'CD"])

    def test_a_doubled_double_quote_costs_the_first_character_of_the_line(self) -> None:
        self.import_source(b'DC.B "AB""CD"\r\n')
        self.assertEqual(self.texts(), ['B""CD'])

    def test_a_single_quote_is_refused_by_its_line(self) -> None:
        for quote in (b"'", b'"'):
            err = self.refused_source(SOURCE + b" DC.B " + quote + b"ABCD\r\n").err
            self.assertIn("source.asm: line 3: ", err)

    def test_an_empty_text_is_refused_behind_a_longer_one(self) -> None:
        err = self.refused_source(SOURCE + b" DC.B ''\r\n").err
        self.assertIn("source.asm: line 3: ", err)

    def test_bytes_beyond_ascii_are_display_codes(self) -> None:
        self.import_source(b" DC.B 'a\xfe\xe8\x80'\r\n")
        self.assertEqual(self.texts(), ["aþè€"])

    def test_line_feeds_alone_and_a_missing_last_line_end_are_read(self) -> None:
        self.import_source(SOURCE.replace(b"\r\n", b"\n"))
        self.assertEqual(self.texts(), ["ABCD", "EFGH"])
        self.import_source(SOURCE.rstrip())
        self.assertEqual(self.texts(), ["ABCD", "EFGH"])


class WidthTest(ImportCase):
    def test_a_longer_text_widens_all(self) -> None:
        self.import_source(b" DC.B 'A'\r\n DC.B 'BCD'\r\n DC.B 'EFGHI'\r\n")
        self.assertEqual(self.texts(), ["A    ", "BCD  ", "EFGHI"])

    def test_a_shorter_text_is_refused_in_a_message_box(self) -> None:
        result = self.refused_source(SOURCE + b" DC.B 'IJK'\r\n")
        self.assertTrue(result.err.startswith(on_stderr("ERRORE: Lughezza messaggi\nerrata\n")), result.err)
        self.assertIn("source.asm", result.err)

    def test_a_longer_text_is_imported_by_its_first_40_cells_with_a_notice(self) -> None:
        self.import_source(b" DC.B '" + 40 * b"x" + b"'\r\n")
        self.assertEqual(self.texts(), [40 * "x"])
        source = self.write("source.asm", b" DC.B 'a'\r\n DC.B '" + 60 * b"x" + b"'\r\n")
        result = self.done_with_message("import", source, *answers((), "OUT.MES"))
        self.assertIn("40 characters", result.err)
        self.assertTrue(result.err.endswith(": 2\n"), result.err)
        self.assertEqual(self.read("OUT.MES")[1], 59)
        self.assertEqual(self.texts(), ["a" + 39 * " ", 40 * "x"])
        self.assertIn(40 * b"x" + 20 * b" ", self.read("OUT.MES"))

    def test_a_section_may_have_more_than_513_texts(self) -> None:
        self.import_source(source_of(600, 4))
        self.assertEqual(len(self.texts()), 600)

    def test_a_source_without_texts_is_refused(self) -> None:
        self.assertIn("source.asm: ", self.refused_source(b" ORG $6000\r\n no text\r\n").err)


if __name__ == "__main__":
    unittest.main()
