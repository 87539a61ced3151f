"""vendlingua-cli proof."""

from __future__ import annotations

import re
import shutil
import struct
import unittest
import zlib
from html.parser import HTMLParser

from message_files import MesFile
from support import SAMPLES, CliTest


class Labels(HTMLParser):
    """The texts of the rows of a sheet, as a screen reader speaks them."""

    def __init__(self, html: str) -> None:
        super().__init__()
        self.rows: list[str] = []
        self.feed(html)

    def handle_starttag(self, tag: str, attrs: list[tuple[str, str | None]]) -> None:
        self.rows += [value or "" for name, value in attrs if name == "aria-label"]


def pixels(png: bytes) -> tuple[int, int, bytes]:
    """Width, height and unfiltered size of a PNG picture whose checksums are right."""
    width = height = 0
    data = b""
    at = 8
    while at < len(png):
        length, kind = struct.unpack(">I4s", png[at : at + 8])
        content = png[at + 8 : at + 8 + length]
        (checksum,) = struct.unpack(">I", png[at + 8 + length : at + 12 + length])
        assert checksum == zlib.crc32(kind + content)
        if kind == b"IHDR":
            width, height = struct.unpack(">II", content[:8])
        if kind == b"IDAT":
            data += content
        at += 12 + length
    return width, height, zlib.decompress(data)


class SheetTest(CliTest):
    def sheet(self, *arguments: str) -> str:
        self.done("proof", "A.MES", "--output=p.html", *arguments)
        return self.read("p.html").decode()

    def test_every_message_stands_beside_its_origin(self) -> None:
        self.write("A.MES", MesFile().content())
        rows = Labels(self.sheet("--languages=2")).rows
        self.assertEqual(rows, ["1000", "2000", "1111", "2111", "1222", "2222"])

    def test_all_languages_are_on_it_if_none_is_given(self) -> None:
        self.write("A.MES", MesFile().content())
        self.assertEqual(re.findall("<h2>(.*)</h2>", self.sheet()), ["ITALIANO", "ENGLISH"])

    def test_cells_of_the_board_run_through_digits(self) -> None:
        file = MesFile(texts={(k, 0): b"A\xfe\xfe\xfe" for k in range(3)})
        self.write("A.MES", file.content())
        html = self.sheet("--languages=english", "--origin=1")
        self.assertEqual(html.count("<rect"), 6)
        self.assertNotIn("gFE", html)

    def test_findings_stand_beside_their_message(self) -> None:
        file = MesFile(texts={(1, 0): b"12 C", (2, 0): b"    "})
        self.write("A.MES", file.content())
        self.assertIn("blank", self.sheet("--languages=2"))

    def test_the_whole_sample_is_one_file_that_needs_no_other(self) -> None:
        shutil.copy(SAMPLES / "FW0417AB.MES", self.folder / "A.MES")
        html = self.sheet()
        self.assertEqual(len(Labels(html).rows), 9 * 455 * 2)
        self.assertNotRegex(html, "src=|http|url\\(")

    def test_a_sheet_is_not_written_over_the_file_that_it_reads(self) -> None:
        self.write("A.MES", MesFile().content())
        self.refused("proof", "A.MES", "--output=A.MES")


class PictureTest(CliTest):
    def test_a_message_is_drawn_with_its_partner(self) -> None:
        self.write("A.MES", MesFile(width=16).content())
        self.done("proof", "A.MES", "--languages=1", "--png=1", "--output=m.png")
        width, height, data = pixels(self.read("m.png"))
        # 16 cells of 6 columns, 2 rows of 9, without the last gap and with a border of 2 dots.
        self.assertEqual((width, height), ((16 * 6 - 1 + 4) * 8, (2 * 9 - 1 + 4) * 8))
        self.assertEqual(len(data), height * (1 + 3 * width))

    def test_the_last_message_may_stand_alone(self) -> None:
        self.write("A.MES", MesFile(width=16).content())
        self.done("proof", "A.MES", "--languages=1", "--png=2", "--output=m.png")
        self.assertEqual(pixels(self.read("m.png"))[1], (9 - 1 + 4) * 8)

    def test_a_message_that_is_not_there_is_refused(self) -> None:
        self.write("A.MES", MesFile().content())
        self.refused("proof", "A.MES", "--languages=1", "--png=3", "--output=m.png")

    def test_a_picture_is_of_one_language(self) -> None:
        self.write("A.MES", MesFile().content())
        self.wrong_usage("proof", "A.MES", "--png=0", "--output=m.png")
        self.wrong_usage("proof", "A.MES", "--png=0", "--languages=1,2", "--output=m.png")
        self.wrong_usage(
            *("proof", "A.MES", "--png=0", "--languages=1", "--origin=1", "--output=m.png")
        )


if __name__ == "__main__":
    unittest.main()
