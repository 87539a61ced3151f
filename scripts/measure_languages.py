"""Measures the work on whole languages beside gettext and the Translate Toolkit on the same texts.

Those have a file a language; where we do all languages at once, they do one file after another.
"""

from __future__ import annotations

import subprocess
import sys
from collections import Counter
from pathlib import Path

from measure_processes import Program, compare, table

ROOT = Path(__file__).resolve().parent.parent
SAMPLE = ROOT / "data/samples/FW0417AB.MES"
SOURCE = ROOT / "data/samples/firmware.src"
LANGUAGES = range(2, 10)  # those that are translated
RUNS = 21
# 65520 bytes of memory hold nine languages, that of the revision eight.
SLOTS, SLOTS_OF_REVISION = 455, 511

sys.path.insert(0, str(ROOT / "tests/cli"))

from firmware_revision import CELLS, INSERTED, MESSAGES, REMOVED, Texts, revised  # noqa: E402


def quoted(text: bytes) -> str:
    """A text as PO files have it; what the board fills is a letter there."""
    escaped = text.decode("latin-1").replace("\\", "\\\\").replace('"', '\\"')
    return f'"{escaped}"'


def po_file(origins: list[bytes], translations: list[bytes]) -> str:
    """A message is known by its text, and by how often that came before."""
    header = '"Content-Type: text/plain; charset=UTF-8\\n"\n"Content-Transfer-Encoding: 8bit\\n"\n'
    entries = [f'msgid ""\nmsgstr ""\n{header}']
    seen: Counter[bytes] = Counter()
    for origin, translation in zip(origins, translations):
        context = f'msgctxt "{seen[origin]}"\n' if seen[origin] else ""
        seen[origin] += 1
        if origin.strip():
            entries.append(f"{context}msgid {quoted(origin)}\nmsgstr {quoted(translation)}\n")
    return "\n".join(entries)


def block_of(language: int) -> int:
    """Where its block begins in the sample: a name, then a slot more than there are."""
    return 24 + language * (20 + (SLOTS + 1) * CELLS)


def only_german(content: bytes) -> bytes:
    """The reference, the first language and German of the sample."""
    return content[: block_of(2)] + content[block_of(3) : block_of(4)]


def without_german(content: bytes) -> bytes:
    """The sample with blanks for all German messages."""
    first = block_of(3) + 20  # behind the name
    blanks = b" " * MESSAGES * CELLS
    return content[:first] + blanks + content[first + len(blanks) :]


class Samples:
    """The sample file and others made of it, a later revision of its firmware, and PO files of the texts."""

    def __init__(self, folder: Path, cli: str) -> None:
        self.folder = folder
        self.cli = cli
        content = SAMPLE.read_bytes()
        self.file = self.write("FW0417AB.MES", content)
        self.changed = self.write("CHANGED.MES", content)
        self.german = self.write("GERMAN.MES", only_german(content))
        self.source = self.write("revised.src", revised(SOURCE.read_bytes()))
        self.revision = str(folder / "FW0417AC.MES")
        self.run(self.update(self.file))
        self.run(self.ours("put", self.changed, "--language=5", "--message=45", "--text=E08"))
        self.write_po_files(content)

    def write(self, name: str, content: bytes) -> str:
        path = self.folder / name
        path.write_bytes(content)
        return str(path)

    def path(self, name: str) -> str:
        return str(self.folder / name)

    def ours(self, *arguments: str) -> list[str]:
        return [self.cli, *arguments]

    def update(self, older: str) -> list[str]:
        options = (f"--from={older}", "--languages=8", f"--output={self.revision}")
        return self.ours("update", self.source, *options)

    def run(self, command: list[str]) -> None:
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)

    def write_po_files(self, content: bytes) -> None:
        texts = Texts(content, SLOTS)
        origins = [texts.at(1, number) for number in range(MESSAGES)]
        for language in LANGUAGES:
            translations = [texts.at(language, number) for number in range(MESSAGES)]
            self.write(f"{language}.po", po_file(origins, translations).encode())
        newer = Texts(Path(self.revision).read_bytes(), SLOTS_OF_REVISION)
        origins = [newer.at(1, number) for number in range(MESSAGES + len(INSERTED) - len(REMOVED))]
        self.write("revised.pot", po_file(origins, [b""] * len(origins)).encode())

    def check_po(self, language: int) -> list[str]:
        return ["msgfmt", "--check", "-o", "/dev/null", self.path(f"{language}.po")]

    def merge_po(self, language: int) -> list[str]:
        merged = self.path(f"new-{language}.po")
        return ["msgmerge", "-q", "-o", merged, self.path(f"{language}.po"), self.path("revised.pot")]


def measure_checks(samples: Samples) -> list[str]:
    every = {
        "vendlingua, nine languages": Program([samples.ours("check", samples.file)]),
        "msgfmt --check, eight": Program([samples.check_po(language) for language in LANGUAGES]),
    }
    one = {
        "vendlingua": Program([samples.ours("check", samples.file, "--language=3")]),
        "msgfmt --check": Program([samples.check_po(3)]),
    }
    return [
        table("Checking all languages of 455 messages", compare(every, RUNS)),
        table("Checking one of them", compare(one, RUNS)),
    ]


def measure_updates(samples: Samples) -> list[str]:
    every = {
        "vendlingua": Program([samples.update(samples.file)]),
        "msgmerge": Program([samples.merge_po(language) for language in LANGUAGES]),
    }
    one = {
        "vendlingua": Program([samples.update(samples.german)]),
        "msgmerge": Program([samples.merge_po(3)]),
    }
    return [
        table("Carrying eight languages over to a new firmware", compare(every, RUNS)),
        table("Carrying one of them over", compare(one, RUNS)),
    ]


def measure_exchange(samples: Samples) -> list[str]:
    content = without_german(SAMPLE.read_bytes())
    untranslated = samples.path("UNTRANSLATED.MES")
    xliff, po = samples.path("german.xliff"), samples.path("german.po")
    programs = {
        "vendlingua, there and back": Program(
            [
                samples.ours("export", samples.file, "--language=3", f"--output={xliff}"),
                samples.ours("apply", untranslated, xliff, "--language=3"),
            ],
            prepare=lambda: samples.write("UNTRANSLATED.MES", content),
        ),
        "xliff2po, one way": Program([["xliff2po", "--progress=none", xliff, po]], [Path(po)]),
    }
    return [table("A language as XLIFF", compare(programs, RUNS))]


def measure_diff(samples: Samples) -> list[str]:
    different = 1
    command = samples.ours("diff", samples.file, samples.changed)
    figures = compare({"vendlingua": Program([command], status=different)}, RUNS)
    return [table("Comparing two files of nine languages", figures)]


def measure_languages(folder: Path, cli: str) -> str:
    samples = Samples(folder, cli)
    return "\n".join(
        [
            *measure_checks(samples),
            *measure_updates(samples),
            *measure_exchange(samples),
            *measure_diff(samples),
        ]
    )
