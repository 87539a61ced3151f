"""The font files draw for every code the dots that its pattern has, one cell wide."""

from __future__ import annotations

import unittest

from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.ttLib import TTFont

import make_alphabet
from dots import COLUMNS, FAMILIES, FONT_DIR, ROWS, Pattern, read_font

CODES = range(1, 256)
TWIPS_PER_POINT = 20
CELL_TWIPS = 186
POINTS = 17
PRIVATE_USE = 0xF000

Dots = set[tuple[int, int]]


def character(code: int) -> int:
    """The character of a Windows-1252 code; an unassigned code keeps its number."""
    try:
        return ord(bytes([code]).decode("cp1252"))
    except UnicodeDecodeError:
        return code


def dots_of(pattern: Pattern) -> Dots:
    return {(x, y) for y, row in enumerate(pattern) for x, dot in enumerate(row) if dot == "#"}


class Face:
    """One font file."""

    def __init__(self, stem: str) -> None:
        self.font = TTFont(FONT_DIR / f"{stem.upper()}.ttf")
        self.characters = self.font.getBestCmap()
        self.em = self.font["head"].unitsPerEm
        self.advances = {advance for advance, _ in self.font["hmtx"].metrics.values()}

    @property
    def ascent(self) -> int:
        return self.font["hhea"].ascent

    @property
    def height(self) -> int:
        return self.ascent - self.font["hhea"].descent

    def rectangles(self, glyph: str) -> list[tuple[float, float, float, float]]:
        """Left, bottom, right and top of every contour."""
        pen = DecomposingRecordingPen(self.font.getGlyphSet())
        self.font.getGlyphSet()[glyph].draw(pen)
        found, points = [], []
        for operator, operands in pen.value:
            points += operands
            if operator == "closePath":
                xs, ys = [x for x, _ in points], [y for _, y in points]
                found.append((min(xs), min(ys), max(xs), max(ys)))
                points = []
        return found

    def dots(self, glyph: str, advance: int) -> Dots:
        """The dots that a glyph draws: half a column or row of the cell is free on every side."""
        column, row = advance / (COLUMNS + 1), self.height / (ROWS + 1)
        found = set()
        for left, bottom, right, top in self.rectangles(glyph):
            x = ((left + right) / 2 - column) / column
            y = (self.ascent - (bottom + top) / 2 - row) / row
            found.add((round(x), round(y)))
        return found


FACES = {stem: Face(stem) for stem in FAMILIES}


class DisplayFontsTest(unittest.TestCase):
    def test_families_have_the_names_that_the_program_looks_for(self) -> None:
        names = [face.font["name"].getDebugName(1) for face in FACES.values()]
        self.assertEqual(names, ["LCD", "LCD_CY", "LCD KTV", "LCD HBR"])

    def test_every_code_has_its_glyph_twice(self) -> None:
        for stem, face in FACES.items():
            for code in CODES:
                with self.subTest(stem, code=code):
                    glyph = face.characters[character(code)]
                    self.assertEqual(face.characters[PRIVATE_USE + code], glyph)

    def test_all_glyphs_have_the_width_of_a_cell(self) -> None:
        for stem, face in FACES.items():
            with self.subTest(stem):
                (advance,) = face.advances
                self.assertEqual(advance * POINTS * TWIPS_PER_POINT, CELL_TWIPS * face.em)

    def test_no_outline_leaves_its_cell(self) -> None:
        for stem, face in FACES.items():
            (advance,) = face.advances
            for code in CODES:
                for left, bottom, right, top in face.rectangles(face.characters[character(code)]):
                    with self.subTest(stem, code=code):
                        self.assertGreaterEqual(left, 0)
                        self.assertLessEqual(right, advance)
                        self.assertGreaterEqual(bottom, face.ascent - face.height)
                        self.assertLessEqual(top, face.ascent)

    def test_every_glyph_shows_the_dots_of_its_pattern(self) -> None:
        for stem, face in FACES.items():
            (advance,) = face.advances
            patterns = read_font(stem)
            for code in CODES:
                with self.subTest(stem, code=code):
                    drawn = face.dots(face.characters[character(code)], advance)
                    self.assertEqual(drawn, dots_of(patterns[code]))

    def test_the_alphabet_of_the_program_is_made_of_the_same_patterns(self) -> None:
        table = FONT_DIR.parents[1] / "src/core/document/alphabet_table.cpp"
        self.assertEqual(table.read_text(encoding="utf-8"), make_alphabet.source())

    def test_the_placeholder_can_be_seen(self) -> None:
        for stem in FACES:
            self.assertTrue(dots_of(read_font(stem)[254]), stem)


if __name__ == "__main__":
    unittest.main()
