"""What tests have to know of Windows."""

from __future__ import annotations

import unittest
from collections.abc import Callable
from typing import Any

from support import PROGRAM

# The script that runs the program for Windows lies beside it.
ON_WINDOWS = PROGRAM.with_suffix(".exe").exists()

NO_DEVICES = "no file is a device or a pipe"
NO_LINKS = "links are for administrators"
NO_MODES = "files have no modes"
ONLY_UNICODE = "every name is Unicode"


def not_on_windows(reason: str) -> Callable[[Any], Any]:
    """Skips a test or all tests of a class there."""
    return unittest.skipIf(ON_WINDOWS, f"on Windows {reason}")


def native(text: str) -> str:
    """Text with ways to files as the system writes them."""
    return text.replace("/", "\\") if ON_WINDOWS else text
