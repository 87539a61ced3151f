"""Files that are cut at each byte are handed to every command."""

from __future__ import annotations

import csv
import io
import unittest
from collections.abc import Callable, Iterable

from bad_input_case import (
    APPLY,
    FLASH,
    IMPORT,
    MES,
    MES_READERS,
    MSX_CONTENT,
    MSX_READERS,
    SECTIONS,
    SOURCE,
    TABLE,
    VERIFY,
    BadInputCase,
)
from message_files import msx_at, msx_file, msx_header
from support import DONE, is_sanitized

# The sanitizers make a start of the program ten times as long, and fuzzers cut files under them, too.
STEP = 7 if is_sanitized() else 1


class CutFileTest(BadInputCase):
    def test_a_mes_file_cut_at_each_byte(self) -> None:
        whole = MES.content()
        first_name, last_block = MES.block(0) + 20, MES.at(2, 0)

        def name_of_last_block(size: int) -> bool:
            return size >= last_block

        def whole_blocks(size: int) -> bool:
            return any(MES.at(k, 3) <= size <= MES.block(k + 1) for k in range(3))

        def name_of_first_language(size: int) -> bool:
            """The last name makes no difference."""
            return size >= MES.at(1, 0)

        rules: dict[str, Callable[[int], bool]] = {
            "info": lambda size: size >= first_name,
            # The last block of a file may end anywhere: blanks stand for what is missing.
            "texts": name_of_last_block,
            "put": name_of_last_block,
            "new-language": name_of_last_block,
            "export": name_of_last_block,
            "apply": name_of_last_block,
            # There 0 stands for them.
            "compile": lambda size: size >= last_block,
            "pretranslate": name_of_last_block,
            "update": name_of_first_language,
            "rename": lambda size: size >= last_block,
            "display-type": lambda size: size >= first_name,
            "verify": whole_blocks,
        }
        for reader in MES_READERS:
            for size in range(0, len(whole), STEP):
                self.check(reader, whole[:size], sound=rules[reader.arguments[0]](size))

    def test_an_msx_file_cut_at_each_byte_of_its_header_its_name_and_its_last_lines(self) -> None:
        whole = MSX_CONTENT
        name, last = msx_at(1, 169), msx_at(1, 454)
        head, data_end = len(msx_header()), 42
        places = {*range(head + 60), *range(name - 3, name + 50), *range(last - 3, len(whole))}

        def inside_a_line(size: int) -> bool:
            return size > head and (size - head) % 46 not in (0, 44)

        def refused(size: int) -> Iterable[str]:
            """The commands that must refuse the first `size` bytes."""
            if whole[:size].endswith(b"\r"):
                yield from (reader.arguments[0] for reader in MSX_READERS)
            if size < 20 or name < size < name + data_end:
                yield from ("info", "compile")
            if size < last + data_end:
                yield from ("texts", "export", "put", "apply", "pretranslate")
            if size < head + 44 or inside_a_line(size):
                yield "verify"

        for reader in MSX_READERS:
            for size in sorted(places)[::STEP]:
                self.check(reader, whole[:size], reader.arguments[0] not in refused(size))

    def test_a_source_cut_at_each_byte(self) -> None:
        for size in range(0, len(SOURCE), STEP):
            lines = SOURCE[:size].split(b"\n")
            quotes = [line.count(b"'") + line.count(b'"') for line in lines]
            sound = set(quotes) <= {0, 2} and 2 in quotes and not SOURCE[:size].endswith(b"\r")
            self.check(IMPORT, SOURCE[:size], sound)

    def test_a_table_cut_at_each_byte(self) -> None:
        for size in range(0, len(TABLE), STEP):
            self.check(APPLY, TABLE[:size], is_sound_table(TABLE[:size]))

    def test_a_flash_file_cut_at_each_byte(self) -> None:
        for size in range(0, len(FLASH), STEP):
            self.assert_orderly(SECTIONS, FLASH[:size])
            ends = {end - line_end for end in (46, 92, len(FLASH)) for line_end in (0, 2)}
            self.check(VERIFY, FLASH[:size], sound=size in ends)

    def test_a_message_file_cut_inside_a_record_is_compiled_with_a_warning(self) -> None:
        compiler = MSX_READERS[-2]
        self.assertEqual(compiler.arguments[0], "compile")
        for content, last_line in ((MSX_CONTENT, 456), (msx_file(9), 4096)):
            for cut in (3, 4, 20, 45):
                self.prepare(compiler, content[:-cut])
                result = self.cli.run(*compiler.arguments)
                self.assertEqual(result.status, DONE)
                self.assertIn(f"warning: A.MSX: line {last_line}: ", result.err)


def is_sound_table(content: bytes) -> bool:
    try:
        rows = list(csv.reader(io.StringIO(content.decode(), newline=""), strict=True))
    except (UnicodeDecodeError, csv.Error):
        return False
    return rows[:1] == [["message", "origin", "text"]] and all(len(row) == 3 for row in rows)


if __name__ == "__main__":
    unittest.main()
