"""Files that are checked."""

from __future__ import annotations

import json

from message_files import MesFile
from support import CliTest, Result

RULES = (
    "placeholder-lost",
    "placeholder-stray",
    "placeholder-overtyped",
    "blank",
    "same-as-origin",
    "number-missing",
    "glyph-missing",
    "glyph-differs",
    "inconsistent",
    "alignment",
    "language-name",
    "short-block",
)


def language_file(
    *messages: tuple[bytes, ...], names: tuple[bytes, ...] = (b"ITALIANO", b"ENGLISH"), **fields
) -> MesFile:
    """A file of 16 cells a message. Each message is given by its origin, which is the reference,
    too, and by its text in every further language; a name message of each language follows."""
    shown = (b"Italiano", *(name.title() for name in names[1:]))
    texts = {}
    for number, message in enumerate((*messages, shown)):
        for block, text in enumerate((message[0], *message)):
            texts[block, number] = text.ljust(16)
    return MesFile(
        width=16,
        last_msg=len(messages),
        header_count=len(messages),
        stride=len(messages) + 1,
        names=(b"Default", *names),
        texts=texts,
        **fields,
    )


class CheckCase(CliTest):
    def check(self, content: bytes, *options: str, name: str = "A.MES") -> Result:
        self.write(name, content)
        with self.unchanged(options):
            return self.cli.run("check", name, *options)

    def findings(self, content: bytes, *options: str, name: str = "A.MES") -> list[dict]:
        return json.loads(self.check(content, "--json", *options, name=name).out)["findings"]

    def rules(self, content: bytes, *options: str, name: str = "A.MES") -> list[tuple]:
        return [
            (found["language"], found["message"], found["rule"])
            for found in self.findings(content, *options, name=name)
        ]
