"""The display font that is shipped is what its tool makes of the segment tables."""

import sys
import tempfile
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "assets" / "tools"))
import make_font

shipped = make_font.Font_File.read_bytes()
with tempfile.TemporaryDirectory() as folder:
    make_font.Font_File = Path(folder) / "MELVOR.FNT"
    make_font.Main()
    assert make_font.Font_File.read_bytes() == shipped, "the shipped font is not the one of the tables"
