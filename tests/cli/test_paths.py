"""Files and folders of any name: what the file system takes, every command takes."""

from __future__ import annotations

import os
import unittest
from collections.abc import Iterator

from message_files import MesFile, s_record
from on_windows import ONLY_UNICODE, ON_WINDOWS, not_on_windows
from support import DONE, REFUSED, WRONG_USAGE, Cli, CliTest, Result, copy_program

NAMES_ON_WINDOWS = (
    "Wässer größer".encode(),
    "Меню".encode(),
    b"'quotes` %HOMEPATH% ^c;d&f",
    b"%1 %2 %s %n %00",
    b"-rf",
    "\u202egnl.\U0001f600".encode(),
    255 * b"x",
)
NAMES_ELSEWHERE = (
    b"x\xff\xfe y",  # in no encoding
    b"caff\xe8",  # in Windows-1252
    b"\xed\xa0\x80 \xc0\xaf",  # half of a surrogate pair, an overlong separator
    b"line\nbreak\r\ttab",
    b"'quotes\" `date` $HOME",
    b"%1 %2 %s %n %00",
    b"a\\b;c:d|e&f<g>h",
    b"-rf",
    b" ",
    b"\x01\x1b[31m\x7f",
    "\u202egnl.\U0001f600".encode(),
    255 * b"x",
    200 * b"y" + 2 * b"\xff",
)
NAMES = NAMES_ON_WINDOWS if ON_WINDOWS else NAMES_ELSEWHERE

TABLE = b"message,origin,text\r\n1,,new\r\n"
SOURCE = b"LABEL   DC.B 'ABCD'\r\n        DC.B 'EFGH'\r\n"
FLASH_FILE = s_record("2", 0xFF8000, b"x") + b"\r\n"

# The commands with what they need; {} stands for the folder.
COMMANDS = (
    ("info", "{}A.MES"),
    ("texts", "{}A.MES", "--language=1"),
    ("put", "{}A.MES", "--language=1", "--message=1", "--text=x"),
    ("new-language", "{}A.MES", "--name=NEW"),
    ("export", "{}A.MES", "--language=1", "--output={}new.csv"),
    ("apply", "{}A.MES", "{}a.csv", "--language=1"),
    (
        "import",
        "{}a.src",
        "--languages=1",
        "--language-message=1",
        "--memory-start=&H6000",
        "--memory-length=&H2000",
        "--name=NEW",
        "--output={}NEW.MES",
    ),
    ("compile", "{}A.MES", "--languages=1,2", "--output={}FW0417AB.HEX"),
    ("sections", "{}A.MHX", "--output={}OUT"),
    ("verify", "{}A.MES"),
)
WRITTEN = {b"new.csv", b"NEW.MES", b"FW0417AB.HEX", b"FW0417AB.HSX", b"OUT.mtx", b"OUT.SA1"}


def in_folder(folder: bytes, arguments: tuple[str, ...]) -> list[bytes]:
    return [argument.encode().replace(b"{}", folder) for argument in arguments]


class PathsTest(CliTest):
    def test_every_command_works_in_a_folder_of_any_name(self) -> None:
        for folder in self.folders():
            self.fill(folder)
            for command in COMMANDS:
                self.assertEqual(self.text_of(DONE, *in_folder(folder, command)).err, "", command)
            self.assertLessEqual(WRITTEN, set(os.listdir(os.fsencode(self.folder) + b"/" + folder)))

    def test_every_command_prints_json_in_a_folder_of_any_name(self) -> None:
        for folder in self.folders():
            self.fill(folder)
            for command in COMMANDS:
                result = self.text_of(DONE, *in_folder(folder, command), b"--json")
                self.assertIsInstance(result.json, dict)

    def test_every_refusal_is_text(self) -> None:
        for folder in self.folders():
            for command in COMMANDS:
                result = self.text_of(REFUSED, *in_folder(folder, command))
                self.assertIn("/", result.err)

    def test_findings_in_a_file_of_any_name_are_text(self) -> None:
        for folder in self.folders():
            self.fill(folder)
            (self.folder / os.fsdecode(folder + b"A.MES")).write_bytes(b"\x01")
            (self.folder / os.fsdecode(folder + b"a.csv")).write_bytes(b"no table \xff")
            (self.folder / os.fsdecode(folder + b"a.src")).write_bytes(b" DC.B 'AB\xff\r\n")
            (self.folder / os.fsdecode(folder + b"A.MHX")).write_bytes(b"no record \xff")
            for command in COMMANDS:
                self.text_of(REFUSED, *in_folder(folder, command))
                self.text_of(REFUSED, *in_folder(folder, command), b"--json")

    @not_on_windows(ONLY_UNICODE)
    def test_wrong_usage_is_told_in_text(self) -> None:
        for arguments in ((b"\xff",), (b"info", b"A.MES", b"\xff\xfe"), (b"info", b"--\xff", b"A.MES")):
            self.text_of(WRONG_USAGE, *arguments)

    @not_on_windows(ONLY_UNICODE)
    def test_the_copy_has_the_name_of_the_flash_file(self) -> None:
        self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
        output = b"--output=FW0417AB\xe8.MHX"
        result = self.text_of(DONE, b"compile", b"A.MES", b"--languages=1,2", output)
        self.assertEqual(result.err, "")
        self.assertIn(os.fsdecode(b"FW0417AB\xe8.MSX"), self.names())

    def test_the_program_finds_its_texts_in_a_folder_of_any_name(self) -> None:
        self.write("A.MHX", b"no record\r\n")
        for folder in self.folders():
            programs = self.folder / os.fsdecode(folder)
            lines = [b"line %d" % number for number in range(1, 80)]
            (programs / "english.lng").write_bytes(b"\r\n".join(lines))
            self.cli = Cli(self.folder, copy_program(programs))
            self.assertIn("line 38", self.text_of(REFUSED, b"sections", b"A.MHX").err)

    def folders(self) -> Iterator[bytes]:
        """A folder of every name, as it has to stand before the names of its files."""
        for name in NAMES:
            os.mkdir(os.fsencode(self.folder) + b"/" + name)
            yield b"./" + name + b"/"

    def fill(self, folder: bytes) -> None:
        contents = {
            b"A.MES": MesFile().content(),
            b"a.csv": TABLE,
            b"a.src": SOURCE,
            b"A.MHX": FLASH_FILE,
        }
        for name, content in contents.items():
            self.write(folder + name, content)

    def text_of(self, status: int, *arguments: bytes) -> Result:
        """Runs a command that ends with `status`; what it prints must be UTF-8."""
        result = self.cli.run(*arguments)
        self.assertEqual(result.status, status, (arguments, result))
        for text in (result.out, result.err):
            self.assertEqual(text.encode(errors="replace").decode(), text, arguments)
        return result


if __name__ == "__main__":
    unittest.main()
