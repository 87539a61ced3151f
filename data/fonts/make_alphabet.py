#!/usr/bin/env python3
"""Prints src/core/document/alphabet_table.cpp, made of the .dots files."""

from dots import FAMILIES, Glyph, read_family

HEADER = """\
// Made by data/fonts/make_alphabet.py of the dot patterns beside it.
#include "core/document/alphabet_table.h"

namespace vendlingua {

// clang-format off
const std::array<GlyphTable, kDisplayTypes> kGlyphTables = {{
"""
FOOTER = """\
}};
// clang-format on

}  // namespace vendlingua
"""

# What the .dots files name because it cannot be seen there.
NAMED = {"space": " ", "no-break space": "\N{NO-BREAK SPACE}", "placeholder mark": "þ"}


def character(name: str) -> int:
    """Return the character that a glyph's name begins with, 0 for a picture without one."""
    if name in NAMED:
        return ord(NAMED[name])
    first = name.split()[0]
    return ord(first) if len(first) == 1 else 0


def row_bits(row: str) -> int:
    return int(row.replace("#", "1").replace(".", "0"), 2)


def entry(glyph: Glyph | None) -> str:
    if glyph is None:
        return "        {},\n"
    rows = ", ".join(f"0x{row_bits(row):02X}" for row in glyph.pattern)
    return f"        {{0x{character(glyph.name):04X}, {{{rows}}}}},\n"


def table(stem: str) -> str:
    glyphs = read_family(stem)
    entries = "".join(entry(glyphs.get(code)) for code in range(256))
    return f"    {{{{  // {FAMILIES[stem]}\n{entries}    }}}},\n"


def source() -> str:
    return HEADER + "".join(map(table, FAMILIES)) + FOOTER


if __name__ == "__main__":
    print(source(), end="")
