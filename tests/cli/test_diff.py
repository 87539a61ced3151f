"""vendlingua-cli diff: two message files are compared."""

from __future__ import annotations

import random
import unittest

from diff_case import DIFFERENT, SAME, TROUBLE, DiffCase
from message_files import MesFile, msx_file
from support import SAMPLES


class MessageFilesTest(DiffCase):
    def setUp(self) -> None:
        super().setUp()
        self.file = MesFile()
        self.write("A.MES", self.file.content())

    def test_the_same_file_prints_nothing(self) -> None:
        self.assertEqual(self.same("A.MES", "A.MES").out, "")
        self.write("B.MES", self.file.content())
        self.assertEqual(self.same("A.MES", "B.MES").out, "")

    def test_json_of_the_same_file(self) -> None:
        self.assertEqual(
            self.same("A.MES", "A.MES", "--json").json,
            {
                "same": True,
                "header": [],
                "languages": {"added": [], "removed": [], "renamed": []},
                "messages": [],
            },
        )

    def test_messages_stand_below_each_other(self) -> None:
        self.write("B.MES", MesFile(texts={(2, 1): b"Wait", (2, 2): b"\xfe C "}).content())
        self.assertEqual(
            self.different("A.MES", "B.MES").out,
            "language 2: ENGLISH\n"
            "-    1 |2111|\n"
            "+    1 |Wait|\n"
            "-    2 |2222|\n"
            "+    2 |þ C |\n",
        )

    def test_json_names_messages_by_language_and_number(self) -> None:
        self.write("B.MES", MesFile(texts={(1, 1): b"Attn", (2, 1): b"Wait"}).content())
        printed = self.different("A.MES", "B.MES", "--json").json
        self.assertEqual(
            printed,
            {
                "same": False,
                "header": [],
                "languages": {"added": [], "removed": [], "renamed": []},
                "messages": [
                    {"language": 1, "message": 1, "a": "1111", "b": "Attn"},
                    {"language": 2, "message": 1, "a": "2111", "b": "Wait"},
                ],
            },
        )

    def test_dimensions_are_compared(self) -> None:
        other = MesFile(lang_count=3, flags=b"02", header_count=2, last_msg=1, mem_start=0x7000)
        self.write("B.MES", other.content())
        printed = self.different("A.MES", "B.MES", "--json").json
        self.assertEqual(
            printed["header"],
            [
                {"field": "langCount", "a": 2, "b": 3},
                {"field": "headerBit1", "a": False, "b": True},
                {"field": "headerCount", "a": 1, "b": 2},
                {"field": "lastMsg", "a": 2, "b": 1},
                {"field": "memStart", "a": 0x6000, "b": 0x7000},
                {"field": "memLength", "a": 24, "b": 36},
            ],
        )
        self.assertEqual(
            printed["messages"],
            [{"language": k, "message": 2, "a": f"{k}222", "b": None} for k in (0, 1, 2)],
        )
        self.assertIn("lastMsg: 2 is 1\n", self.different("A.MES", "B.MES").out)
        self.assertIn("\n-    2 |0222|\nlanguage 1", self.different("A.MES", "B.MES").out)

    def test_languages_are_compared(self) -> None:
        names = (b"Default", b"ITALIAN", b"ENGLISH", b"POLSKI")
        self.write("B.MES", MesFile(names=names).content())
        languages = self.different("A.MES", "B.MES", "--json").json["languages"]
        self.assertEqual(
            languages,
            {
                "added": [{"index": 3, "name": "POLSKI"}],
                "removed": [],
                "renamed": [{"index": 1, "a": "ITALIANO", "b": "ITALIAN"}],
            },
        )
        self.assertEqual(
            self.different("A.MES", "B.MES").out,
            "+ language 3: POLSKI\nlanguage 1: ITALIANO is named ITALIAN\n",
        )
        self.assertEqual(
            self.different("B.MES", "A.MES").out,
            "- language 3: POLSKI\nlanguage 1: ITALIAN is named ITALIANO\n",
        )

    def test_languages_that_changed_places_are_known_by_their_names(self) -> None:
        other = MesFile(
            names=(b"Default", b"ENGLISH", b"ITALIANO"),
            texts={(3 - k, m): f"{k}{m}{m}{m}".encode() for k in (1, 2) for m in range(3)},
        )
        self.write("B.MES", other.content())
        printed = self.different("A.MES", "B.MES", "--json").json
        self.assertEqual(printed["messages"], [])
        self.assertEqual(
            printed["languages"]["moved"],
            [{"name": "ITALIANO", "a": 1, "b": 2}, {"name": "ENGLISH", "a": 2, "b": 1}],
        )

    def test_texts_are_in_the_characters_of_each_display(self) -> None:
        self.write("A.MES", MesFile(texts={(1, 1): b"  \xa8 "}).content())
        self.write("B.MES", MesFile(texts={(1, 1): b" \xa8  "}, flags=b"04").content())
        row = self.different("A.MES", "B.MES", "--json").json["messages"][0]
        self.assertEqual(row["b"], " П  ")
        row = self.different("A.MES", "B.MES", "--json", "--display=cyrillic").json["messages"][0]
        self.assertEqual((row["a"], row["b"]), ("  П ", " П  "))

    def test_an_identified_copy_differs_from_its_message_file_in_the_header_alone(self) -> None:
        printed = self.different(SAMPLES / "FW0417AB.MES", SAMPLES / "MP0417AA.MSX", "--json").json
        self.assertEqual(printed["messages"], [])
        fields = [field["field"] for field in printed["header"]]
        self.assertEqual(fields, ["type", "langCount", "headerCount"])

    def test_trouble(self) -> None:
        content = self.file.content()
        for name, other in (
            ("missing.MES", None),
            ("EMPTY.MES", b""),
            ("SHORT.MES", content[:23]),
            ("CUT.MES", content[:43]),
            ("SOURCE.MES", b" DC.B 'ABCD'"),
            ("FOREIGN.MSX", msx_file(1, "0999")),
        ):
            with self.subTest(name):
                if other is not None:
                    self.write(name, other)
                self.assertIn(name, self.trouble("A.MES", name))
                self.assertIn(name, self.trouble(name, "A.MES"))

    def test_a_file_cut_at_each_byte(self) -> None:
        content = self.file.content()
        first = self.file.block(0) + 20
        for size in range(len(content)):
            self.write("B.MES", content[:size])
            with self.subTest(size), self.unchanged():
                result = self.cli.run("diff", "A.MES", "B.MES")
                unused = size >= self.file.at(2, 3)
                expected = TROUBLE if size < first else SAME if unused else DIFFERENT
                self.assertEqual(result.status, expected)
                self.assertEqual(result.out == "", expected != DIFFERENT)
                self.assertEqual(result.err == "", expected != TROUBLE)

    def test_random_bytes(self) -> None:
        source = random.Random(5)
        for size in (1, 24, 60, 1000, 30000):
            self.write("B.MES", source.randbytes(size))
            self.assertIn("B.MES", self.trouble("A.MES", "B.MES"))

    def test_the_largest_numbers_in_all_fields(self) -> None:
        # 65536 messages of one cell, and blocks that overlap. Three languages belong together.
        self.write("B.MES", b"\x01\x00" + b"00" + b"0000FFFF00000000FFFF" + 3000 * b"x")
        self.assertEqual(self.cli.run("diff", "A.MES", "B.MES", "--json").json["unlisted"], 96608)
        self.same("B.MES", "B.MES")

    def test_trouble_prints_no_json(self) -> None:
        self.trouble("A.MES", "missing.MES", "--json")


if __name__ == "__main__":
    unittest.main()
