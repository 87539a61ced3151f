"""The samples are what the program makes of their sources, and they are sound."""

from __future__ import annotations

import csv
import re
import shlex
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from message_files import LAST_LINE_OF_NINE, decode_with_objcopy, decode_with_srec_cat, header
from support import COMMANDS, PROGRAM, SAMPLES, CliTest

FILES = ("FW0417AB.MES", "FW0267AA.MES", "MP0417AA.MSX")
LANGUAGES = (
    "english",
    "deutsch",
    "francais",
    "espanol",
    "portugues",
    "nederlands",
    "dansk",
    "svenska",
)
MESSAGES = 455
CELLS = 16
PLACEHOLDER = "þ"
DEGREE_SIGN = "°"  # the display draws it where Windows-1252 has "ß"
ACCENTED_LETTERS = set(bytes(range(0xC0, 0x100)).decode("latin-1")) - set("×÷ÐðÞþß")
DISPLAY = {chr(c) for c in range(0x20, 0x7F)} | ACCENTED_LETTERS | {PLACEHOLDER, DEGREE_SIGN}


def source_texts() -> list[bytes]:
    """The quoted texts of the firmware source, as an assembler reads them."""
    pattern = re.compile(rb"""^\w*\s*DC\.B\s+(?:'((?:[^']|'')*)'|"([^"]*)")""", re.MULTILINE)
    source = (SAMPLES / "firmware.src").read_bytes()
    return [(m[1] or b"").replace(b"''", b"'") or m[2] for m in pattern.finditer(source)]


def translation(language: str) -> list[dict[str, str]]:
    path = SAMPLES / "translations" / f"{language}.csv"
    with path.open(encoding="utf-8", newline="") as table:
        return list(csv.DictReader(table, strict=True))


def codes_of(text: str) -> bytes:
    return text.replace(DEGREE_SIGN, "ß").encode("cp1252")


def placeholders(text: str) -> list[int]:
    return [cell for cell, character in enumerate(text) if character == PLACEHOLDER]


def language_bytes(content: bytes, language: int, stride: int) -> bytes:
    """All messages of one language of a .MES file with 16 cells a message."""
    start = 24 + language * ((stride + 1) * CELLS + 20) + 20
    return content[start : start + MESSAGES * CELLS]


class SourcesTest(unittest.TestCase):
    def test_the_firmware_source_holds_455_texts_of_16_cells(self) -> None:
        texts = source_texts()
        self.assertEqual(len(texts), MESSAGES)
        self.assertEqual({len(text) for text in texts}, {CELLS})

    def test_there_is_a_translation_for_every_language(self) -> None:
        files = sorted(path.stem for path in (SAMPLES / "translations").iterdir())
        self.assertEqual(files, sorted(LANGUAGES))

    def test_every_translation_holds_every_message_in_order(self) -> None:
        origin = [text.decode("cp1252").replace("ß", DEGREE_SIGN) for text in source_texts()]
        for language in LANGUAGES:
            with self.subTest(language):
                rows = translation(language)
                self.assertEqual(
                    [row["message"] for row in rows], [str(m) for m in range(MESSAGES)]
                )
                self.assertEqual([row["origin"] for row in rows], origin)

    def test_every_text_fits_the_display(self) -> None:
        for row in self.rows():
            self.assertLessEqual(len(row["text"]), CELLS, row)

    def test_every_text_uses_characters_of_the_display_only(self) -> None:
        for row in self.rows():
            self.assertLessEqual(set(row["text"]), DISPLAY, row)

    def test_placeholders_stand_where_the_origin_has_them(self) -> None:
        for row in self.rows():
            self.assertEqual(placeholders(row["text"]), placeholders(row["origin"]), row)

    def test_no_text_is_left_out(self) -> None:
        for row in self.rows():
            self.assertEqual(row["text"].strip() == "", row["origin"].strip() == "", row)

    def rows(self) -> list[dict[str, str]]:
        return [row for language in LANGUAGES for row in translation(language)]


class CommittedSamplesTest(unittest.TestCase):
    def test_they_are_what_their_sources_give(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            make_samples(Path(folder))
            self.assertEqual(sorted(path.name for path in Path(folder).iterdir()), sorted(FILES))
            for name in FILES:
                with self.subTest(name):
                    self.assertEqual(
                        (SAMPLES / name).read_bytes(), (Path(folder) / name).read_bytes()
                    )


def make_samples(folder: Path) -> None:
    subprocess.run(
        [SAMPLES / "make_samples.sh", PROGRAM.resolve(), folder], check=True, capture_output=True
    )


class MadeSamplesTest(CliTest):
    """The samples as the script makes them now, a copy for each test."""

    made: tempfile.TemporaryDirectory[str]

    @classmethod
    def setUpClass(cls) -> None:
        super().setUpClass()
        cls.made = tempfile.TemporaryDirectory(prefix="vendlingua-samples-")
        cls.addClassCleanup(cls.made.cleanup)
        make_samples(Path(cls.made.name))

    def setUp(self) -> None:
        super().setUp()
        shutil.copytree(self.made.name, self.folder, dirs_exist_ok=True)

    def test_they_are_sound(self) -> None:
        printed = self.done("verify", *FILES).out
        self.assertEqual(printed, "".join(f"{name}: sound\n" for name in FILES))

    def test_they_hold_the_languages_in_order(self) -> None:
        names = ["Default", "ITALIANO", *(language.upper() for language in LANGUAGES)]
        for name, count in (("FW0417AB.MES", 10), ("FW0267AA.MES", 6)):
            languages = self.done("info", name, "--json").json["languages"]
            self.assertEqual([language["name"] for language in languages], names[:count])

    def test_their_headers_declare_the_boards(self) -> None:
        # Both flags are set, MNLING stands before message 169.
        nine = header(9, CELLS, b"03", 169, 454, 0xFF0000, 0xFFF0)
        four = header(4, CELLS, b"03", 169, 454, 0xFF8000, 0x8000)
        self.assertEqual(self.read("FW0417AB.MES")[:24], nine)
        self.assertEqual(self.read("FW0267AA.MES")[:24], four)

    def test_reference_and_italian_are_the_texts_of_the_source(self) -> None:
        expected = b"".join(source_texts())
        # 65520 / 9 / 16 = 455 and 32768 / 4 / 16 = 512 slots a language.
        for name, stride in (("FW0417AB.MES", 455), ("FW0267AA.MES", 512)):
            for language in (0, 1):
                self.assertEqual(language_bytes(self.read(name), language, stride), expected)

    def test_the_other_languages_are_the_translations(self) -> None:
        for name, stride, count in (("FW0417AB.MES", 455, 8), ("FW0267AA.MES", 512, 4)):
            for number, language in enumerate(LANGUAGES[:count], start=2):
                texts = [codes_of(row["text"]) for row in translation(language)]
                expected = b"".join(text.ljust(CELLS) for text in texts)
                found = language_bytes(self.read(name), number, stride)
                self.assertEqual(found, expected, (name, language))

    def test_the_built_in_table_is_the_text_of_the_source(self) -> None:
        printed = self.done("texts", "MP0417AA.MSX", "--language=0", "--json").json["messages"]
        expected = [text.hex().upper() for text in source_texts()]
        self.assertEqual([message["hex"] for message in printed], expected)

    def test_the_identified_copy_holds_the_nine_languages(self) -> None:
        content = self.read("FW0417AB.MES")
        image = b"".join(language_bytes(content, k + 1, 455) for k in range(9))
        lines = self.read("MP0417AA.MSX").splitlines(keepends=True)
        self.assertEqual(lines[0], b"S013000044543034313741412020202020202020E6\r\n")
        self.assertEqual(lines[-1], LAST_LINE_OF_NINE)
        self.write("records", b"".join(lines[1:-1]))
        decoded = decode_with_srec_cat(self.folder / "records", 0xFF0000)
        self.assertEqual(decoded, image.replace(b"\xfe", b" "))

    def test_nine_languages_compile_to_their_image(self) -> None:
        options = ("--output=FW0417AB.MHX", "--copy=MP0417AA.MSX")
        self.done("compile", "FW0417AB.MES", "--languages=1,2,3,4,5,6,7,8,9", *options)
        content = self.read("FW0417AB.MES")
        image = b"".join(language_bytes(content, k + 1, 455) for k in range(9))
        self.assert_flash_file("FW0417AB.MHX", 0xFF0000, image.replace(b"\xfe", b" "))

    def test_four_of_five_languages_compile_to_their_image(self) -> None:
        self.done("compile", "FW0267AA.MES", "--languages=1,2,4,5", "--output=FW0267AA.MHX")
        content = self.read("FW0267AA.MES")
        slots = [language_bytes(content, k, 512).ljust(0x2000, b"\0") for k in (1, 2, 4, 5)]
        image = b"".join(slots).replace(b"\xfe", b" ")
        self.assert_flash_file("FW0267AA.MHX", 0xFF8000, image)
        # The board's address space ends at BFFF: the first two languages are in reach.
        self.assertEqual(self.read("FW0267AA.SA1"), image[:0x2000])
        self.assertEqual(self.read("FW0267AA.SA2"), image[0x2000:0x3C00])
        self.assertEqual(self.read("FW0267AA.SA3"), image[0x3C00:0x3E00])
        self.assertEqual(self.read("FW0267AA.SA4"), image[0x3E00:0x4000])

    def test_everything_that_is_compiled_is_sound(self) -> None:
        self.done("compile", "FW0267AA.MES", "--languages=1,2,3,4", "--output=FW0267AA.MHX")
        self.done("compile", "MP0417AA.MSX", "--output=MP0417AA.MHX")
        self.done("verify", "FW0267AA.MHX", "FW0267AA.MSX", "MP0417AA.MHX")

    def test_an_exported_language_is_the_translation(self) -> None:
        for number, language in enumerate(LANGUAGES, start=2):
            output = f"{language}.csv"
            self.done("export", "FW0417AB.MES", f"--language={number}", f"--output={output}")
            with (self.folder / output).open(encoding="utf-8", newline="") as table:
                rows = list(csv.DictReader(table, strict=True))
            self.assertEqual(rows, translation(language))

    def test_the_examples_of_the_help_work(self) -> None:
        shutil.copy(SAMPLES / "firmware.src", self.folder)
        (self.folder / "out").mkdir()
        examples = {}
        for command in COMMANDS:
            help_text = self.done(command, "--help").out
            example = help_text.split("\nExample: vendlingua-cli ")[1].splitlines()[0]
            examples[command] = shlex.split(example)
        self.done(*examples.pop("import"))
        make_samples(self.folder)
        # What one of them reads, another one before it makes.
        for command in ("update", "diff", "pretranslate", "display-type"):
            self.done(*examples.pop(command))
        self.done(*examples.pop("export"))
        for command in (
            "check",
            "stats",
            "new-language",
            "apply",
            "put",
            "texts",
            "info",
            "compile",
            "proof",
            "rename",
        ):
            self.done(*examples.pop(command))
        self.done(*examples.pop("sections"))
        self.done(*examples.pop("verify"))
        self.done(*examples.pop("recover"))
        self.assertEqual(examples, {})

    def assert_flash_file(self, name: str, start: int, image: bytes) -> None:
        self.assertNotIn(b"\xfe", image)
        self.assertEqual(decode_with_srec_cat(self.folder / name, start), image)
        self.assertEqual(decode_with_objcopy(self.folder / name), image)


if __name__ == "__main__":
    unittest.main()
