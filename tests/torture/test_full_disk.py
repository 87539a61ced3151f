"""A file system that is really full: commands say so and leave every file as it was.

TORTURE_SIZES is how many amounts of free space are tried. Needs the right to mount.
"""

from __future__ import annotations

import contextlib
import os
import shutil
import subprocess
import tempfile
import unittest
from collections.abc import Iterator
from pathlib import Path

from harness import fill, run, scenarios

SIZES = int(os.environ.get("TORTURE_SIZES", "3"))
PAGE = 4096
PAGES = 512


@contextlib.contextmanager
def small_file_system(place: Path) -> Iterator[Path]:
    place.mkdir()
    mounted = subprocess.run(
        ["mount", "-t", "tmpfs", "-o", f"size={PAGES * PAGE}", "tmpfs", str(place)],
        stderr=subprocess.DEVNULL,
    )
    if mounted.returncode != 0:
        raise unittest.SkipTest("needs the right to mount")
    try:
        yield place
    finally:
        subprocess.run(["umount", str(place)], check=True)


@unittest.skipIf(shutil.which("mount") is None or os.geteuid() != 0, "needs the right to mount")
class FullDiskTest(unittest.TestCase):
    def test_every_file_is_the_old_one_or_the_new_one(self) -> None:
        failed = 0
        with tempfile.TemporaryDirectory(prefix="vendlingua-torture-") as work:
            with small_file_system(Path(work) / "small") as folder:
                for scenario in scenarios():
                    scenario.learn(folder)
                    for pages in range(SIZES):
                        label = f"{scenario.name} with {pages} free pages"
                        fill(folder, scenario.before)
                        self.leave_free(folder / "~filling.undo", pages)
                        done = run(folder, *scenario.arguments)
                        failed += done.status != 0
                        (folder / "~filling.undo").unlink()
                        scenario.judge(folder, done, label)
        print(f"{failed} failed", end=" ")
        self.assertGreater(failed, 0)

    def leave_free(self, filling: Path, pages: int) -> None:
        """Fills the file system but for some pages."""
        with filling.open("wb", buffering=0) as file, contextlib.suppress(OSError):
            while True:
                file.write(b"x" * PAGE)
        os.truncate(filling, max(filling.stat().st_size - pages * PAGE, 0))


if __name__ == "__main__":
    unittest.main()
