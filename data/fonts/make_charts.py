#!/usr/bin/env python3
"""Draws a chart of each display font from the .dots files (needs python3-pil)."""

from PIL import Image, ImageDraw

from dots import COLUMNS, FAMILIES, FONT_DIR, ROWS, Pattern, read_font

CHART_DIR = FONT_DIR.parents[1] / "docs" / "fonts"

DOT = 6
DOT_GAP = 1
CELL_PADDING = 8
PITCH = DOT + DOT_GAP
CELL_WIDTH = COLUMNS * PITCH + 2 * CELL_PADDING
CELL_HEIGHT = ROWS * PITCH + 2 * CELL_PADDING
MARGIN = 30
HEADING = 40
GRID_LEFT = MARGIN + HEADING
GRID_TOP = MARGIN + 2 * HEADING
SCALE = 4  # enlarges the glyphs of the title

WHITE, GREY, BLACK = 255, 190, 0


def draw_pattern(
    draw: ImageDraw.ImageDraw, left: int, top: int, pattern: Pattern, dot: int, pitch: int
) -> None:
    for y, row in enumerate(pattern):
        for x, mark in enumerate(row):
            if mark == "#":
                x0, y0 = left + x * pitch, top + y * pitch
                draw.rectangle((x0, y0, x0 + dot - 1, y0 + dot - 1), fill=BLACK)


def draw_text(
    draw: ImageDraw.ImageDraw, left: int, top: int, text: str, patterns: dict[int, Pattern]
) -> None:
    """Write ASCII text with the font's own glyphs."""
    for position, code in enumerate(text.encode("ascii")):
        x = left + position * (COLUMNS + 1) * SCALE
        draw_pattern(draw, x, top, patterns[code], SCALE - 1, SCALE)


def draw_chart(family: str, patterns: dict[int, Pattern]) -> Image.Image:
    right = GRID_LEFT + 16 * CELL_WIDTH
    bottom = GRID_TOP + 16 * CELL_HEIGHT
    image = Image.new("L", (right + MARGIN, bottom + MARGIN), WHITE)
    draw = ImageDraw.Draw(image)
    draw_text(draw, GRID_LEFT, MARGIN, family, patterns)
    for index in range(16):
        x = GRID_LEFT + index * CELL_WIDTH
        y = GRID_TOP + index * CELL_HEIGHT
        digit_x = x + (CELL_WIDTH - COLUMNS * SCALE) // 2
        digit_y = y + (CELL_HEIGHT - ROWS * SCALE) // 2
        draw_text(draw, digit_x, GRID_TOP - HEADING, f"{index:X}", patterns)
        draw_text(draw, GRID_LEFT - HEADING, digit_y, f"{index:X}", patterns)
    for index in range(17):
        x = GRID_LEFT + index * CELL_WIDTH
        y = GRID_TOP + index * CELL_HEIGHT
        draw.line((x, GRID_TOP, x, bottom), fill=GREY)
        draw.line((GRID_LEFT, y, right, y), fill=GREY)
    for code, pattern in patterns.items():
        row, column = divmod(code, 16)
        left = GRID_LEFT + column * CELL_WIDTH + CELL_PADDING
        top = GRID_TOP + row * CELL_HEIGHT + CELL_PADDING
        draw_pattern(draw, left, top, pattern, DOT, PITCH)
    return image


def main() -> None:
    CHART_DIR.mkdir(parents=True, exist_ok=True)
    for stem, family in FAMILIES.items():
        path = CHART_DIR / f"{stem}.png"
        draw_chart(family, read_font(stem)).quantize(4).save(path, optimize=True)
        print(f"{path.name}: {path.stat().st_size} bytes")


if __name__ == "__main__":
    main()
