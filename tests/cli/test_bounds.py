"""What a large file of the wrong kind may cost: time in proportion to its size, three times its size of
memory, and not more lines than can be read.

BOUNDS_MIB is the size of the files.
"""

from __future__ import annotations

import os
import subprocess
import unittest

from message_files import MesFile, msx_file
from support import DONE, PROGRAM, REFUSED, WRONG_USAGE, CliTest, limit_memory

SIZE = int(os.environ.get("BOUNDS_MIB", "2")) << 20
TIMEOUT_SECONDS = 120
MOST_OUTPUT = 1_000_000

XLIFF = b'<?xml version="1.0"?><xliff version="1.2">'
CSV = b"message,origin,text\r\n"


def filled(start: bytes, piece: bytes, end: bytes = b"") -> bytes:
    """The piece again and again between the start and the end."""
    return start + piece * (SIZE // len(piece)) + end


def record(address: int) -> bytes:
    """An S3 record of one byte, without its line end."""
    body = bytes([6]) + address.to_bytes(4, "big") + b"\x11"
    return b"S3" + body.hex().upper().encode() + b"%02X" % (255 - sum(body) % 256)


def references(count: int) -> bytes:
    return b"".join(
        b'<context-group name="po-reference"><context>%d</context></context-group>' % message
        for message in range(count)
    )


TABLES = {
    "elements": filled(XLIFF, b"<a/>"),
    "attributes": filled(XLIFF + b"<a ", b'b="" '),
    "texts between elements": filled(XLIFF, b"<a/> "),
    "nested elements": filled(XLIFF, b"<a>"),
    "units": filled(XLIFF, b'<trans-unit id="1"><target>a</target></trans-unit>', b"</xliff>"),
    "one long text": filled(XLIFF + b'<trans-unit id="1"><target>', b"&amp;", b"</target>"),
    "one long number": filled(XLIFF + b'<trans-unit id="', b"&amp;", b'"><target>a</target></trans-unit></xliff>'),
    "a text of many messages": XLIFF
    + b"<trans-unit>"
    + references(SIZE // 160)
    + b"<target>"
    + b"a" * 4000
    + b"</target></trans-unit></xliff>",
    "UTF-16": b"\xff\xfe" + filled(XLIFF, b"<a/>").decode()[: SIZE // 2].encode("utf-16-le"),
    "Windows-1252": filled(XLIFF, b"\x80"),
    "short rows": filled(CSV, b"x\r\n"),
    "quotes": filled(CSV, b'"'),
    "fields": filled(CSV, b","),
    "long fields": CSV + b"".join(b"%d,,%s\r\n" % (i, b"y" * 4000) for i in range(SIZE // 4008)),
    "long numbers": filled(CSV, b"9" * 3000 + b",,\r\n"),
}
FLASH_FILES = {
    "lines": filled(b"", b"S1\r\n"),
    "empty lines": filled(b"S", b"\n"),
    "one record": filled(b"", b"S1040000AA51\r\n"),
    "gaps": b"".join(record(2 * i % (1 << 24)) + b"\r\n" for i in range(SIZE // 18)),
}
MESSAGE_FILES = {
    "languages.MES": filled(MesFile().content(), b"ENGLISH             0000111122223333"),
    "zeroes.MES": filled(MesFile().content(), b"\0"),
    "lines.MSX": filled(msx_file(2)[:60], b"S1\r\n"),
    "empty lines.MSX": filled(msx_file(2)[:60], b"\r\n"),
    "one line.MSX": filled(msx_file(2)[:60], b"A"),
}
SOURCES = {
    "texts": filled(b" ORG $6000\r\n", b" DC.B 'A'\r\n"),
    "sections": filled(b"", b" ORG $6000\r\n DC.B 'ABCD'\r\n"),
    "one text": filled(b" DC.B '", b"A"),
    "empty lines": filled(b" ", b"\n"),
    "labels": filled(b" ", b"MNLING\n"),
}


class BoundsTest(CliTest):
    def run_within_bounds(self, size: int, *arguments: str) -> int:
        """The exit status."""
        done = subprocess.run(
            [PROGRAM, *arguments],
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            timeout=TIMEOUT_SECONDS,
            preexec_fn=lambda: limit_memory(size),
        )
        told = done.stderr.decode(errors="replace")
        # "diff" has 1 for a difference and 2 for trouble.
        self.assertIn(done.returncode, (DONE, REFUSED, WRONG_USAGE), (arguments, told[-500:]))
        self.assertNotIn("Sanitizer", told)
        self.assertNotIn("memory", told)
        self.assertLess(len(done.stdout) + len(done.stderr), MOST_OUTPUT, arguments)
        return done.returncode

    def test_tables_are_refused_in_little_memory(self) -> None:
        self.write("A.MES", MesFile().content())
        for name, table in TABLES.items():
            with self.subTest(name):
                self.write("t.xlf", table)
                status = self.run_within_bounds(len(table), "apply", "A.MES", "t.xlf", "--language=1")
                self.assertEqual(status, REFUSED)
                self.assertEqual(self.read("A.MES"), MesFile().content())

    def test_flash_files_are_checked_and_shown_in_little_memory(self) -> None:
        for name, content in FLASH_FILES.items():
            with self.subTest(name):
                self.write("A.MHX", content)
                self.assertEqual(self.run_within_bounds(len(content), "verify", "A.MHX"), REFUSED)
                for command in ("info", "sections"):
                    self.run_within_bounds(len(content), command, "A.MHX")
                self.run_within_bounds(2 * len(content), "diff", "A.MHX", "A.MHX")

    def test_message_files_are_checked_and_read_in_little_memory(self) -> None:
        for name, content in MESSAGE_FILES.items():
            with self.subTest(name):
                self.write(name, content)
                self.assertEqual(self.run_within_bounds(len(content), "verify", name), REFUSED)
                for command in ("info", "stats", "check"):
                    self.run_within_bounds(len(content), command, name)
                self.run_within_bounds(len(content), "texts", name, "--language=1")
                self.run_within_bounds(2 * len(content), "diff", name, name)

    def test_sources_are_imported_or_refused_in_little_memory(self) -> None:
        for name, content in SOURCES.items():
            with self.subTest(name):
                self.write("A.SRC", content)
                self.assertEqual(self.run_within_bounds(len(content), "verify", "A.SRC"), REFUSED)
                status = self.run_within_bounds(
                    len(content),
                    "import",
                    "A.SRC",
                    "--languages=2",
                    "--language-message=1",
                    "--memory-start=&H6000",
                    "--memory-length=&H2000",
                    "--name=ONE",
                    "--name=TWO",
                    "--output=NEW.MES",
                )
                self.assertEqual(status, REFUSED)
                self.assertEqual(self.names(), ["A.SRC"])


if __name__ == "__main__":
    unittest.main()
