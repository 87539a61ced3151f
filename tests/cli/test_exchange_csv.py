"""vendlingua-cli export and apply: tables as spreadsheets hand them back."""

from __future__ import annotations

import subprocess
import unittest

from message_files import MesFile, msx_at, msx_file, s_record
from on_windows import NO_MODES, not_on_windows
from support import DONE, PROGRAM, REFUSED, CliTest, limit_memory

HEADER = b"message,origin,text\r\n"
MIB = 1 << 20


class SpreadsheetTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", MesFile().content())

    def assert_stored(self, table: bytes, text: bytes) -> None:
        self.write("A.MES", MesFile().content())
        self.write("t.csv", table)
        self.done("apply", "A.MES", "t.csv", "--language=1")
        self.assertEqual(self.read("A.MES"), MesFile(texts={(1, 1): text}).content(), table)

    def test_semicolons_and_tabs_separate_fields_too(self) -> None:
        for separator in (b",", b";", b"\t"):
            table = HEADER.replace(b",", separator) + b"1" + separator + b'"a,b;c"' + separator + b"x"
            self.assert_stored(table, b"x   ")

    def test_every_encoding_of_a_spreadsheet_is_read(self) -> None:
        table = "message\torigin\ttext\r\n1\t\tT\u00e8\u20ac\r\n"
        for encoding in ("utf-8", "utf-8-sig", "utf-16", "cp1252"):
            self.assert_stored(table.encode(encoding), b"T\xe8\x80 ")
        self.assert_stored(b"\xfe\xff" + table.encode("utf-16-be"), b"T\xe8\x80 ")

    def test_a_mark_decides_about_the_encoding(self) -> None:
        self.write("t.csv", b"\xef\xbb\xbf" + HEADER + b"1,,T\xe8\r\n")
        self.assertIn("t.csv: line 2 ", self.refused("apply", "A.MES", "t.csv", "--language=1").err)

    def test_utf16_that_is_cut_is_refused(self) -> None:
        self.write("t.csv", "message,origin,text\r\n1,,x\r\n".encode("utf-16")[:-1])
        self.assertIn("t.csv: ", self.refused("apply", "A.MES", "t.csv", "--language=1").err)

    def test_the_problems_of_a_large_table_are_counted_in_little_memory(self) -> None:
        for row in (b"x\r\n", b"9,,x\r\n", b"1,,\xe8\xe8\xe8\xe8\xe8\r\n", b'"\r\n', b"\xe8"):
            with self.subTest(row):
                table = HEADER + (15 * MIB // len(row)) * row
                self.write("t.csv", table)
                done = subprocess.run(
                    [PROGRAM, "apply", "A.MES", "t.csv", "--language=1"],
                    cwd=self.folder,
                    capture_output=True,
                    preexec_fn=lambda: limit_memory(len(table)),
                )
                self.assertEqual(done.returncode, REFUSED, done.stderr[-500:])
                self.assertLess(len(done.stderr), 100_000)
                self.assertIn(b"t.csv: ", done.stderr)
        self.assertEqual(self.read("A.MES"), MesFile().content())

    def test_a_capped_list_of_problems_says_how_many_more_there_are(self) -> None:
        self.write("t.csv", HEADER + 508 * b"x\r\n")
        err = self.refused("apply", "A.MES", "t.csv", "--language=1").err
        self.assertIn("t.csv: row 501: ", err)
        self.assertNotIn("row 502", err)
        self.assertIn("t.csv: and 8 more\n", err)


class PlaceholderTest(CliTest):
    def apply(self, file: MesFile, text: str) -> tuple[str, bytes]:
        """What is said of a text for message 1 of language 1, and what is stored."""
        self.write("A.MES", file.content())
        self.write("t.csv", HEADER + f"1,,{text}\r\n".encode())
        result = self.cli.run("apply", "A.MES", "t.csv", "--language=1")
        self.assertEqual(result.status, DONE, result)
        content = self.read("A.MES")
        return result.err, content[file.at(1, 1) : file.at(1, 2)]

    def test_a_text_is_laid_out_around_placeholders_in_other_columns(self) -> None:
        file = MesFile(width=8, texts={(0, 1): b"abcd\xfef\xfe\xfe"})
        self.assertEqual(self.apply(file, "xþyþþ"), ("", b"x   \xfey\xfe\xfe"))
        self.assertEqual(self.apply(file, "x  þ þþ"), ("", b"x   \xfe \xfe\xfe"))

    def test_what_has_no_room_before_a_placeholder_is_refused(self) -> None:
        self.write("A.MES", MesFile(width=8, texts={(0, 1): b"abcd\xfef\xfe\xfe"}).content())
        self.write("t.csv", HEADER + "1,,vwxyzþyþþ\r\n0,,x\r\n2,,123456789\r\n".encode())
        err = self.refused("apply", "A.MES", "t.csv", "--language=1").err
        self.assertIn('t.csv: row 2: message 1: "vwxyz" has 5 cells, at most 4 fit from cell 1', err)
        self.assertIn('t.csv: row 4: message 2: "123456789" has 9 cells, at most 8 fit\n', err)

    def test_an_overtyped_placeholder_is_told_and_stays(self) -> None:
        file = MesFile(width=8, texts={(0, 1): b"abcd\xfef\xfe\xfe"})
        err, stored = self.apply(file, "abcdefgh")
        self.assertEqual(stored, b"abcd\xfef\xfe\xfe")
        self.assertEqual(
            err,
            "vendlingua-cli: warning: t.csv: row 2: message 1: the text covers cells 5 and 7 to 8, "
            "which the board fills\n",
        )

    def test_a_stray_placeholder_is_told_and_stored(self) -> None:
        err, stored = self.apply(MesFile(), "xþ")
        self.assertEqual(stored, b"x\xfe  ")
        self.assertIn("message 1: the text has placeholders in cell 2, which the board does not", err)

    def test_blanks_where_the_board_fills_are_not_told(self) -> None:
        file = MesFile(width=8, texts={(0, 1): b"abcd\xfe\xfegh"})
        self.assertEqual(self.apply(file, "ab     h"), ("", b"ab  \xfe\xfe h"))

    def test_json_has_the_warnings(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("t.csv", HEADER + "1,,xþ\r\n".encode())
        printed = self.done_with_message("apply", "A.MES", "t.csv", "--language=1", "--json").json
        self.assertEqual(len(printed["warnings"]), 1)
        self.assertIn("t.csv: row 2: message 1: ", printed["warnings"][0])

    def test_the_cells_of_the_board_stay_blank_in_an_msx_file(self) -> None:
        content = msx_file(1)
        self.write("A.MSX", content)
        self.write("t.csv", HEADER + "3,,Kredit þ þþþþþþ\r\n".encode())
        self.done("apply", "A.MSX", "t.csv", "--language=1")
        line = s_record("2", 0xFF0030, b"Kredit".ljust(16)) + b"\r\n"
        expected = content[: msx_at(1, 3)] + line + content[msx_at(1, 4) :]
        self.assertEqual(self.read("A.MSX"), expected)


class NoChangeTest(CliTest):
    def test_rows_that_the_file_holds_are_no_change(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("t.csv", HEADER + b"0,,1000\r\n1,,new\r\n2,,1222 \r\n")
        printed = self.done("apply", "A.MES", "t.csv", "--language=1").out
        self.assertEqual(printed, "1 messages applied\n")

    @not_on_windows(NO_MODES)
    def test_a_file_that_nothing_changes_in_is_not_written(self) -> None:
        name = self.write("A.MES", MesFile().content())
        (self.folder / name).chmod(0o444)
        self.done("export", "A.MES", "--language=1", "--output=t.csv")
        before = (self.folder / name).stat()
        self.assertEqual(
            self.done("apply", "A.MES", "t.csv", "--language=1").out, "0 messages applied\n"
        )
        self.assertEqual((self.folder / name).stat().st_mtime_ns, before.st_mtime_ns)

    def test_older_tables_in_windows_1252_leave_what_they_say(self) -> None:
        file = MesFile(texts={(1, 1): b"60\xdfC"})
        self.write("A.MES", file.content())
        self.write("t.csv", HEADER + "1,,60ßC\r\n".encode())
        with self.unchanged():
            self.done("apply", "A.MES", "t.csv", "--language=1")


if __name__ == "__main__":
    unittest.main()
