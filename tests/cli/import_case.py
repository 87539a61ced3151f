"""Firmware sources that are imported."""

from __future__ import annotations

from support import CliTest, Result

SOURCE = b"LABEL   DC.B 'ABCD'\r\n        DC.B 'EFGH'\r\n"


def source_of(texts: int, width: int) -> bytes:
    return b"".join(b" DC.B '%0*d'\r\n" % (width, number) for number in range(texts))


def block(name: bytes, texts: bytes, slots: bytes = b"") -> bytes:
    return name.ljust(20) + texts + slots


def answers(options: tuple[str, ...], output: str = "OUT.MES") -> list[str]:
    """The options of a whole command line: those given, and defaults for the others."""
    defaults = {
        "--languages": "1",
        "--language-message": "1",
        "--memory-start": "&H6000",
        "--memory-length": "&H2000",
        "--name": "ITALIANO",
        "--output": output,
    }
    given = {option.split("=")[0] for option in options}
    missing = [f"{name}={value}" for name, value in defaults.items() if name not in given]
    return [option for option in [*options, *missing] if not option.endswith("=none")]


class ImportCase(CliTest):
    def import_source(self, source: bytes, *options: str, output: str = "OUT.MES") -> Result:
        return self.done("import", self.write("source.asm", source), *answers(options, output))

    def refused_source(self, source: bytes, *options: str, output: str = "OUT.MES") -> Result:
        return self.refused("import", self.write("source.asm", source), *answers(options, output))

    def assert_header(self, expected: bytes) -> None:
        self.assertEqual(self.read("OUT.MES")[:24], expected)

    def texts(self, language: int = 1) -> list[str]:
        printed = self.done("texts", "OUT.MES", f"--language={language}", "--json").json
        return [message["text"] for message in printed["messages"]]
