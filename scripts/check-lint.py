#!/usr/bin/env python3
"""Runs clang-tidy over src/ and tests/ with the compile commands of a build folder.

Most of its time goes into the headers of libraries, again for every source. So the sources are laid
one behind the other into a few large files, and every finding is traced back to the line that it
stands in. Usage: check-lint.py BUILD_FOLDER [TEXT_IN_PATH]
"""

from __future__ import annotations

import bisect
import itertools
import json
import os
import re
import shlex
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
# The paths through the assertions of a test take the analyzer longer than all of src/; its findings
# there would say that an assertion can fail.
# Speed and large products do not matter there, and "private slots:" looks redundant.
NOT_FOR_TESTS = (
    "-clang-analyzer-*,-performance-*,-bugprone-implicit-widening-of-multiplication-result,"
    "-readability-redundant-access-specifiers"
)
# How many states of a function the analyzer looks at. It looks into every function all the same, but with
# three times as many states it takes several times as long over a few large ones.
ANALYZER = ["-Xclang", "-analyzer-config", "-Xclang", "max-nodes=75000"]


class LargeFile:
    """Several sources in one file, compiled with all that they need together."""

    def __init__(self, path: Path, command: list[str], sources: list[Path]) -> None:
        self.path = path
        self.command = command
        self.checks = NOT_FOR_TESTS if ROOT / "tests" in sources[0].parents else ""
        self.first_lines: list[int] = []
        self.sources = sources
        lines: list[str] = []
        for source in sources:
            self.first_lines.append(len(lines) + 1)
            lines += source.read_text(encoding="utf-8").splitlines()
        # A file has one main(); .clang-tidy knows the others by these names.
        mains = [k for k, line in enumerate(lines) if line.startswith("int main(")]
        for number, k in enumerate(mains[1:], start=2):
            lines[k] = lines[k].replace("main", f"Main{number}", 1)
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def origin(self, line: int) -> str:
        index = bisect.bisect_right(self.first_lines, line) - 1
        return f"{self.sources[index].relative_to(ROOT)}:{line - self.first_lines[index] + 1}"

    def findings(self) -> list[str]:
        result = subprocess.run(
            ["clang-tidy", "--quiet", f"--config-file={ROOT / '.clang-tidy'}",
             f"--checks={self.checks}", str(self.path), "--", *self.command],
            capture_output=True, text=True, check=False,
        )  # fmt: skip
        found = [line for line in result.stdout.splitlines() if re.search(r": (error|note): ", line)]
        if result.returncode != 0 and not found:
            found = [f"{self.path}: clang-tidy failed: {result.stderr[-2000:]}"]
        place = re.compile(rf"^{re.escape(str(self.path))}:(\d+)")
        return [place.sub(lambda match: self.origin(int(match[1])), line) for line in found]


def is_ours(source: Path, build: Path) -> bool:
    below = [ROOT / "src", ROOT / "tests"]
    return build not in source.parents and any(folder in source.parents for folder in below)


def arguments(command: str) -> dict[str, list[str]]:
    """What Clang needs of a command line: where headers are, macros and the language. A macro, by whose
    name its argument is known, can have one value only."""
    kept: dict[str, list[str]] = {}
    words = iter(shlex.split(command))
    for word in words:
        if word in ("-isystem", "-I"):
            folder = next(words)
            kept[folder] = [word, folder]
        elif word.startswith(("-I", "-D", "-std=")):
            kept[word.split("=")[0]] = [word]
    return kept


def unity_sources(path: Path) -> list[Path]:
    """The sources that a file of a unity build includes, or the file itself."""
    if "/Unity/" not in path.as_posix():
        return [path]
    return [Path(name) for name in re.findall(r'#include "(.*)"', path.read_text("utf-8"))]


class Group:
    """The sources that are laid into one file, with the arguments of all of them."""

    def __init__(self) -> None:
        self.sources: set[Path] = set()
        self.arguments: dict[str, list[str]] = {}

    def large_file(self, path: Path) -> LargeFile:
        sources = sorted(self.sources)
        command = [*ANALYZER, "-Wno-unknown-warning-option"]
        command += itertools.chain.from_iterable(self.arguments.values())
        for folder in sorted({source.parent for source in sources}):
            command += ["-iquote", str(folder)]
        return LargeFile(path, command, sources)


def large_files(build: Path, wanted: str) -> list[LargeFile]:
    groups: dict[str, Group] = defaultdict(Group)
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        for source in unity_sources(Path(entry["file"])):
            if is_ours(source, build) and wanted in str(source):
                qt = "windows" if "-DQT_" in entry["command"] else "core"
                group = groups[f"{source.relative_to(ROOT).parts[0]}-{qt}"]
                group.sources.add(source)
                group.arguments.update(arguments(entry["command"]))
    folder = build / "lint"
    folder.mkdir(exist_ok=True)
    return [groups[name].large_file(folder / f"{name}.cpp") for name in sorted(groups)]


def main() -> int:
    build = Path(sys.argv[1]).resolve()
    files = large_files(build, sys.argv[2] if len(sys.argv) > 2 else "")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = [finding for found in pool.map(LargeFile.findings, files) for finding in found]
    print("\n".join(dict.fromkeys(findings)))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
