"""What the program does with its command line: help, wrong usage, exit status."""

from __future__ import annotations

import os
import random
import subprocess
import unittest

from message_files import MesFile, msx_file
from on_windows import NO_DEVICES, not_on_windows
from support import COMMANDS, PROGRAM, REFUSED, Cli, CliTest, copy_program

# Every option and argument that a command cannot do without.
COMPLETE = {
    "info": ["A.MES"],
    "texts": ["A.MES", "--language=1"],
    "put": ["A.MES", "--language=1", "--message=1", "--text=x"],
    "new-language": ["A.MES", "--name=NEW"],
    "export": ["A.MES", "--language=1", "--output=new.csv"],
    "apply": ["A.MES", "a.csv", "--language=1"],
    "import": [
        "a.src",
        "--languages=1",
        "--memory-start=1",
        "--memory-length=64",
        "--name=NEW",
        "--output=NEW.MES",
    ],
    "compile": ["A.MES", "--languages=1,2", "--output=FW0417AB.HEX"],
    "sections": ["A.MHX"],
    "verify": ["A.MES"],
    "diff": ["A.MES", "A.MES"],
    "pretranslate": ["A.MES", "--language=1", "--from=A.MES"],
    "update": ["a.src", "--from=A.MES", "--output=NEW.MES"],
    "rename": ["A.MES", "--language=1", "--name=NEW"],
    "display-type": ["A.MES", "normal"],
}


class HelpTest(CliTest):
    def test_the_help_names_every_command(self) -> None:
        help_text = self.done("--help").out
        for command in COMMANDS:
            self.assertRegex(help_text, rf"(?m)^  {command} ")

    def test_every_command_has_help_with_an_example(self) -> None:
        for command in COMMANDS:
            with self.subTest(command):
                help_text = self.done(command, "--help").out
                self.assertIn(f"\nExample: vendlingua-cli {command} ", help_text)

    def test_help_names_every_required_option(self) -> None:
        for command, arguments in COMPLETE.items():
            help_text = self.done(command, "--help").out
            for option in (a.split("=")[0] for a in arguments if a.startswith("--")):
                self.assertIn(f"  {option} ", help_text, command)

    def test_help_needs_nothing_else_and_changes_nothing(self) -> None:
        self.write("A.MES", MesFile().content())
        with self.unchanged():
            self.done("put", "A.MES", "--help")
            self.done("put", "A.MES", "--language=1", "--message=1", "--text=x", "-h")

    def test_the_version_is_told(self) -> None:
        version = os.environ["VENDLINGUA_VERSION"]
        self.assertEqual(self.done("--version").out, f"vendlingua-cli {version}\n")


class WrongUsageTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", MesFile().content())
        self.write("a.csv", b"message,origin,text\r\n1,,new\r\n")
        self.write("a.src", b" DC.B 'ABCD'\r\n")
        self.write("A.MHX", b"S20580000001F9\r\n")

    def test_a_command_is_needed(self) -> None:
        self.wrong_usage()
        self.wrong_usage("--json")

    def test_an_unknown_command_is_named_with_what_is_near(self) -> None:
        for word, near in (("translate", "pretranslate"), ("verfy", "verify"), ("text", "texts")):
            for arguments in ((word, "A.MES"), ("--json", word), (word, "--language=1")):
                err = self.wrong_usage(*arguments).err
                self.assertIn(f'"{word}" is no command; did you mean "{near}"?', err)
        err = self.wrong_usage("xyz", "A.MES").err
        self.assertEqual(err, 'vendlingua-cli: "xyz" is no command. See vendlingua-cli --help\n')

    def test_an_unknown_option(self) -> None:
        for command, arguments in COMPLETE.items():
            self.wrong_usage(command, *arguments, "--colour")

    def test_arguments_too_many_are_named_in_their_order(self) -> None:
        err = self.wrong_usage("info", "A.MES", "one", "--two", "three").err
        self.assertIn("vendlingua-cli: not expected: one --two three; see ", err)

    def test_an_argument_too_many(self) -> None:
        for command, arguments in COMPLETE.items():
            if command != "verify":
                self.wrong_usage(command, *arguments, "one-more")

    def test_anything_that_is_required_and_missing(self) -> None:
        for command, arguments in COMPLETE.items():
            self.wrong_usage(command)
            for missing in range(len(arguments)):
                self.wrong_usage(command, *arguments[:missing], *arguments[missing + 1 :])

    def test_an_option_without_its_value(self) -> None:
        self.wrong_usage("texts", "A.MES", "--language")
        self.wrong_usage("export", "A.MES", "--language", "1", "--output")

    def test_an_option_given_twice(self) -> None:
        self.wrong_usage("texts", "A.MES", "--language=1", "--language=2")
        self.wrong_usage(*("put", "A.MES", "--language=1", "--message=1", "--text=a", "--text=b"))

    def test_a_number_that_is_none(self) -> None:
        for number in ("", "one", "1.5", "1x", "99999999999999999999"):
            with self.subTest(number):
                self.wrong_usage("put", "A.MES", "--language=1", f"--message={number}", "--text=x")

    def test_a_language_that_is_neither_a_number_nor_a_name(self) -> None:
        self.write("A.MES", MesFile().content())
        for name in ("one", "1.5", "1x", "99999999999999999999"):
            with self.subTest(name):
                for arguments in (
                    ("texts", "A.MES", f"--language={name}"),
                    ("put", "A.MES", f"--language={name}", "--message=1", "--text=x"),
                    ("new-language", "A.MES", f"--from={name}", "--name=NEW"),
                    ("export", "A.MES", "--language=1", f"--origin={name}", "--output=o"),
                    ("apply", "A.MES", "a.csv", f"--language={name}"),
                    ("compile", "A.MES", f"--languages=1,{name}", "--output=P.HEX"),
                ):
                    self.refused(*arguments)

    def test_a_memory_number_that_is_none(self) -> None:
        for option in ("--languages", "--memory-start", "--memory-length"):
            for number in ("", "one", "1x", "0x", "&H", "0xG", "-1", "1.5", "&HFF8000Z"):
                with self.subTest(option=option, number=number):
                    arguments = [a for a in COMPLETE["import"] if not a.startswith(option + "=")]
                    self.wrong_usage("import", *arguments, f"{option}={number}")

    def test_text_and_hexadecimal_text_together(self) -> None:
        self.wrong_usage("put", "A.MES", "--language=1", "--message=1", "--text=a", "--hex=41")

    def test_neither_text_nor_hexadecimal_text(self) -> None:
        result = self.wrong_usage("put", "A.MES", "--language=1", "--message=1")
        self.assertRegex(result.err, "--text.*--hex")

    def test_compiling_a_mes_file_needs_languages(self) -> None:
        result = self.wrong_usage("compile", "A.MES", "--output=FW0417AB.HEX")
        self.assertIn("--languages", result.err)


class OutputTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", MesFile().content())

    def test_json_may_stand_before_or_behind_the_command(self) -> None:
        for arguments in (
            ("--json", "info", "A.MES"),
            ("info", "--json", "A.MES"),
            ("info", "A.MES", "--json"),
        ):
            self.assertEqual(self.done(*arguments).json["type"], ".MES")

    def test_options_may_stand_around_the_file(self) -> None:
        self.done("texts", "--language", "1", "A.MES")
        self.done("compile", "--output", "FW0417AB.HEX", "A.MES", "--languages", "1,2")
        self.done("compile", "--languages", "1,2", "A.MES", "--output", "FW0417AB.HEX")

    def test_a_name_may_stand_before_the_source(self) -> None:
        self.write("a.src", b" MNLING DC.B 'ABCD'\r\n")
        memory = ("--languages=1", "--language-message=1", "--memory-start=1", "--memory-length=64")
        self.done("import", *memory, "--name", "NEW", "a.src", "--output", "B.MES")

    @not_on_windows(NO_DEVICES)
    def test_output_that_cannot_be_written_fails(self) -> None:
        with open("/dev/full", "wb") as full:
            done = subprocess.run(
                [PROGRAM, "info", self.folder / "A.MES"], stdout=full, stderr=subprocess.PIPE
            )
        self.assertEqual(done.returncode, REFUSED)
        self.assertNotEqual(done.stderr, b"")

    def test_a_refusal_is_json_too(self) -> None:
        result = self.refused("--json", "texts", "A.MES", "--language=9")
        self.assertEqual(result.json, {"error": "A.MES: has no language 9"})
        self.assertIn("missing.MES", self.refused("--json", "info", "missing.MES").json["error"])
        error = self.wrong_usage("info", "--json").json["error"]
        self.assertEqual(error, "FILE is required; see vendlingua-cli info --help")

    def test_a_refusal_in_json_has_the_message_boxes(self) -> None:
        self.write("A.MSX", msx_file(1, "0267"))
        result = self.refused("info", "A.MSX", "--json")
        box = {"icon": "critical", "title": "ERROR", "text": " File not managed ! "}
        self.assertEqual(result.json, {"error": "A.MSX: was not opened", "notices": [box]})

    def test_a_command_that_fails_behind_its_report_prints_one_json(self) -> None:
        self.write("B.MES", b"")
        result = self.cli.run("verify", "B.MES", "--json")
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(set(result.json), {"files"})

    def test_the_interface_language_file_is_not_needed(self) -> None:
        self.run_a_copy_of_the_program()
        self.assert_commands_work()

    def test_the_interface_language_file_may_hold_anything(self) -> None:
        self.run_a_copy_of_the_program()
        for content in (b"", b"\r", b"one line", random.Random(4).randbytes(5000)):
            self.write("english.lng", content)
            self.assert_commands_work()

    def test_the_interface_language_file_may_be_a_folder(self) -> None:
        self.run_a_copy_of_the_program()
        (self.folder / "english.lng").mkdir()
        self.assert_commands_work()

    def run_a_copy_of_the_program(self) -> None:
        """Its language files are those of the test's folder."""
        self.cli = Cli(self.folder, copy_program(self.folder))

    def assert_commands_work(self) -> None:
        self.done("info", "A.MES")
        self.write("A.MSX", msx_file(1, "0267"))
        self.refused("info", "A.MSX")  # in a message box of that file


if __name__ == "__main__":
    unittest.main()
