"""vendlingua-cli export --all and apply --all: every language as a file of its own, and back."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_file
from on_windows import native
from support import CliTest

NAMES = (b"Default", b"ITALIANO", b"ENGLISH", b"ENGLISH")
HEADER = b"message,origin,text\r\n"


class AllLanguagesTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile(lang_count=3, names=NAMES)
        self.write("A.MES", self.file.content())

    def test_every_language_has_a_table_named_by_it(self) -> None:
        printed = self.done("export", "A.MES", "--all=out").out
        names = ["en-x-lang3.csv", "en.csv", "it.csv"]
        self.assertEqual(sorted(p.name for p in (self.folder / "out").iterdir()), names)
        self.assertEqual(printed, native("out/it.csv\nout/en.csv\nout/en-x-lang3.csv\n"))
        self.assertIn(b'"2","0222","3222"', self.read("out/en-x-lang3.csv"))

    def test_xliff_is_written_on_demand(self) -> None:
        printed = self.done("export", "A.MES", "--all=out", "--format=xliff", "--json").json
        expected = [native(f"out/{tag}.xliff") for tag in ("it", "en", "en-x-lang3")]
        self.assertEqual(printed, {"written": expected, "notices": []})

    def test_a_folder_that_is_there_is_used(self) -> None:
        (self.folder / "out").mkdir()
        self.write("out/en.csv", b"old")
        self.done("export", "A.MES", "--all=out")
        self.assertTrue(self.read("out/en.csv").startswith(b'"message"'))

    def test_a_folder_that_cannot_be_made_is_refused(self) -> None:
        self.write("out", b"a file")
        for folder in ("out", "no/out", "out/in"):
            self.assertIn(f"{folder}", self.refused("export", "A.MES", f"--all={folder}").err)

    def test_what_was_exported_changes_nothing(self) -> None:
        for file in ("A.MES", "A.MSX"):
            self.write("A.MSX", msx_file(2))
            for format_ in ("csv", "xliff"):
                self.done("export", file, f"--all={file}.{format_}", f"--format={format_}")
                with self.unchanged():
                    self.done("apply", file, f"--all={file}.{format_}")

    def test_every_table_goes_into_its_language(self) -> None:
        self.write("in/en.csv", HEADER + b"1,,two\r\n")
        self.write("in/en-x-lang3.csv", HEADER + b"0,,a\r\n2,,b\r\n")
        self.write("in/read.me", b"no table")
        printed = self.done("apply", "A.MES", "--all=in").out
        self.assertEqual(
            printed, native("in/en.csv:\n1 messages applied\nin/en-x-lang3.csv:\n2 messages applied\n")
        )
        self.file.texts = {(2, 1): b"two ", (3, 0): b"a   ", (3, 2): b"b   "}
        self.assertEqual(self.read("A.MES"), self.file.content())

    def test_json_tells_of_every_table(self) -> None:
        self.write("in/en.csv", HEADER + b"1,,two\r\n")
        self.write("in/it.csv", HEADER)
        printed = self.done("apply", "A.MES", "--all=in", "--json").json
        tables = [
            {"table": native("in/it.csv"), "language": 1, "applied": 0},
            {"table": native("in/en.csv"), "language": 2, "applied": 1},
        ]
        self.assertEqual(printed, {"file": "A.MES", "tables": tables, "notices": []})

    def test_nothing_is_changed_unless_every_table_is_sound(self) -> None:
        self.write("in/en-x-lang3.csv", HEADER + b"1,,abcde\r\n")
        self.write("in/en.csv", HEADER + b"1,,good\r\n")
        self.write("in/it.csv", b"")
        err = self.refused("apply", "A.MES", "--all=in").err
        self.assertIn(native("in/en-x-lang3.csv: row 2: message 1: "), err)
        self.assertIn(native("in/it.csv: "), err)

    def test_a_table_of_no_language_is_refused(self) -> None:
        self.write("in/en.csv", HEADER)
        self.write("in/pl.csv", HEADER)
        err = self.refused("apply", "A.MES", "--all=in").err
        self.assertIn(native("in/pl.csv: A.MES has no language"), err)

    def test_two_tables_of_a_language_are_refused(self) -> None:
        self.write("in/en.csv", HEADER)
        self.write("in/en.xlf", HEADER)
        self.assertIn(native("in/en.xlf: "), self.refused("apply", "A.MES", "--all=in").err)

    def test_a_folder_without_tables_is_refused(self) -> None:
        (self.folder / "in").mkdir()
        self.write("file", b"")
        for folder in ("in", "no", "file"):
            self.assertIn(f"{folder}: ", self.refused("apply", "A.MES", f"--all={folder}").err)

    def test_all_goes_without_a_language_and_a_table(self) -> None:
        self.wrong_usage("export", "A.MES", "--all=out", "--language=1")
        self.wrong_usage("export", "A.MES", "--all=out", "--output=t.csv")
        self.wrong_usage("export", "A.MES", "--all=out", "--target-language=en")
        self.wrong_usage("apply", "A.MES", "--all=out", "--language=1")
        self.wrong_usage("apply", "A.MES", "t.csv", "--all=out")


if __name__ == "__main__":
    unittest.main()
