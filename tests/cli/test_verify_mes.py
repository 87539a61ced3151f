"""vendlingua-cli verify: .MES files."""

from __future__ import annotations

import unittest

from message_files import MesFile, header
from verify_case import VerifyCase


class VerifyMesTest(VerifyCase):
    def test_files_of_any_number_of_blocks_are_sound(self) -> None:
        for count in (1, 2, 101):
            names = [b"Default"] + [b"N%d" % k for k in range(1, count)]
            self.assert_sound(MesFile(names=names).content())

    def test_a_last_block_that_ends_with_its_last_message_is_sound(self) -> None:
        file = MesFile()
        self.assert_sound(file.content()[: file.at(2, 3)])

    def test_a_header_that_is_cut_is_found(self) -> None:
        for size in (1, 23):
            self.assertEqual(len(self.findings(MesFile().content()[:size])), 1)

    def test_a_header_without_a_block_is_found(self) -> None:
        self.assertEqual(len(self.findings(MesFile().header())), 1)

    def test_header_fields_that_are_not_hexadecimal_are_found_by_name(self) -> None:
        fields = {2: "flags", 4: "HeaderCount", 8: "LastMsg", 12: "MemStart", 20: "MemLength"}
        for offset, name in fields.items():
            content = bytearray(MesFile().content())
            content[offset] = ord("x")
            self.assertRegex(self.findings(bytes(content))[0], name)

    def test_no_languages_are_found(self) -> None:
        self.assertNotEqual(self.findings(MesFile(lang_count=0, mem_length=24).content()), [])

    def test_a_last_message_behind_the_slots_is_found(self) -> None:
        self.assertRegex("\n".join(self.findings(MesFile(last_msg=4).content())), "LastMsg is 4")

    def test_messages_that_do_not_fit_the_memory_are_found(self) -> None:
        self.assert_sound(MesFile(mem_length=24).content())
        found = self.findings(MesFile(mem_length=23, last_msg=2).content())
        self.assertRegex("\n".join(found), "memory of 23 bytes")

    def test_a_name_message_behind_the_last_is_found(self) -> None:
        self.assert_sound(MesFile(header_count=2).content())
        self.assertRegex(self.findings(MesFile(header_count=3).content())[0], "HeaderCount is 3")

    def test_a_block_length_that_wraps_is_found(self) -> None:
        content = header(1, 16, b"00", 1, 2, 0, 0x9000) + b"Default".ljust(40000)
        self.assertRegex(self.findings(content)[0], "-28636")

    def test_a_wide_set_and_a_long_one_are_sound(self) -> None:
        self.assert_sound(MesFile(width=60).content())
        self.assert_sound(MesFile(last_msg=599, stride=600).content())

    def test_a_last_block_that_is_cut_is_found(self) -> None:
        file = MesFile()
        for end in (file.block(2) + 20, file.at(2, 1), file.at(2, 3) - 1):
            self.assertEqual(len(self.findings(file.content()[:end])), 1)

    def test_bytes_that_are_no_block_are_found(self) -> None:
        for size in (1, 19):
            self.assertEqual(len(self.findings(MesFile().content() + size * b" ")), 1)

    def test_more_than_100_languages_are_found(self) -> None:
        names = [b"Default"] + [b"N%d" % k for k in range(101)]
        self.assertRegex(self.findings(MesFile(names=names).content())[0], "100")

    def test_another_name_of_the_reference_is_found(self) -> None:
        self.assertRegex(self.findings(MesFile(names=[b"DEFAULT"]).content())[0], "DEFAULT")

    def test_a_language_without_a_name_is_found(self) -> None:
        self.assertRegex(self.findings(MesFile(names=[b"Default", b""]).content())[0], "language 1")

    def test_a_name_given_twice_is_found(self) -> None:
        names = [b"Default", b"A", b"B", b"A"]
        self.assertRegex(self.findings(MesFile(names=names).content())[0], 'language 3 .*"A"')


if __name__ == "__main__":
    unittest.main()
