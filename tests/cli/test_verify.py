"""vendlingua-cli verify: is a file sound?"""

from __future__ import annotations

import unittest

from message_files import LAST_LINE_OF_NINE, MesFile, header, msx_at, msx_file, s_record, s_records
from verify_case import VerifyCase


class VerifyTest(VerifyCase):
    def test_every_file_is_reported(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("B.MES", b"")
        self.write("C.MSX", msx_file(1))
        lines = self.unsound("A.MES", "B.MES", "C.MSX").out.splitlines()
        self.assertEqual(len(lines), 3)
        self.assertEqual((lines[0], lines[2]), ("A.MES: sound", "C.MSX: sound"))
        self.assertTrue(lines[1].startswith("B.MES: "))

    def test_json_lists_the_findings(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("B.MES", b"\x01")
        printed = self.unsound("A.MES", "B.MES", "--json").json
        self.assertEqual([file["file"] for file in printed["files"]], ["A.MES", "B.MES"])
        self.assertEqual([len(file["findings"]) for file in printed["files"]], [0, 1])
        self.assertEqual([file["sound"] for file in printed["files"]], [True, False])

    def test_20_findings_of_a_file_are_told_and_the_others_counted(self) -> None:
        self.write("20", 20 * b"x\n")
        self.write("25", 25 * b"x\n")
        lines = self.unsound("20").out.splitlines()
        self.assertEqual(len(lines), 21)  # and that there is no data
        self.assertEqual(lines[-1], "20: and 1 more")
        lines = self.unsound("25", "20").out.splitlines()
        self.assertEqual(lines[19], "25: line 20: does not begin with S and a digit")
        self.assertEqual(lines[20], "25: and 6 more")
        files = self.unsound("25", "--json").json["files"]
        self.assertEqual((len(files[0]["findings"]), files[0]["unlisted"]), (20, 6))

    def test_unsound_files_are_named_on_stderr(self) -> None:
        self.write("A.MES", MesFile().content())
        self.write("B.MES", b"")
        err = self.unsound("A.MES", "B.MES").err
        self.assertEqual(err, "vendlingua-cli: B.MES: is not sound\n")

    def test_a_file_that_cannot_be_read_is_named_once_a_line(self) -> None:
        for name in ("missing.MES", "."):
            for line in self.unsound(name).out.splitlines():
                self.assertEqual(line.count(f"{name}: "), 1, line)

    def test_the_content_decides_what_a_file_is(self) -> None:
        self.assert_sound(MesFile().content())
        self.assert_sound(msx_file(1))


class VerifySRecordsTest(VerifyCase):
    def test_records_of_every_width_are_sound(self) -> None:
        for kind in ("1", "2", "3"):
            self.assert_sound(s_records(kind, 0x6000, bytes(range(100))))

    def test_headers_and_terminators_of_other_programs_are_sound(self) -> None:
        # 04 and 03 + 03 complemented: the end of the file, and a count of three records before it.
        data = s_record("0", 0, b"HDR") + b"\r\n" + s_records("2", 0xFF0000, bytes(40))
        self.assert_sound(data + b"S804000000FB\r\n")
        self.assert_sound(data + b"S5030003F9\r\n" + b"S804000000FB\r\n")

    def test_line_feeds_alone_and_a_missing_last_line_end_are_sound(self) -> None:
        data = s_records("2", 0xFF0000, bytes(40))
        self.assert_sound(data.replace(b"\r\n", b"\n"))
        self.assert_sound(data.rstrip())

    def test_a_msx_file_with_line_feeds_alone_is_found(self) -> None:
        content = msx_file(1)
        self.assertEqual(
            self.findings(content.replace(b"\r\n", b"\n")),
            ["line 1: ends in LF alone, a .MSX file needs CR LF"],
        )
        self.assert_sound(content.rstrip())

    def test_a_file_of_nothing_but_wrong_lines_is_given_up(self) -> None:
        self.write("file", b"x\n" * 1_000_000)
        printed = self.unsound("file", "--json").json["files"][0]
        self.assertEqual(len(printed["findings"]) + printed["unlisted"], 10_001)

    def test_an_identified_copy_is_sound(self) -> None:
        records = s_records("2", 0xFF0000, bytes(40))
        self.assert_sound(b"S013000044543032363741412020202020202020E9\r\n" + records)
        self.assert_sound(b"S0130000445430303030545420202020202020" + b"2000\r\n" + records)

    def test_a_copy_of_nine_languages_is_sound(self) -> None:
        records = s_records("2", 0xFF0000, bytes(40))
        for copy_header in (
            b"S013000044543034313741412020202020202020E6\r\n",
            b"S01300004454" b"3C3C3C3C3C3C" b"2020202020202020" b"0\r\n",
        ):
            self.assert_sound(copy_header + records + LAST_LINE_OF_NINE)
            self.assert_sound(copy_header + records + LAST_LINE_OF_NINE.rstrip())

    def test_a_wrong_checksum_is_found_in_its_line(self) -> None:
        content = bytearray(msx_file(1))
        content[msx_at(1, 9) - 4 : msx_at(1, 9) - 2] = b"00"
        found = self.findings(bytes(content))
        self.assertEqual(len(found), 1)
        self.assertRegex(found[0], r"line 10: .*checksum")  # the header and messages 0 to 8

    def test_a_wrong_checksum_of_a_copy_header_is_found(self) -> None:
        records = s_records("2", 0xFF0000, bytes(40))
        found = self.findings(b"S013000044543034313741412020202020202020E5\r\n" + records)
        self.assertEqual(len(found), 1)
        self.assertRegex(found[0], "line 1: .*checksum")

    def test_a_flipped_bit_anywhere_is_found(self) -> None:
        content = s_records("2", 0xFF0000, b"0123456789abcdef" * 2)
        for position in range(len(content)):
            if content[position] not in b"\r\n":
                broken = bytearray(content)
                broken[position] ^= 1
                self.assertNotEqual(self.findings(bytes(broken)), [])

    def test_a_wrong_count_is_found(self) -> None:
        good = s_records("2", 0xFF0000, bytes(32))
        line = good.split(b"\r\n")[1]
        for bad in (
            line + b"00",
            line[:-2],
            line[:-1],
            line + b" ",
            b"S2",
            b"S2030000",
            b"S",
            b"S21",
        ):
            found = self.findings(good.replace(line, bad))
            self.assertRegex(found[0], "^line 2: ")

    def test_what_is_no_record_is_found(self) -> None:
        good = s_records("2", 0xFF0000, bytes(16))
        for bad in (
            b"",
            b"text",
            b"s2",
            b"S4030000FC",
            b"SA030000FC",
            b" S9030000FC",
            b"S9030G00FC",
        ):
            found = self.findings(good + bad + b"\r\n")
            self.assertEqual(len(found), 1)
            self.assertRegex(found[0], "^line 2: ")

    def test_a_lone_carriage_return_is_found(self) -> None:
        good = s_records("2", 0xFF0000, bytes(32))
        self.assertRegex(self.findings(good.replace(b"\r\n", b"\r"))[0], "^line 1: ")

    def test_lower_case_hexadecimal_is_found(self) -> None:
        good = s_records("2", 0xFF0000, bytes(32))
        found = self.findings(good.replace(b"FF", b"ff", 1))
        self.assertEqual(len(found), 1)
        self.assertRegex(found[0], "^line 1: ")

    def test_a_gap_is_found(self) -> None:
        found = self.findings(
            s_records("2", 0xFF0000, bytes(32)) + s_records("2", 0xFF0021, bytes(32))
        )
        self.assertEqual(len(found), 1)
        self.assertRegex(found[0], r"line 3: .*gap.* 0xFF0021 \(16711713\).*0xFF001F \(16711711\)")

    def test_an_overlap_is_found(self) -> None:
        found = self.findings(
            s_records("2", 0xFF0000, bytes(32)) + s_records("2", 0xFF001F, bytes(32))
        )
        self.assertRegex("\n".join(found), "line 3: .*overlap.*FF001F")
        self.assertFalse([line for line in found if not line.startswith("line 3: ")])

    def test_lines_out_of_order_are_found(self) -> None:
        found = self.findings(
            s_records("2", 0xFF0010, bytes(16)) + s_records("2", 0xFF0000, bytes(16))
        )
        self.assertEqual(len(found), 1)
        self.assertRegex(found[0], "^line 2: .*FF0000")

    def test_every_unsound_line_is_found(self) -> None:
        lines = msx_file(1).splitlines(keepends=True)
        for number in (3, 200, 456):
            lines[number - 1] = lines[number - 1][:-4] + b"XX\r\n"
        found = self.findings(b"".join(lines))
        reported = {line.split(":")[0] for line in found}
        self.assertLessEqual({"line 3", "line 200", "line 456"}, reported)

    def test_a_file_without_data_is_found(self) -> None:
        for content in (s_record("0", 0, b"HDR"), b"S9030000FC", b"\r\n"):
            self.assertNotEqual(self.findings(content), [])

    def test_the_fixed_last_line_is_known_at_the_end_of_a_copy_only(self) -> None:
        copy_header = b"S013000044543034313741412020202020202020E6\r\n"
        records = s_records("2", 0xFF0000, bytes(40))
        for content in (
            records + LAST_LINE_OF_NINE,
            copy_header + LAST_LINE_OF_NINE + records,
            copy_header + records + LAST_LINE_OF_NINE + LAST_LINE_OF_NINE,
            copy_header + records + LAST_LINE_OF_NINE.replace(b"FC", b"FFC"),
        ):
            self.assertNotEqual(self.findings(content), [])


if __name__ == "__main__":
    unittest.main()
