"""vendlingua-cli update: what a translator noted beside the older file goes along."""

from __future__ import annotations

import json
import unittest

from message_files import MesFile
from support import CliTest

# "Due" moves from message 1 to message 2 of the new firmware.
NEW_SOURCE = b" .SDATA\r\n ORG $6000\r\n DC.B 'Uno '\r\n DC.B 'Sei '\r\nMNLING DC.B 'Due '\r\n"
ITALIAN = (b"Uno ", b"Due ", b"Tre ")
ENGLISH = (b"One ", b"Two ", b"Thr ")
OLD = MesFile(
    flags=b"03",
    names=(b"Default", b"ITALIANO", b"ENGLISH"),
    texts={
        (k, m): text
        for k, texts in enumerate((ITALIAN, ITALIAN, ENGLISH))
        for m, text in enumerate(texts)
    },
)
MARK = {
    "language": "ENGLISH",
    "message": 1,
    "origin": "Due",
    "mark": "needs work",
    "remark": "ask Anna",
}


def marks_file(*marks: dict[str, object]) -> bytes:
    content = {"format": "vendlingua-marks", "version": 1, "marks": list(marks)}
    return json.dumps(content).encode()


class UpdateMarksTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("OLD.MES", OLD.content())
        self.write("new.src", NEW_SOURCE)

    def update(self, older: str = "OLD.MES", output: str = "NEW.MES") -> None:
        self.done("update", "new.src", f"--from={older}", f"--output={output}")

    def marks_of(self, file: str) -> object:
        return json.loads(self.read(f"{file}.marks"))["marks"]

    def test_marks_go_along_with_what_they_are_found_again_by(self) -> None:
        self.write("OLD.MES.marks", marks_file(MARK))
        self.update()
        self.assertEqual(self.marks_of("NEW.MES"), [MARK])
        self.assertEqual(self.read("OLD.MES.marks"), marks_file(MARK))

    def test_a_file_without_marks_gives_none(self) -> None:
        self.update()
        self.assertFalse((self.folder / "NEW.MES.marks").exists())

    def test_marks_that_the_new_file_has_already_stay(self) -> None:
        self.write("OLD.MES.marks", marks_file(MARK))
        newer = MARK | {"remark": "asked"}
        self.write("NEW.MES.marks", marks_file(newer))
        self.update()
        self.assertEqual(self.marks_of("NEW.MES"), [newer])

    def test_what_holds_no_marks_is_left_behind(self) -> None:
        self.write("OLD.MES.marks", b"a shopping list")
        self.update()
        self.assertFalse((self.folder / "NEW.MES.marks").exists())

    def test_a_language_that_gets_another_name_takes_its_marks_along(self) -> None:
        names = (b"Default", b"ITALIANO", b"English")
        self.write("OLD.MES", MesFile(flags=b"03", names=names, texts=OLD.texts).content())
        self.write("OLD.MES.marks", marks_file(MARK | {"language": "English"}))
        self.update()
        self.assertEqual(self.marks_of("NEW.MES"), [MARK])

    def test_marks_that_cannot_be_written_are_only_warned_of(self) -> None:
        self.write("OLD.MES.marks", marks_file(MARK))
        output = "N" * 250 + ".MES"
        err = self.done_with_message(
            "update", "new.src", "--from=OLD.MES", f"--output={output}"
        ).err
        self.assertIn(".MES.marks", err)
        self.assertEqual(self.read(output)[2:4], b"03")


if __name__ == "__main__":
    unittest.main()
