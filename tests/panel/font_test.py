"""The display font is what its tool makes of the segment tables, and those are the program's."""

import re
import sys
import tempfile
from ast import literal_eval
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "assets" / "tools"))
import make_font
from segments import All_Segments, Segment_Chars, Segment_Grid

code = (Root / "panel" / "segments.cpp").read_text()
characters = {literal_eval(sign): lit for sign, lit in re.findall(r"Character_Row\{('.+?'), \"(\w+)\"\}", code)}
assert characters == {"\0": All_Segments, **Segment_Chars}
assert tuple(re.findall(r'"([A-Z]{9})"', code)) == Segment_Grid

shipped = make_font.Font_File.read_bytes()
with tempfile.TemporaryDirectory() as folder:
    make_font.Font_File = Path(folder) / "MELVOR.FNT"
    make_font.Main()
    assert make_font.Font_File.read_bytes() == shipped, "the shipped font is not the one of the tables"
