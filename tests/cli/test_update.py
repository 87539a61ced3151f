"""vendlingua-cli update: the message file of a new firmware with the languages of the old one."""

from __future__ import annotations

import csv
import io
import unittest

from firmware_revision import MESSAGES, Texts
from message_files import MesFile, header
from support import SAMPLES, CliTest

# Three messages of four cells.
SOURCE = b" .SDATA\r\n ORG $6000\r\n DC.B 'Uno '\r\nMNLING DC.B 'Due '\r\n DC.B 'Tre '\r\n"
ITALIAN = (b"Uno ", b"Due ", b"Tre ")
ENGLISH = (b"One ", b"Two ", b"Thr ")
GERMAN = (b"Eins", b"Zwei", b"Drei")
BLOCKS = (ITALIAN, ITALIAN, ENGLISH, GERMAN)
OLD = MesFile(
    flags=b"03",
    names=(b"Default", b"ITALIANO", b"ENGLISH", b"DEUTSCH"),
    texts={(k, m): text for k, texts in enumerate(BLOCKS) for m, text in enumerate(texts)},
)


class UpdateTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("OLD.MES", OLD.content())
        self.write("new.src", SOURCE)

    def update(self, *options: str, source: str = "new.src") -> None:
        self.done("update", source, "--from=OLD.MES", "--output=NEW.MES", *options)

    def refused_update(self, *options: str) -> str:
        return self.refused("update", "new.src", "--from=OLD.MES", "--output=NEW.MES", *options).err

    def test_the_same_source_gives_the_same_file(self) -> None:
        self.update()
        # The block that an import makes is blank behind its messages, the gap behind others is 0.
        file = self.read("NEW.MES")
        expected = OLD.header()
        for name, texts, unused in (
            (b"Default", b"Uno Due Tre ", b"    "),
            (b"ITALIANO", b"Uno Due Tre ", b"    "),
            (b"ENGLISH", b"One Two Thr ", bytes(4)),
            (b"DEUTSCH", b"EinsZweiDrei", b""),
        ):
            expected += name.ljust(20) + texts + unused
        self.assertEqual(file, expected)

    def test_slots_memory_and_names_are_those_of_the_older_file(self) -> None:
        self.update()
        self.assertEqual(self.read("NEW.MES")[:24], header(2, 4, b"03", 1, 2, 0x6000, 24))

    def test_options_go_before_the_older_file(self) -> None:
        self.update(
            "--languages=3", "--memory-start=0x8000", "--memory-length=0x30", "--name=ITALIAN"
        )
        info = self.done("info", "NEW.MES", "--json").json
        memory = (info["langCount"], info["memStart"], info["memLength"])
        self.assertEqual(memory, (3, 0x8000, 0x30))
        self.assertEqual(
            [language["name"] for language in info["languages"]],
            ["Default", "ITALIAN", "ENGLISH", "DEUTSCH"],
        )

    def test_a_source_without_mnling_needs_the_number_of_the_name(self) -> None:
        self.write("new.src", SOURCE.replace(b"MNLING", b""))
        self.assertIn("--language-message", self.refused_update())
        self.update("--language-message=2")
        self.assertEqual(self.read("NEW.MES")[4:8], b"0002")

    def test_the_languages_of_further_sections_come_from_the_source(self) -> None:
        section = b" ORG $7000\r\n" + b"".join(b" DC.B '%s'\r\n" % t.upper() for t in ENGLISH)
        self.write("new.src", SOURCE + section)
        self.update()
        self.assertEqual(self.texts(2), ["ONE ", "TWO ", "THR "])
        self.assertEqual(self.texts(3), ["Eins", "Zwei", "Drei"])

    def test_a_source_in_another_language_of_the_older_file(self) -> None:
        self.write("new.src", SOURCE.replace(b"Uno", b"One").replace(b"Due", b"Two"))
        self.update("--name=ENGLISH")
        names = [x["name"] for x in self.done("info", "NEW.MES", "--json").json["languages"]]
        self.assertEqual(names, ["Default", "ENGLISH", "ITALIANO", "DEUTSCH"])
        self.assertEqual(self.texts(2), ["Uno ", "Due ", "Tre "])

    def test_the_display_type_is_that_of_the_older_file(self) -> None:
        self.write("OLD.MES", OLD.content()[:2] + b"07" + OLD.content()[4:])
        self.update()
        self.assertEqual(self.read("NEW.MES")[2:4], b"07")

    def test_an_identified_copy_of_nine_languages_can_be_the_older_file(self) -> None:
        options = ("--from", SAMPLES / "MP0417AA.MSX", "--output=NEW.MES")
        self.done("update", SAMPLES / "firmware.src", *options)
        new = Texts(self.read("NEW.MES"), 455)
        expected = Texts((SAMPLES / "FW0417AB.MES").read_bytes(), 455)
        for language in range(10):
            for message in range(MESSAGES):
                self.assertEqual(new.at(language, message), expected.at(language, message))
        # Its messages name its languages.
        names = [x["name"] for x in self.done("info", "NEW.MES", "--json").json["languages"]]
        self.assertEqual(names[:5], ["Default", "ITALIANO", "ENGLISH", "DEUTSCH", "FRANÇAIS"])

    def test_json_tells_what_became_of_every_message(self) -> None:
        self.write("new.src", SOURCE.replace(b"'Due '", b"'Sei '").replace(b"'Tre '", b"'Tres'"))
        done = self.done(
            *("update", "new.src", "--from=OLD.MES", "--output=NEW.MES", "--json"),
        ).json
        self.assertEqual(done["written"], ["NEW.MES"])
        none = {"from": None, "suggestion": None, "ratio": None}
        # "Tre" and "Tres" have 3 of 3 + 4 characters in common.
        similar = {"result": "suggested", "from": 2, "ratio": 0.86}
        self.assertEqual(
            done["messages"],
            [
                {"language": 2, "message": 0, "result": "kept", **none, "from": 0},
                {"language": 2, "message": 1, "result": "none", **none},
                {"language": 2, "message": 2, **similar, "suggestion": "Thr "},
                {"language": 3, "message": 0, "result": "kept", **none, "from": 0},
                {"language": 3, "message": 1, "result": "none", **none},
                {"language": 3, "message": 2, **similar, "suggestion": "Drei"},
            ],
        )
        counts = {"kept": 2, "filled": 0, "adapted": 0, "suggested": 2, "none": 2}
        self.assertEqual(done["counts"], counts)
        self.assertEqual(self.texts(2), ["One ", "Sei ", "Tres"])

    def test_the_report_has_the_same_columns(self) -> None:
        self.write("new.src", SOURCE.replace(b"'Tre '", b"'Tres'"))
        self.update("--report=report.csv")
        rows = list(csv.reader(io.StringIO(self.read("report.csv").decode(), newline="")))
        self.assertEqual(
            rows[:4],
            [
                ["language", "message", "result", "from", "suggestion", "ratio"],
                ["2", "0", "kept", "0", "", ""],
                ["2", "1", "kept", "1", "", ""],
                ["2", "2", "suggested", "2", "Thr ", "0.86"],
            ],
        )
        self.assertEqual(len(rows), 7)

    def test_the_text_lists_what_is_left_to_a_person(self) -> None:
        self.write("new.src", SOURCE.replace(b"'Due '", b"'Sei '").replace(b"'Tre '", b"'Tres'"))
        out = self.done("update", "new.src", "--from=OLD.MES", "--output=NEW.MES").out
        self.assertEqual(
            out,
            "language 2: ENGLISH: 1 kept, 0 filled, 0 adapted, 1 suggested, 1 none\n"
            "1\tnone\n2\tsuggested\t0.86\tThr \n"
            "language 3: DEUTSCH: 1 kept, 0 filled, 0 adapted, 1 suggested, 1 none\n"
            "1\tnone\n2\tsuggested\t0.86\tDrei\n",
        )

    def test_an_older_file_of_the_new_name_is_replaced_as_a_whole(self) -> None:
        self.write("NEW.MES", b"x" * 5000)
        self.update()
        self.assertEqual(len(self.read("NEW.MES")), len(OLD.content()) - 4)

    def test_nothing_is_written_when_the_source_is_refused(self) -> None:
        self.write("new.src", b" DC.B 'Uno'\r\n DC.B 'Due '\r\n DC.B 'x'\r\n")
        self.refused_update("--report=report.csv")
        self.write("new.src", OLD.content())
        self.refused_update("--report=report.csv")

    def test_nothing_is_written_when_the_messages_do_not_fit(self) -> None:
        self.write("new.src", SOURCE + 5 * b" DC.B 'More'\r\n")
        self.refused_update("--report=report.csv")

    def test_nothing_is_written_when_the_older_file_is_refused(self) -> None:
        for content in (b"", OLD.content()[:40], SOURCE):
            self.write("OLD.MES", content)
            self.assertIn("OLD.MES", self.refused_update("--report=report.csv"))

    def test_a_language_that_ends_early_is_carried_over_with_a_warning(self) -> None:
        self.write("OLD.MES", OLD.content()[: OLD.at(3, 1)])
        err = self.done_with_message(
            "update", "new.src", "--from=OLD.MES", "--output=NEW.MES"
        ).err
        self.assertIn("OLD.MES: Language 3 ends early", err)
        self.assertNotIn("Language 2", err)
        self.assertEqual(self.read("NEW.MES")[OLD.at(3, 0) :][:4], b"Eins")

    def test_nothing_is_written_when_the_report_cannot_be(self) -> None:
        self.refused_update("--report=missing/report.csv")

    def test_the_output_is_none_of_the_files_that_are_read(self) -> None:
        for name in ("OLD.MES", "./OLD.MES"):
            self.refused("update", "new.src", "--from=OLD.MES", f"--output={name}")
        for name in ("OLD.MES", "new.src", "NEW.MES", "./NEW.MES"):
            self.refused_update(f"--report={name}")

    def test_the_output_can_be_opened_again(self) -> None:
        self.refused("update", "new.src", "--from=OLD.MES", "--output=NEW.txt")
        self.refused("update", "new.src", "--from=OLD.MES", "--output=NEW.1.MES")

    def test_languages_need_names_of_their_own(self) -> None:
        for names in (
            (b"Default", b"ITALIANO", b"ENGLISH", b"ENGLISH"),
            (b"Default", b"ITALIANO", b"", b"ENGLISH"),
            (b"Default",),
        ):
            self.write("OLD.MES", MesFile(names=names).content())
            self.assertIn("OLD.MES", self.refused_update())

    def test_more_names_than_sections_are_refused(self) -> None:
        self.assertIn("POLSKI", self.refused_update("--name=ITALIANO", "--name=POLSKI"))

    def texts(self, language: int) -> list[str]:
        printed = self.done("texts", "NEW.MES", f"--language={language}", "--json").json
        return [message["text"] for message in printed["messages"]]


if __name__ == "__main__":
    unittest.main()
