"""vendlingua-cli info: what a flash file holds."""

from __future__ import annotations

import unittest

from message_files import MesFile, msx_file, msx_lines, s_record, s_records
from support import SAMPLES, CliTest

COPY_HEADER = b"S013000044543032363741412020202020202020E9\r\n"  # of 0267AA


class InfoOfFlashFileTest(CliTest):
    """Two slots of four messages of four cells at 6000; message 1 names the language."""

    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", MesFile(flags=b"01", last_msg=3, stride=4).content())
        self.image = b"aaaa ITA" + b"b" * 8 + b"ccccENG " + b"d" * 8
        self.write("A.hex", s_records("1", 0x6000, self.image))

    def test_json_holds_records_ranges_and_gaps(self) -> None:
        content = s_record("0", 0, b"HDR") + b"\r\n"
        content += s_records("1", 0x6000, self.image[:20]) + s_records("2", 0x16000, b"xyz")
        self.write("B.hex", content + b"S9030000FC\r\n")
        self.assertEqual(
            self.done("info", "B.hex", "--json").json,
            {
                "file": "B.hex",
                "type": "flash file",
                "identification": None,
                "records": {"S0": 1, "S1": 2, "S2": 1, "S9": 1},
                "ranges": [
                    {"address": 0x6000, "length": 20},
                    {"address": 0x16000, "length": 3},
                ],
                "gaps": [{"address": 0x6014, "length": 0x16000 - 0x6014}],
                "slots": [],
            },
        )

    def test_text_tells_addresses_both_ways(self) -> None:
        content = s_records("1", 0x6000, self.image[:20]) + s_records("2", 0x16000, b"x")
        self.write("B.hex", content)
        self.assertEqual(
            self.done("info", "B.hex").out,
            "file: B.hex\n"
            "type: flash file\n"
            "records: 2 S1, 1 S2\n"
            "range: 0x6000 (24576) to 0x6013 (24595), 20 bytes\n"
            "gap: 0x6014 (24596) to 0x15FFF (90111), 65516 bytes\n"
            "range: 0x16000 (90112), 1 byte\n",
        )

    def test_slots_and_languages_are_told_with_the_dimensions(self) -> None:
        options = ("--dimensions", "A.MES")
        self.assertEqual(
            self.done("info", "A.hex", *options, "--json").json["slots"],
            [
                {"slot": 0, "address": 0x6000, "length": 16, "held": True, "name": "ITA"},
                {"slot": 1, "address": 0x6010, "length": 16, "held": True, "name": "ENG"},
            ],
        )
        self.assertIn(
            "slot 0: 0x6000 (24576), ITA\nslot 1: 0x6010 (24592), ENG\n",
            self.done("info", "A.hex", *options).out,
        )

    def test_slots_that_the_file_does_not_hold_are_told(self) -> None:
        self.write("B.hex", s_records("1", 0x6000, b"aaaa"))
        printed = self.done("info", "B.hex", "--dimensions=A.MES").out
        self.assertIn("slot 0: 0x6000 (24576), without a name\n", printed)
        self.assertIn("slot 1: 0x6010 (24592), not in the file\n", printed)

    def test_names_are_in_the_characters_of_the_display(self) -> None:
        self.image = b"aaaa\xa8\xa8\xa8\xa8" + bytes(24)
        self.write("B.hex", s_records("1", 0x6000, self.image))
        options = ("--dimensions=A.MES", "--display=cyrillic", "--json")
        slots = self.done("info", "B.hex", *options).json["slots"]
        self.assertEqual(slots[0]["name"], "ПППП")

    def test_a_compiled_sample_tells_its_languages_by_itself(self) -> None:
        self.done(
            *("compile", SAMPLES / "FW0417AB.MES", "--languages=1,2,3,4,5,6,7,8,9"),
            *("--output=FW0417AB.MHX", "--copy=MP0417AA.MSX"),
        )
        info = self.done("info", "FW0417AB.MHX", "--json").json
        self.assertEqual(info["identification"], "0417AA")
        self.assertEqual(info["records"], {"S2": 4095})
        self.assertEqual(info["ranges"], [{"address": 0xFF0000, "length": 65520}])
        self.assertEqual(info["slots"][8]["address"], 0xFF0000 + 8 * 7280)
        self.assertEqual([slot["name"] for slot in info["slots"]][1:3], ["English", "Deutsch"])

    def test_a_short_message_file_fills_some_slots(self) -> None:
        self.write("A.MSX", msx_file(2))
        self.done_with_message("compile", "A.MSX", "--output=C.MHX")
        self.write("D.MHX", s_records("2", 0xFF0000, b"    MP0417AA    ") + self.read("C.MHX")[46:])
        slots = self.done("info", "D.MHX", "--json").json["slots"]
        self.assertEqual([slot["held"] for slot in slots], [True, True] + 7 * [False])
        self.assertEqual([slot["name"] for slot in slots][:3], ["LANGUAGE 1", "LANGUAGE 2", None])

    def test_an_identified_copy_is_known_by_its_header(self) -> None:
        for name in ("FW0267AA.HSX", "FW0267AA.MSX", "anything.txt"):
            self.write(name, COPY_HEADER + s_records("1", 0x6000, self.image))
            info = self.done("info", name, "--json").json
            self.assertEqual((info["type"], info["identification"]), ("identified copy", "0267AA"))
            self.assertEqual(info["records"], {"S0": 1, "S1": 2})

    def test_a_msx_file_is_a_flash_file_where_dimensions_are_given(self) -> None:
        self.write("A.MSX", msx_file(9))
        self.assertEqual(self.done("info", "A.MSX", "--json").json["type"], ".MSX")
        info = self.done("info", "A.MSX", "--dimensions=A.MSX", "--json").json
        self.assertEqual(info["type"], "flash file")
        names = [slot["name"] for slot in info["slots"]]
        self.assertEqual(names, [f"LANGUAGE {number}" for number in range(1, 10)])

    def test_options_of_flash_files_are_refused_for_message_files(self) -> None:
        for option in ("--dimensions=A.MES", "--display=normal"):
            self.assertIn(option.split("=")[0], self.wrong_usage("info", "A.MES", option).err)

    def test_a_display_says_nothing_where_the_board_is_not_known(self) -> None:
        self.assertIn("--dimensions", self.wrong_usage("info", "A.hex", "--display=normal").err)

    def test_dimensions_come_from_a_message_file(self) -> None:
        for name in ("missing.MES", "A.hex"):
            self.assertIn(name, self.refused("info", "A.hex", f"--dimensions={name}").err)

    def test_dimensions_of_another_board_find_nothing(self) -> None:
        self.write("B.MES", MesFile(mem_start=0xFFFFFFFF).content())
        self.assertEqual(self.done("info", "A.hex", "--dimensions=B.MES", "--json").json["slots"], [])


class BadFlashFileTest(CliTest):
    def test_what_is_neither_message_file_nor_records_is_refused(self) -> None:
        for content in (b"", b"\r\n", b"\x00", b"text", b"s20512345677E7"):
            self.write("A.MHX", content)
            err = self.refused("info", "A.MHX").err
            self.assertIn("A.MHX: is no message file and no file of S-records", err)

    def test_a_line_that_is_no_sound_record_is_named(self) -> None:
        good = s_records("2", 0xFF0000, bytes(16))
        for bad in (b"text", b"S2", b"S20500000000FB", b"S2FF", b"S30601000000" + b"01F7"):
            self.write("A.MHX", good + bad + b"\r\n")
            self.assertIn("A.MHX: line 2: ", self.refused("info", "A.MHX").err)

    def test_a_file_cut_at_each_byte(self) -> None:
        content = s_records("2", 0xFF0000, bytes(32))
        line = len(content) // 2
        for size in range(len(content)):
            self.write("A.MHX", content[:size])
            if size in (line - 2, line, len(content) - 2):
                self.done("info", "A.MHX")
            else:
                self.assertIn("A.MHX: ", self.refused("info", "A.MHX").err)

    def test_many_ranges_are_counted(self) -> None:
        lines = [s_record("2", 2 * i, b"x") for i in range(10_002)]
        self.write("A.MHX", b"\n".join(lines))
        info = self.done("info", "A.MHX", "--json").json
        self.assertEqual((len(info["ranges"]), len(info["gaps"])), (10_000, 10_000))
        self.assertEqual(info["unlisted"], 2)
        self.assertTrue(self.done("info", "A.MHX").out.endswith("and 2 more ranges\n"))

    def test_a_copy_with_a_damaged_header_is_refused(self) -> None:
        self.write("A.HSX", COPY_HEADER.replace(b"E9", b"E8") + msx_lines(1))
        self.assertIn("A.HSX: line 1: ", self.refused("info", "A.HSX").err)


if __name__ == "__main__":
    unittest.main()
