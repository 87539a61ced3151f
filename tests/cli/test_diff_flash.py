"""vendlingua-cli diff: two flash files are compared."""

from __future__ import annotations

import os
import random
import unittest

from diff_case import DIFFERENT, SAME, TROUBLE, DiffCase
from message_files import MesFile, msx_file, s_records
from on_windows import NO_DEVICES, not_on_windows
from support import SAMPLES


class FlashFilesTest(DiffCase):
    """Two slots of four messages of four cells at 6000, of which three are used."""

    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", MesFile(lang_count=2, mem_length=32).content())
        self.image = b"".join(b"%d%03d" % (slot, m) for slot in (0, 1) for m in range(4))
        self.write("A.hex", s_records("1", 0x6000, self.image))

    def write_other(self, changes: dict[int, bytes], start: int = 0x6000) -> None:
        image = bytearray(self.image)
        for at, data in changes.items():
            image[at : at + len(data)] = data
        self.write("B.hex", s_records("1", start, bytes(image)))

    def test_the_same_bytes_print_nothing(self) -> None:
        self.assertEqual(self.same("A.hex", "A.hex").out, "")
        # Records of another length hold the same.
        lines = b"".join(s_records("2", 0x6000 + i, self.image[i : i + 5]) for i in range(0, 32, 5))
        self.write("B.hex", lines)
        self.assertEqual(self.same("A.hex", "B.hex", "--json").json, {"same": True, "bytes": []})

    def test_bytes_are_told_by_their_addresses(self) -> None:
        self.write_other({1: b"xyz", 17: b"xy"})
        self.assertEqual(
            self.different("A.hex", "B.hex").out,
            "0x6001 (24577) to 0x6003 (24579)\n0x6011 (24593) to 0x6012 (24594)\n",
        )
        self.assertEqual(
            self.different("A.hex", "B.hex", "--json").json,
            {
                "same": False,
                "bytes": [
                    {"address": 0x6001, "length": 3, "slot": None, "message": None},
                    {"address": 0x6011, "length": 2, "slot": None, "message": None},
                ],
            },
        )

    def test_bytes_are_told_by_slot_and_message(self) -> None:
        # Slot 0, messages 0 and 1 at once; slot 1, message 2; behind its last message.
        self.write_other({3: b"xx", 24: b"Wait", 29: b"x"})
        options = ("--dimensions", "A.MES")
        self.assertEqual(
            self.different("A.hex", "B.hex", *options, "--json").json["bytes"],
            [
                {"address": 0x6003, "length": 1, "slot": 0, "message": 0},
                {"address": 0x6004, "length": 1, "slot": 0, "message": 1},
                {"address": 0x6018, "length": 4, "slot": 1, "message": 2},
                {"address": 0x601D, "length": 1, "slot": 1, "message": None},
            ],
        )
        self.assertEqual(
            self.different("A.hex", "B.hex", *options).out,
            "0x6003 (24579), slot 0, message 0\n-    0 |0000|\n+    0 |000x|\n"
            "0x6004 (24580), slot 0, message 1\n-    1 |0001|\n+    1 |x001|\n"
            "0x6018 (24600) to 0x601B (24603), slot 1, message 2\n-    2 |1002|\n+    2 |Wait|\n"
            "0x601D (24605), slot 1\n",
        )

    def test_a_message_with_two_changes_is_shown_once(self) -> None:
        self.write_other({0: b"x", 2: b"x"})
        self.assertEqual(
            self.different("A.hex", "B.hex", "--dimensions=A.MES").out,
            "0x6000 (24576), slot 0, message 0\n0x6002 (24578), slot 0, message 0\n"
            "-    0 |0000|\n+    0 |x0x0|\n",
        )

    def test_bytes_that_one_file_lacks_differ(self) -> None:
        self.write_other({}, start=0x6010)
        self.assertEqual(
            [(run["address"], run["length"]) for run in
             self.different("A.hex", "B.hex", "--json").json["bytes"]],
            [(0x6000, 17), (0x6014, 1), (0x6018, 1), (0x601C, 1), (0x6020, 16)],
        )

    def test_an_identified_copy_holds_the_bytes_of_its_flash_file(self) -> None:
        self.done(
            *("compile", SAMPLES / "FW0417AB.MES", "--languages=1,2,3,4,5,6,7,8,9"),
            *("--output=FW0417AB.MHX", "--copy=MP0417AA.MSX"),
        )
        self.same("FW0417AB.MHX", "MP0417AA.MSX", "--dimensions", SAMPLES / "FW0417AB.MES")

    def test_a_changed_message_is_found_in_the_flash_file(self) -> None:
        self.write("S.MES", (SAMPLES / "FW0417AB.MES").read_bytes())
        every = "--languages=1,2,3,4,5,6,7,8,9"
        self.done("compile", "S.MES", every, "--output=A.MHX", "--copy=A.MSX")
        self.done("put", "S.MES", "--language=5", "--message=45", "--text=E08 Agua!")
        self.done("compile", "S.MES", every, "--output=B.MHX", "--copy=B.MSX")
        printed = self.different("A.MHX", "B.MHX", "--dimensions=S.MES", "--json").json
        self.assertEqual({(run["slot"], run["message"]) for run in printed["bytes"]}, {(4, 45)})
        # A slot has 65520 / 9 bytes, a message 16.
        message = 0xFF0000 + 4 * 7280 + 45 * 16
        for run in printed["bytes"]:
            self.assertLessEqual(message, run["address"])
            self.assertLessEqual(run["address"] + run["length"], message + 16)

    def test_trouble(self) -> None:
        for name, content in (
            ("missing.hex", None),
            ("TEXT.hex", b"no record\r\n"),
            ("SUM.hex", b"S1046000415B\r\n"),
            ("HALF.hex", s_records("1", 0x6000, self.image)[:-5]),
            ("FAR.hex", b"S30601000000" + b"01F7\r\n"),
        ):
            with self.subTest(name):
                if content is not None:
                    self.write(name, content)
                self.assertIn(name, self.trouble("A.hex", name))
                self.assertIn(name, self.trouble(name, "A.hex"))

    def test_a_file_cut_at_each_byte(self) -> None:
        content = self.read("A.hex")
        line = len(content) // 2
        for size in range(len(content)):
            self.write("B.hex", content[:size])
            with self.subTest(size):
                whole_lines = size in (0, line - 2, line, len(content) - 2)
                expected = TROUBLE if not whole_lines else SAME if size > line else DIFFERENT
                self.assertEqual(self.cli.run("diff", "A.hex", "B.hex").status, expected)

    def test_random_bytes(self) -> None:
        source = random.Random(6)
        for size in (1, 24, 1000, 30000):
            self.write("B.hex", source.randbytes(size))
            self.assertIn("B.hex", self.trouble("A.hex", "B.hex"))

    @not_on_windows(NO_DEVICES)
    def test_what_is_no_regular_file(self) -> None:
        (self.folder / "FOLDER.hex").mkdir()
        (self.folder / "DEVICE.hex").symlink_to("/dev/zero")
        self.write("HUGE.hex", b"")
        os.truncate(self.folder / "HUGE.hex", 3 << 30)
        for name in ("FOLDER.hex", "DEVICE.hex", "HUGE.hex"):
            self.assertIn(name, self.trouble("A.hex", name))

    def test_a_message_file_is_no_flash_file(self) -> None:
        self.assertIn("A.MES", self.trouble("A.MES", "A.hex"))
        self.assertIn("A.MES", self.trouble("A.hex", "A.MES"))
        self.assertIn("A.MES", self.trouble("A.MES", "A.MES", "--dimensions=A.MES"))

    def test_a_display_says_nothing_without_dimensions(self) -> None:
        self.assertIn("--dimensions", self.trouble("A.hex", "A.hex", "--display=cyrillic"))

    def test_what_a_short_message_file_is_compiled_to_is_compared(self) -> None:
        self.write("A.MSX", msx_file(1))
        self.done_with_message("compile", "A.MSX", "--output=C.MHX")
        self.assertTrue(self.read("C.MHX").endswith(3640 * b"\r\n"))  # 4095 - 455
        self.same("A.MSX", "C.MHX")

    def test_dimensions_come_from_a_message_file(self) -> None:
        self.trouble("A.hex", "A.hex", "--dimensions=missing.MES")
        self.trouble("A.hex", "A.hex", "--dimensions=A.hex")


if __name__ == "__main__":
    unittest.main()
