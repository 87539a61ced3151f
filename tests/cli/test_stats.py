"""vendlingua-cli stats."""

from __future__ import annotations

import json
import shutil
import unittest

from message_files import MesFile, header, msx_at, msx_file
from support import SAMPLES, CliTest


class StatsTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        origin = (b"Moneta", b"Acqua", b"", b"E12 Lift", b"Italiano")
        english = (b"Coin", b"", b"", b"E12 Lift", b"English")
        french = (b"Pi\xe8ce", b"Eau", b"", b"Ascenseur", b"Fran\xe7ais")
        texts = {
            (block, message): text.ljust(10)
            for block, language in enumerate((origin, origin, english, french))
            for message, text in enumerate(language)
        }
        names = (b"Default", b"ITALIANO", b"ENGLISH", b"FRAN\xc7AIS")
        self.file = MesFile(
            width=10, last_msg=4, stride=5, header_count=4, names=names, texts=texts
        )
        self.write("A.MES", self.file.content())

    def test_json_is_what_scripts_rely_on(self) -> None:
        printed = self.done("stats", "A.MES", "--json").out
        self.assertEqual(
            json.loads(printed, object_pairs_hook=list),
            [
                (
                    "languages",
                    [
                        row(1, "ITALIANO", translated=0, same=5, blank=0, findings=0),
                        # "Lift" is a loan word or not: a note or, of four messages with words, a
                        # warning.
                        row(2, "ENGLISH", translated=2, same=2, blank=1, findings=2),
                        row(3, "FRANÇAIS", translated=4, same=1, blank=0, findings=1),
                    ],
                )
            ],
        )

    def test_text_has_a_line_a_language_in_columns(self) -> None:
        self.assertEqual(
            self.done("stats", "A.MES").out,
            " 1 ITALIANO  messages   5  translated   0  same   5  blank   0  findings   0\n"
            " 2 ENGLISH   messages   5  translated   2  same   2  blank   1  findings   2\n"
            " 3 FRANÇAIS  messages   5  translated   4  same   1  blank   0  findings   1\n",
        )

    def test_notes_are_no_findings(self) -> None:
        shutil.copy(SAMPLES / "FW0417AB.MES", self.folder)
        rows = self.done("stats", "FW0417AB.MES", "--json").json["languages"]
        self.assertEqual([row["findings"] for row in rows], [0] * 9)
        self.assertEqual([row["blank"] for row in rows], [0] * 9)
        for found in rows:
            self.assertEqual(found["messages"], 455)
            self.assertEqual(found["translated"] + found["same"] + found["blank"], 455)

    def test_another_origin(self) -> None:
        rows = self.done("stats", "A.MES", "--origin=english", "--json").json["languages"]
        self.assertEqual([row["same"] for row in rows], [2, 5, 1])

    def test_messages_that_the_file_does_not_hold_are_blank(self) -> None:
        self.write("A.MES", self.file.content()[: self.file.at(3, 1) + 3])
        last = self.done("stats", "A.MES", "--json").json["languages"][2]
        self.assertEqual((last["translated"], last["same"], last["blank"]), (1, 1, 3))

    def test_an_msx_file_is_counted_against_the_built_in_table(self) -> None:
        shutil.copy(SAMPLES / "MP0417AA.MSX", self.folder)
        rows = self.done("stats", "MP0417AA.MSX", "--json").json["languages"]
        self.assertEqual((rows[0]["name"], rows[0]["same"]), ("Italiano", 455))
        self.assertEqual([row["findings"] for row in rows], [0] * 9)

    def test_a_file_without_languages_has_no_line(self) -> None:
        self.write("A.MES", MesFile(names=[b"Default"]).content())
        self.assertEqual(self.done("stats", "A.MES").out, "")
        self.assertEqual(self.done("stats", "A.MES", "--json").json, {"languages": []})

    def test_bad_files_are_refused(self) -> None:
        wrapped = header(1, 1, b"00", 1, 65535, 0, 0xFFFF) + b"Default".ljust(20) * 100
        damaged = bytearray(msx_file(1))
        damaged[msx_at(1, 7) + 12] = ord("x")
        for name, content in (
            ("B.MES", b""),
            ("B.MES", b"\x02\x03"),
            ("B.MES", wrapped),
            ("B.MSX", b"S0"),
            ("B.MSX", bytes(damaged)),
            ("B.TXT", b"text"),
        ):
            self.write(name, content)
            self.refused("stats", name)
        self.refused("stats", "missing.MES")
        self.refused("stats", "A.MES", "--origin=4")


def row(index: int, name: str, **counts: int) -> list[tuple[str, object]]:
    return [("index", index), ("name", name), ("messages", 5), *counts.items()]


if __name__ == "__main__":
    unittest.main()
