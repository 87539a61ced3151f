"""vendlingua-cli rename: a language gets another name."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_file
from support import CliTest


class RenameTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile()
        self.write("A.MES", self.file.content())

    def rename(self, language: str, name: str) -> str:
        return self.done("rename", "A.MES", f"--language={language}", f"--name={name}").out

    def assert_name(self, block: int, name: bytes) -> None:
        expected = bytearray(self.file.content())
        start = self.file.block(block)
        expected[start : start + 20] = name.ljust(20)
        self.assertEqual(self.read("A.MES"), bytes(expected))

    def test_the_name_changes_and_no_other_byte(self) -> None:
        self.assertEqual(self.rename("2", "POLSKI"), "language 2: POLSKI\n")
        self.assert_name(2, b"POLSKI")

    def test_a_language_goes_by_its_name(self) -> None:
        self.rename("english", "POLSKI")
        self.assert_name(2, b"POLSKI")

    def test_a_name_is_stored_in_upper_case_and_cut_to_20_characters(self) -> None:
        self.rename("1", "française, a very long name")
        self.assert_name(1, "FRANÇAISE, A VERY LO".encode("cp1252"))

    def test_a_language_may_keep_its_name(self) -> None:
        self.rename("1", "italiano")
        self.assert_name(1, b"ITALIANO")

    def test_json_tells_number_and_name(self) -> None:
        printed = self.done("rename", "A.MES", "--language=2", "--name=polski", "--json").json
        self.assertEqual(printed, {"file": "A.MES", "language": 2, "name": "POLSKI"})

    def test_what_is_refused(self) -> None:
        for language, name in (
            ("2", "Italiano"),
            ("2", "  "),
            ("2", "Ελληνικά"),
            ("0", "POLSKI"),
            ("9", "POLSKI"),
            ("nobody", "POLSKI"),
        ):
            with self.subTest(language=language, name=name):
                self.refused("rename", "A.MES", f"--language={language}", f"--name={name}")
        self.refused("rename", "missing.MES", "--language=1", "--name=X")

    def test_an_msx_file_has_no_names_to_change(self) -> None:
        self.write("A.MSX", msx_file(1))
        err = self.refused("rename", "A.MSX", "--language=1", "--name=POLSKI").err
        self.assertIn("A.MSX: ", err)


if __name__ == "__main__":
    unittest.main()
