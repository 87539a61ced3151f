"""The commands that the README shows do what they say."""

from __future__ import annotations

import os
import shutil
import subprocess
import unittest

from support import PROGRAM, SAMPLES, CliTest

README = SAMPLES.parent.parent / "README.md"
INDENT = "    "


def shown_commands() -> str:
    section = README.read_text(encoding="utf-8").split("## On the command line")[1].split("\n## ")[0]
    lines = [line.removeprefix(INDENT) for line in section.splitlines() if line.startswith(INDENT)]
    return "\n".join(lines)


class ReadmeTest(CliTest):
    def test_the_commands_run_on_the_samples(self) -> None:
        for sample in ("FW0417AB.MES", "firmware.src"):
            shutil.copy(SAMPLES / sample, self.folder)
        done = subprocess.run(
            ["sh", "-eu", "-c", shown_commands()],
            cwd=self.folder,
            env=os.environ | {"PATH": f"{PROGRAM.parent}:{os.environ['PATH']}"},
            capture_output=True,
            text=True,
        )
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertIn("FW0405AA.MHX: sound", done.stdout)


if __name__ == "__main__":
    unittest.main()
