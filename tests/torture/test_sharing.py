"""Several programs change one file at once: every edit is there in the end.

TORTURE_ROUNDS is the number of rounds, TORTURE_SEED chooses what is done in them.
"""

from __future__ import annotations

import os
import random
import subprocess
import sys
import tempfile
import unittest
from collections.abc import Iterable
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "cli"))
from message_files import MesFile  # noqa: E402
from support import PROGRAM, Cli  # noqa: E402

ROUNDS = int(os.environ.get("TORTURE_ROUNDS", "8"))
SEED = int(os.environ.get("TORTURE_SEED", "455"))
LANGUAGES = (1, 2, 3)
MESSAGES = 12


class SharingTest(unittest.TestCase):
    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory(prefix="vendlingua-torture-")
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        self.cli = Cli(self.folder)
        self.source = random.Random(SEED)
        self.texts: dict[tuple[int, int], str] = {}
        self.names: list[str] = []

    def begin(self) -> None:
        file = MesFile(
            lang_count=3,
            stride=MESSAGES,
            last_msg=MESSAGES - 1,
            names=[b"Default", b"ONE", b"TWO", b"THREE"],
        )
        (self.folder / "A.MES").write_bytes(file.content())
        self.names = ["Default", "ONE", "TWO", "THREE"]
        self.texts = {
            (k, m): file.message(k, m).decode() for k in LANGUAGES for m in range(MESSAGES)
        }

    def start(self, *arguments: str) -> subprocess.Popen[bytes]:
        return subprocess.Popen(
            [PROGRAM, *arguments],
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )

    def end(self, programs: Iterable[subprocess.Popen[bytes]]) -> list[tuple[int, str]]:
        """Status of every program, and what it printed as an error."""
        return [(p.communicate(timeout=60)[1].decode(), p.returncode)[::-1] for p in programs]

    def assert_all_is_there(self, label: str) -> None:
        for language in LANGUAGES:
            printed = self.cli.run("texts", "A.MES", f"--language={language}", "--json").json
            for message in printed["messages"]:
                expected = self.texts[language, message["index"]]
                self.assertEqual(message["text"], expected, (label, language, message))
        info = self.cli.run("info", "A.MES", "--json").json
        names = [language["name"] for language in info["languages"]]
        self.assertEqual(sorted(names[1:]), sorted(self.names[1:]), label)
        self.names = names
        self.assertEqual([p.name for p in self.folder.iterdir()], ["A.MES"], label)

    def test_every_edit_of_two_to_eight_programs_is_kept(self) -> None:
        for number in range(ROUNDS):
            if number % 20 == 0:
                self.begin()
            programs = []
            for place in self.source.sample(sorted(self.texts), self.source.randint(2, 8)):
                if self.source.random() < 0.2:
                    name = f"NEW {number} {len(programs)}"
                    self.names.append(name)
                    programs.append(self.start("new-language", "A.MES", f"--name={name}"))
                    continue
                self.texts[place] = f"{self.source.randrange(10000):04}"
                programs.append(
                    self.start(
                        "put",
                        "A.MES",
                        f"--language={place[0]}",
                        f"--message={place[1]}",
                        f"--text={self.texts[place]}",
                    )
                )
            for status, err in self.end(programs):
                self.assertEqual((status, err), (0, ""), f"round {number}")
            self.assert_all_is_there(f"round {number}, seed {SEED}")

    def test_of_two_edits_of_one_message_none_is_lost_without_a_word(self) -> None:
        self.begin()
        for number in range(ROUNDS):
            texts = [f"{number % 100:02}{letter}{letter}" for letter in "ab"]
            arguments = ("put", "A.MES", "--language=1", "--message=0")
            ended = self.end([self.start(*arguments, f"--text={text}") for text in texts])
            kept = [text for text, (status, _) in zip(texts, ended, strict=True) if status == 0]
            for status, err in ended:
                if status != 0:
                    self.assertIn("in the same places: 0", err)
            printed = self.cli.run("texts", "A.MES", "--language=1", "--json").json
            self.assertIn(printed["messages"][0]["text"], kept, ended)

    def test_readers_see_no_file_half_changed(self) -> None:
        self.begin()
        old, new = "0" * 4, "1" * 4
        self.assertEqual(self.end([self.start_to_fill(old)]), [(0, "")])
        for _ in range(ROUNDS):
            writer = self.start_to_fill(new)
            readers = [self.cli.run("texts", "A.MES", "--language=2", "--json") for _ in range(3)]
            self.assertEqual(self.end([writer]), [(0, "")])
            for reader in readers:
                seen = {message["text"] for message in reader.json["messages"]}
                self.assertIn(seen, ({old}, {new}))
            old, new = new, old

    def start_to_fill(self, text: str) -> subprocess.Popen[bytes]:
        """Starts to make every message of a language this text."""
        rows = "".join(f"{m},,{text}\r\n" for m in range(MESSAGES))
        (self.folder / "t.csv").write_text("message,origin,text\r\n" + rows, newline="")
        return self.start("apply", "A.MES", "t.csv", "--language=2")


if __name__ == "__main__":
    unittest.main()
