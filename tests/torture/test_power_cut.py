"""The power may fail at any moment: what was flushed survives, of all else any part.

TORTURE_STATES is how many folders are tried for each moment, TORTURE_SEED chooses them.
"""

from __future__ import annotations

import os
import random
import tempfile
import unittest
from pathlib import Path

from disk import Disk
from harness import Scenario, calls_of, fill, files_of, run, scenarios

STATES = int(os.environ.get("TORTURE_STATES", "1"))
SEED = int(os.environ.get("TORTURE_SEED", "455"))
CHANGES = ("create", "write", "pwrite", "ftruncate", "fsync", "rename", "unlink")


class PowerCutTest(unittest.TestCase):
    def test_every_file_is_the_old_one_or_the_new_one_or_can_be_put_back(self) -> None:
        tried = 0
        with tempfile.TemporaryDirectory(prefix="vendlingua-torture-") as work:
            for scenario in scenarios():
                with self.subTest(scenario.name):
                    tried += self.cut_everywhere(scenario, Path(work))
        print(f"{tried} power cuts", end=" ")
        self.assertGreater(tried, 100)

    def cut_everywhere(self, scenario: Scenario, work: Path) -> int:
        folder = work / "files"
        scenario.learn(folder)
        disk = Disk(folder, scenario.before)
        source = random.Random(f"{SEED} {scenario.name}")
        tried = 0
        for number, call in enumerate(calls_of(scenario, folder, work / "calls"), start=1):
            disk.do(call)
            if not call.startswith(CHANGES):
                continue
            for left in disk.survivors(source, STATES):
                label = f"{scenario.name}, cut after call {number} ({call[:60]})"
                fill(folder, left)
                for name in scenario.recoverable():
                    self.assertEqual(run(folder, "recover", name).status, 0, label)
                scenario.judge_files(files_of(folder), label)
                tried += 1
        certain = next(disk.survivors(source, 0))
        for name, content in scenario.after.items():
            self.assertEqual(certain.get(name), content, f"{scenario.name}: {name} is not on the disk")
        return tried


if __name__ == "__main__":
    unittest.main()
