"""Runs vendlingua-cli as a program and tells what it did."""

from __future__ import annotations

import contextlib
import json
import os
import resource
import shutil
import stat
import subprocess
import tempfile
import unittest
from collections.abc import Iterator
from dataclasses import dataclass
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


def copy_program(folder: Path) -> Path:
    """A copy of the program, which takes its texts from there."""
    for_windows = PROGRAM.with_suffix(".exe")
    if for_windows.exists():
        shutil.copy(for_windows, folder)
    return Path(shutil.copy(PROGRAM, folder))


def is_sanitized() -> bool:
    """Whether the program looks for faults of its own, which makes it slow."""
    return b"__asan_init" in PROGRAM.read_bytes()


def limit_memory(file_size: int) -> None:
    """Lets a program that reads a file of this size have three times as much memory for its data, and
    16 MiB; called in the program before it starts. Not under a sanitizer, which reserves terabytes, and not
    when a script runs it, whose system would be limited."""
    if not is_sanitized() and not PROGRAM.read_bytes().startswith(b"#!"):
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
