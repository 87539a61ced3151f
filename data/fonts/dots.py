"""Reads the dot patterns of the display fonts from the .dots files."""

from pathlib import Path

COLUMNS = 5
ROWS = 8
FONT_DIR = Path(__file__).resolve().parent
FAMILIES = {"lcd": "LCD", "lcd_cy": "LCD_CY", "lcd_ktv": "LCD KTV", "lcd_hbr": "LCD HBR"}

Pattern = tuple[str, ...]


def read_patterns(path: Path) -> dict[int, Pattern]:
    """Return the pattern of every code in the file and in the files that it includes."""
    patterns: dict[int, Pattern] = {}
    own_codes: set[int] = set()
    lines = enumerate(path.read_text(encoding="utf-8").splitlines(), 1)
    for number, line in lines:
        if not line.strip() or line.startswith(("//", ";")):
            continue
        keyword, _, rest = line.partition(" ")
        if keyword == "include":
            patterns.update(read_patterns(path.parent / rest.strip()))
        elif keyword == "code":
            code = int(rest.split()[0])
            if not 1 <= code <= 255 or code in own_codes:
                raise ValueError(f"{path}:{number}: code {code} is out of range or given twice")
            own_codes.add(code)
            pattern = tuple(row for _, (_, row) in zip(range(ROWS), lines))
            if len(pattern) < ROWS or not all(map(_is_row, pattern)):
                raise ValueError(f"{path}:{number}: code {code} needs {ROWS} rows of {COLUMNS}")
            patterns[code] = pattern
        else:
            raise ValueError(f"{path}:{number}: neither a code nor an include: {line}")
    return patterns


def read_font(stem: str) -> dict[int, Pattern]:
    """Return the patterns of one of FAMILIES; every code from 1 to 255 is there."""
    patterns = read_patterns(FONT_DIR / f"{stem}.dots")
    missing = sorted(set(range(1, 256)) - set(patterns))
    if missing:
        raise ValueError(f"{stem}.dots: no pattern for the codes {missing}")
    return patterns


def _is_row(row: str) -> bool:
    return len(row) == COLUMNS and set(row) <= set("#.")
