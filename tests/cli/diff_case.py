"""What the tests of "vendlingua-cli diff" have in common."""

from __future__ import annotations

from pathlib import Path

from support import CliTest, Result

SAME = 0
DIFFERENT = 1
TROUBLE = 2


class DiffCase(CliTest):
    def same(self, *arguments: str | Path) -> Result:
        result = self.done("diff", *arguments)
        self.assertEqual(result.status, SAME)
        return result

    def different(self, *arguments: str | Path) -> Result:
        """Runs a comparison that must find a difference and change nothing."""
        with self.unchanged(*arguments):
            result = self.cli.run("diff", *arguments)
        self.assertEqual((result.status, result.err), (DIFFERENT, ""), arguments)
        self.assertNotEqual(result.out, "")
        return result

    def trouble(self, *arguments: str | Path) -> str:
        """Runs a comparison that cannot be made; its exit status is that of wrong usage."""
        return self.wrong_usage("diff", *arguments).err
