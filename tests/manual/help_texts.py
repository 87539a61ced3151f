"""The grammar as the program's own help tells it."""

from __future__ import annotations

import os
import re
import subprocess
from pathlib import Path

MANUAL = Path(os.environ["MANUAL"])


def help_of(*command: str) -> str:
    program = os.environ["VENDLINGUA_CLI"]
    done = subprocess.run([program, *command, "--help"], check=True, capture_output=True, text=True)
    return done.stdout


def commands() -> list[str]:
    listed = help_of().split("\nSubcommands:\n")[1]
    return re.findall(r"(?m)^  ([a-z-]+)", listed)


def options(command: str) -> list[str]:
    """The long options of a command, without --help."""
    names = re.findall(r"(?m)^ +(?:-h,)?(--[a-z-]+)", help_of(command))
    return [name for name in names if name != "--help"]


def examples(command: str) -> list[str]:
    return re.findall(r"(?m)^Example: (.*)$", help_of(command))
