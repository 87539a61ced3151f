"""Reads the dot patterns of the display fonts from the .dots files."""

from pathlib import Path
from typing import NamedTuple

COLUMNS = 5
ROWS = 8
FONT_DIR = Path(__file__).resolve().parent
FAMILIES = {"lcd": "LCD", "lcd_cy": "LCD_CY", "lcd_ktv": "LCD KTV", "lcd_hbr": "LCD HBR"}

Pattern = tuple[str, ...]


class Glyph(NamedTuple):
    """What one code draws: the character or a name for it, and its dots."""

    name: str
    pattern: Pattern


def read_glyphs(path: Path) -> dict[int, Glyph]:
    """Return the glyph of every code in the file and in the files that it includes."""
    glyphs: dict[int, Glyph] = {}
    own_codes: set[int] = set()
    lines = enumerate(path.read_text(encoding="utf-8").splitlines(), 1)
    for line_number, line in lines:
        if not line.strip() or line.startswith(("//", ";")):
            continue
        keyword, _, rest = line.partition(" ")
        if keyword == "include":
            glyphs.update(read_glyphs(path.parent / rest.strip()))
        elif keyword == "code":
            number, _, name = rest.split(" ", 2)
            code = int(number)
            if not 1 <= code <= 255 or code in own_codes:
                raise ValueError(f"{path}:{line_number}: code {code} is out of range or given twice")
            own_codes.add(code)
            pattern = tuple(row for _, (_, row) in zip(range(ROWS), lines))
            if len(pattern) < ROWS or not all(map(_is_row, pattern)):
                raise ValueError(f"{path}:{line_number}: code {code} needs {ROWS} rows of {COLUMNS}")
            glyphs[code] = Glyph(name, pattern)
        else:
            raise ValueError(f"{path}:{line_number}: neither a code nor an include: {line}")
    return glyphs


def read_family(stem: str) -> dict[int, Glyph]:
    """Return the glyphs of one of FAMILIES; every code from 1 to 255 is there."""
    glyphs = read_glyphs(FONT_DIR / f"{stem}.dots")
    missing = sorted(set(range(1, 256)) - set(glyphs))
    if missing:
        raise ValueError(f"{stem}.dots: no pattern for the codes {missing}")
    return glyphs


def read_font(stem: str) -> dict[int, Pattern]:
    """Return the patterns of one of FAMILIES."""
    return {code: glyph.pattern for code, glyph in read_family(stem).items()}


def _is_row(row: str) -> bool:
    return len(row) == COLUMNS and set(row) <= set("#.")
