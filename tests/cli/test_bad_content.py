"""Files with another content than they should have are handed to every command."""

from __future__ import annotations

import random
import unittest

from bad_input_case import (
    APPLY,
    FLASH,
    IMPORT,
    MES,
    MES_READERS,
    MSX_CONTENT,
    MSX_READERS,
    READERS,
    SECTIONS,
    SOURCE,
    TABLE,
    TEXT_READERS,
    VERIFY,
    BadInputCase,
)
from message_files import header, s_record, s_records


class ContentTest(BadInputCase):
    def test_an_empty_file(self) -> None:
        for reader in READERS:
            self.check(reader, b"", sound=reader is SECTIONS)

    def test_nothing_but_line_ends(self) -> None:
        for reader in READERS:
            for line_end in (b"\n", b"\r", b"\r\n"):
                self.check(reader, 100 * line_end, sound=False)

    def test_one_byte(self) -> None:
        for reader in READERS:
            for value in b"\x00\x01\x1f\x20S'\xff":
                self.check(reader, bytes([value]), sound=False)

    def test_the_content_of_another_kind_of_file(self) -> None:
        for reader in MES_READERS[:-1]:
            for content in (MSX_CONTENT, SOURCE, TABLE, FLASH):
                self.check(reader, content, sound=False)
        for reader in MSX_READERS[:-1]:
            for content in (MES.content(), SOURCE, TABLE, FLASH):
                self.check(reader, content, sound=False)
        for content in (MES.content(), MSX_CONTENT, FLASH):
            self.check(IMPORT, content, sound=False)
        for content in (MES.content(), MSX_CONTENT, SOURCE, FLASH):
            self.check(APPLY, content, sound=False)
        for content in (MES.content(), SOURCE, TABLE):
            self.check(SECTIONS, content, sound=False)
            if content != MES.content():
                self.check(VERIFY, content, sound=False)

    def test_random_bytes(self) -> None:
        source = random.Random(1)
        for reader in READERS:
            for size in (2, 24, 60, 1000, 30000):
                self.check(reader, source.randbytes(size), sound=False)

    def test_random_bytes_behind_a_sound_start(self) -> None:
        source = random.Random(2)
        for reader in READERS:
            for _ in range(15):
                start = reader.content[: source.randrange(min(len(reader.content), 200))]
                self.assert_orderly(reader, start + source.randbytes(source.randrange(1, 300)))

    def test_random_bytes_in_a_sound_file(self) -> None:
        source = random.Random(3)
        for reader in READERS:
            for _ in range(15):
                content = bytearray(reader.content)
                for _ in range(source.randrange(1, 5)):
                    content[source.randrange(min(len(content), 200))] = source.randrange(256)
                self.assert_orderly(reader, bytes(content))


class LineEndTest(BadInputCase):
    def test_carriage_returns_alone_end_the_rows_of_a_table_only(self) -> None:
        for reader in TEXT_READERS:
            content = reader.content.replace(b"\r\n", b"\r")
            # What stands behind the first record of a flash file belongs to its line.
            self.check(reader, content, sound=reader in (APPLY, SECTIONS))

    def test_line_feeds_alone_end_lines_of_all_but_msx_files(self) -> None:
        for reader in TEXT_READERS:
            content = reader.content.replace(b"\r\n", b"\n")
            self.check(reader, content, sound=reader.file != "A.MSX")

    def test_the_last_line_needs_no_end(self) -> None:
        for reader in TEXT_READERS:
            self.check(reader, reader.content.removesuffix(b"\r\n"), sound=True)


class HexadecimalTest(BadInputCase):
    def test_lower_case_is_read_and_found_by_verify(self) -> None:
        for reader in (*MSX_READERS, SECTIONS, VERIFY):
            content = reader.content.lower().replace(b"s", b"S")
            self.check(reader, content, sound=reader.arguments[0] != "verify")

    def test_lower_case_in_a_header_is_read(self) -> None:
        upper = header(2, 4, b"03", 1, 2, 0xFFABCDEF, 24)
        for reader in MES_READERS:
            self.check(reader, upper.lower() + MES.content()[24:], sound=True)


class HugeNumberTest(BadInputCase):
    def test_the_largest_number_in_every_header_field(self) -> None:
        fields = {
            "LangCount": (slice(0, 1), b"\x1f"),
            "LastCol": (slice(1, 2), b"\xff"),
            "flags": (slice(2, 4), b"FF"),
            "HeaderCount": (slice(4, 8), b"FFFF"),
            "LastMsg": (slice(8, 12), b"FFFF"),
            "MemStart": (slice(12, 20), b"FFFFFFFF"),
            "MemLength": (slice(20, 24), b"FFFF"),
        }
        for name, (place, largest) in fields.items():
            for reader in MES_READERS:
                content = bytearray(MES.content())
                content[place] = largest
                if name == "LastMsg":
                    self.check(reader, bytes(content), sound=False)
                else:
                    self.assert_orderly(reader, bytes(content))

    def test_the_largest_numbers_in_all_fields_at_once(self) -> None:
        for reader in MES_READERS:
            content = b"\x1f\xff" + 22 * b"F" + MES.content()[24:]
            self.check(reader, content, sound=False)

    def test_the_largest_count_in_every_record(self) -> None:
        content = FLASH.replace(b"S2", b"S2FF").replace(b"S2FF14", b"S2FF")
        self.assert_orderly(SECTIONS, content)
        self.check(VERIFY, content, sound=False)

    def test_addresses_four_gigabytes_apart(self) -> None:
        content = s_record("3", 0, b"x") + b"\r\n" + s_record("3", 0xFFFFFFFF, b"x") + b"\r\n"
        self.check(VERIFY, content, sound=False)
        self.check(SECTIONS, content, sound=False)

    def test_a_line_without_end(self) -> None:
        line = b"S2FFFF8000" + 2_000_000 * b"41"
        self.assert_orderly(SECTIONS, line)
        self.check(VERIFY, line, sound=False)
        self.check(IMPORT, b" DC.B '" + 2_000_000 * b"41" + b"'", sound=False)
        self.check(APPLY, TABLE + b"1,," + 2_000_000 * b"41", sound=False)

    def test_a_hundred_thousand_lines(self) -> None:
        self.check(MSX_READERS[-2], MSX_CONTENT + 100_000 * b"S9030000FC\r\n", sound=False)
        self.check(IMPORT, 100_000 * b" DC.B 'ABCD'\r\n", sound=False)
        self.check(APPLY, TABLE + 100_000 * b"1,,x\r\n", sound=False)
        self.check(SECTIONS, 100_000 * s_records("2", 0xFF8000, b"x"), sound=True)


if __name__ == "__main__":
    unittest.main()
