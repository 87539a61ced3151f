"""Shells complete what the grammar of vendlingua-cli has."""

from __future__ import annotations

import shlex
import subprocess
import tempfile
import unittest
from pathlib import Path

from help_texts import MANUAL, commands, options

DISPLAYS = {"normal", "cyrillic", "katakana", "hebrew"}

# Sets what bash sets when TAB is hit behind the arguments, and prints what the function offers.
BASH = """
source "$1"
shift
COMP_WORDS=("$@")
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
[[ $(complete -p vendlingua-cli) == *"-F _vendlingua_cli "* ]] && _vendlingua_cli
printf '%s\\n' "${COMPREPLY[@]}"
"""


class CompletionTest(unittest.TestCase):
    """The current folder of the shell holds FW.MES and "a table.csv"."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for name in ("FW.MES", "a table.csv"):
            (self.folder / name).touch()

    def run_shell(self, *command: str | Path) -> str:
        done = subprocess.run(
            command,
            cwd=self.folder,
            env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder)},
            capture_output=True,
            text=True,
            timeout=60,
        )
        self.assertEqual((done.stderr, done.returncode), ("", 0))
        return done.stdout


class BashTest(CompletionTest):
    def offered(self, *words: str) -> set[str]:
        script = MANUAL / "vendlingua-cli"
        out = self.run_shell("bash", "--norc", "-c", BASH, "bash", script, "vendlingua-cli", *words)
        return set(out.splitlines()) - {""}

    def test_every_command(self) -> None:
        self.assertEqual(self.offered(""), set(commands()))
        for command in commands():
            self.assertIn(command, self.offered(command[:3]))
        self.assertEqual(self.offered("new-l"), {"new-language"})

    def test_every_option_of_a_command_and_no_other(self) -> None:
        for command in commands():
            self.assertEqual(
                self.offered(command, "-"), {"--help", "--version", *options(command), "--json"}
            )

    def test_a_command_is_known_behind_an_option(self) -> None:
        self.assertEqual(self.offered("--json", "texts", "--lang"), {"--language"})

    def test_values_of_a_set(self) -> None:
        self.assertEqual(self.offered("texts", "FW.MES", "--display", ""), DISPLAYS)
        self.assertEqual(self.offered("put", "--display", "ka"), {"katakana"})
        self.assertEqual(self.offered("put", "--display", "=", "ka"), {"katakana"})
        self.assertEqual(self.offered("put", "--display", "="), DISPLAYS)
        self.assertEqual(self.offered("display-type", "FW.MES", "ka"), {"katakana"})

    def test_files(self) -> None:
        self.assertEqual(self.offered("info", ""), {"FW.MES", "a table.csv"})
        self.assertEqual(self.offered("info", "F"), {"FW.MES"})
        self.assertEqual(self.offered("export", "--output", "a"), {"a table.csv"})

    def test_nothing_for_a_value_that_is_no_file(self) -> None:
        self.assertEqual(self.offered("put", "--message", ""), set())
        self.assertEqual(self.offered("texts", "--language", ""), set())
        self.assertEqual(self.offered("put", "--text", ""), set())


class FishTest(CompletionTest):
    def offered(self, line: str) -> set[str]:
        script = shlex.quote(str(MANUAL / "vendlingua-cli.fish"))
        out = self.run_shell(
            "fish", "--no-config", "-c", f"source {script}; complete -C {shlex.quote(line)}"
        )
        return {row.split("\t")[0] for row in out.splitlines()}

    def test_every_command(self) -> None:
        self.assertEqual(self.offered("vendlingua-cli "), set(commands()))

    def test_every_option_of_a_command_and_no_other(self) -> None:
        for command in commands():
            self.assertEqual(
                self.offered(f"vendlingua-cli {command} --"),
                {"--help", "--version", *options(command), "--json"},
            )

    def test_values_of_a_set(self) -> None:
        self.assertEqual(self.offered("vendlingua-cli texts --display "), DISPLAYS)
        self.assertEqual(self.offered("vendlingua-cli texts --display=ka"), {"--display=katakana"})
        self.assertEqual(self.offered("vendlingua-cli display-type FW.MES ka"), {"katakana"})

    def test_files(self) -> None:
        self.assertEqual(self.offered("vendlingua-cli info F"), {"FW.MES"})
        self.assertEqual(self.offered("vendlingua-cli export --output F"), {"FW.MES"})

    def test_nothing_for_a_value_that_is_no_file(self) -> None:
        self.assertEqual(self.offered("vendlingua-cli put --message "), set())


# Types a line with tabs into a shell of its own; the command that it calls prints what it was given.
ZSH = """
zmodload zsh/zpty
zpty shell 'TERM=dumb zsh -f -i'
zpty -w shell "PS1=; fpath=(${(q)1} \\$fpath); autoload -Uz compinit; compinit -u -D"
zpty -w shell 'vendlingua-cli() { print -r -- "<${(j:|:)@}>" }; print begin ready'
zpty -r -m shell out '*ready*ready*'
zpty -w shell "vendlingua-cli $2"
zpty -r -m shell out '*<*>*'
print -r -- "${${out##*<}%%>*}"
zpty -d shell
"""


class ZshTest(CompletionTest):
    def completed(self, line: str) -> str:
        return self.run_shell("zsh", "-f", "-c", ZSH, "zsh", MANUAL, line).strip()

    def test_a_command(self) -> None:
        self.assertEqual(self.completed("verif\t"), "verify")
        self.assertEqual(self.completed("--json new\t"), "--json|new-language")

    def test_options_with_values_of_a_set(self) -> None:
        self.assertEqual(self.completed("texts --dis\tcyr\t"), "texts|--display=cyrillic")
        self.assertEqual(self.completed("put --display ka\t"), "put|--display|katakana")
        self.assertEqual(self.completed("display-type FW.MES ka\t"), "display-type|FW.MES|katakana")

    def test_files(self) -> None:
        self.assertEqual(self.completed("info F\t"), "info|FW.MES")
        self.assertEqual(self.completed("export FW.MES --output F\t"), "export|FW.MES|--output|FW.MES")


if __name__ == "__main__":
    unittest.main()
