#!/usr/bin/env python3
"""Fails when the tests reach too little of the core library. Reads a summary of llvm-cov as JSON."""

from __future__ import annotations

import json
import sys

LEAST_LINES = 98.0
LEAST_REGIONS_OF_A_READER = 95.0
# Folders and files of what takes the bytes of others apart.
READERS = (
    "/core/formats/",
    "/core/exchange/",
    "/core/marks/marks_file.cpp",
    "/core/operations/interface_language.cpp",
    "/core/platform/change_record.cpp",
    "/core/platform/record_bytes.cpp",
)


def main() -> int:
    data = json.load(sys.stdin)["data"][0]
    lines = data["totals"]["lines"]["percent"]
    print(f"lines of core: {lines:.2f} %")
    problems = [] if lines >= LEAST_LINES else [f"less than {LEAST_LINES} % of the lines"]
    for file in data["files"]:
        regions = file["summary"]["regions"]["percent"]
        is_reader = any(reader in file["filename"] for reader in READERS)
        if is_reader and regions < LEAST_REGIONS_OF_A_READER:
            problems.append(f"{file['filename']}: {regions:.2f} % of the regions")
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
