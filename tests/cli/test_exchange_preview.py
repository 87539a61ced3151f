"""vendlingua-cli apply --dry-run, and tables on standard input and output."""

from __future__ import annotations

import unittest

from message_files import MesFile
from on_windows import native
from support import CliTest

HEADER = b"message,origin,text\r\n"


class DryRunTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        texts = {(0, 1): b"a\xfe\xfe ", (1, 1): b"b\xfe\xfe "}
        self.write("A.MES", MesFile(texts=texts).content())

    def preview(self, rows: str, *options: str) -> str:
        self.write("t.csv", HEADER + rows.encode())
        with self.unchanged():
            return self.done("apply", "A.MES", "t.csv", "--language=1", "--dry-run", *options).out

    def test_old_and_new_texts_stand_side_by_side(self) -> None:
        self.assertEqual(
            self.preview("0,,1000\r\n2,,è\r\n1,,x\r\n"),
            "    2 |1222|è   |\n    1 |bþþ |xþþ |\n2 messages would change\n",
        )

    def test_nothing_to_change_is_said(self) -> None:
        self.assertEqual(self.preview("0,,1000\r\n"), "0 messages would change\n")

    def test_json_lists_the_changes(self) -> None:
        self.write("t.csv", HEADER + b"1,,x\r\n")
        with self.unchanged():
            printed = self.done(
                "apply", "A.MES", "t.csv", "--language=1", "--dry-run", "--json"
            ).json
        self.assertEqual(
            printed,
            {
                "file": "A.MES",
                "language": 1,
                "applied": 0,
                "changes": [{"message": 1, "old": "bþþ ", "new": "xþþ "}],
                "notices": [],
            },
        )

    def test_what_is_shown_is_what_is_stored(self) -> None:
        self.write("t.csv", HEADER + "0,,x\r\n1,,þþy\r\n2,,wxyz\r\n".encode())
        shown = self.cli.run("apply", "A.MES", "t.csv", "--language=1", "--dry-run", "--json").json
        self.cli.run("apply", "A.MES", "t.csv", "--language=1")
        texts = self.done("texts", "A.MES", "--language=1", "--json").json["messages"]
        for change in shown["changes"]:
            self.assertEqual(texts[change["message"]]["text"], change["new"])
        self.assertEqual(len(shown["changes"]), 3)

    def test_warnings_and_refusals_are_those_of_the_real_run(self) -> None:
        self.write("t.csv", HEADER + b"1,,wxyz\r\n")
        with self.unchanged():
            result = self.done_with_message("apply", "A.MES", "t.csv", "--language=1", "--dry-run")
        self.assertIn("warning: t.csv: row 2: ", result.err)
        self.write("t.csv", HEADER + b"1,,abcde\r\n")
        self.refused("apply", "A.MES", "t.csv", "--language=1", "--dry-run")
        self.write("t.csv", HEADER + b"1,,x\r\n")
        self.refused("apply", "A.MES", "t.csv", "--language=0", "--dry-run")

    def test_all_tables_can_be_previewed(self) -> None:
        self.write("in/en.csv", HEADER + b"0,,x\r\n")
        with self.unchanged():
            printed = self.done("apply", "A.MES", "--all=in", "--dry-run").out
        self.assertEqual(printed, native("in/en.csv:\n    0 |2000|x   |\n1 messages would change\n"))


class StandardStreamTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile()
        self.write("A.MES", self.file.content())

    def test_a_table_goes_to_standard_output(self) -> None:
        for format_ in ("csv", "xliff"):
            options = ("export", "A.MES", "--language=1", f"--format={format_}")
            self.done(*options, "--output=t")
            printed = self.done(*options, "--output=-").out
            self.assertEqual(printed.encode(), self.read("t"))

    def test_a_table_on_standard_output_goes_without_json(self) -> None:
        self.wrong_usage("export", "A.MES", "--language=1", "--output=-", "--json")

    def test_a_table_comes_from_standard_input(self) -> None:
        self.done("apply", "A.MES", "-", "--language=1", given=HEADER + b"1,,x\r\n")
        self.file.texts[1, 1] = b"x   "
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_problems_name_standard_input(self) -> None:
        err = self.refused("apply", "A.MES", "-", "--language=1", given=HEADER + b"9,,x\r\n").err
        self.assertIn("standard input: row 2: ", err)
        err = self.refused("apply", "A.MES", "-", "--language=1").err
        self.assertIn("standard input: ", err)

    def test_standard_input_without_end_is_refused(self) -> None:
        table = HEADER + (17 << 20) * b"x"
        err = self.refused("apply", "A.MES", "-", "--language=1", given=table).err
        self.assertIn("standard input: holds more than", err)


if __name__ == "__main__":
    unittest.main()
