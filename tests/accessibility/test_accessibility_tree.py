"""What a screen reader finds in the real program: its windows by their names, and what they hold."""

from __future__ import annotations

import os
import shutil
import subprocess
import tempfile
import time
import unittest
from collections.abc import Callable, Iterator
from pathlib import Path
from typing import Any, TypeVar

import pyatspi

PROGRAM = Path(os.environ["VENDLINGUA"])
SAMPLE = Path(os.environ["SAMPLES"]) / "FW0417AB.MES"
DESK = "Translator's desk"
MESSAGES = 455
SECONDS = 30

Found = TypeVar("Found")


def wait_for(look: Callable[[], Found | None]) -> Found:
    """What `look` finds, as soon as it does. The tree changes while it is looked at."""
    end = time.monotonic() + SECONDS
    while time.monotonic() < end:
        try:
            found = look()
        except (LookupError, NotImplementedError, RuntimeError):
            found = None
        if found is not None:
            return found
        time.sleep(0.05)
    raise AssertionError("it did not come up")


def below(node: Any) -> Iterator[Any]:
    """All that lies below `node`, but what cells lie in tables."""
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield child
            if child.getRole() != pyatspi.ROLE_TABLE:
                yield from below(child)


class TreeTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.file = Path(shutil.copy(SAMPLE, self.home))
        surroundings = {"HOME": folder.name, "LANG": "en_GB.UTF-8", "QT_QPA_PLATFORM": "xcb"}
        surroundings |= {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        for variable in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "LANGUAGE", "LC_ALL", "LC_MESSAGES"):
            surroundings[variable] = ""
        self.program = subprocess.Popen([PROGRAM, self.file], env=os.environ | surroundings)
        self.addCleanup(self.end)
        self.window = wait_for(lambda: self.find_window(f"{SAMPLE.name} - Vendlingua"))
        self.choose("Origin", "ITALIANO")
        self.choose("Dest.", "ENGLISH")

    def end(self) -> None:
        self.program.kill()
        self.program.wait()

    def find_window(self, name: str) -> Any | None:
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.program.pid:
                return next((w for w in application if w is not None and w.name == name), None)
        return None

    @staticmethod
    def find(window: Any, role: int, name: str) -> Any:
        return wait_for(lambda: next((n for n in below(window) if n.getRole() == role and n.name == name), None))

    @staticmethod
    def entry(menu: Any, name: str) -> Any:
        return wait_for(lambda: next((e for e in menu if e is not None and e.name == name), None))

    def choose(self, *path: str) -> None:
        """Chooses a menu entry as a screen reader does."""
        menu = self.find(self.window, pyatspi.ROLE_MENU_BAR, "")
        for name in path:
            entry = self.entry(menu, name)
            menu = entry.getChildAtIndex(0)
        enabled = pyatspi.STATE_ENABLED
        wait_for(lambda: entry if entry.getState().contains(enabled) else None)
        entry.queryAction().doAction(0)

    def label(self, name: str) -> Any:
        return self.find(self.window, pyatspi.ROLE_LABEL, name)

    def assert_says(self, name: str, *words: str) -> None:
        """Waits for a label of the main window to say these words."""

        def says() -> bool | None:
            text = self.label(name).description
            return True if all(word in text for word in words) else None

        try:
            wait_for(says)
        except AssertionError:
            self.fail(f"{name} says {self.label(name).description!r}")

    def test_the_main_window(self) -> None:
        self.assert_says("State", "ITALIANO", "ENGLISH", "0/454", "12/16")
        edit = self.find(self.window, pyatspi.ROLE_TEXT, "Destination")
        self.assertEqual(edit.queryText().getText(0, -1).rstrip(), "    MP0417AA")
        self.choose("File", "Save")
        self.assert_says("Status", "Saved:", self.file.name)

    def test_the_desk(self) -> None:
        self.choose("File", DESK)
        desk = wait_for(lambda: self.find_window(DESK))
        table = self.find(desk, pyatspi.ROLE_TABLE, DESK)
        cells = table.queryTable()
        self.assertEqual(cells.nRows, MESSAGES)
        row = [cells.getAccessibleAt(45, column).name for column in range(5)]
        self.assertEqual(row[0], "45")
        self.assertEqual(row[1].strip(), "E08 Vuoto acqua")
        self.assertEqual(row[3].split("/")[1], "16")
        self.assertEqual(row[4], "Done")
        display = wait_for(lambda: next((n for n in below(desk) if n.name == "Display"), None))
        self.assertIn("MP0417AA", display.description)


if __name__ == "__main__":
    unittest.main()
