#!/usr/bin/env python3
"""Makes MELVOR.FNT, the display face of the tone name, from the segment tables.

A cell is one eighteenth of the type size, so at 18 pixels each cell is exactly one pixel. A character takes eleven
cells: one free on the left, nine lit ones, one free on the right; ten of them are 110 pixels wide.
"""

from pathlib import Path

from outline import Outlines
from segments import All_Segments, Lit_Cells, Segment_Chars, Segment_Grid
from truetype import Build_Font

Cell = 64  # font units
Rows = len(Segment_Grid)
Side_Cells = 1
Pitch_Cells = Side_Cells + len(Segment_Grid[0]) + Side_Cells
Codes = list(range(32, 127))
Font_File = Path(__file__).resolve().parent.parent / "MELVOR.FNT"


def Glyph(segments):
    return [[((x + Side_Cells) * Cell, (Rows - y) * Cell) for x, y in outline]
            for outline in Outlines(Lit_Cells(segments))]


def Main():
    glyphs = [Glyph(All_Segments)] + [Glyph(Segment_Chars.get(chr(code), "")) for code in Codes]
    font = Build_Font("MELVOR", "Copyright MELVOR, MIT licence", em=Rows * Cell, ascent=Rows * Cell,
                      advance=Pitch_Cells * Cell, glyphs=glyphs, codes=Codes)
    Font_File.write_bytes(font)
    print(f"{Font_File.name}: {len(font)} bytes, {len(glyphs)} glyphs")


if __name__ == "__main__":
    Main()
