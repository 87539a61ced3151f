"""vendlingua-cli compile: languages of a message file become flash files."""

from __future__ import annotations

import unittest
from collections.abc import Sequence

from support import (
    LAST_LINE_OF_NINE,
    REFUSED,
    CliTest,
    MesFile,
    Result,
    decode_with_objcopy,
    decode_with_srec_cat,
    msx_file,
    msx_header,
    msx_lines,
    on_stderr,
    s_records,
)

NO_NAME_LIST = 1  # header flag: the firmware lists the languages itself
MHX_FAMILY = 2  # header flag: flash files are .MHX files
INFO_BOX = (
    "Info:                      The file .MSX/.HSX will not created \n"
    "\n"
    " Name File : {0}.MHX .HSX not correct (Es:FW0000AA)\n"
)


def flags(*bits: int) -> bytes:
    return b"%02X" % sum(bits)


def slots(texts: Sequence[bytes], slot_length: int, memory: int) -> bytes:
    """Each language at the start of its slot, zeros between and behind."""
    image = b"".join(text.ljust(slot_length, b"\0") for text in texts)
    return image.ljust(memory, b"\0")


class CompileCase(CliTest):
    def compile(
        self, file: MesFile, output: str, *options: str, languages: str | None = None
    ) -> Result:
        """Compiles languages 1, 2, ... of a file, as many as it has slots."""
        self.write("A.MES", file.content())
        chosen = languages or ",".join(str(k + 1) for k in range(file.lang_count))
        return self.done(
            "compile", "A.MES", f"--languages={chosen}", f"--output={output}", *options
        )

    def refused_compile(self, file: MesFile, *options: str) -> str:
        self.write("A.MES", file.content())
        return self.refused("compile", "A.MES", *options).err


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


class IdentifiedCopyTest(CompileCase):
    # Each checksum is 98 and the six characters summed up, low byte.
    IDENTIFICATIONS = {
        "FW0267AB": b"303236374141" b"2020202020202020" b"E9",
        "FW0267AA": b"303236374144" b"2020202020202020" b"EC",
        "FW0267AC": b"303236374142" b"2020202020202020" b"EA",
        "FW0267AD": b"303236374143" b"2020202020202020" b"EB",
        "FW0267AE": b"303236374145" b"2020202020202020" b"ED",
        "FW0267BB": b"303236374242" b"2020202020202020" b"EB",
        "FW0417AB": b"303431374142" b"2020202020202020" b"E7",
        "fw0267ab": b"303236374141" b"2020202020202020" b"E9",
        "FW0417ab": b"303431374142" b"2020202020202020" b"E7",
        "FW0417ABCD": b"303431374142" b"2020202020202020" b"E7",
        "ФВ0417AB": b"303431374142" b"2020202020202020" b"E7",
        "水牛0417ab-снэк": b"303431374142" b"2020202020202020" b"E7",
        "\U0001f36b\U0001f36b0267AA": b"303236374144" b"2020202020202020" b"EC",
        "FW0000TT": b"303030305454" b"2020202020202020" b"00",
        "FW0000TU": b"303030305455" b"2020202020202020" b"01",
        "FW00009 ": b"303030303920" b"2020202020202020" b"B1",
    }

    def test_the_header_is_made_of_the_name_of_the_flash_file(self) -> None:
        for base, identification in self.IDENTIFICATIONS.items():
            for family, extension, copy in ((b"03", "MHX", "MSX"), (b"01", "hex", "HSX")):
                with self.subTest(base=base, extension=extension):
                    printed = self.compile(MesFile(flags=family), f"{base}.{extension}").out
                    self.assertIn(f"{base}.{copy}\n", printed)
                    expected = b"S01300004454" + identification + b"\r\n"
                    expected += self.read(f"{base}.{extension}")
                    self.assertEqual(self.read(f"{base}.{copy}"), expected)

    def test_the_extension_is_found_without_regard_to_case(self) -> None:
        for output, copy in {
            "FW0417AB.mhx": "FW0417AB.MSX",
            "FW0417AB.hEx": "FW0417AB.HSX",
            "FW0417AB.HEX": "FW0417AB.HSX",
            "FW0417AB.MHX.bak": "FW0417AB.MSX",
        }.items():
            self.assertIn(f"{copy}\n", self.compile(MesFile(flags=b"01"), output).out)

    def test_the_name_decides_about_the_copy_and_not_the_family(self) -> None:
        self.assertIn("FW0417AB.MSX\n", self.compile(MesFile(flags=b"01"), "FW0417AB.MHX").out)
        self.assertIn("FW0417AC.HSX\n", self.compile(MesFile(flags=b"03"), "FW0417AC.HEX").out)

    def test_the_copy_stands_in_the_folder_of_the_flash_file(self) -> None:
        (self.folder / "flash").mkdir()
        printed = self.compile(MesFile(flags=b"01"), "flash/FW0417AB.HEX").out
        self.assertEqual(printed, "flash/FW0417AB.HEX\nflash/FW0417AB.HSX\n")
        self.assertEqual(self.names(), ["A.MES", "flash"])

    def test_a_name_without_model_gets_a_message_box_and_no_copy(self) -> None:
        short = ("FW0417A", "FW0417", "FW")
        for base in ("FWX417AA", "FW041XAA", "FW 417AA", "FW-417AA", "ФВ04Ф7AA", "水0417AA", *short):
            with self.subTest(base):
                self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
                result = self.done_with_message(
                    "compile", "A.MES", "--languages=1,2", f"--output={base}.MHX", "--json"
                )
                self.assertEqual(result.err, on_stderr(INFO_BOX.format(base)))
                title, text = INFO_BOX.format(base).rstrip("\n").split(": ", 1)
                box = {"icon": "information", "title": title, "text": text}
                written = [f"{base}.MHX", f"{base}.mtx", f"{base}.SA1"]
                boxes = {"notices": [box], "warnings": []}
                self.assertEqual(result.json, {"written": written, **boxes, "completed": True})

    def test_a_name_of_neither_family_gets_a_message_box_and_stops(self) -> None:
        for output in ("FW0417AB.bin", "FW0417AB.MH"):
            self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
            arguments = ("--languages=1,2", f"--output={output}", "--json")
            result = self.cli.run("compile", "A.MES", *arguments)
            self.assertEqual(result.status, REFUSED)
            text = "Impossibile creare il file MSX o il file HSX"
            self.assertTrue(result.err.startswith(f"vendlingua-cli: Errore: {text}\n"), result.err)
            box = {"icon": "critical", "title": "Errore", "text": text}
            boxes = {"notices": [box], "warnings": []}
            self.assertEqual(result.json, {"written": [output], **boxes, "completed": False})
        # The flash files themselves stay; there are no copies and no section files.
        self.assertEqual(self.names(), ["A.MES", "FW0417AB.MH", "FW0417AB.bin"])


class NineLanguagesTest(CompileCase):
    OPTIONS = ("--languages=1,2,3,4,5,6,7,8,9", "--output=FW0417AB.MHX")

    def test_the_copy_gets_header_records_and_the_fixed_last_line(self) -> None:
        file = nine_languages(b"    MP0417AA    ")
        printed = self.compile(file, "FW0417AB.MHX", "--copy=MP0417AA.MSX").out
        self.assertEqual(printed.split()[:3], ["FW0417AB.MHX", "MP0417AA.MSX", "FW0417AB.mtx"])
        records = s_records("2", 0xFF0000, b"".join(file.messages(k + 1) for k in range(9)))
        self.assertEqual(self.read("FW0417AB.MHX"), records)
        # 98 + 30 + 34 + 31 + 37 + 41 + 41 = 1E6
        header = b"S01300004454" b"303431374141" b"2020202020202020" b"E6\r\n"
        self.assertEqual(self.read("MP0417AA.MSX"), header + records + LAST_LINE_OF_NINE)

    def test_the_copy_is_no_file_of_the_flash_name(self) -> None:
        self.compile(nine_languages(b"    MP0417AA    "), "FW0417AB.MHX", "--copy=MP0417AA.MSX")
        self.assertNotIn("FW0417AB.MSX", self.names())

    def test_a_first_record_without_p_gives_no_identification(self) -> None:
        self.compile(nine_languages(b"    mp0417AA    "), "FW0417AB.MHX", "--copy=A.MSX")
        self.assert_header(b"S01300004454" b"2020202020202020" b"98")

    def test_a_p_at_the_end_of_the_record_gives_what_follows_it(self) -> None:
        self.compile(nine_languages(b"             P01"), "FW0417AB.MHX", "--copy=A.MSX")
        # Two data bytes and the checksum: 14 + FF + 13 x 20 + 50 + 30 + 31 = 464.
        self.assert_header(b"S01300004454" b"30319B" b"2020202020202020" b"94")

    def test_a_50_in_the_address_counts(self) -> None:
        file = nine_languages(b"abcdefghijklmnop", start=0xFF5000)
        self.compile(file, "FW0417AB.MHX", "--copy=A.MSX")
        # 00 is the end of the address; 98 + 61 + 62 + 63 + 64 + 65 = 287.
        self.assert_header(b"S01300004454" b"006162636465" b"2020202020202020" b"87")

    def test_a_checksum_below_10_has_one_digit(self) -> None:
        file = nine_languages(b"P<<<<<<         ")
        self.compile(file, "FW0417AB.MHX", "--copy=A.MSX")
        # 98 + 6 x 3C = 200
        self.assert_header(b"S01300004454" b"3C3C3C3C3C3C" b"2020202020202020" b"0")

    def test_a_copy_without_extension_gets_one(self) -> None:
        printed = self.compile(nine_languages(b"P" * 16), "FW0417AB.MHX", "--copy=A").out
        self.assertIn("\nA.MSX\n", printed)

    def test_the_name_of_the_flash_file_does_not_matter(self) -> None:
        printed = self.compile(nine_languages(b"P" * 16), "anything.bin", "--copy=A.MSX").out
        self.assertEqual(printed.split()[:2], ["anything.bin", "A.MSX"])

    def test_the_hex_family_gets_no_section_files(self) -> None:
        file = nine_languages(b"P" * 16)
        file.flags = flags(NO_NAME_LIST)
        self.compile(file, "FW0417AB.hex", "--copy=A.MSX")
        self.assertEqual(self.names(), ["A.MES", "A.MSX", "FW0417AB.hex"])

    def test_without_the_copy_nothing_is_written(self) -> None:
        self.write("A.MES", nine_languages(b"P" * 16).content())
        self.assertIn("--copy", self.wrong_usage("compile", "A.MES", *self.OPTIONS).err)

    def test_a_board_with_another_number_of_slots_takes_no_name_for_its_copy(self) -> None:
        self.write("A.MES", MesFile().content())
        arguments = ("--languages=1,2", "--output=FW0417AB.hex", "--copy=A.HSX")
        self.assertIn("--copy", self.wrong_usage("compile", "A.MES", *arguments).err)

    def test_eight_and_ten_languages_need_no_copy(self) -> None:
        for count in (8, 10):
            file = nine_languages(b"P" * 16)
            file.lang_count = count
            file.names = [b"Default"] + [b"N%d" % k for k in range(count)]
            self.assertIn("FW0417AB.MSX\n", self.compile(file, "FW0417AB.MHX").out)

    def test_a_copy_over_the_message_file_is_refused_before_anything_is_written(self) -> None:
        file = nine_languages(b"P" * 16)
        self.assertIn("A.MES: ", self.refused_compile(file, *self.OPTIONS, "--copy=A.MES"))

    def test_a_copy_over_the_flash_file_is_refused_before_anything_is_written(self) -> None:
        file = nine_languages(b"P" * 16)
        (self.folder / "folder").mkdir()
        (self.folder / "link.MSX").symlink_to("FW0417AB.MHX")
        (self.folder / "link").symlink_to(".")
        for copy in (
            "./FW0417AB.MHX",
            "folder/../FW0417AB.MHX",
            str(self.folder / "FW0417AB.MHX"),
            "link.MSX",
            "link/FW0417AB.MHX",
        ):
            with self.subTest(copy):
                err = self.refused_compile(file, *self.OPTIONS, f"--copy={copy}")
                self.assertIn(f"{copy}: is the flash file", err)

    def test_the_extension_that_is_added_counts_for_the_copy(self) -> None:
        file = nine_languages(b"P" * 16)
        file.flags = flags(NO_NAME_LIST)
        options = (self.OPTIONS[0], "--output=F", "--copy=F.hex")
        self.assertIn("F.hex: is the flash file", self.refused_compile(file, *options))

    def test_a_copy_in_the_place_of_a_section_file_is_refused(self) -> None:
        file = nine_languages(b"P" * 16)
        err = self.refused_compile(file, *self.OPTIONS, "--copy=FW0417AB.SA3")
        self.assertIn("FW0417AB.SA3: is the identified copy", err)

    def test_a_copy_that_cannot_be_written_leaves_no_flash_file(self) -> None:
        file = nine_languages(b"P" * 16)
        err = self.refused_compile(file, *self.OPTIONS, "--copy=no/A.MSX")
        self.assertIn("no/A.MSX: ", err)

    def test_the_copy_opens_as_a_message_file(self) -> None:
        texts = {(k, m): b"T%d-%d".ljust(16) % (k, m) for k in range(10) for m in range(455)}
        texts = {at: text[:16].ljust(16) for at, text in texts.items()}
        texts[1, 0] = b"    MP0417AA    "
        for k in range(1, 10):
            texts[k, 169] = b"  NAME %d        " % k
        file = nine_languages(b"", last_msg=454, texts=texts)
        self.compile(file, "FW0417AB.MHX", "--copy=MP0417AA.MSX")
        languages = self.done("info", "MP0417AA.MSX", "--json").json["languages"]
        self.assertEqual([k["name"] for k in languages[1:]], [f"NAME {k}" for k in range(1, 10)])
        last = self.done("texts", "MP0417AA.MSX", "--language=9", "--json").json["messages"][454]
        self.assertEqual(last["text"], "T9-454".ljust(16))

    def assert_header(self, expected: bytes) -> None:
        self.assertEqual(self.read("A.MSX").split(b"\r\n")[0], expected)


def nine_languages(
    first_message: bytes,
    start: int = 0xFF0000,
    last_msg: int = 0,
    texts: dict[tuple[int, int], bytes] | None = None,
) -> MesFile:
    return MesFile(
        lang_count=9,
        width=16,
        last_msg=last_msg,
        stride=last_msg + 1,
        flags=flags(NO_NAME_LIST, MHX_FAMILY),
        mem_start=start,
        names=[b"Default"] + [b"N%d" % k for k in range(9)],
        texts=texts or {(1, 0): first_message},
    )


class SectionFilesOfCompileTest(CompileCase):
    def test_the_mhx_family_gets_section_files(self) -> None:
        file = MesFile(
            lang_count=1, flags=b"03", mem_start=0xFF8000, mem_length=0x2000, stride=2048
        )
        self.compile(file, "FW0417AB.MHX")
        self.assertEqual(
            self.names(),
            ["A.MES", "FW0417AB.MHX", "FW0417AB.MSX", "FW0417AB.SA1", "FW0417AB.mtx"],
        )
        self.assertEqual(self.read("FW0417AB.mtx"), b"")
        self.assertEqual(self.read("FW0417AB.SA1"), file.messages(1).ljust(0x2000, b"\0"))

    def test_an_s1_file_is_not_cut_into_sections(self) -> None:
        self.compile(MesFile(flags=b"03", mem_start=0x6000), "FW0417AB.MHX")
        self.assertEqual(self.names(), ["A.MES", "FW0417AB.MHX", "FW0417AB.MSX", "FW0417AB.mtx"])

    def test_the_hex_family_gets_none(self) -> None:
        self.compile(MesFile(flags=b"01", mem_start=0xFF8000), "FW0417AB.HEX")
        self.assertEqual(self.names(), ["A.MES", "FW0417AB.HEX", "FW0417AB.HSX"])

    def test_a_path_that_is_no_utf8_is_fine(self) -> None:
        self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
        output = b"--output=FW0417AB\xe8.MHX"
        result = self.cli.run("compile", "A.MES", "--languages=1,2", output)
        self.assertEqual((result.status, result.err), (0, ""))


class SafeSectionFilesTest(CompileCase):
    """Section files take the place of no file of the same run."""

    def refused_sections(self, output: str) -> str:
        file = MesFile(flags=b"03", mem_start=0xFF8000)
        return self.refused_compile(file, "--languages=1,2", f"--output={output}")

    def test_of_the_message_file(self) -> None:
        for suffix in ("mtx", "SA0", "SA1", "SA2", "SA3", "SA4"):
            link = self.folder / f"FW0417AB.{suffix}"
            link.symlink_to("A.MES")
            err = self.refused_sections("FW0417AB.MHX")
            self.assertIn(f"FW0417AB.{suffix}: is the message file", err)
            link.unlink()

    def test_of_the_flash_file(self) -> None:
        # ".mhx" is part of the name, so that a copy can be named.
        for name in ("F.mhx.mtx", "F.mhx.SA4"):
            self.assertIn(f"{name}: is the flash file", self.refused_sections(name))
        (self.folder / "FW0417AB.SA1").symlink_to("FW0417AB.MHX")
        err = self.refused_sections("FW0417AB.MHX")
        self.assertIn("FW0417AB.SA1: is the flash file", err)

    def test_of_the_copy(self) -> None:
        (self.folder / "FW0417AB.mtx").symlink_to("FW0417AB.MSX")
        err = self.refused_sections("FW0417AB.MHX")
        self.assertIn("FW0417AB.mtx: is the identified copy", err)

    def test_a_copy_that_is_not_made_is_nobodys_place(self) -> None:
        (self.folder / "FWX417AB.mtx").symlink_to("FWX417AB.MSX")
        self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
        arguments = ("compile", "A.MES", "--languages=1,2", "--output=FWX417AB.MHX")
        self.done_with_message(*arguments)
        self.assertEqual(self.read("FWX417AB.MSX"), b"")

    def test_the_hex_family_has_none(self) -> None:
        (self.folder / "FW0417AB.SA1").symlink_to("A.MES")
        self.compile(MesFile(flags=b"01"), "FW0417AB.HEX")


class SafeNamedCopyTest(CompileCase):
    def test_a_copy_over_the_message_file_is_refused_before_anything_is_written(self) -> None:
        (self.folder / "FW0417AB.HSX").symlink_to("A.MES")
        arguments = ("--languages=1,2", "--output=FW0417AB.HEX")
        err = self.refused_compile(MesFile(flags=b"01"), *arguments)
        self.assertIn("FW0417AB.HSX: is the message file", err)

    def test_a_copy_over_the_flash_file_is_refused_before_anything_is_written(self) -> None:
        # The name of the copy is looked for in the whole path: here it comes of the folder.
        (self.folder / "FW0417AB.mhx").mkdir()
        (self.folder / "FW0417AC.HSX").symlink_to("FW0417AC.HEX")
        for output, copy in (
            ("FW0417AB.mhx/FW0417AB.MSX", "FW0417AB.mhx/FW0417AB.MSX"),
            ("FW0417AC.HEX", "FW0417AC.HSX"),
        ):
            file = MesFile(flags=b"01")
            err = self.refused_compile(file, "--languages=1,2", f"--output={output}")
            self.assertIn(f"{copy}: is the flash file", err)


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


class CompileMsxTest(CliTest):
    BOX = "P.MHX\rThe file has a line that is not an S-record; reading stopped there."

    def test_ten_lines_give_nine_and_4086_empty_ones(self) -> None:
        lines = (msx_header() + msx_lines(1)).splitlines(keepends=True)[:10]
        self.write("A.MSX", b"".join(lines))
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(self.read("P.MHX"), b"".join(lines[1:]) + 4086 * b"\r\n")
        self.assertEqual(result.err, on_stderr(f"Error: {self.BOX}"))
        box = {"icon": "exclamation", "title": "Error", "text": self.BOX}
        boxes = {"notices": [box], "warnings": []}
        written = ["P.MHX", "P.mtx"]
        self.assertEqual(result.json, {"written": written, **boxes, "completed": True})

    def test_nine_languages_lose_header_and_last_line(self) -> None:
        self.write("A.MSX", msx_file(9) + LAST_LINE_OF_NINE)
        printed = self.done("compile", "A.MSX", "--output=P.MHX").out
        self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])
        sections = ["P.MHX", "P.mtx", "P.SA0", "P.SA1", "P.SA2", "P.SA3", "P.SA4"]
        self.assertEqual(printed.split(), sections)

    def test_a_last_line_without_its_end_gets_one(self) -> None:
        self.write("A.MSX", msx_file(9).rstrip())
        self.done("compile", "A.MSX", "--output=P.MHX")
        self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])

    def test_4099_lines_are_the_most(self) -> None:
        # Header and nine languages are 4096 lines.
        for more, accepted in ((3, True), (4, False)):
            self.write("A.MSX", msx_file(9) + more * LAST_LINE_OF_NINE)
            if accepted:
                self.done("compile", "A.MSX", "--output=P.MHX")
                self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])
            else:
                self.assertIn("A.MSX: ", self.refused("compile", "A.MSX", "--output=P.MHX").err)

    def test_a_damaged_record_is_compiled_with_a_warning(self) -> None:
        lines = msx_file(9).split(b"\r\n")
        lines[1] = lines[1][:10] + b"G1" + lines[1][12:]
        lines[2] = lines[2][:-1]
        lines[3] = lines[3][:-2] + b"00"
        lines[4] = b"S5"
        lines[4095] = lines[4095][:20]
        content = b"\r\n".join(lines)
        self.write("A.MSX", content)
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(self.read("P.MHX"), content[len(msx_header()) :])
        # 14 + FF + 20 and the codes of "L1 M2" and 11 blanks, 27C, are 3AF; AF is complemented.
        warnings = [
            r"A\.MSX: line 2: column 11: .*G1.*",
            r"A\.MSX: line 3: the count is 20, .* 19 bytes and a half",
            r"A\.MSX: line 4: the checksum is 00 instead of 50",
            r"A\.MSX: line 5: the count is 0, .* 0 bytes",
            r"A\.MSX: line 4096: the count is 20, .* 8 bytes",
        ]
        self.assertEqual(len(result.json["warnings"]), len(warnings))
        for warning, expected in zip(result.json["warnings"], warnings):
            self.assertRegex(warning, f"^{expected}$")
        printed = [f"vendlingua-cli: warning: {text}" for text in result.json["warnings"]]
        self.assertEqual(result.err.splitlines(), printed)

    def test_a_damaged_record_behind_the_4095_lines_is_not_compiled(self) -> None:
        self.write("A.MSX", msx_file(9) + b"S2\r\n")
        self.done("compile", "A.MSX", "--output=P.MHX")

    def test_the_fixed_last_line_of_a_copy_is_no_damaged_record(self) -> None:
        self.write("A.MSX", msx_file(1) + LAST_LINE_OF_NINE)
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(result.json["warnings"], [])

    def test_section_files_do_not_take_the_place_of_the_flash_file(self) -> None:
        self.write("A.MSX", msx_file(9))
        err = self.refused("compile", "A.MSX", "--output=P.mtx").err
        self.assertIn("P.mtx: is the flash file", err)

    def test_options_of_mes_files_are_refused(self) -> None:
        self.write("A.MSX", msx_file(9))
        for option in ("--languages=1", "--copy=B.MSX"):
            err = self.wrong_usage("compile", "A.MSX", "--output=P.MHX", option).err
            self.assertIn(option.split("=")[0], err)

    def test_no_identified_copy_is_made(self) -> None:
        self.write("A.MSX", msx_file(9))
        self.done("compile", "A.MSX", "--output=FW0417AB.MHX")
        self.assertNotIn("FW0417AB.MSX", self.names())

    def test_the_message_file_is_not_overwritten(self) -> None:
        self.write("A.MSX", msx_file(1))
        err = self.refused("compile", "A.MSX", "--output=A.MSX").err
        self.assertIn("A.MSX: is the message file", err)


if __name__ == "__main__":
    unittest.main()
