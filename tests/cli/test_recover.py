"""Saves that were interrupted: told by every command, taken back by "recover"."""

from __future__ import annotations

import os
import struct
import unittest
import zlib

from message_files import MesFile
from support import REFUSED, CliTest

FILE = MesFile()
BEFORE = FILE.content()
# Of the new texts of messages 0 and 2 only the first one was written.
AFTER = BEFORE.replace(b"1000", b"new0").replace(b"1222", b"new2") + b"more"
HALF = BEFORE.replace(b"1000", b"new0")


def undo_file(before: bytes, after: bytes) -> bytes:
    """The undo file of a change, as docs/reliability.md describes it: all that differs, at once."""
    body = b"Vendlingua undo file 1\n"
    body += struct.pack("<IIII", len(before), len(after), zlib.crc32(before), 1)
    body += struct.pack("<III", 0, len(before), len(after)) + before + after
    return body + struct.pack("<I", zlib.crc32(body))


class RecoverTest(CliTest):
    def interrupt(self, content: bytes, before: bytes = BEFORE, after: bytes = AFTER) -> None:
        self.write("A.MES", content)
        self.write("~A.MES.undo", undo_file(before, after))

    def test_a_file_is_put_back(self) -> None:
        self.interrupt(HALF)
        printed = self.done("recover", "A.MES").out
        self.assertIn("A.MES: holds again", printed)
        self.assertEqual(self.read("A.MES"), BEFORE)
        self.assertEqual(self.names(), ["A.MES"])

    def test_json_says_whether_anything_was_to_be_done(self) -> None:
        self.interrupt(HALF)
        self.assertEqual(
            self.done("recover", "A.MES", "--json").json, {"file": "A.MES", "recovered": True}
        )
        self.assertEqual(
            self.done("recover", "A.MES", "--json").json, {"file": "A.MES", "recovered": False}
        )

    def test_a_file_that_grew_gets_its_length_back(self) -> None:
        for content in (AFTER[:-1], BEFORE + b"\0\0", HALF + b"mo\0\0"):
            self.interrupt(content)
            self.done("recover", "A.MES")
            self.assertEqual(self.read("A.MES"), BEFORE)

    def test_a_save_that_was_complete_stays(self) -> None:
        self.interrupt(AFTER)
        self.assertIn("no save of it was interrupted", self.done("recover", "A.MES").out)
        self.assertEqual(self.read("A.MES"), AFTER)
        self.assertEqual(self.names(), ["A.MES"])

    def test_a_save_that_never_began_leaves_nothing(self) -> None:
        for cut in (0, 5, 23, 40):
            self.write("A.MES", BEFORE)
            self.write("~A.MES.undo", undo_file(BEFORE, AFTER)[:cut])
            self.done("recover", "A.MES")
            self.assertEqual(self.read("A.MES"), BEFORE)
            self.assertEqual(self.names(), ["A.MES"])

    def test_a_file_that_was_changed_since_is_left_alone(self) -> None:
        self.interrupt(HALF.replace(b"0111", b"0???"))
        err = self.refused("recover", "A.MES").err
        self.assertIn("~A.MES.undo: cannot be used", err)

    def test_a_file_of_somebody_else_is_left_alone(self) -> None:
        self.write("A.MES", BEFORE)
        self.write("~A.MES.undo", b"a note")
        self.refused("recover", "A.MES")
        self.done("info", "A.MES")
        self.refused("put", "A.MES", "--language=1", "--message=0", "--text=x")

    def test_a_damaged_undo_file_is_never_used(self) -> None:
        sound = undo_file(BEFORE, AFTER)
        for at in range(23, len(sound), 7):
            damaged = bytearray(sound)
            damaged[at] ^= 0x10
            self.write("A.MES", HALF)
            self.write("~A.MES.undo", bytes(damaged))
            self.done("recover", "A.MES")
            self.assertEqual(self.read("A.MES"), HALF)

    def test_random_undo_files_are_never_used(self) -> None:
        for seed in range(20):
            self.write("A.MES", HALF)
            self.write("~A.MES.undo", os.urandom(50 * seed))
            self.cli.run("recover", "A.MES")
            self.assertEqual(self.read("A.MES"), HALF)

    def test_no_other_command_goes_on_with_mixed_texts(self) -> None:
        for command in (
            ("info", "A.MES"),
            ("texts", "A.MES", "--language=1"),
            ("put", "A.MES", "--language=1", "--message=1", "--text=x"),
            ("new-language", "A.MES", "--name=NEW"),
            ("export", "A.MES", "--language=1", "--output=t.csv"),
            ("compile", "A.MES", "--languages=1,2", "--output=FW0417AB.HEX"),
        ):
            self.interrupt(HALF)
            err = self.refused(*command).err
            self.assertIn('"recover"', err, command)

    def test_verify_finds_it(self) -> None:
        self.interrupt(HALF)
        result = self.cli.run("verify", "A.MES")
        self.assertEqual(result.status, REFUSED)
        self.assertIn("A.MES: a save of it was interrupted", result.out)

    def test_a_missing_file_is_named(self) -> None:
        self.assertIn("A.MES: ", self.refused("recover", "A.MES").err)


if __name__ == "__main__":
    unittest.main()
