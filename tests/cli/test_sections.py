"""vendlingua-cli sections: a flash file is cut into the five memory sections of the board."""

from __future__ import annotations

import unittest

from message_files import s_record, s_records
from on_windows import ONLY_UNICODE, not_on_windows
from support import CliTest, on_stderr

SIXTEEN = bytes(range(0x41, 0x51))


def lines(*records: bytes) -> bytes:
    return b"".join(record + b"\r\n" for record in records)


class SectionsTest(CliTest):
    def test_a_block_at_ff8000_is_section_1(self) -> None:
        image = bytes(i * 7 % 256 for i in range(0x2000))
        printed = self.sections(s_records("2", 0xFF8000, image))
        self.assertEqual(printed, "A.mtx\nA.SA1\n")
        self.assertEqual(self.names(), ["A.MHX", "A.SA1", "A.mtx"])
        self.assertEqual(self.read("A.SA1"), image)
        self.assertEqual(self.read("A.mtx"), b"")

    def test_json_lists_what_was_written(self) -> None:
        self.write("A.MHX", lines(s_record("2", 0xFF8000, SIXTEEN)))
        printed = self.done("sections", "A.MHX", "--json").json
        self.assertEqual(printed, {"written": ["A.mtx", "A.SA1"], "notices": []})

    def test_the_whole_memory_is_five_sections(self) -> None:
        # Records of 16 bytes end exactly at every bound.
        image = bytes(i * 11 % 256 for i in range(0xC000))
        printed = self.sections(s_records("2", 0xFF0000, image))
        self.assertEqual(printed.split(), ["A.mtx", "A.SA0", "A.SA1", "A.SA2", "A.SA3", "A.SA4"])
        self.assertEqual(self.read("A.SA0"), image[0x0000:0x8000])
        self.assertEqual(self.read("A.SA1"), image[0x8000:0xA000])
        self.assertEqual(self.read("A.SA2"), image[0xA000:0xBC00])
        self.assertEqual(self.read("A.SA3"), image[0xBC00:0xBE00])
        self.assertEqual(self.read("A.SA4"), image[0xBE00:0xC000])

    def test_a_section_ends_with_its_last_byte_in_the_file(self) -> None:
        self.sections(lines(s_record("2", 0xFF8020, b"end"), s_record("2", 0xFF8002, b"xy")))
        self.assertEqual(self.read("A.SA1"), b"\0\0xy" + bytes(28) + b"end")

    def test_a_record_across_a_bound_fills_both_sections_and_costs_a_byte(self) -> None:
        for bound, before, size, behind in (
            (0x8000, "A.SA0", 0x8000, "A.SA1"),
            (0xA000, "A.SA1", 0x2000, "A.SA2"),
            (0xBC00, "A.SA2", 0x1C00, "A.SA3"),
            (0xBE00, "A.SA3", 0x0200, "A.SA4"),
        ):
            with self.subTest(bound):
                self.sections(lines(s_record("2", 0xFF0000 + bound - 8, SIXTEEN)))
                self.assertEqual(self.read(before), bytes(size - 8) + SIXTEEN[:7])
                self.assertEqual(self.read(behind), SIXTEEN[8:])

    def test_a_crossed_section_stays_short_however_it_was_filled(self) -> None:
        crossing = s_record("2", 0xFF9FF8, SIXTEEN)
        records = s_records("2", 0xFF8000, bytes(range(256)) * 32)
        self.sections(records + lines(crossing))
        self.assertEqual(len(self.read("A.SA1")), 8191)

    def test_what_crosses_the_last_bound_is_dropped(self) -> None:
        self.sections(lines(s_record("2", 0xFFBFF8, SIXTEEN)))
        self.assertEqual(self.names(), ["A.MHX", "A.SA4", "A.mtx"])
        self.assertEqual(self.read("A.SA4"), bytes(0x1F8) + SIXTEEN[:7])

    def test_records_from_c000_on_are_ignored(self) -> None:
        ignored = (s_record("2", 0xFFC000, SIXTEEN), s_record("2", 0x00FFFF, SIXTEEN))
        self.sections(lines(s_record("2", 0xFF8000, b"x"), *ignored))
        self.assertEqual(self.read("A.SA1"), b"x")
        self.assertEqual(self.names(), ["A.MHX", "A.SA1", "A.mtx"])

    def test_only_the_low_16_bits_of_an_address_count(self) -> None:
        for high in (0x00, 0x01, 0xFF):
            self.sections(lines(s_record("2", (high << 16) + 0x8000, b"%d" % high)))
            self.assertEqual(self.read("A.SA1"), b"%d" % high)

    def test_records_other_than_s2_are_passed_over(self) -> None:
        others = (
            s_record("0", 0, b"name"),
            s_record("1", 0x8000, SIXTEEN),
            s_record("3", 0xFF8000, SIXTEEN),
            b"S9030000FC",
            b"S",
            b"Summary",
        )
        self.sections(lines(*others, s_record("2", 0xFF8000, b"x"), *others))
        self.assertEqual(self.read("A.SA1"), b"x")

    def test_checksums_are_not_looked_at(self) -> None:
        self.sections(lines(s_record("2", 0xFF8000, b"x")[:-2] + b"00"))
        self.assertEqual(self.read("A.SA1"), b"x")

    def test_what_is_not_hexadecimal_reads_as_zero(self) -> None:
        self.sections(lines(b"S208FF8000" + b"41" + b"G1" + b"4 " + b"42" + b"00"))
        self.assertEqual(self.read("A.SA1"), b"A\0\0B")
        self.sections(lines(b"S205FF80G0" + b"41" + b"00"))
        self.assertEqual(self.read("A.SA0"), b"A")

    def test_bytes_that_a_line_does_not_hold_read_as_zero(self) -> None:
        self.sections(lines(b"S208FF8000" + b"41"))
        self.assertEqual(self.read("A.SA1"), b"A\0\0\0")

    def test_a_count_below_4_stores_nothing_but_counts(self) -> None:
        # As if 4 to 1 bytes were taken back from address 9000: the section is used up to there.
        for count, used in ((b"00", 0xFFC), (b"01", 0xFFD), (b"03", 0xFFF), (b"GG", 0xFFC)):
            with self.subTest(count):
                record = b"S2" + count + b"FF9000414243"
                self.sections(lines(s_record("2", 0xFF8000, b"x"), record))
                self.assertEqual(self.read("A.SA1"), b"x" + bytes(used - 1))

    def test_a_count_below_4_at_the_start_of_a_section_uses_nothing(self) -> None:
        self.sections(lines(s_record("2", 0xFF8000, b"x"), b"S203FFA000414243"))
        self.assertEqual(self.names(), ["A.MHX", "A.SA1", "A.mtx"])
        self.assertEqual(self.read("A.SA1"), b"x")

    def test_a_carriage_return_inside_a_line_is_a_character_like_any_other(self) -> None:
        self.sections(lines(b"S208FF8000" + b"41" + b"\r2" + b"43" + b"44" + b"00"))
        self.assertEqual(self.read("A.SA1"), b"A\0CD")
        two = s_record("2", 0xFF8000, b"AB") + b"\r" + s_record("2", 0xFF8002, b"CD") + b"\r"
        self.sections(two)
        self.assertEqual(self.read("A.SA1"), b"AB")

    def test_an_empty_file_gives_the_empty_mtx_file(self) -> None:
        self.write("A.SA1", b"older")
        self.assertEqual(self.sections(b""), "A.mtx\n")
        self.assertEqual(self.names(), ["A.MHX", "A.mtx"])
        self.assertEqual(self.read("A.mtx"), b"")

    def test_lower_case_and_line_feeds_alone_are_read(self) -> None:
        content = s_records("2", 0xFF8000, b"\xab\xcd\xef" * 16)
        self.sections(content.lower().replace(b"s", b"S").replace(b"\r\n", b"\n").rstrip())
        self.assertEqual(self.read("A.SA1"), b"\xab\xcd\xef" * 16)

    def test_a_later_record_wins(self) -> None:
        self.sections(lines(s_record("2", 0xFF8000, b"abc"), s_record("2", 0xFF8001, b"x")))
        self.assertEqual(self.read("A.SA1"), b"axc")

    def test_the_base_can_be_named(self) -> None:
        (self.folder / "out").mkdir()
        self.write("A.MHX", lines(s_record("2", 0xFF8000, b"x")))
        printed = self.done("sections", "A.MHX", "--output=out/B.C").out
        self.assertEqual(printed, "out/B.C.mtx\nout/B.C.SA1\n")

    def test_older_section_files_are_replaced_or_removed(self) -> None:
        for name in ("A.mtx", "A.SA0", "A.SA1", "A.SA2", "A.SA3", "A.SA4"):
            self.write(name, b"older and longer")
        self.sections(lines(s_record("2", 0xFF8000, b"x")))
        self.assertEqual(self.names(), ["A.MHX", "A.SA1", "A.mtx"])
        self.assertEqual((self.read("A.mtx"), self.read("A.SA1")), (b"", b"x"))

    def test_a_line_that_is_no_record_is_refused_in_a_message_box(self) -> None:
        good = s_record("2", 0xFF8000, SIXTEEN)
        for bad in (b"", b" S2", b"s214FF8000", b"X", b"\0"):
            self.write("A.MHX", lines(good, bad, good))
            err = self.refused("sections", "A.MHX").err
            box = "A.MHX\rThe file has a line that is not an S-record; reading stopped there."
            self.assertTrue(err.startswith(on_stderr(f"Error: {box}")), err)

    def test_a_file_without_a_record_of_the_sections_is_refused(self) -> None:
        for record in (s_record("1", 0x8000, b"x"), s_record("2", 0xFFC000, b"x")):
            self.write("A.MHX", lines(record))
            self.assertIn("A.MHX: ", self.refused("sections", "A.MHX").err)

    def test_the_flash_file_is_not_overwritten(self) -> None:
        content = lines(s_record("2", 0xFF8000, b"x"))
        for name in ("A.SA1", "A.SA4", "A.mtx"):
            self.write(name, content)
            self.assertIn(f"{name}: ", self.refused("sections", name).err)
        self.refused("sections", "A.SA1", "--output=./A")
        (self.folder / "B.SA2").symlink_to("A.SA1")
        self.assertIn("B.SA2: ", self.refused("sections", "A.SA1", "--output=B").err)

    def test_four_characters_are_cut_off_and_not_four_bytes(self) -> None:
        name = self.write("Ф.ФЛШ", lines(s_record("2", 0xFF8000, b"x")))
        self.assertEqual(self.done("sections", name).out, "Ф.mtx\nФ.SA1\n")

    def test_a_folder_that_is_missing_is_refused(self) -> None:
        self.write("A.MHX", lines(s_record("2", 0xFF8000, b"x")))
        self.assertIn("no/A.mtx: ", self.refused("sections", "A.MHX", "--output=no/A").err)

    @not_on_windows(ONLY_UNICODE)
    def test_a_path_that_is_no_utf8_is_fine(self) -> None:
        name = self.write(b"A\xe8.MHX", lines(s_record("2", 0xFF8000, b"x")))
        self.assertEqual(self.cli.run("sections", name).status, 0)

    def sections(self, content: bytes) -> str:
        self.write("A.MHX", content)
        return self.done("sections", "A.MHX").out


if __name__ == "__main__":
    unittest.main()
