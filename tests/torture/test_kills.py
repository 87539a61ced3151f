"""Commands are killed at any moment of their run, by a real SIGKILL: nothing is lost.

TORTURE_KILLS is how many, TORTURE_SEED chooses the commands and the moments.
"""

from __future__ import annotations

import os
import random
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from harness import PROGRAM, Run, Scenario, fill, scenarios

KILLS = int(os.environ.get("TORTURE_KILLS", "20"))
SEED = int(os.environ.get("TORTURE_SEED", "455"))


class KillsTest(unittest.TestCase):
    def test_every_file_is_the_old_one_or_the_new_one_or_can_be_put_back(self) -> None:
        source = random.Random(SEED)
        killed = 0
        with tempfile.TemporaryDirectory(prefix="vendlingua-torture-") as work:
            folder = Path(work) / "files"
            learned = [(scenario, self.seconds_of(scenario, folder)) for scenario in scenarios()]
            for number in range(KILLS):
                scenario, seconds = source.choice(learned)
                moment = source.uniform(0, seconds)
                fill(folder, scenario.before)
                done = self.kill(scenario, folder, moment)
                killed += done.killed
                label = f"kill {number} of seed {SEED}, {scenario.name} after {moment:.6f} s"
                scenario.judge(folder, done, label)
                scenario.repeat(folder, label)
        print(f"{killed} of {KILLS} killed", end=" ")

    def seconds_of(self, scenario: Scenario, folder: Path) -> float:
        """How long the command runs."""
        begun = time.monotonic()
        scenario.learn(folder)
        return time.monotonic() - begun

    def kill(self, scenario: Scenario, folder: Path, moment: float) -> Run:
        with subprocess.Popen(
            [PROGRAM, *scenario.arguments],
            cwd=folder,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        ) as program:
            try:
                program.wait(moment)
            except subprocess.TimeoutExpired:
                program.send_signal(signal.SIGKILL)
        return Run(program.returncode, "")


if __name__ == "__main__":
    unittest.main()
