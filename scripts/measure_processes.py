"""Measures whole processes: the median of their user + system time, and the largest peak memory."""

from __future__ import annotations

import os
import statistics
import subprocess
import sys
from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Program:
    """Commands that run one after another. `outputs` are files that they must not find."""

    commands: list[list[str]]
    outputs: list[Path] = field(default_factory=list)
    status: int = 0
    prepare: Callable[[], object] = lambda: None


@dataclass
class Figure:
    cpu_ms: float
    peak_kib: int


def peak_kib(command: list[str]) -> int:
    """A process starts with the peak of the one that forked it, so a small one has to."""
    timed = ["/usr/bin/time", "-f", "%M", *command]
    result = subprocess.run(timed, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    return int(result.stderr.split()[-1])


def cpu_ms_of(command: list[str], status: int) -> float:
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, wait_status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(wait_status)
    if process.returncode != status:
        sys.exit(f"failed: {' '.join(command)}")
    return 1000 * (usage.ru_utime + usage.ru_stime)


def run_once(program: Program) -> float:
    """User + system time of its processes in milliseconds."""
    program.prepare()
    for output in program.outputs:
        output.unlink(missing_ok=True)
    return sum(cpu_ms_of(command, program.status) for command in program.commands)


def compare(programs: dict[str, Program], runs: int) -> dict[str, Figure]:
    cpu_ms: dict[str, list[float]] = {name: [] for name in programs}
    for _ in range(runs):
        for name, program in programs.items():
            cpu_ms[name].append(run_once(program))
    return {
        name: Figure(
            statistics.median(cpu_ms[name]), max(peak_kib(command) for command in program.commands)
        )
        for name, program in programs.items()
    }


def table(title: str, figures: dict[str, Figure]) -> str:
    base = next(iter(figures.values())).cpu_ms
    rows = [f"| {title} | user + system | x Vendlingua | peak memory |", "|---|---|---|---|"]
    for name, figure in figures.items():
        rows.append(
            f"| {name} | {figure.cpu_ms:.1f} ms | {figure.cpu_ms / base:.2f} "
            f"| {figure.peak_kib / 1024:.1f} MiB |"
        )
    return "\n".join(rows) + "\n"
