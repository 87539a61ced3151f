"""Measures the windows on the X display of the environment: how soon a program shows its first window,
how much memory it holds then, and how long commands keep the user waiting.

A window counts as shown when the X server reports that something was painted into it.
"""

from __future__ import annotations

import json
import statistics
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

from Xlib import X, display

RUNS = 21
SETTLING_SECONDS = 0.3


@dataclass
class Start:
    first_paint_ms: float
    resident_kib: int


def wait_for_paint(connection: display.Display) -> None:
    """Blocks until a window that was mapped since is painted."""
    report_any = 3
    while True:
        event = connection.next_event()
        if event.type == X.MapNotify and not event.override:
            event.window.damage_create(report_any)
            connection.sync()
        elif event.type == connection.extension_event.DamageNotify:
            return


def resident_kib(process: int) -> int:
    status = Path(f"/proc/{process}/status").read_text(encoding="ascii")
    return int(next(line for line in status.splitlines() if line.startswith("VmRSS")).split()[1])


def start_once(connection: display.Display, command: list[str]) -> Start:
    began = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wait_for_paint(connection)
    first_paint_ms = 1000 * (time.monotonic() - began)
    time.sleep(SETTLING_SECONDS)
    start = Start(first_paint_ms, resident_kib(process.pid))
    process.kill()
    process.wait()
    while connection.pending_events():
        connection.next_event()
    return start


def measure_starts(title: str, programs: dict[str, list[str]]) -> str:
    # One connection for all runs: a server that loses its last client starts anew.
    connection = display.Display()
    connection.damage_query_version()
    connection.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
    connection.sync()
    starts: dict[str, list[Start]] = {name: [] for name in programs}
    for _ in range(RUNS):
        for name, command in programs.items():
            starts[name].append(start_once(connection, command))
    rows = [
        f"| {title}, median of {RUNS} | first painted window | resident memory |",
        "|---|---|---|",
    ]
    for name, many in starts.items():
        first_paint_ms = statistics.median(start.first_paint_ms for start in many)
        memory = statistics.median(start.resident_kib for start in many)
        rows.append(f"| {name} | {first_paint_ms:.1f} ms | {memory / 1024:.1f} MiB |")
    return "\n".join(rows) + "\n"


def output_of(*command: str | Path) -> str:
    quiet = subprocess.DEVNULL
    result = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=quiet, text=True)
    return result.stdout


def measure_latency(title: str, program: Path) -> str:
    rows = [f"| {title} | median | 99th percentile | longest |", "|---|---|---|---|"]
    for row in json.loads(output_of(program)):
        rows.append(
            f"| {row['name']} | {row['median']:.1f} ms | {row['p99']:.1f} ms "
            f"| {row['longest']:.1f} ms |"
        )
    return "\n".join(rows) + "\n"


def measure_desk_memory(desk_latency: Path) -> str:
    memory = statistics.median(int(output_of(desk_latency, "memory")) for _ in range(5))
    return f"With the desk open on 455 messages the program occupies {memory / 1024:.1f} MiB.\n"
