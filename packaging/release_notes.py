#!/usr/bin/env python3
"""Prints the notes of a version: its part of CHANGELOG.md.

    packaging/release_notes.py VERSION
"""

from __future__ import annotations

import re
import sys
from pathlib import Path

CHANGELOG = Path(__file__).resolve().parents[1] / "CHANGELOG.md"


def notes_of(version: str, changelog: str) -> str:
    found = re.search(rf"(?ms)^## {re.escape(version)}( .*?)?\n(.*?)(?=^## |\Z)", changelog)
    if not found:
        raise SystemExit(f"{CHANGELOG} has nothing about {version}")
    if "unreleased" in (found[1] or ""):
        print(f"warning: {CHANGELOG} calls {version} unreleased", file=sys.stderr)
    return f"# Vendlingua {version}\n\n{found[2].strip()}\n"


if __name__ == "__main__":
    print(notes_of(sys.argv[1], CHANGELOG.read_text(encoding="utf-8")), end="")
