"""Runs vendlingua-cli under tests/torture/faults.cpp and judges what is left on the disk.

A scenario is one command on a small folder. After a fault every file holds what it held before, or what
the command makes of it, or can be put back by "recover"; no other file changes, and nothing but an undo
file or a hidden temporary file may be left by a program that was killed.
"""

from __future__ import annotations

import os
import re
import signal
import subprocess
import sys
from collections.abc import Callable, Iterator
from dataclasses import dataclass, field
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "cli"))
from message_files import MesFile, msx_file  # noqa: E402
from support import PROGRAM  # noqa: E402

FAULTS = Path(os.environ.get("VENDLINGUA_FAULTS", "libvendlingua_faults.so"))
LEFTOVER = re.compile(r"~.*\.undo|\.vendlingua-[0-9]+\.tmp")
TIMEOUT_SECONDS = 60

Files = dict[str, bytes]


class Lost(AssertionError):
    """Bytes or edits are lost: what must never happen."""


def files_of(folder: Path) -> Files:
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.is_file()}


def fill(folder: Path, files: Files) -> None:
    """Makes the folder hold these files, and nothing else. It may be where something is mounted."""
    folder.mkdir(parents=True, exist_ok=True)
    for path in folder.iterdir():
        path.unlink()
    for name, content in files.items():
        (folder / name).write_bytes(content)


@dataclass(frozen=True)
class Run:
    """How a run of the program ended; a signal is a negative status."""

    status: int
    err: str

    @property
    def killed(self) -> bool:
        return self.status == -signal.SIGKILL


def run(folder: Path, *arguments: str, faults: dict[str, str] | None = None) -> Run:
    """Runs a command in the folder, with the faults if there are any. A crash or a hang is an error."""
    environment = dict(os.environ)
    if faults is not None:
        environment |= {"LD_PRELOAD": str(FAULTS), "FAULTS_FOLDER": str(folder), **faults}
        # The sanitizers want to be loaded first.
        environment["ASAN_OPTIONS"] = "verify_asan_link_order=0:detect_leaks=0"
    done = subprocess.run(
        [PROGRAM, *arguments],
        cwd=folder,
        env=environment,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.PIPE,
        timeout=TIMEOUT_SECONDS,
    )
    err = done.stderr.decode(errors="replace")
    if done.returncode not in (0, 1, -signal.SIGKILL) or "Sanitizer" in err:
        raise Lost(f"{arguments} ended with {done.returncode}: {err}")
    return Run(done.returncode, err)


@dataclass(frozen=True)
class Scenario:
    """A command, the files that it begins with, and those that it may change."""

    name: str
    arguments: tuple[str, ...]
    before: Files
    targets: tuple[str, ...]
    is_set: bool = False  # several files that are made together
    after: Files = field(default_factory=dict, compare=False)

    def learn(self, folder: Path) -> None:
        """What the command does when nothing goes wrong."""
        fill(folder, self.before)
        done = run(folder, *self.arguments)
        if done.status != 0:
            raise Lost(f"{self.name}: {done.err}")
        self.after.update(files_of(folder))

    def judge(self, folder: Path, done: Run, label: str) -> None:
        """Raises Lost when a file is neither the old one nor the new one, nor can be put back."""
        left = files_of(folder)
        changed = {n: c for n, c in left.items() if not LEFTOVER.fullmatch(n)}
        if done.status == 0 and changed != self.after:
            raise Lost(f"{label}: says that it is done, but it is not")
        if done.killed:
            for name in self.recoverable():
                run(folder, "recover", name)
        elif done.status != 0:
            self.judge_failure(folder, changed, done, label)
        self.judge_files(files_of(folder), label)

    def judge_failure(self, folder: Path, changed: Files, done: Run, label: str) -> None:
        for name in self.recoverable():
            if changed.get(name) != self.before[name] and "could not be put back" in done.err:
                run(folder, "recover", name)
            elif changed.get(name) != self.before[name]:
                raise Lost(f"{label}: failed and left {name} changed: {done.err}")

    def recoverable(self) -> list[str]:
        """The files that are changed in place; those of a set take the place of older ones."""
        if self.is_set:
            return []
        return [name for name in self.targets if name in self.before and name.endswith(("MES", "MSX"))]

    def judge_files(self, left: Files, label: str) -> None:
        for name in self.before.keys() | self.after.keys() | left.keys():
            if LEFTOVER.fullmatch(name):
                continue
            states = [self.before.get(name)]
            if name in self.targets:
                states.append(self.after.get(name))
            if left.get(name) not in states:
                raise Lost(f"{label}: {name} is neither the old file nor the new one")

    def repeat(self, folder: Path, label: str) -> None:
        """Once nothing fails any more the command does what it always does."""
        left = files_of(folder)
        for name in self.before.keys() | self.after.keys():
            (folder / name).unlink(missing_ok=True)
        for name, content in self.before.items():
            (folder / name).write_bytes(content)
        if run(folder, *self.arguments).status != 0:
            raise Lost(f"{label}: {sorted(left)} keep the command from being run again")
        made = {n: c for n, c in files_of(folder).items() if not LEFTOVER.fullmatch(n)}
        if made != self.after:
            raise Lost(f"{label}: run again, it makes something else")


def calls_of(scenario: Scenario, folder: Path, log: Path) -> list[str]:
    """Every call of the system that the command makes on the folder, as the log has it."""
    fill(folder, scenario.before)
    log.unlink(missing_ok=True)
    run(folder, *scenario.arguments, faults={"FAULTS_LOG": str(log)})
    return log.read_text().splitlines()


def faults_at(number: int) -> Iterator[dict[str, str]]:
    """All that can happen at one call."""
    for kind in ("ENOSPC", "EIO", "EINTR", "EACCES", "short", "kill", "kill-after", "kill-half"):
        yield {"FAULTS_AT": str(number), "FAULTS_KIND": kind}
    for kind in ("ENOSPC", "EIO"):
        yield {"FAULTS_AT": str(number), "FAULTS_KIND": kind, "FAULTS_STAY": "1"}


MES = MesFile(names=(b"Default", b"ITALIANO", b"ENGLISH", b"DEUTSCH"))
SOURCE = b"".join(
    b" ORG $%d000\r\n DC.B '%s'\r\n DC.B '%s'\r\n" % texts
    for texts in ((6, b"ABCD", b"EFGH"), (7, b"IJKL", b"MNOP"))
)
TABLE = b"message,origin,text\r\n0,,new\r\n2,,wxyz\r\n"
NEW_FILE = (
    "A.SRC",
    "--languages=2",
    "--language-message=1",
    "--memory-start=&H6000",
    "--memory-length=&H2000",
    "--name=ONE",
    "--name=TWO",
    "--output=NEW.MES",
)
IMPORT = ("import", *NEW_FILE)
BOARD = MesFile(flags=b"03", mem_start=0xFF8000, width=16, stride=20, last_msg=19)
COMPILED = ("FW0417AB.MHX", "FW0417AB.MSX", "FW0417AB.mtx", *(f"FW0417AB.SA{n}" for n in range(5)))


def scenarios() -> list[Scenario]:
    put = ("put", "A.MES", "--message=1", "--text=NEW1")
    compile_mes = ("compile", "B.MES", "--languages=1,2", "--output=FW0417AB.MHX")
    return [
        Scenario("put", (*put, "--language=2"), {"A.MES": MES.content()}, ("A.MES",)),
        Scenario(
            "put that completes a language",
            (*put, "--language=3"),
            {"A.MES": MES.content()[: MES.at(3, 1) + 1]},
            ("A.MES",),
        ),
        Scenario(
            "put into a .MSX file",
            ("put", "A.MSX", "--language=2", "--message=200", "--text=NEW"),
            {"A.MSX": msx_file(2)},
            ("A.MSX",),
        ),
        Scenario(
            "apply",
            ("apply", "A.MES", "t.csv", "--language=1"),
            {"A.MES": MES.content(), "t.csv": TABLE},
            ("A.MES",),
        ),
        Scenario(
            "new-language",
            ("new-language", "A.MES", "--from=1", "--name=NEW"),
            {"A.MES": MES.content()},
            ("A.MES",),
        ),
        Scenario(
            "rename",
            ("rename", "A.MES", "--language=2", "--name=NEW"),
            {"A.MES": MES.content()},
            ("A.MES",),
        ),
        Scenario("display-type", ("display-type", "A.MES", "cyrillic"), {"A.MES": MES.content()}, ("A.MES",)),
        Scenario(
            "export over an older table",
            ("export", "A.MES", "--language=1", "--output=t.csv"),
            {"A.MES": MES.content(), "t.csv": b"old"},
            ("t.csv",),
        ),
        Scenario("import", IMPORT, {"A.SRC": SOURCE}, ("NEW.MES",)),
        Scenario(
            "import over an older file", IMPORT, {"A.SRC": SOURCE, "NEW.MES": b"old"}, ("NEW.MES",)
        ),
        Scenario(
            "update",
            ("update", *NEW_FILE, "--from=A.MES"),
            {"A.SRC": SOURCE, "A.MES": MES.content()},
            ("NEW.MES",),
        ),
        Scenario(
            "compile over older files",
            compile_mes,
            {"B.MES": BOARD.content(), **{name: b"old" for name in COMPILED}},
            COMPILED,
            is_set=True,
        ),
        Scenario("compile", compile_mes, {"B.MES": BOARD.content()}, COMPILED, is_set=True),
    ]


def torture(
    scenario: Scenario, work: Path, wanted: Callable[[int], bool], tell: Callable[[str], None]
) -> int:
    """Runs a scenario with the faults that are wanted; returns how many there were."""
    folder, log = work / "files", work / "calls"
    scenario.learn(folder)
    calls = calls_of(scenario, folder, log)
    count = 0
    for number in range(1, len(calls) + 1):
        for faults in faults_at(number):
            count += 1
            if not wanted(count):
                continue
            label = f"{scenario.name}, call {number} ({calls[number - 1][:60]}): {faults}"
            tell(label)
            fill(folder, scenario.before)
            scenario.judge(folder, run(folder, *scenario.arguments, faults=faults), label)
            scenario.repeat(folder, label)
    return count
