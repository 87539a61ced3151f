"""Every command is handed files that are damaged, hostile or not there.

Such a file is refused: exit status 1, a reason that names the file, no output file, and the file
itself as it was. The program never crashes, hangs, or succeeds with half of a file.
"""

from __future__ import annotations

import shutil
from dataclasses import dataclass

from message_files import MesFile, msx_file, s_records
from support import DONE, REFUSED, CliTest, snapshot

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
