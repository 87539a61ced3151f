"""vendlingua-cli pretranslate: messages are filled from an older message file."""

from __future__ import annotations

import csv
import io
import unittest

from message_files import MSX_START, MesFile, msx_at, msx_file, s_record
from support import SAMPLES, CliTest, Result

WIDTH = 8
ORIGIN = (b"Fermo   ", b"Prova 12", b"Nr.   \xfe\xfe", b"Acqua   ", b"Nuovo   ")
OLD_ORIGIN = (b" Acqua  ", b"Prova 13", b"Nr. \xfe   ", b"Fermo   ", b"Altro   ")
OLD_ENGLISH = (b" Water  ", b"Test 13 ", b"No. \xfe   ", b"Stopped ", b"Other   ")


def message_file(origin: tuple[bytes, ...], english: tuple[bytes, ...], **more: object) -> MesFile:
    texts = {(block, m): text for block in (0, 1) for m, text in enumerate(origin)}
    texts |= {(2, m): text for m, text in enumerate(english)}
    return MesFile(width=WIDTH, last_msg=4, stride=5, texts=texts, **more)


class PretranslateTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.file = message_file(ORIGIN, (b" " * WIDTH,) * 5)
        self.write("A.MES", self.file.content())
        self.write("OLD.MES", message_file(OLD_ORIGIN, OLD_ENGLISH).content())

    def pretranslate(self, *options: str) -> Result:
        return self.done("pretranslate", "A.MES", "--language=2", "--from=OLD.MES", *options)

    def refused_pretranslate(self, *options: str) -> str:
        return self.refused("pretranslate", "A.MES", "--language=2", "--from=OLD.MES", *options).err

    def english(self) -> list[bytes]:
        content = self.read("A.MES")
        return [content[self.file.at(2, m) : self.file.at(2, m) + WIDTH] for m in range(5)]

    def test_what_is_certain_is_stored(self) -> None:
        self.pretranslate()
        self.assertEqual(
            self.english(),
            # The same text at another number; similar only; laid out anew, twice; nothing. Where
            # nothing is stored the cells of the board stay blank, too.
            [b"Stopped ", b" " * WIDTH, b"No.   \xfe\xfe", b"Water   ", b" " * WIDTH],
        )

    def test_no_other_byte_changes(self) -> None:
        before = self.read("A.MES")
        self.pretranslate()
        after = self.read("A.MES")
        start, end = self.file.at(2, 0), self.file.at(2, 5)
        self.assertEqual(after[:start] + after[end:], before[:start] + before[end:])

    def test_json_tells_what_became_of_every_message(self) -> None:
        printed = self.pretranslate("--json").json
        none = {"from": None, "suggestion": None, "ratio": None}
        # "Prova 12" and "Prova 13" have 7 of 8 + 8 characters in common.
        similar = {"from": 1, "suggestion": "Test 13 ", "ratio": 0.88}
        self.assertEqual(
            printed,
            {
                "file": "A.MES",
                "language": 2,
                "messages": [
                    {"language": 2, "message": 0, "result": "filled", **none, "from": 3},
                    {"language": 2, "message": 1, "result": "suggested", **similar},
                    {"language": 2, "message": 2, "result": "adapted", **none, "from": 2},
                    {"language": 2, "message": 3, "result": "adapted", **none, "from": 0},
                    {"language": 2, "message": 4, "result": "none", **none},
                ],
                "counts": {"kept": 0, "filled": 1, "adapted": 2, "suggested": 1, "none": 1},
                "notices": [],
            },
        )

    def test_the_report_has_the_same_columns(self) -> None:
        self.pretranslate("--report=report.csv")
        rows = list(csv.reader(io.StringIO(self.read("report.csv").decode(), newline="")))
        self.assertEqual(
            rows,
            [
                ["language", "message", "result", "from", "suggestion", "ratio"],
                ["2", "0", "filled", "3", "", ""],
                ["2", "1", "suggested", "1", "Test 13 ", "0.88"],
                ["2", "2", "adapted", "2", "", ""],
                ["2", "3", "adapted", "0", "", ""],
                ["2", "4", "none", "", "", ""],
            ],
        )

    def test_the_text_lists_what_is_left_to_a_person(self) -> None:
        self.assertEqual(
            self.pretranslate().out,
            "language 2: ENGLISH: 0 kept, 1 filled, 2 adapted, 1 suggested, 1 none\n"
            "1\tsuggested\t0.88\tTest 13 \n4\tnone\n",
        )

    def test_translations_are_kept(self) -> None:
        self.write("A.MES", message_file(ORIGIN, (b"Halted  ", *ORIGIN[1:])).content())
        self.pretranslate()
        self.assertEqual(self.english()[0], b"Halted  ")
        self.assertEqual(self.english()[3], b"Water   ")

    def test_a_second_run_changes_nothing(self) -> None:
        self.pretranslate()
        with self.unchanged():
            counts = self.pretranslate("--json").json["counts"]
        self.assertEqual(counts, {"kept": 3, "filled": 0, "adapted": 0, "suggested": 1, "none": 1})

    def test_the_older_language_is_that_of_the_same_name(self) -> None:
        old = message_file(OLD_ORIGIN, OLD_ENGLISH, names=(b"Default", b"ITALIANO", b"DEUTSCH"))
        self.write("OLD.MES", old.content())
        self.assertIn("ENGLISH", self.refused_pretranslate())
        self.pretranslate("--from-language=deutsch")
        self.assertEqual(self.english()[0], b"Stopped ")

    def test_messages_are_known_by_the_reference(self) -> None:
        # Language 1 of both says the same at every number, language 0 does not.
        texts = {(1, m): f"{m}".encode() * WIDTH for m in range(5)}
        for name, origin, english in (
            ("A.MES", ORIGIN, (b" " * WIDTH,) * 5),
            ("OLD.MES", OLD_ORIGIN, OLD_ENGLISH),
        ):
            file = message_file(origin, english)
            file.texts |= texts
            self.write(name, file.content())
        self.pretranslate("--reference=1")
        self.assertEqual(self.english()[0], b" Water  ")
        self.write("A.MES", self.file.content())
        self.pretranslate("--reference=default")
        self.assertEqual(self.english()[0], b"Stopped ")

    def test_other_translations_of_the_same_text_are_no_certainty(self) -> None:
        origin = (b"Fermo   ", b"Fermo   ", *OLD_ORIGIN[2:])
        english = (b"Halted  ", b"Halted  ", *OLD_ENGLISH[2:])
        self.write("OLD.MES", message_file((b"x" * WIDTH, *origin[1:]), english).content())
        row = self.pretranslate("--json").json["messages"][0]
        self.assertEqual((row["result"], row["suggestion"]), ("suggested", "Halted  "))
        self.assertEqual(row["ratio"], 1.0)

    def test_files_of_different_displays_need_to_be_told_apart(self) -> None:
        old = message_file(OLD_ORIGIN, OLD_ENGLISH, flags=b"04")
        self.write("OLD.MES", old.content())
        self.assertIn("--display", self.refused_pretranslate())
        self.pretranslate("--display=cyrillic")
        self.assertEqual(self.english()[0], b"Stopped ")

    def test_an_msx_file_takes_blanks_where_the_board_fills(self) -> None:
        # Message 3 of the built-in table is "Credito", two cells of the board behind it.
        table = bytearray(msx_file(2))
        credit = b"Credito \xfe \xfe\xfe\xfe\xfe\xfe\xfe"
        for language, text in ((1, credit.replace(b"\xfe", b" ")), (2, b" " * 16)):
            start = msx_at(language, 3)
            line = s_record("2", MSX_START + ((language - 1) * 455 + 3) * 16, text)
            table[start : start + len(line)] = line
        self.write("A.MSX", bytes(table))
        old = MesFile(width=16, texts={(1, 0): credit, (2, 0): credit.replace(b"to", b"t ")})
        self.write("OLD.MES", old.content())
        options = ("--language=2", "--from=OLD.MES", "--from-language=2", "--json")
        row = self.done("pretranslate", "A.MSX", *options).json["messages"][3]
        self.assertEqual((row["result"], row["from"]), ("filled", 0))
        printed = self.done("texts", "A.MSX", "--language=2", "--json").json["messages"][3]
        self.assertEqual(printed["text"], "Credi t         ".replace("i t", "it "))

    def test_the_samples_fill_each_other(self) -> None:
        content = (SAMPLES / "FW0417AB.MES").read_bytes()
        block = 16 * 456 + 20
        # The Danish texts go, their name stays.
        start = 24 + 8 * block + 20
        self.write("D.MES", content[:start] + b" " * 455 * 16 + content[start + 455 * 16 :])
        options = ("--language=dansk", "--from", SAMPLES / "FW0417AB.MES")
        self.done("pretranslate", "D.MES", *options)
        self.assertEqual(self.read("D.MES"), content)

    def test_what_is_refused(self) -> None:
        for options in (
            ("--from-language=9",),
            ("--from-language=nobody",),
            ("--reference=9",),
            ("--report=A.MES",),
            ("--report=./OLD.MES",),
            ("--report=missing/report.csv",),
        ):
            with self.subTest(options):
                self.refused_pretranslate(*options)
        for language in ("0", "9", "nobody"):
            self.refused("pretranslate", "A.MES", f"--language={language}", "--from=OLD.MES")
        self.refused("pretranslate", "A.MES", "--language=2", "--from=missing.MES")
        wide = MesFile(width=41, names=(b"Default", b"ITALIANO", b"ENGLISH"))
        self.write("OLD.MES", wide.content())
        self.assertIn("OLD.MES", self.refused_pretranslate())
        self.write("OLD.MES", b" DC.B 'ABCD'")
        self.assertIn("OLD.MES", self.refused_pretranslate())


if __name__ == "__main__":
    unittest.main()
