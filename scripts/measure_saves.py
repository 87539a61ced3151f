"""Measures a save of a whole language beside SQLite, which keeps the same promise: what is cut off leaves the
old state or the new one."""

from __future__ import annotations

import json
import os
import sqlite3
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

LANGUAGE_BYTES = 455 * 16
COMMITS = 300


def save_ms(bench: Path, folder: Path) -> float:
    """Wall clock of a save in which every message changed."""
    result = subprocess.run(
        [str(bench), "--benchmark_filter=SaveChangedLanguage", "--benchmark_format=json"],
        env={**os.environ, "TMPDIR": str(folder)},
        capture_output=True,
        check=True,
        text=True,
    )
    (figure,) = json.loads(result.stdout)["benchmarks"]
    return float(figure["real_time"])


def commit_ms(folder: Path) -> float:
    """Wall clock of a transaction that replaces as many bytes, with SQLite's rollback journal."""
    database = sqlite3.connect(folder / "messages.db", isolation_level=None)
    database.execute("PRAGMA journal_mode = DELETE")
    database.execute("PRAGMA synchronous = FULL")
    database.execute("CREATE TABLE language (texts BLOB)")
    database.execute("INSERT INTO language VALUES (?)", (bytes(LANGUAGE_BYTES),))
    times = []
    for number in range(COMMITS):
        texts = bytes([number % 256]) * LANGUAGE_BYTES
        start = time.perf_counter()
        database.execute("UPDATE language SET texts = ?", (texts,))
        times.append(1000 * (time.perf_counter() - start))
    database.close()
    return statistics.median(times)


def measure_saves(bench: Path, disk: Path) -> str:
    """A table; `disk` is a folder on one. In memory a flush takes no time."""
    rows = [
        f"| Changing {LANGUAGE_BYTES:,} bytes of a file, wall clock | in memory | on the disk |",
        "|---|---|---|",
    ]
    for name, measure in (
        ("vendlingua, save of a language", lambda folder: save_ms(bench, folder)),
        ("SQLite, commit with a rollback journal", commit_ms),
    ):
        times = []
        for place in (Path("/dev/shm"), disk):
            with tempfile.TemporaryDirectory(dir=place) as folder:
                times.append(measure(Path(folder)))
        rows.append(f"| {name} | {times[0]:.2f} ms | {times[1]:.2f} ms |")
    return "\n".join(rows) + "\n"
