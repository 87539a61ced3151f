"""vendlingua-cli export and apply: a language as a table of comma-separated values, and back."""

from __future__ import annotations

import csv
import io
import unittest

from message_files import MesFile, msx_at, msx_file, msx_message, s_record
from on_windows import ON_WINDOWS
from support import CliTest, Result

HEADER = b"message,origin,text\r\n"


class ExportTest(CliTest):
    def test_the_table_holds_number_origin_and_text(self) -> None:
        self.write("A.MES", MesFile().content())
        printed = self.done("export", "A.MES", "--language=1", "--output=t.csv").out
        self.assertEqual(printed, "t.csv\n")
        self.assertEqual(
            self.rows(),
            [
                ["message", "origin", "text"],
                ["0", "0000", "1000"],
                ["1", "0111", "1111"],
                ["2", "0222", "1222"],
            ],
        )

    def test_json_names_the_table(self) -> None:
        self.write("A.MES", MesFile().content())
        printed = self.done("export", "A.MES", "--language=1", "--output=t.csv", "--json").json
        self.assertEqual(printed, {"written": ["t.csv"], "notices": []})

    def test_another_language_can_be_the_origin(self) -> None:
        self.write("A.MES", MesFile().content())
        self.done("export", "A.MES", "--language=1", "--origin=2", "--output=t.csv")
        self.assertEqual(self.rows()[1], ["0", "2000", "1000"])

    def test_the_reference_can_be_exported(self) -> None:
        self.write("A.MES", MesFile().content())
        self.done("export", "A.MES", "--language=0", "--output=t.csv")
        self.assertEqual(self.rows()[1], ["0", "0000", "0000"])

    def test_every_line_ends_in_cr_lf(self) -> None:
        self.write("A.MES", MesFile().content())
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        content = self.read("t.csv")
        self.assertEqual((content.count(b"\r\n"), content.count(b"\n")), (4, 4))
        self.assertTrue(content.endswith(b"\r\n"))

    def test_quotes_commas_and_blanks_are_kept(self) -> None:
        texts = {(1, 0): b'"a",', (1, 1): b"  a ", (1, 2): b"a,b "}
        self.write("A.MES", MesFile(texts=texts).content())
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        self.assertEqual([row[2] for row in self.rows()[1:]], ['"a",', "  a ", "a,b "])

    def test_the_table_is_utf8_without_byte_order_mark(self) -> None:
        texts = {(0, 0): b"\xfe\xdf\xe8\x80", (1, 0): b"\xc4\x9f\xff\xa0"}
        self.write("A.MES", MesFile(texts=texts).content())
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        self.assertEqual(self.rows()[1], ["0", "þ°è€", "ÄŸÿ\u00a0"])
        self.assertFalse(self.read("t.csv").startswith(b"\xef\xbb\xbf"))

    def test_the_origin_of_an_msx_file_is_the_built_in_table(self) -> None:
        self.write("A.MSX", msx_file(1))
        self.done("export", "A.MSX", "--language=1", "--output=t.csv")
        rows = self.rows()
        self.assertEqual(len(rows), 456)
        self.assertEqual(rows[4], ["3", "Credito þ þþþþþþ", "L1 M3           "])

    def test_an_older_table_is_replaced(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("t.csv", b"x" * 9999)
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        self.assertEqual(len(self.rows()), 4)

    def test_a_language_that_is_not_in_the_file_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        self.refused("export", "A.MES", "--language=3", "--output=t.csv")
        self.refused("export", "A.MES", "--language=1", "--origin=3", "--output=t.csv")

    def test_a_table_that_cannot_be_written_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        for output in ("no/t.csv", ".", *([] if ON_WINDOWS else ["/dev/full"])):
            err = self.refused("export", "A.MES", "--language=1", f"--output={output}").err
            self.assertIn(f"{output}: ", err)

    def test_the_message_file_is_not_overwritten(self) -> None:
        self.write("A.MES", MesFile().content())
        (self.folder / "link.csv").symlink_to("A.MES")
        for output in ("A.MES", "./A.MES", "link.csv"):
            with self.subTest(output):
                self.write("A.MES", MesFile().content())
                self.refused("export", "A.MES", "--language=1", f"--output={output}")

    def rows(self) -> list[list[str]]:
        text = self.read("t.csv").decode("utf-8")
        return list(csv.reader(io.StringIO(text, newline=""), strict=True))


class ApplyTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile()
        self.write("A.MES", self.file.content())

    def test_the_texts_of_the_table_are_stored(self) -> None:
        printed = self.apply(b"0,0000,new\r\n2,0222,wxyz\r\n").out
        self.assertEqual(printed, "2 messages applied\n")
        self.file.texts = {(1, 0): b"new ", (1, 2): b"wxyz"}
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_json_counts_the_messages(self) -> None:
        self.write("t.csv", HEADER + b"1,,x\r\n")
        printed = self.done("apply", "A.MES", "t.csv", "--language=2", "--json").json
        expected = {"file": "A.MES", "language": 2, "applied": 1, "notices": []}
        self.assertEqual(printed, expected)

    def test_an_exported_table_changes_nothing(self) -> None:
        texts = {
            (0, 0): b"a\xfe\xfe ",
            (1, 0): b"\xfe\xfe\xfe\xfe",
            (1, 1): b'"\n,\r',
            (1, 2): b" x  ",
        }
        self.write("A.MES", MesFile(texts=texts).content())
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        with self.unchanged():
            self.done("apply", "A.MES", "t.csv", "--language=1")

    def test_an_exported_table_of_all_codes_changes_nothing(self) -> None:
        texts = {(1, m): bytes(range(16 * m, 16 * m + 16)) for m in range(16)}
        self.write("A.MES", MesFile(width=16, last_msg=15, stride=16, texts=texts).content())
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        with self.unchanged():
            self.done("apply", "A.MES", "t.csv", "--language=1")

    def test_the_table_of_one_language_can_be_taken_into_another(self) -> None:
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        self.done("apply", "A.MES", "t.csv", "--language=2")
        self.file.texts = {(2, m): self.file.message(1, m) for m in range(3)}
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_rows_may_stand_in_any_order(self) -> None:
        self.apply(b"2,,c\r\n0,,a\r\n1,,b\r\n")
        self.file.texts = {(1, 0): b"a   ", (1, 1): b"b   ", (1, 2): b"c   "}
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_messages_that_the_table_leaves_out_stay(self) -> None:
        self.file.texts = {(1, 0): b"\xfea\xfe ", (1, 2): b"\xfeb\xfe "}
        self.write("A.MES", self.file.content())
        self.apply(b"1,,x\r\n")
        self.file.texts[1, 1] = b"x   "
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_the_origin_column_is_not_looked_at(self) -> None:
        self.apply("1,Ж anything,x\r\n".encode())
        self.file.texts[1, 1] = b"x   "
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_cells_that_the_board_fills_stay(self) -> None:
        self.file.texts = {(0, 1): b"a\xfe\xfe ", (1, 1): b"b\xfe\xfe "}
        self.write("A.MES", self.file.content())
        self.write("t.csv", HEADER + b"1,,wxyz\r\n")
        err = self.done_with_message("apply", "A.MES", "t.csv", "--language=1").err
        self.assertIn("t.csv: row 2: message 1: the text covers cells 2 to 3, which the board", err)
        self.file.texts[1, 1] = b"w\xfe\xfez"
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_an_empty_text_leaves_blanks(self) -> None:
        self.apply(b"1,0111,\r\n")
        self.file.texts[1, 1] = b"    "
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_blanks_behind_the_width_are_no_part_of_a_text(self) -> None:
        self.apply(b"1,,  ab      \r\n")
        self.file.texts[1, 1] = b"  ab"
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_a_table_of_other_programs_is_read(self) -> None:
        for table in (
            b"\xef\xbb\xbf" + HEADER + b"1,,x\r\n",
            (HEADER + b"1,,x\r\n").replace(b"\r\n", b"\n"),
            (HEADER + b"1,,x\r\n").replace(b"\r\n", b"\r"),
            HEADER + b"1,,x",
            b'"message","origin","text"\r\n"1","","x"\r\n',
        ):
            self.write("A.MES", MesFile().content())
            self.write("t.csv", table)
            self.done("apply", "A.MES", "t.csv", "--language=1")
            self.assertEqual(self.read("A.MES"), MesFile(texts={(1, 1): b"x   "}).content())

    def test_quoted_fields_are_read(self) -> None:
        self.apply(b'1,"0\r\n,""111","a"",\r"\r\n')
        self.file.texts[1, 1] = b'a",\r'
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_a_table_without_rows_changes_nothing(self) -> None:
        self.assertEqual(self.apply(b"").out, "0 messages applied\n")
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_every_row_that_cannot_be_taken_is_named_and_nothing_changed(self) -> None:
        rows = "0,,fits\r\n1,,abcde\r\n2,,Ж\r\n3,,x\r\n".encode()
        err = self.refused_table(rows)
        self.assertRegex(err, r't\.csv: row 3: message 1: "abcde" has 5 cells, at most 4 fit')
        self.assertRegex(err, r't\.csv: row 4: message 2: .* "Ж"')
        self.assertRegex(err, r't\.csv: row 5: .* "3"')
        self.assertNotIn("row 2", err)

    def test_a_message_number_that_is_none_is_refused(self) -> None:
        for number in (b"", b"3", b"-1", b"x", b"1x", b"+1", b" 1", b"1 ", b"99999999999999999999"):
            self.assertIn("t.csv: row 2: ", self.refused_table(number + b",,x\r\n"))

    def test_a_message_given_twice_is_refused(self) -> None:
        self.assertIn("t.csv: row 3: ", self.refused_table(b"1,,x\r\n1,,x\r\n"))

    def test_a_row_of_other_than_three_fields_is_refused(self) -> None:
        for row in (b"1", b"1,x", b"1,,x,", b"1;;x"):
            self.assertIn("t.csv: row 2: ", self.refused_table(row + b"\r\n"))

    def test_malformed_quotes_are_refused(self) -> None:
        for row in (b'1,,"x', b'1,,"x"y', b'1,,x"y', b'"1,,x\r\n2,,y'):
            err = self.refused_table(row + b"\r\n")
            self.assertIn("t.csv: row 2 ", err)

    def test_another_header_row_is_refused(self) -> None:
        for header in (
            b"",
            b"1,,x\r\n",
            b"message;origin;text\r\n",
            b"message,origin\r\n",
            b"\r\n",
        ):
            self.write("t.csv", header + b"1,,x\r\n")
            self.assertIn("t.csv: ", self.refused("apply", "A.MES", "t.csv", "--language=1").err)

    def test_malformed_utf8_is_refused(self) -> None:
        self.assertIn("t.csv: line 3 ", self.refused_table("1,,Tè\r\n".encode() + b"2,,T\xe8\r\n"))
        self.assertIn("t.csv: ends inside", self.refused_table(b"1,,T\xc3"))

    def test_a_text_in_windows_1252_is_measured_as_such(self) -> None:
        self.assertIn("t.csv: row 2: ", self.refused_table(b"1,,Caff\xe8\r\n"))

    def test_a_language_that_cannot_be_changed_is_refused(self) -> None:
        self.write("t.csv", HEADER + b"1,,x\r\n")
        for language in (0, 3, -1):
            self.refused("apply", "A.MES", "t.csv", f"--language={language}")

    def test_only_the_named_lines_of_an_msx_file_change(self) -> None:
        content = msx_file(2)
        self.write("A.MSX", content)
        self.write("t.csv", HEADER + b"454,,last\r\n0,,first\r\n")
        self.done("apply", "A.MSX", "t.csv", "--language=2")
        first = s_record("2", 0xFF1C70, b"first".ljust(16)) + b"\r\n"
        last = s_record("2", 0xFF38D0, b"last".ljust(16)) + b"\r\n"  # FF0000 + 16 x 909
        expected = content[: msx_at(2, 0)] + first + content[msx_at(2, 1) : msx_at(2, 454)] + last
        self.assertEqual(self.read("A.MSX"), expected)

    def test_an_exported_table_of_an_msx_file_changes_nothing(self) -> None:
        self.assertEqual(msx_message(1, 3), b"L1 M3           ")
        self.write("A.MSX", msx_file(2))
        self.done("export", "A.MSX", "--language=1", "--output=t.csv")
        with self.unchanged():
            self.done("apply", "A.MSX", "t.csv", "--language=1")

    def apply(self, rows: bytes) -> Result:
        self.write("t.csv", HEADER + rows)
        return self.done("apply", "A.MES", "t.csv", "--language=1")

    def refused_table(self, rows: bytes) -> str:
        self.write("t.csv", HEADER + rows)
        return self.refused("apply", "A.MES", "t.csv", "--language=1").err


if __name__ == "__main__":
    unittest.main()
