#!/usr/bin/env python3
"""Draws every picture of the program into assets/pictures, the same files byte for byte on each run."""

from pathlib import Path

import brand
import caps
import faces
import panel_editor
import panel_patch
import panel_windows
import waves

Folder = Path(__file__).resolve().parent.parent / "pictures"


def All_Pictures():
    pictures = caps.Pictures() | faces.Pictures() | waves.Pictures() | brand.Pictures()
    pictures["editor-background"] = panel_editor.Editor_Background()
    return pictures | panel_patch.Pictures() | panel_windows.Pictures()


def Main():
    Folder.mkdir(exist_ok=True)
    pictures = All_Pictures()
    for name, picture in pictures.items():
        (Folder / f"{name}.svg").write_text(picture.Text(), encoding="ascii", newline="\n")
    print(f"{len(pictures)} pictures in {Folder.name}/")


if __name__ == "__main__":
    Main()
