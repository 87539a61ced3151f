"""vendlingua-cli compile: languages of a message file become flash files."""

from __future__ import annotations

import unittest

from compile_case import MHX_FAMILY, NO_NAME_LIST, CompileCase, flags, slots
from message_files import MesFile, decode_with_objcopy, decode_with_srec_cat, s_records
from on_windows import NO_DEVICES, not_on_windows
from support import Result, on_stderr


class FlashFileTest(CompileCase):
    def test_languages_are_packed_into_slots(self) -> None:
        # 40 bytes for two slots of 20; the messages of a language take 12.
        file = MesFile(mem_length=40, flags=flags(NO_NAME_LIST))
        printed = self.compile(file, "FW0417AB.HEX").out
        self.assertEqual(printed, "FW0417AB.HEX\nFW0417AB.HSX\n")
        image = slots([b"100011111222", b"200021112222"], 20, 40)
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_the_lines_are_those_worked_out_by_hand(self) -> None:
        self.compile(MesFile(flags=flags(NO_NAME_LIST)), "FW0417AB.HEX")
        # 13 + 60 + 00 and the codes of 1000 1111 1222 2000 are 381, of which 81 is complemented;
        # 0B + 60 + 10 and the codes of 2111 2222 are 208.
        first = b"S1136000" b"31303030" b"31313131" b"31323232" b"32303030" b"7E\r\n"
        second = b"S10B6010" b"32313131" b"32323232" b"F7\r\n"
        self.assertEqual(self.read("FW0417AB.HEX"), first + second)

    def test_other_programs_read_the_image(self) -> None:
        for start, name in ((0x6000, "FW0417AB.HEX"), (0xFF8000, "FW0267AB.MHX")):
            texts = {(k, m): bytes([16 * k + m] * 16) for k in (1, 2, 3) for m in range(3)}
            file = MesFile(
                lang_count=3,
                width=16,
                flags=flags(NO_NAME_LIST, MHX_FAMILY),
                mem_start=start,
                mem_length=200,
                names=[b"Default", b"A", b"B", b"C"],
                texts=texts,
            )
            self.compile(file, name)
            image = slots([file.messages(k) for k in (1, 2, 3)], 66, 200)
            self.assertEqual(decode_with_srec_cat(self.folder / name, start), image)
            self.assertEqual(decode_with_objcopy(self.folder / name), image)

    def test_messages_of_any_width_are_compiled(self) -> None:
        for width in (41, 60, 256):
            file = MesFile(width=width, flags=flags(NO_NAME_LIST))
            self.compile(file, "FW0417AB.HEX")
            decoded = decode_with_srec_cat(self.folder / "FW0417AB.HEX", 0x6000)
            self.assertEqual(decoded, file.messages(1) + file.messages(2))

    def test_chosen_languages_stand_in_the_order_of_the_file(self) -> None:
        file = MesFile(flags=flags(NO_NAME_LIST), names=[b"Default", b"A", b"B", b"C"])
        self.write("A.MES", file.content())
        image = file.messages(1) + file.messages(3)
        told = "A.MES: the order in the file counts: the slots hold the languages 1, 3"
        for chosen, warnings in (("1,3", []), ("3,1", [told]), ("c,a", [told])):
            arguments = (f"--languages={chosen}", "--output=FW0417AB.HEX", "--json")
            result = self.cli.run("compile", "A.MES", *arguments)
            self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))
            self.assertEqual(result.json["warnings"], warnings)
            self.assertEqual(result.err, "".join(on_stderr(f"warning: {w}") for w in warnings))

    def test_messages_that_overrun_their_slot_run_into_the_next(self) -> None:
        # Slots of 11 bytes for messages of 12; the last slot has one byte more.
        file = MesFile(mem_length=23, last_msg=2, flags=flags(NO_NAME_LIST))
        self.compile(file, "FW0417AB.HEX")
        image = b"10001111122" + b"200021112222"
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_cells_that_the_board_fills_become_blanks(self) -> None:
        texts = {(1, 0): b"a\xfe\xfe\xfd", (2, 2): b"\xfe\xfe\xfe\xfe"}
        self.compile(MesFile(flags=flags(NO_NAME_LIST), texts=texts), "FW0417AB.HEX")
        image = b"a  \xfd11111222" + b"20002111    "
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_a_start_of_ff8000_gives_512_s2_records(self) -> None:
        file = MesFile(
            lang_count=1, flags=b"03", mem_start=0xFF8000, mem_length=0x2000, stride=2048
        )
        self.compile(file, "FW0417AB.MHX")
        lines = self.read("FW0417AB.MHX").split(b"\r\n")
        self.assertEqual((len(lines), lines[-1]), (513, b""))
        heads = [b"S214%06X" % address for address in range(0xFF8000, 0xFFA000, 16)]
        self.assertEqual([line[:10] for line in lines[:-1]], heads)
        self.assertEqual({len(line) for line in lines[:-1]}, {44})

    def test_the_last_record_holds_what_is_left(self) -> None:
        file = MesFile(
            lang_count=1, flags=b"03", mem_start=0xFF8000, mem_length=0x2005, stride=2049
        )
        self.compile(file, "FW0417AB.MHX")
        lines = self.read("FW0417AB.MHX").split(b"\r\n")
        self.assertEqual(len(lines), 514)
        self.assertEqual(lines[512], b"S209FFA0000000000000" + b"57")  # 09 + FF + A0 = 1A8

    def test_the_start_alone_decides_between_s1_and_s2(self) -> None:
        for start, kind in ((0xFFFF, b"S1"), (0x10000, b"S2")):
            self.compile(MesFile(flags=b"01", mem_start=start, mem_length=32), "FW0417AB.HEX")
            self.assertEqual(self.read("FW0417AB.HEX")[:2], kind)

    def test_an_s1_file_that_passes_ffff_gets_five_digits(self) -> None:
        self.compile(MesFile(flags=b"01", mem_start=0xFFF0, mem_length=32), "FW0417AB.HEX")
        first = b"S113FFF0" b"31303030" b"31313131" b"31323232" b"00000000" b"B1\r\n"
        # The address counts as 10 + 00: 13 + 10 and the codes of 2000 2111 2222 are 272.
        second = b"S11310000" b"32303030" b"32313131" b"32323232" b"00000000" b"8D\r\n"
        self.assertEqual(self.read("FW0417AB.HEX"), first + second)

    def test_a_flash_file_is_replaced_whole(self) -> None:
        self.write("FW0417AB.HEX", b"x" * 9999)
        self.compile(MesFile(flags=b"01"), "FW0417AB.HEX")
        self.assertEqual(len(self.read("FW0417AB.HEX")), 44 + 28)

    def test_an_output_without_extension_gets_that_of_its_family(self) -> None:
        self.assertIn("FW0417AB.hex\n", self.compile(MesFile(flags=b"01"), "FW0417AB").out)
        self.assertIn("FW0417AC.MHX\n", self.compile(MesFile(flags=b"03"), "FW0417AC").out)

    def test_json_lists_what_was_written(self) -> None:
        file = MesFile(flags=b"03", mem_start=0xFF8000)
        printed = self.compile(file, "FW0417AB.MHX", "--json").json
        names = [f"FW0417AB.{extension}" for extension in ("MHX", "MSX", "mtx", "SA1")]
        expected = {"written": names, "notices": [], "warnings": [], "completed": True}
        self.assertEqual(printed, expected)
        self.assertEqual(self.names(), sorted(["A.MES", *names]))

    def test_the_message_file_stays(self) -> None:
        file = MesFile(flags=b"0f")
        self.compile(file, "FW0417AB.MHX")
        self.assertEqual(self.read("A.MES"), file.content())


class ShortLanguageTest(CompileCase):
    """The last language of a file may end before its last message."""

    FILE = MesFile(flags=flags(NO_NAME_LIST))
    ARGUMENTS = ("compile", "A.MES", "--languages=1,2", "--output=FW0417AB.HEX")
    WARNING = "A.MES: language 2 (ENGLISH) ends before its last message; 0 stands for the rest"

    def compile_first(self, size: int, *options: str) -> Result:
        self.write("A.MES", self.FILE.content()[:size])
        return self.done_with_message(*self.ARGUMENTS, *options)

    def test_what_is_not_there_is_0(self) -> None:
        for size, language in (
            (self.FILE.at(2, 0), b""),
            (self.FILE.at(2, 0) + 1, b"2"),
            (self.FILE.at(2, 2), b"20002111"),
            (self.FILE.at(2, 2) + 3, b"20002111" b"222"),
        ):
            with self.subTest(size):
                result = self.compile_first(size)
                self.assertEqual(result.err, f"vendlingua-cli: warning: {self.WARNING}\n")
                image = b"100011111222" + language.ljust(12, b"\0")
                self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_json_lists_the_warning(self) -> None:
        result = self.compile_first(self.FILE.at(2, 1), "--json")
        self.assertEqual(result.json["warnings"], [self.WARNING])

    def test_a_language_that_has_every_message_is_complete(self) -> None:
        self.write("A.MES", self.FILE.content()[: self.FILE.at(2, 3)])
        self.done(*self.ARGUMENTS)

    def test_a_language_without_its_name_is_not_in_the_file(self) -> None:
        self.write("A.MES", self.FILE.content()[: self.FILE.at(2, 0) - 1])
        self.assertIn("has no language 2", self.refused(*self.ARGUMENTS).err)


class NameListTest(CompileCase):
    def test_the_names_of_all_languages_stand_in_every_slot(self) -> None:
        texts = {(1, 1): b"ITA ", (2, 1): b"EN\xfe "}
        file = MesFile(last_msg=3, stride=4, header_count=1, texts=texts)
        self.compile(file, "FW0417AB.HEX")
        image = b"1000" b"ITA EN  " b"1333" + b"2000" b"ITA EN  " b"2333"
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_the_names_may_stand_behind_the_last_message(self) -> None:
        file = MesFile(lang_count=2, last_msg=1, stride=3, header_count=1, flags=b"00")
        self.compile(file, "FW0417AB.HEX")
        image = b"1000" b"1111" b"2111" + b"2000" b"1111" b"2111"
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_firmware_that_lists_the_languages_itself_gets_no_list(self) -> None:
        file = MesFile(header_count=1, flags=flags(NO_NAME_LIST))
        self.compile(file, "FW0417AB.HEX")
        image = b"100011111222" + b"200021112222"
        self.assertEqual(self.read("FW0417AB.HEX"), s_records("1", 0x6000, image))

    def test_a_list_behind_the_end_of_the_memory_is_refused(self) -> None:
        for header_count in (2, 3, 0xFFFF):
            file = MesFile(header_count=header_count, flags=b"00")
            err = self.refused_compile(file, "--languages=1,2", "--output=FW0417AB.HEX")
            # The last slot begins at byte 12 and lists two names of 4 cells.
            self.assertRegex(err, rf"byte {12 + 4 * (header_count + 2)} .* 24 bytes")

    def test_a_list_of_20_names_is_the_longest(self) -> None:
        chosen = ",".join(str(k + 1) for k in range(20))
        names = [b"Default"] + [b"N%d" % k for k in range(21)]
        self.compile(MesFile(lang_count=20, stride=30, header_count=3, names=names), "FW0417AB.HEX")
        file = MesFile(lang_count=21, stride=30, header_count=3, names=names)
        err = self.refused_compile(file, f"--languages={chosen},21", "--output=FW0417AB.HEX")
        self.assertRegex(err, "at most 20 .* 21")
        file.flags = flags(NO_NAME_LIST)
        self.compile(file, "FW0417AB.HEX")


class RefusedTest(CompileCase):
    OUTPUT = "--output=FW0417AB.HEX"

    def test_another_number_of_languages_than_slots_is_refused(self) -> None:
        for chosen in ("1", "1,2,3"):
            file = MesFile(names=[b"Default", b"A", b"B", b"C"])
            err = self.refused_compile(file, f"--languages={chosen}", self.OUTPUT)
            self.assertIn("2 language slots", err)

    def test_a_language_given_twice_is_refused(self) -> None:
        self.assertIn("twice", self.refused_compile(MesFile(), "--languages=1,1", self.OUTPUT))

    def test_the_reference_is_not_compiled(self) -> None:
        self.assertIn("0", self.refused_compile(MesFile(), "--languages=0,1", self.OUTPUT))

    def test_a_language_that_is_not_in_the_file_is_refused(self) -> None:
        for language in ("3", "-1", "100", "101", "2147483647"):
            err = self.refused_compile(MesFile(), f"--languages=1,{language}", self.OUTPUT)
            self.assertIn(f"A.MES: has no language {language}", err)

    def test_messages_that_overrun_the_memory_are_refused(self) -> None:
        # Two slots of 11 bytes for messages of 12.
        err = self.refused_compile(MesFile(mem_length=22), "--languages=1,2", self.OUTPUT)
        self.assertRegex(err, "end at byte 23 .* 22 bytes")

    def test_a_file_that_holds_no_language_is_refused(self) -> None:
        file = MesFile(names=[b"Default"])
        err = self.refused_compile(file, "--languages=1,2", self.OUTPUT)
        self.assertIn("A.MES: has no language 1", err)

    def test_an_output_that_cannot_be_written_is_refused(self) -> None:
        (self.folder / "folder.HEX").mkdir()
        for output in ("no/FW0417AB.HEX", "folder.HEX"):
            err = self.refused_compile(MesFile(), "--languages=1,2", f"--output={output}")
            self.assertIn(f"{output}: ", err)

    @not_on_windows(NO_DEVICES)
    def test_a_full_disk_is_reported(self) -> None:
        (self.folder / "FW0417AB.HEX").symlink_to("/dev/full")
        err = self.refused_compile(MesFile(), "--languages=1,2", self.OUTPUT)
        self.assertIn("FW0417AB.HEX: ", err)

    def test_the_name_that_a_dialog_starts_with_is_no_flash_file(self) -> None:
        for family in (b"01", b"03"):
            for output in ("*.hex", "*.MHX"):
                file = MesFile(flags=family)
                self.refused_compile(file, "--languages=1,2", f"--output={output}")

    def test_the_message_file_is_not_overwritten(self) -> None:
        (self.folder / "link.HEX").symlink_to("A.MES")
        for output in ("A.MES", "./A.MES", "link.HEX"):
            err = self.refused_compile(MesFile(), "--languages=1,2", f"--output={output}")
            self.assertIn(f"{output}: is the message file", err)


if __name__ == "__main__":
    unittest.main()
