#!/usr/bin/env python3
"""Makes the TrueType display fonts from the .dots files (needs python3-fontforge).

At 17 points one cell is 9.3 points (186 twips) wide: 1116 / 2040 = 9.3 / 17.
A glyph is composed of its rows, so that the fonts stay small.
"""

import os

os.environ["SOURCE_DATE_EPOCH"] = "1704067200"  # a fixed date: each run gives the same bytes

import fontforge  # noqa: E402
import psMat  # noqa: E402

from dots import COLUMNS, FAMILIES, FONT_DIR, ROWS, Pattern, read_font  # noqa: E402

VERSION = "1.000"
LICENCE = "MIT"

EM = 2040
ADVANCE = 1116
COLUMN_PITCH = ADVANCE // (COLUMNS + 1)
ROW_PITCH = 204
DOT_WIDTH = 168
DOT_HEIGHT = 184
ASCENT = 1530
DESCENT = 306
DESCENDER_ROWS = 1
PLACEHOLDER_CODE = 254
PRIVATE_USE_START = 0xF000


def row_bits(row: str) -> int:
    return int(row.replace("#", "1").replace(".", "0"), 2)


def unicode_of(code: int) -> int:
    """Return the character of a Windows-1252 code; the unassigned ones keep their number."""
    try:
        return ord(bytes([code]).decode("cp1252"))
    except UnicodeDecodeError:
        return code


def add_row(font: fontforge.font, bits: int) -> None:
    """Add a glyph with one row of dots; it stands just above the baseline."""
    glyph = font.createChar(-1, f"row{bits:02d}")
    pen = glyph.glyphPen()
    bottom = (ROW_PITCH - DOT_HEIGHT) // 2
    top = bottom + DOT_HEIGHT
    for column in range(COLUMNS):
        if bits & (1 << (COLUMNS - 1 - column)):
            left = COLUMN_PITCH // 2 + column * COLUMN_PITCH + (COLUMN_PITCH - DOT_WIDTH) // 2
            right = left + DOT_WIDTH
            pen.moveTo((left, bottom))
            pen.lineTo((left, top))
            pen.lineTo((right, top))
            pen.lineTo((right, bottom))
            pen.closePath()
    glyph.width = ADVANCE


def compose(glyph: fontforge.glyph, pattern: Pattern) -> None:
    for index, row in enumerate(pattern):
        if bits := row_bits(row):
            rows_up = ROWS - DESCENDER_ROWS - 1 - index
            glyph.addReference(f"row{bits:02d}", psMat.translate(0, rows_up * ROW_PITCH))
    glyph.width = ADVANCE


def set_names(font: fontforge.font, family: str) -> None:
    font.familyname = family
    font.fullname = family
    font.fontname = family.replace(" ", "")
    font.weight = "Regular"
    font.version = VERSION
    font.sfntRevision = float(VERSION)
    font.copyright = f"The Vendlingua developers, licence: {LICENCE}"
    for key, value in {
        "Family": family,
        "SubFamily": "Regular",
        "Fullname": family,
        "UniqueID": f"Vendlingua {family} {VERSION}",
        "Version": f"Version {VERSION}",
        "License": LICENCE,
    }.items():
        font.appendSFNTName("English (US)", key, value)


def set_metrics(font: fontforge.font) -> None:
    font.em = EM
    font.ascent = EM - DESCENT
    font.descent = DESCENT
    for prefix in ("hhea_", "os2_typo", "os2_win"):
        setattr(font, f"{prefix}ascent_add", False)
        setattr(font, f"{prefix}descent_add", False)
        setattr(font, f"{prefix}ascent", ASCENT)
        setattr(font, f"{prefix}descent", DESCENT if prefix == "os2_win" else -DESCENT)
    font.hhea_linegap = font.os2_typolinegap = 0
    font.os2_panose = (2, 0, 5, 9, 0, 0, 0, 0, 0, 0)  # Latin text, monospaced
    font.os2_weight = 400
    font.os2_stylemap = 0x40  # Regular
    font.os2_fstype = 0
    font.os2_vendor = "VEND"
    font.os2_codepages = (1, 0)  # Latin 1
    font.gasp_version = 1
    font.gasp = ((65535, ("antialias", "symmetric-smoothing")),)  # no grid fitting


def make_font(stem: str, family: str) -> None:
    patterns = read_font(stem)
    font = fontforge.font()
    font.encoding = "UnicodeBmp"
    set_names(font, family)
    set_metrics(font)
    for bits in sorted({row_bits(row) for pattern in patterns.values() for row in pattern} - {0}):
        add_row(font, bits)
    compose(font.createChar(-1, ".notdef"), patterns[PLACEHOLDER_CODE])
    for name in (".null", "nonmarkingreturn"):  # else added by fontforge with another width
        font.createChar(-1, name).width = ADVANCE
    for code, pattern in sorted(patterns.items()):
        glyph = font.createChar(unicode_of(code), f"code{code:03d}")
        glyph.altuni = (PRIVATE_USE_START + code,)
        compose(glyph, pattern)
    path = FONT_DIR / f"{stem.upper()}.ttf"
    font.generate(str(path), flags=("short-post", "no-FFTM-table"))
    font.close()
    print(f"{path.name}: {path.stat().st_size} bytes")


def main() -> None:
    for stem, family in FAMILIES.items():
        make_font(stem, family)


if __name__ == "__main__":
    main()
