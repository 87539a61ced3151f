"""vendlingua-cli compile: the identified copy beside a flash file."""

from __future__ import annotations

import unittest

from compile_case import INFO_BOX, NO_NAME_LIST, CompileCase, flags, nine_languages
from message_files import LAST_LINE_OF_NINE, MesFile, s_records
from on_windows import NO_LINKS, native, not_on_windows
from support import REFUSED, on_stderr


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
                # Windows takes a name in small letters for the same one.
                for written in (extension, copy):
                    (self.folder / f"{base}.{written}").unlink()

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
        self.assertEqual(printed, "flash/FW0417AB.HEX\n" + native("flash/FW0417AB.HSX\n"))
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

    @not_on_windows(NO_LINKS)
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


@not_on_windows(NO_LINKS)
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


if __name__ == "__main__":
    unittest.main()
