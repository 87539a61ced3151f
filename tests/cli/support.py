"""Runs vendlingua-cli as a program and puts the small files together that it is tested with.

The bytes of every file are worked out here by hand; nothing is computed by the program under test.
"""

from __future__ import annotations

import contextlib
import json
import os
import resource
import stat
import subprocess
import tempfile
import unittest
from collections.abc import Iterable, Iterator
from dataclasses import dataclass, field
from pathlib import Path
from typing import Any

PROGRAM = Path(os.environ.get("VENDLINGUA_CLI", "vendlingua-cli"))
SAMPLES = Path(
    os.environ.get("VENDLINGUA_SAMPLES", Path(__file__).resolve().parents[2] / "data/samples")
)

COMMANDS = (
    "info",
    "texts",
    "put",
    "new-language",
    "export",
    "apply",
    "import",
    "compile",
    "sections",
    "proof",
    "verify",
    "check",
    "stats",
    "diff",
    "pretranslate",
    "update",
    "rename",
    "display-type",
    "recover",
)

DONE = 0
REFUSED = 1
WRONG_USAGE = 2

MSX_MESSAGES = 455
MSX_NAME_MESSAGE = 169
MSX_START = 0xFF0000
LAST_LINE_OF_NINE = b"S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC\r\n"


def limit_memory(file_size: int) -> None:
    """Lets a program that reads a file of this size have three times as much memory for its data, and
    16 MiB; called in the program before it starts. Not under a sanitizer, which reserves terabytes."""
    if b"__asan_init" not in PROGRAM.read_bytes():
        limit = 3 * file_size + (16 << 20)
        resource.setrlimit(resource.RLIMIT_DATA, (limit, limit))


@dataclass(frozen=True)
class Result:
    """How one run of the program ended."""

    status: int
    out: str
    err: str

    @property
    def json(self) -> Any:
        return json.loads(self.out)


class Cli:
    """Runs the program in one folder, as another user if one is given."""

    TIMEOUT_SECONDS = 60

    def __init__(self, folder: Path, program: Path = PROGRAM, user: int | None = None) -> None:
        self._folder = folder
        self._program = program
        self._user = user

    def run(self, *arguments: str | bytes | Path, given: bytes = b"") -> Result:
        """Runs one command with `given` on standard input. A crash, a hang or a finding of a
        sanitizer fails the test."""
        done = subprocess.run(
            [self._program, *arguments],
            cwd=self._folder,
            user=self._user,
            input=given,
            capture_output=True,
            timeout=self.TIMEOUT_SECONDS,
        )
        err = done.stderr.decode(errors="surrogateescape")
        if done.returncode not in (DONE, REFUSED, WRONG_USAGE):
            raise AssertionError(f"{arguments}: ended with {done.returncode}\n{err}")
        if "Sanitizer" in err or "runtime error:" in err or "terminate called" in err:
            raise AssertionError(f"{arguments}: {err}")
        return Result(done.returncode, done.stdout.decode(errors="surrogateescape"), err)


class CliTest(unittest.TestCase):
    """A test with a folder of its own, in which the program runs and which is removed at the end."""

    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory(prefix="vendlingua-cli-")
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        self.cli = Cli(self.folder)

    def write(self, name: str | bytes, content: bytes) -> str:
        path = self.folder / os.fsdecode(name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return os.fsdecode(name)

    def read(self, name: str | bytes) -> bytes:
        return (self.folder / os.fsdecode(name)).read_bytes()

    def names(self) -> list[str]:
        """Names of the files in the folder, sorted."""
        return sorted(path.name for path in self.folder.iterdir())

    def done(self, *arguments: str | bytes | Path, given: bytes = b"") -> Result:
        """Runs a command that must succeed without a word on stderr."""
        result = self.cli.run(*arguments, given=given)
        self.assertEqual((result.status, result.err), (DONE, ""), arguments)
        return result

    def done_with_message(self, *arguments: str | bytes | Path) -> Result:
        """Runs a command that must succeed and say something on stderr."""
        result = self.cli.run(*arguments)
        self.assertEqual(result.status, DONE, result.err)
        self.assertNotEqual(result.err, "")
        return result

    def refused(self, *arguments: str | bytes | Path, given: bytes = b"") -> Result:
        """Runs a command that must fail, say why, and leave every file as it was."""
        with self.unchanged(*arguments):
            result = self.cli.run(*arguments, given=given)
        self.assertEqual(result.status, REFUSED, (arguments, result))
        self.assert_told(result, arguments)
        return result

    def wrong_usage(self, *arguments: str | bytes | Path) -> Result:
        """Runs a command that must be turned away as wrong usage before it touches a file."""
        with self.unchanged(*arguments):
            result = self.cli.run(*arguments)
        self.assertEqual(result.status, WRONG_USAGE, (arguments, result))
        self.assert_told(result, arguments)
        return result

    def assert_told(self, result: Result, arguments: tuple[str | bytes | Path, ...]) -> None:
        """Why a command was refused stands on stderr, and with --json on standard output, too."""
        self.assertNotEqual(result.err, "", arguments)
        for line in result.err.splitlines():
            self.assertTrue(line.startswith("vendlingua-cli: "), (arguments, line))
        if "--json" not in arguments:
            self.assertEqual(result.out, "", arguments)
            return
        reason = result.json["error"]
        self.assertNotEqual(reason, "", arguments)
        self.assertTrue(result.err.endswith(on_stderr(reason)), (arguments, result))
        self.assertLessEqual(set(result.json), {"error", "notices"})

    @contextlib.contextmanager
    def unchanged(self, *about: object) -> Iterator[None]:
        before = snapshot(self.folder)
        yield
        self.assertEqual(snapshot(self.folder), before, about)


def on_stderr(text: str) -> str:
    """What is told on stderr: each line that is not empty behind the name of the program."""
    return "".join(f"vendlingua-cli: {line}\n" for line in text.splitlines() if line)


def snapshot(folder: Path) -> dict[str, object]:
    """Name and content of everything in a folder; of huge and special files only the state."""
    largest_read = 1 << 24
    entries: dict[str, object] = {}
    for path in folder.rglob("*"):
        name = str(path.relative_to(folder))
        state = path.lstat()
        if stat.S_ISREG(state.st_mode) and state.st_size <= largest_read:
            entries[name] = path.read_bytes()
        else:
            entries[name] = (state.st_mode, state.st_size, state.st_ino)
    return entries


def header(
    lang_count: int,
    width: int,
    flags: bytes,
    header_count: int,
    last_msg: int,
    mem_start: int,
    mem_length: int,
) -> bytes:
    """The 24 bytes that a .MES file begins with."""
    fields = f"{header_count:04X}{last_msg:04X}{mem_start:08X}{mem_length:04X}"
    return bytes([lang_count, width - 1]) + flags + fields.encode()


@dataclass
class MesFile:
    """A .MES file. Message m of block k reads "kmmm..": the digit of the block, then the digit of
    the message up to the width; slots behind `last_msg` read "....". `texts` replaces messages,
    and `mem_length`, if it is given, decides about `stride`.
    """

    lang_count: int = 2
    width: int = 4
    last_msg: int = 2
    flags: bytes = b"00"
    header_count: int = 1
    mem_start: int = 0x6000
    stride: int = 3
    mem_length: int | None = None
    names: Iterable[bytes] = (b"Default", b"ITALIANO", b"ENGLISH")
    texts: dict[tuple[int, int], bytes] = field(default_factory=dict)

    def __post_init__(self) -> None:
        if self.mem_length is not None and self.lang_count != 0:
            self.stride = self.mem_length // self.lang_count // self.width

    @property
    def block_length(self) -> int:
        return self.width * (self.stride + 1) + 20

    def block(self, block: int) -> int:
        """Where a block begins."""
        return 24 + block * self.block_length

    def at(self, block: int, message: int) -> int:
        """Where a message begins."""
        return self.block(block) + 20 + message * self.width

    def message(self, block: int, message: int) -> bytes:
        text = f"{block % 10}".encode() + f"{message % 10}".encode() * (self.width - 1)
        return self.texts.get((block, message), text)

    def messages(self, block: int) -> bytes:
        """All messages of one language."""
        return b"".join(self.message(block, m) for m in range(self.last_msg + 1))

    def header(self) -> bytes:
        length = self.mem_length
        if length is None:
            length = self.lang_count * self.stride * self.width
        return header(
            self.lang_count,
            self.width,
            self.flags,
            self.header_count,
            self.last_msg,
            self.mem_start,
            length,
        )

    def content(self) -> bytes:
        content = self.header()
        unused = b"." * self.width * (self.stride - self.last_msg)
        for block, name in enumerate(self.names):
            content += name.ljust(20) + self.messages(block) + unused
        return content


def s_record(kind: str, address: int, data: bytes) -> bytes:
    """One S-record, without its line end."""
    address_bytes = {"0": 2, "1": 2, "2": 3, "3": 4}[kind]
    body = bytes([address_bytes + len(data) + 1]) + address.to_bytes(address_bytes, "big") + data
    return f"S{kind}{body.hex().upper()}{~sum(body) & 0xFF:02X}".encode()


def s_records(kind: str, start: int, image: bytes) -> bytes:
    """A memory image as lines of 16 bytes, each ended by CR LF."""
    return b"".join(
        s_record(kind, start + i, image[i : i + 16]) + b"\r\n" for i in range(0, len(image), 16)
    )


def msx_message(language: int, message: int) -> bytes:
    if message == MSX_NAME_MESSAGE:
        return f"   LANGUAGE {language}   ".encode()
    return f"L{language} M{message}".ljust(16).encode()


def msx_header(model: str = "0417") -> bytes:
    return s_record("0", 0, f"MP{model}AA        ".encode()) + b"\r\n"


def msx_lines(language: int) -> bytes:
    """The 455 lines of one language."""
    image = b"".join(msx_message(language, m) for m in range(MSX_MESSAGES))
    return s_records("2", MSX_START + (language - 1) * len(image), image)


def msx_file(languages: int, model: str = "0417") -> bytes:
    """A .MSX file: header record and 455 lines a language. Message 169 of language k is
    "   LANGUAGE k   ", message m of the others is "Lk Mm"."""
    return msx_header(model) + b"".join(msx_lines(k + 1) for k in range(languages))


def msx_at(language: int, message: int) -> int:
    """Where the line of a message begins in msx_file()."""
    characters_of_line = 2 + 2 + 6 + 32 + 2 + 2
    line = (language - 1) * MSX_MESSAGES + message
    return len(msx_header()) + line * characters_of_line


def decode_with_srec_cat(path: Path, start: int) -> bytes:
    """The memory image of an S-record file, from address `start` on, as srec_cat reads it."""
    output = path.with_name(path.name + ".srec_cat")
    command = ["srec_cat", path, "-motorola", "-offset", f"-0x{start:X}", "-o", output, "-binary"]
    subprocess.run(command, check=True, capture_output=True)
    return output.read_bytes()


def decode_with_objcopy(path: Path) -> bytes:
    """The memory image of an S-record file, from its lowest address on, as objcopy reads it."""
    output = path.with_name(path.name + ".objcopy")
    command = ["objcopy", "-I", "srec", "-O", "binary", path, output]
    subprocess.run(command, check=True, capture_output=True)
    return output.read_bytes()
