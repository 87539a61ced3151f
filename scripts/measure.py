#!/usr/bin/env python3
"""Measures Vendlingua beside srec_cat and objcopy on the same bytes, beside gettext and the Translate Toolkit
on the same texts, its saves beside SQLite's, and its windows beside Qt Linguist's, and writes
docs/performance.md.

Figures of conversions are of whole processes: the median of their user + system time and the largest
peak memory over several runs, the programs taking turns. scripts/measure.sh builds what this needs.
"""

from __future__ import annotations

import json
import os
import platform
import random
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

import measure_windows
from measure_languages import SAMPLE, Samples, measure_languages
from measure_processes import Program, compare, run_once, table
from measure_saves import measure_saves

ROOT = Path(__file__).resolve().parent.parent
PROGRAMS = ROOT / "build/bench/bin"
BENCHES = ROOT / "build/bench/tests"
QT_LINGUIST = "/usr/lib/qt6/bin/linguist"
MIB = 1 << 20


def to_records(image: Path, records: Path) -> list[str]:
    return ["objcopy", "-I", "binary", "-O", "srec", str(image), str(records)]


def measure_records(folder: Path) -> str:
    image = folder / "image.bin"
    image.write_bytes(random.Random(1).randbytes(16 * MIB))
    ours, theirs, third, back = (folder / n for n in ("a.srec", "b.srec", "c.srec", "back.bin"))
    tool = str(BENCHES / "srecord_tool")
    written = compare(
        {
            "vendlingua": Program([[tool, "write", str(image), str(ours)]], [ours]),
            "objcopy": Program([to_records(image, theirs)], [theirs]),
            "srec_cat": Program(
                [["srec_cat", str(image), "-binary", "-o", str(third), "-motorola"]], [third]
            ),
        },
        11,
    )
    read = compare(
        {
            "vendlingua": Program([[tool, "read", str(ours), str(back)]], [back]),
            "objcopy": Program(
                [["objcopy", "-I", "srec", "-O", "binary", str(ours), str(back)]], [back]
            ),
            "srec_cat": Program([["srec_cat", str(ours), "-o", str(back), "-binary"]], [back]),
        },
        11,
    )
    if back.read_bytes() != image.read_bytes():
        sys.exit("the image did not survive")
    text = table("Writing S-records of a 16 MiB image", written)
    return text + "\n" + table("Reading them back, checksums checked", read)


def measure_sizes(folder: Path) -> str:
    tool = str(BENCHES / "srecord_tool")
    image, records, back = (folder / name for name in ("image.bin", "a.srec", "back.bin"))
    rows = ["| Size of the image | writing | reading |", "|---|---|---|"]
    for size in (1, 4, 16):
        image.write_bytes(random.Random(size).randbytes(size * MIB))
        write = [tool, "write", str(image), str(records)]
        read = [tool, "read", str(records), str(back)]
        cpu_ms = [
            statistics.median(run_once(Program([command], [output])) for _ in range(11))
            for command, output in ((write, records), (read, back))
        ]
        rows.append(f"| {size} MiB | {cpu_ms[0]:.1f} ms | {cpu_ms[1]:.1f} ms |")
    return "\n".join(rows) + "\n"


def measure_compile(folder: Path) -> str:
    flash, copy, image, theirs = (
        folder / n for n in ("FW0417AB.MHX", "MP0417AA.MSX", "flash.bin", "theirs.srec")
    )
    command = [str(PROGRAMS / "vendlingua-cli"), "compile", str(ROOT / "data/samples/FW0417AB.MES")]
    command += ["--languages", "1,2,3,4,5,6,7,8,9", "--output", str(flash), "--copy", str(copy)]
    run_once(Program([command]))
    written = [flash, copy, *folder.glob("FW0417AB.[mS]*")]
    offset = ["-offset", "-0xFF0000"]
    to_image = ["srec_cat", str(flash), *offset, "-o", str(image), "-binary"]
    subprocess.run(to_image, check=True, stderr=subprocess.DEVNULL)
    figures = compare(
        {
            "vendlingua": Program([command], written),
            "objcopy": Program([to_records(image, theirs)], [theirs]),
            "srec_cat": Program(
                [["srec_cat", str(image), "-binary", "-o", str(theirs), "-motorola"]], [theirs]
            ),
        },
        101,
    )
    size = f"{image.stat().st_size:,} bytes"
    return table(f"Compiling nine languages; the others convert its {size}", figures)


def duration(value: float, unit: str) -> str:
    microseconds = value * {"ns": 1e-3, "us": 1, "ms": 1e3}[unit]
    return f"{microseconds:.0f} µs" if microseconds < 1000 else f"{microseconds / 1000:.1f} ms"


def measure_engine() -> str:
    result = subprocess.run(
        [str(BENCHES / "engine_bench"), "--benchmark_filter=-SaveChanged", "--benchmark_format=json"],
        capture_output=True,
        check=True,
        text=True,
    )
    rows = ["| In one process | time | rate |", "|---|---|---|"]
    for bench in json.loads(result.stdout)["benchmarks"]:
        rate = bench.get("bytes_per_second")
        name = bench["name"].replace("OpenSample/", "")
        rows.append(
            f"| {name} | {duration(bench['cpu_time'], bench['time_unit'])} "
            f"| {f'{rate / MIB:.0f} MiB/s' if rate else ''} |"
        )
    return "\n".join(rows) + "\n"


def measure_window_programs(folder: Path) -> list[str]:
    """The windows alone, and with the same 455 messages in German."""
    samples = Samples(folder, str(PROGRAMS / "vendlingua-cli"))
    german = samples.path("3.po")
    ours = str(PROGRAMS / "vendlingua")
    return [
        measure_windows.measure_starts("Start", {"vendlingua": [ours], "Qt Linguist": [QT_LINGUIST]}),
        measure_windows.measure_starts(
            "Start with 455 messages",
            {
                "vendlingua": [ours, str(SAMPLE)],
                "Qt Linguist": [QT_LINGUIST, german],
                "Poedit": ["poedit", german],
            },
        ),
        measure_windows.measure_latency(
            "Command with the painting of the window", BENCHES / "window_latency"
        ),
        measure_windows.measure_latency(
            "Command of the desk with the painting of both windows", BENCHES / "desk_latency"
        ),
        measure_windows.measure_desk_memory(BENCHES / "desk_latency"),
    ]


def main() -> None:
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        parts = [measure_records(folder), measure_sizes(folder), measure_compile(folder)]
        parts.append(measure_languages(folder, str(PROGRAMS / "vendlingua-cli")))
    parts.append(measure_saves(BENCHES / "engine_bench", ROOT / "build"))
    parts.append(measure_engine())
    with tempfile.TemporaryDirectory() as name:
        parts += measure_window_programs(Path(name))
    head = f"""# Performance

Made by `scripts/measure.sh` in one run on {platform.machine()}, {os.cpu_count()} processors. User + system time of
whole processes is the median of many runs, the programs taking turns; peak memory is the largest. The time grows linearly
with the size of the image. In the table of one process, where the number is that size in MiB, the largest image pays for
fresh memory besides. The windows were measured under Xvfb.

"""
    (ROOT / "docs/performance.md").write_text(head + "\n".join(parts), encoding="utf-8")


if __name__ == "__main__":
    main()
