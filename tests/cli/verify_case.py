"""Files that are verified."""

from __future__ import annotations

from support import REFUSED, CliTest, Result


class VerifyCase(CliTest):
    def assert_sound(self, content: bytes) -> None:
        self.write("file", content)
        self.assertEqual(self.done("verify", "file").out, "file: sound\n")

    def findings(self, content: bytes) -> list[str]:
        """What is found in a file that is not sound, one line each, without the file's name."""
        self.write("file", content)
        result = self.unsound("file")
        lines = result.out.splitlines()
        for line in lines:
            self.assertTrue(line.startswith("file: "), line)
        return [line.removeprefix("file: ") for line in lines]

    def unsound(self, *arguments: str) -> Result:
        with self.unchanged():
            result = self.cli.run("verify", *arguments)
        self.assertEqual(result.status, REFUSED, result)
        self.assertNotEqual(result.err, "")
        return result
