"""Every command is handed files that are damaged, hostile or not there.

Such a file is refused: exit status 1, a reason that names the file, no output file, and the file
itself as it was. The program never crashes, hangs, or succeeds with half of a file.
"""

from __future__ import annotations

import csv
import io
import os
import pwd
import random
import shutil
import tempfile
import unittest
from collections.abc import Callable, Iterable
from dataclasses import dataclass
from pathlib import Path

from support import (
    DONE,
    PROGRAM,
    REFUSED,
    Cli,
    CliTest,
    MesFile,
    header,
    msx_at,
    msx_file,
    msx_header,
    s_record,
    s_records,
    snapshot,
)

MES = MesFile(flags=b"03", mem_start=0xFF8000)
MSX_CONTENT = msx_file(1)
SOURCE = b" ORG $6000\r\nMNLING DC.B 'ABCD'\r\n DC.B \"EFGH\"\r\n"
TABLE = 'message,origin,text\r\n0,"0,00",tè\r\n2,0222,"a"""\r\n'.encode()
FLASH = s_records("2", 0xFF8000, bytes(range(40)))


@dataclass(frozen=True)
class Reader:
    """A command and the file that it reads; the file is handed over damaged."""

    file: str
    content: bytes
    arguments: tuple[str, ...]

    @property
    def command(self) -> str:
        return f"{self.arguments[0]} {self.file}"


MES_READERS = [
    Reader("A.MES", MES.content(), arguments)
    for arguments in (
        ("info", "A.MES"),
        ("texts", "A.MES", "--language=2"),
        ("put", "A.MES", "--language=2", "--message=1", "--text=new"),
        ("new-language", "A.MES", "--from=2", "--name=NEW"),
        ("export", "A.MES", "--language=2", "--output=out.csv"),
        ("apply", "A.MES", "good.csv", "--language=2"),
        ("compile", "A.MES", "--languages=1,2", "--output=FW0417AB.MHX"),
        ("pretranslate", "A.MES", "--language=2", "--from=good.MES"),
        ("pretranslate", "good.MES", "--language=2", "--from=A.MES"),
        ("update", "good.src", "--from=A.MES", "--language-message=1", "--output=OUT.MES"),
        ("rename", "A.MES", "--language=2", "--name=NEW"),
        ("display-type", "A.MES", "cyrillic"),
        ("verify", "A.MES"),
    )
]
MSX_READERS = [
    Reader("A.MSX", MSX_CONTENT, arguments)
    for arguments in (
        ("info", "A.MSX"),
        ("texts", "A.MSX", "--language=1"),
        ("put", "A.MSX", "--language=1", "--message=1", "--text=new"),
        ("export", "A.MSX", "--language=1", "--output=out.csv"),
        ("apply", "A.MSX", "good.csv", "--language=1"),
        ("pretranslate", "A.MSX", "--language=1", "--from=good.MES", "--from-language=1"),
        ("compile", "A.MSX", "--output=P.MHX"),
        ("verify", "A.MSX"),
    )
]
IMPORT = Reader(
    "a.src",
    SOURCE,
    (
        "import",
        "a.src",
        "--languages=1",
        "--language-message=1",
        "--memory-start=1",
        "--memory-length=64",
        "--name=NEW",
        "--output=OUT.MES",
    ),
)
APPLY = Reader("t.csv", TABLE, ("apply", "good.MES", "t.csv", "--language=1"))
SECTIONS = Reader("A.MHX", FLASH, ("sections", "A.MHX"))
VERIFY = Reader("A.MHX", FLASH, ("verify", "A.MHX"))
TEXT_READERS = [*MSX_READERS, IMPORT, APPLY, SECTIONS, VERIFY]
READERS = [*MES_READERS, *TEXT_READERS]


class BadInputCase(CliTest):
    def prepare(self, reader: Reader, content: bytes | None = None) -> None:
        """Leaves nothing in the folder but the file and, sound, what else commands read."""
        for path in self.folder.iterdir():
            shutil.rmtree(path) if path.is_dir() and not path.is_symlink() else path.unlink()
        self.write("good.MES", MES.content())
        self.write("good.csv", TABLE)
        self.write("good.src", SOURCE)
        if content is not None:
            self.write(reader.file, content)

    def assert_refused(self, reader: Reader) -> None:
        with self.unchanged(reader.command):
            result = self.cli.run(*reader.arguments)
        self.assertEqual(result.status, REFUSED, (reader.command, result))
        self.assertNotEqual(result.err, "", reader.command)
        self.assertIn(reader.file, result.out + result.err, reader.command)
        if reader.arguments[0] != "verify":
            self.assertEqual(result.out, "", reader.command)

    def assert_taken(self, reader: Reader) -> None:
        result = self.cli.run(*reader.arguments)
        self.assertEqual(result.status, DONE, (reader.command, result))

    def assert_orderly(self, reader: Reader, content: bytes) -> None:
        """Whatever the command makes of the file: when it fails, it leaves nothing behind."""
        self.prepare(reader, content)
        before = snapshot(self.folder)
        result = self.cli.run(*reader.arguments)
        self.assertIn(result.status, (DONE, REFUSED), (reader.command, content))
        if result.status == REFUSED:
            self.assertNotEqual(result.err, "", (reader.command, content))
            self.assertEqual(snapshot(self.folder), before, (reader.command, content))

    def check(self, reader: Reader, content: bytes, sound: bool) -> None:
        self.prepare(reader, content)
        with self.subTest(reader.command, size=len(content), end=content[-40:]):
            if sound:
                self.assert_taken(reader)
            else:
                self.assert_refused(reader)


class SoundFileTest(BadInputCase):
    def test_every_command_takes_the_file_while_it_is_sound(self) -> None:
        for reader in READERS:
            self.check(reader, reader.content, sound=True)


class NoFileTest(BadInputCase):
    def test_a_missing_file(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            self.assert_refused(reader)

    def test_a_folder(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).mkdir()
            self.assert_refused(reader)

    def test_a_pipe_that_nobody_writes_to(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            os.mkfifo(self.folder / reader.file)
            self.assert_refused(reader)

    def test_a_device_without_end(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).symlink_to("/dev/zero")
            self.assert_refused(reader)

    def test_a_link_to_itself(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).symlink_to(reader.file)
            self.assert_refused(reader)

    def test_a_file_of_three_gigabytes(self) -> None:
        for reader in READERS:
            self.prepare(reader, b"")
            os.truncate(self.folder / reader.file, 3 << 30)
            self.assert_refused(reader)


class LockedFileTest(BadInputCase):
    """The program runs as a user who is bound by file modes, also where root runs the tests."""

    def setUp(self) -> None:
        super().setUp()
        if os.geteuid() == 0:
            programs = tempfile.TemporaryDirectory(prefix="vendlingua-cli-")
            self.addCleanup(programs.cleanup)
            Path(programs.name).chmod(0o755)
            self.folder.chmod(0o777)
            program = Path(shutil.copy(PROGRAM, programs.name))
            self.cli = Cli(self.folder, program, user=pwd.getpwnam("nobody").pw_uid)

    def test_every_command_takes_the_file_while_it_is_not_locked(self) -> None:
        for reader in READERS:
            self.prepare(reader, reader.content)
            for path in self.folder.iterdir():
                path.chmod(0o666)
            self.assert_taken(reader)

    def test_a_file_that_may_not_be_read(self) -> None:
        for reader in READERS:
            self.prepare(reader, reader.content)
            locked = self.folder / reader.file
            locked.chmod(0)
            names = self.names()
            result = self.cli.run(*reader.arguments)
            self.assertEqual(result.status, REFUSED, (reader.command, result))
            self.assertIn(f"{reader.file}: ", result.out + result.err)
            self.assertEqual(self.names(), names, reader.command)
            locked.chmod(0o600)
            self.assertEqual(locked.read_bytes(), reader.content, reader.command)

    def test_a_file_that_may_not_be_written(self) -> None:
        for reader in READERS:
            writers = ("put", "new-language", "apply", "rename", "display-type")
            if reader.arguments[0] in writers and reader is not APPLY:
                self.prepare(reader, reader.content)
                (self.folder / reader.file).chmod(0o444)
                self.assert_refused(reader)


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
            for size in range(len(whole)):
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
            for size in sorted(places):
                self.check(reader, whole[:size], reader.arguments[0] not in refused(size))

    def test_a_source_cut_at_each_byte(self) -> None:
        for size in range(len(SOURCE)):
            lines = SOURCE[:size].split(b"\n")
            quotes = [line.count(b"'") + line.count(b'"') for line in lines]
            sound = set(quotes) <= {0, 2} and 2 in quotes and not SOURCE[:size].endswith(b"\r")
            self.check(IMPORT, SOURCE[:size], sound)

    def test_a_table_cut_at_each_byte(self) -> None:
        for size in range(len(TABLE)):
            self.check(APPLY, TABLE[:size], is_sound_table(TABLE[:size]))

    def test_a_flash_file_cut_at_each_byte(self) -> None:
        for size in range(len(FLASH)):
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
