"""Every call of the system may fail, be cut short or be the last one: nothing is lost.

TORTURE_SHARE is the part of all faults that is tried, TORTURE_SEED chooses them.
"""

from __future__ import annotations

import os
import random
import tempfile
import unittest
from pathlib import Path

from harness import scenarios, torture

SHARE = float(os.environ.get("TORTURE_SHARE", "0.04"))
SEED = int(os.environ.get("TORTURE_SEED", "455"))


class FaultsTest(unittest.TestCase):
    def test_every_file_is_the_old_one_or_the_new_one_or_can_be_put_back(self) -> None:
        tried = 0

        def note(_: str) -> None:
            nonlocal tried
            tried += 1

        with tempfile.TemporaryDirectory(prefix="vendlingua-torture-") as work:
            for scenario in scenarios():
                with self.subTest(scenario.name):
                    source = random.Random(f"{SEED} {scenario.name}")
                    torture(scenario, Path(work), lambda _: source.random() < SHARE, note)
        print(f"{tried} faults", end=" ")
        self.assertGreater(tried, 20)


if __name__ == "__main__":
    unittest.main()
