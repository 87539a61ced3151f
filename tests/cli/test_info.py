"""vendlingua-cli info."""

from __future__ import annotations

import json
import unittest

from message_files import (
    LAST_LINE_OF_NINE,
    MSX_NAME_MESSAGE,
    MesFile,
    header,
    msx_at,
    msx_file,
    msx_header,
    msx_lines,
)
from support import CliTest


class InfoOfMesFileTest(CliTest):
    def test_json_holds_every_dimension(self) -> None:
        file = MesFile(flags=b"07", header_count=0x1A9, mem_start=0xFF8000, stride=5)
        self.write("A.MES", file.content())
        expected = {
            "file": "A.MES",
            "type": ".MES",
            "langCount": 2,
            "lastCol": 3,
            "headerBit1": True,
            "headerBit0": True,
            "displayType": 1,
            "headerCount": 425,
            "lastMsg": 2,
            "memStart": 16744448,
            "memLength": 40,
            "langStride": 5,
            "blockLength": 44,
            "languages": [
                {"index": 0, "name": "Default"},
                {"index": 1, "name": "ITALIANO"},
                {"index": 2, "name": "ENGLISH"},
            ],
        }
        printed = self.done("info", "A.MES", "--json").out
        self.assertEqual(json.loads(printed, object_pairs_hook=list), as_pairs(expected))

    def test_text_holds_every_dimension(self) -> None:
        self.write("A.MES", MesFile().content())
        self.assertEqual(
            self.done("info", "A.MES").out,
            "file: A.MES\n"
            "type: .MES\n"
            "langCount: 2\n"
            "lastCol: 3\n"
            "headerBit1: false\n"
            "headerBit0: false\n"
            "displayType: 0\n"
            "headerCount: 1\n"
            "lastMsg: 2\n"
            "memStart: 0x6000 (24576)\n"
            "memLength: 24\n"
            "langStride: 3\n"
            "blockLength: 36\n"
            "language 0: Default\n"
            "language 1: ITALIANO\n"
            "language 2: ENGLISH\n",
        )

    def test_flags_hold_two_bits_and_the_display_type(self) -> None:
        for flags, expected in {
            b"00": (False, False, 0),
            b"01": (False, True, 0),
            b"02": (True, False, 0),
            b"04": (False, False, 1),
            b"08": (False, False, 2),
            b"0F": (True, True, 3),
            b"0f": (True, True, 3),
            b"F0": (False, False, 0),
        }.items():
            with self.subTest(flags):
                info = self.info(MesFile(flags=flags).content())
                found = info["headerBit1"], info["headerBit0"], info["displayType"]
                self.assertEqual(found, expected)

    def test_the_stride_is_divided_by_languages_then_by_width(self) -> None:
        info = self.info(MesFile(lang_count=3, mem_length=41).content())
        self.assertEqual((info["langStride"], info["blockLength"]), (3, 36))  # 41 / 3 = 13, / 4 = 3

    def test_lower_case_hexadecimal_is_read(self) -> None:
        content = header(2, 4, b"00", 0x1AB, 2, 0xFF8000, 24).lower() + MesFile().content()[24:]
        info = self.info(content)
        self.assertEqual((info["headerCount"], info["memStart"]), (0x1AB, 0xFF8000))

    def test_a_file_of_the_reference_block_alone_has_one_language(self) -> None:
        info = self.info(MesFile(names=[b"Default"]).content())
        self.assertEqual(info["languages"], [{"index": 0, "name": "Default"}])

    def test_a_name_is_trimmed_on_the_right_only(self) -> None:
        info = self.info(MesFile(names=[b"Default", b"  NOVUS "]).content())
        self.assertEqual(info["languages"][1]["name"], "  NOVUS")

    def test_a_name_beyond_ascii_is_printed_in_utf8(self) -> None:
        file = MesFile(names=[b"Default", b"PORTUGU\xcaS \x80"])
        self.assertEqual(self.info(file.content())["languages"][1]["name"], "PORTUGUÊS €")
        self.assertIn("language 1: PORTUGUÊS €\n", self.done("info", "A.MES").out)

    def test_a_name_of_fewer_than_20_bytes_is_none(self) -> None:
        file = MesFile()
        languages = self.info(file.content()[: file.block(2) + 19])["languages"]
        self.assertEqual([language["index"] for language in languages], [0, 1])
        languages = self.info(file.content()[: file.block(2) + 20])["languages"]
        self.assertEqual([language["index"] for language in languages], [0, 1, 2])

    def test_names_beyond_language_100_are_not_read(self) -> None:
        names = [f"N{k}".encode() for k in range(103)]
        languages = self.info(MesFile(names=names).content())["languages"]
        self.assertEqual(languages[-1], {"index": 100, "name": "N100"})

    def test_31_languages_are_the_most(self) -> None:
        self.assertEqual(self.info(MesFile(lang_count=31).content())["langCount"], 31)
        self.write("A.MES", MesFile(lang_count=32).content())
        self.assertIn("A.MES: is no binary message file", self.refused("info", "A.MES").err)

    def test_the_widest_and_longest_set_is_read(self) -> None:
        info = self.info(MesFile(lang_count=1, width=40, last_msg=512, stride=513).content())
        self.assertEqual((info["lastCol"], info["lastMsg"]), (39, 512))

    def test_a_wide_set_and_a_long_one_are_taken(self) -> None:
        self.assertEqual(self.info(MesFile(width=60).content())["lastCol"], 59)
        file = MesFile(lang_count=1, last_msg=599, stride=600)
        self.assertEqual(self.info(file.content())["lastMsg"], 599)

    def test_more_than_513_messages_without_room_for_them_are_refused(self) -> None:
        content = MesFile(lang_count=1, last_msg=513, stride=512).content()
        self.write("A.MES", content)
        self.assertRegex(self.refused("info", "A.MES").err, r"A\.MES: .*514 messages.* 513\n")

    def test_a_set_without_languages_is_refused(self) -> None:
        self.write("A.MES", MesFile(lang_count=0, mem_length=24).content())
        self.assertIn("A.MES: the number of languages is 0", self.refused("info", "A.MES").err)

    def test_a_header_field_that_is_not_hexadecimal_is_refused_by_name_and_value(self) -> None:
        for name, offset, digits in (
            ("flags", 2, 2),
            ("HeaderCount", 4, 4),
            ("LastMsg", 8, 4),
            ("MemStart", 12, 8),
            ("MemLength", 20, 4),
        ):
            for bad in (b"G", b" ", b"-", b"\xff", b"\x00"):
                content = bytearray(MesFile().content())
                content[offset + digits - 1 : offset + digits] = bad
                self.write("A.MES", bytes(content))
                err = self.refused("info", "A.MES").err
                self.assertIn(f"A.MES: the header field {name} at position {offset + 1} ", err)

    def test_a_short_header_is_refused(self) -> None:
        self.write("A.MES", MesFile().header()[:23])
        self.assertIn("A.MES: the header has 23 bytes", self.refused("info", "A.MES").err)

    def test_a_header_without_a_block_is_refused(self) -> None:
        self.write("A.MES", MesFile().header())
        self.assertIn("A.MES: ", self.refused("info", "A.MES").err)

    def test_a_block_length_wraps_at_16_bits(self) -> None:
        # 16 x (4095 + 1) + 20 = 65556, which is 20 in 16 bits.
        content = header(1, 16, b"00", 1, 2, 0, 0xFFF0) + b"Default".ljust(20) + b"NEXT".ljust(20)
        info = self.info(content)
        self.assertEqual(info["blockLength"], 20)
        self.assertEqual(info["languages"][1], {"index": 1, "name": "NEXT"})

    def test_a_block_before_the_start_of_the_file_is_refused(self) -> None:
        # 16 x (2304 + 1) + 20 = 36900, which is -28636 in 16 bits.
        self.write("A.MES", header(1, 16, b"00", 1, 2, 0, 0x9000) + b" " * 40000)
        err = self.refused("info", "A.MES").err
        self.assertIn("A.MES: the block length wraps to -28636 bytes", err)

    def test_the_type_is_read_without_regard_to_case(self) -> None:
        self.write("a.mes", MesFile().content())
        self.assertEqual(self.done("info", "a.mes", "--json").json["type"], ".MES")

    def test_dots_in_folder_names_do_not_matter(self) -> None:
        self.write("v1.2/A.MES", MesFile().content())
        self.assertEqual(self.done("info", "v1.2/A.MES", "--json").json["file"], "v1.2/A.MES")

    def test_a_name_with_another_dot_or_extension_is_no_message_file(self) -> None:
        for name in ("TEST.MSX.MES", "A.B.MES", "A.TXT", "A", "AMES"):
            self.write(name, MesFile().content())
            self.assertIn(f"{name}: is no message file", self.refused("info", name).err)

    def info(self, content: bytes) -> dict:
        self.write("A.MES", content)
        return self.done("info", "A.MES", "--json").json


class InfoOfMsxFileTest(CliTest):
    def test_the_dimensions_are_fixed(self) -> None:
        info = self.info(msx_file(2))
        expected = {
            "file": "A.MSX",
            "type": ".MSX",
            "lastCol": 15,
            "headerBit1": True,
            "headerBit0": True,
            "displayType": 0,
            "headerCount": 171,
            "lastMsg": 454,
            "memStart": 0xFF0000,
            "memLength": 65520,
            "langStride": 455,
            "languages": [
                {"index": 0, "name": "Italiano"},
                {"index": 1, "name": "LANGUAGE 1"},
                {"index": 2, "name": "LANGUAGE 2"},
            ],
        }
        self.assertEqual({key: info[key] for key in expected}, expected)
        self.assertEqual(set(info) - set(expected), {"langCount", "blockLength"})

    def test_nine_languages_are_listed_and_no_tenth(self) -> None:
        for content in (msx_file(9), msx_file(9) + LAST_LINE_OF_NINE, msx_file(9) + msx_lines(9)):
            languages = self.info(content)["languages"]
            self.assertEqual([language["index"] for language in languages], list(range(10)))

    def test_both_managed_models_are_read(self) -> None:
        for model in ("0417", "0405"):
            self.assertEqual(len(self.info(msx_file(1, model))["languages"]), 2)

    def test_another_model_is_refused_in_a_message_box(self) -> None:
        for model in ("0267", "0418", "04 7"):
            self.write("A.MSX", msx_file(1, model))
            result = self.refused("info", "A.MSX")
            self.assertIn("ERROR:  File not managed ! \n", result.err)
            self.assertIn("A.MSX", result.err)

    def test_a_file_without_header_record_is_refused(self) -> None:
        for content in (msx_lines(1), b"\r\n" + msx_file(1), b"S01\r\n", b"S0\r\n"):
            self.write("A.MSX", content)
            self.refused("info", "A.MSX")

    def test_every_header_record_on_the_way_is_checked(self) -> None:
        foreign = msx_header("0267")
        for content in (
            msx_header() + foreign + msx_lines(1),
            msx_file(1) + foreign,
            msx_file(1) + foreign + msx_lines(2),
        ):
            self.write("A.MSX", content)
            self.assertIn("File not managed", self.refused("info", "A.MSX").err)

    def test_a_name_is_trimmed_on_both_sides(self) -> None:
        self.assertEqual(self.info(msx_file(1))["languages"][1]["name"], "LANGUAGE 1")

    def test_a_language_whose_name_lies_behind_the_end_is_not_listed(self) -> None:
        until_name = msx_file(2)[: msx_at(2, MSX_NAME_MESSAGE)]
        self.assertEqual(len(self.info(until_name)["languages"]), 2)

    def test_a_file_without_languages_lists_the_built_in_one(self) -> None:
        languages = self.info(msx_header())["languages"]
        self.assertEqual(languages, [{"index": 0, "name": "Italiano"}])

    def test_a_name_record_that_is_not_hexadecimal_is_refused_by_its_line(self) -> None:
        content = bytearray(msx_file(1))
        content[msx_at(1, MSX_NAME_MESSAGE) + 12] = ord("G")
        self.write("A.MSX", bytes(content))
        self.assertIn("A.MSX: line 171 ", self.refused("info", "A.MSX").err)

    def test_a_name_record_that_is_cut_is_refused(self) -> None:
        self.write("A.MSX", msx_file(1)[: msx_at(1, MSX_NAME_MESSAGE) + 30])
        self.assertIn("A.MSX: line 171 ", self.refused("info", "A.MSX").err)

    def test_a_missing_last_line_end_is_read(self) -> None:
        self.assertEqual(self.info(msx_file(2).rstrip()), self.info(msx_file(2)))

    def test_line_feeds_alone_are_refused(self) -> None:
        self.write("A.MSX", msx_file(2).replace(b"\r\n", b"\n"))
        self.assertIn("A.MSX: line 1: ends in LF alone", self.refused("info", "A.MSX").err)

    def test_lower_case_hexadecimal_is_read(self) -> None:
        content = msx_file(1).lower().replace(b"s", b"S")
        self.assertEqual(self.info(content)["languages"][1]["name"], "LANGUAGE 1")

    def info(self, content: bytes) -> dict:
        self.write("A.MSX", content)
        return self.done("info", "A.MSX", "--json").json


def as_pairs(value: object) -> object:
    """JSON as json.loads gives it with lists of pairs for objects, to compare the order of keys."""
    if isinstance(value, dict):
        return [(key, as_pairs(item)) for key, item in value.items()]
    if isinstance(value, list):
        return [as_pairs(item) for item in value]
    return value


if __name__ == "__main__":
    unittest.main()
