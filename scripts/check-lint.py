#!/usr/bin/env python3
"""Runs clang-tidy over src/ and tests/ with the compile commands of a build folder.

Most of its time goes into the headers of libraries, again for every source. So the sources of a
target are laid one behind the other into a few large files, and every finding is traced back to
the line that it stands in. Usage: check-lint.py BUILD_FOLDER [TEXT_IN_PATH]
"""

from __future__ import annotations

import bisect
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
SOURCES_AT_ONCE = 60
# The paths through the assertions of a test take the analyzer longer than all of src/; its findings
# there would say that an assertion can fail.
# Speed and large products do not matter there, and "private slots:" looks redundant.
NOT_FOR_TESTS = (
    "-clang-analyzer-*,-performance-*,-bugprone-implicit-widening-of-multiplication-result,"
    "-readability-redundant-access-specifiers"
)


class LargeFile:
    """Several sources of one target in one file."""

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


def arguments(command: str, sources: list[Path]) -> list[str]:
    """What Clang needs of GCC's command line: where headers are, macros and the language."""
    kept = ["-Wno-unknown-warning-option"]
    for folder in sorted({source.parent for source in sources}):
        kept += ["-iquote", str(folder)]
    words = iter(shlex.split(command))
    for word in words:
        if word in ("-isystem", "-I"):
            kept += [word, next(words)]
        elif word.startswith(("-I", "-D", "-std=")):
            kept.append(word)
    return kept


def unity_sources(path: Path) -> list[Path]:
    """The sources that a file of a unity build includes, or the file itself."""
    if "/Unity/" not in path.as_posix():
        return [path]
    return [Path(name) for name in re.findall(r'#include "(.*)"', path.read_text("utf-8"))]


def large_files(build: Path, wanted: str) -> list[LargeFile]:
    targets: dict[tuple[str, ...], list[Path]] = defaultdict(list)
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        for source in unity_sources(Path(entry["file"])):
            if is_ours(source, build) and wanted in str(source):
                target = re.search(r"-o (\S+\.dir)/", entry["command"])
                targets[(target[1] if target else "", entry["command"].split(" -o ")[0])].append(source)
    (build / "lint").mkdir(exist_ok=True)
    files = []
    for (_, command), sources in targets.items():
        for start in range(0, len(sources), SOURCES_AT_ONCE):
            some = sorted(sources)[start : start + SOURCES_AT_ONCE]
            path = build / "lint" / f"{len(files)}.cpp"
            files.append(LargeFile(path, arguments(command, some), some))
    return files


def main() -> int:
    build = Path(sys.argv[1]).resolve()
    files = large_files(build, sys.argv[2] if len(sys.argv) > 2 else "")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = [finding for found in pool.map(LargeFile.findings, files) for finding in found]
    print("\n".join(dict.fromkeys(findings)))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
