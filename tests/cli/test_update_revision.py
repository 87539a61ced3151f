"""vendlingua-cli update on the sample firmware and a later revision of it.

What must be kept, and that nothing else is stored, is computed here from what the revision says
that it did.
"""

from __future__ import annotations

import csv
import io
import unittest

import firmware_revision as revision
from firmware_revision import CELLS, MESSAGES, Texts
from support import SAMPLES, CliTest

LANGUAGES = range(2, 10)
PLACEHOLDER = b"\xfe"


class RevisionTest(CliTest):
    """The sample firmware and a later revision of it, with the eight translations of the sample."""

    def setUp(self) -> None:
        super().setUp()
        source = revision.revised((SAMPLES / "firmware.src").read_bytes())
        self.write("firmware.src", source)
        self.done(
            *("update", "firmware.src", "--from", SAMPLES / "FW0417AB.MES"),
            *("--languages=8", "--output=NEW.MES", "--report=report.csv"),
        )
        # 65520 / 9 / 16 = 455 and 65520 / 8 / 16 = 511 slots a language.
        self.old = Texts((SAMPLES / "FW0417AB.MES").read_bytes(), 455)
        self.new = Texts(self.read("NEW.MES"), 511)

    def test_the_revision_is_what_it_says(self) -> None:
        origins = revision.origins()
        self.assertEqual(len(origins), MESSAGES + 20 - 10)
        self.assertEqual(len(revision.INSERTED), 20)
        self.assertEqual(len(revision.REMOVED), 10)
        self.assertEqual(len(revision.REWORDED), 15)
        self.assertEqual(len(revision.MOVED), 5)
        for number, origin in enumerate(origins):
            text = origin if isinstance(origin, str) else None
            if isinstance(origin, int):
                text = revision.REWORDED.get(origin) or revision.MOVED.get(origin)
            expected = self.old.at(1, origin) if text is None else revision.codes_of(text)
            self.assertEqual(self.new.at(1, number), expected, number)
            self.assertEqual(self.new.at(0, number), expected, number)

    def test_every_unchanged_message_is_kept_byte_for_byte(self) -> None:
        changed = {*revision.REWORDED, *revision.MOVED}
        kept = [
            (number, origin)
            for number, origin in enumerate(revision.origins())
            if isinstance(origin, int) and origin not in changed
        ]
        self.assertEqual(len(kept), MESSAGES - 10 - 15 - 5)
        for language in LANGUAGES:
            for number, origin in kept:
                self.assertEqual(
                    self.new.at(language, number), self.old.at(language, origin), (language, origin)
                )

    def test_no_guess_is_stored(self) -> None:
        filled = 0
        for number, origin in enumerate(revision.origins()):
            if isinstance(origin, int) and origin not in revision.REWORDED:
                continue
            text = self.new.at(1, number)
            same = [message for message in range(MESSAGES) if self.old.at(1, message) == text]
            for language in LANGUAGES:
                translations = {self.old.at(language, message) for message in same}
                certain = len(translations) == 1
                filled += certain
                expected = translations.pop() if certain else text
                self.assertEqual(self.new.at(language, number), expected, (language, number))
        # "Introduci", which German says in two ways, and "E10 Palette".
        self.assertEqual(filled, 7 + 8)

    def test_what_moved_on_the_glass_is_laid_out_anew(self) -> None:
        numbers = {origin: number for number, origin in enumerate(revision.origins())}
        adapted = 0
        for origin, text in revision.MOVED.items():
            for language in LANGUAGES:
                expected = laid_out(self.old.at(language, origin), revision.codes_of(text))
                adapted += expected is not None
                found = self.new.at(language, numbers[origin])
                self.assertEqual(found, expected or revision.codes_of(text), (language, origin))
        self.assertGreater(adapted, 30)

    def test_the_report_names_every_message(self) -> None:
        rows = list(csv.DictReader(io.StringIO(self.read("report.csv").decode(), newline="")))
        self.assertEqual(len(rows), 8 * (MESSAGES + 20 - 10))
        origins = revision.origins()
        changed = {*revision.REWORDED, *revision.MOVED}
        for row in rows:
            origin = origins[int(row["message"])]
            unchanged = isinstance(origin, int) and origin not in changed
            self.assertEqual(row["result"] == "kept", unchanged, row)
            if unchanged:
                self.assertEqual(row["from"], str(origin))

    def test_it_is_sound(self) -> None:
        self.assertEqual(self.done("verify", "NEW.MES").out, "NEW.MES: sound\n")


def laid_out(translation: bytes, origin: bytes) -> bytes | None:
    """A translation under an origin with at most one run of placeholders, which ends its words;
    None when it does not fit."""
    words = translation.replace(PLACEHOLDER, b"").strip()
    column = origin.find(PLACEHOLDER)
    if column < 0:
        return (b" " * ((CELLS - len(words)) // 2) + words).ljust(CELLS)
    room = column - 1
    if len(words) > room:
        return None
    indent = min(len(origin) - len(origin.lstrip()), room - len(words))
    return (b" " * indent + words).ljust(column) + origin[column:]


if __name__ == "__main__":
    unittest.main()
