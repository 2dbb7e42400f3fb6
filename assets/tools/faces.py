"""Push buttons, the symbols and captions on them, and the keys and cells of the sequencer."""

from lettering import Write, Write_Centred
from palette import Cyan, Cyan_Dim, Green, Ivory, Letter, Red
from svg import Svg

Grey_Out = "#73797f"
Yellow = "#e7c35a"


def Push_Button(width, height, pressed):
    picture = Svg(width, height)
    light, dark = ("#15181a", "#6f767e") if pressed else ("#a0a7ae", "#1b1e21")
    picture.Rect(0, 0, width, height, dark)
    picture.Rect(0, 0, width - 1, height - 1, light)
    face = ((0, "#32373c"), (1, "#474d53")) if pressed else ((0, "#646b72"), (1, "#474d53"))
    picture.Rect(1, 1, width - 2, height - 2, picture.Gradient(*face))
    return picture


def Caption(text):
    picture = Svg(51, 20)
    Write_Centred(picture, text, 25.5, 7, Letter)
    return picture


def _Symbol(draw, color):
    picture = Svg(14, 14)
    draw(picture, color)
    return picture


def _Triangle(picture, color):
    picture.Polygon(((4, 2), (4, 12), (12, 7)), color)


def _Square(picture, color):
    picture.Rect(3, 3, 8, 8, color)


def _Dot(picture, color):
    picture.Circle(7, 7, 4.5, "#3a0f0a")
    picture.Circle(7, 7, 4, color)


def _Letter(letter):
    def Draw(picture, color):
        Write_Centred(picture, letter, 7, 4, color)
    return Draw


def _Bin(picture, color):
    picture.Rect(2, 3, 10, 1, color)
    picture.Rect(5, 1, 4, 2, color)
    picture.Polygon(((3, 5), (11, 5), (10, 13), (4, 13)), color)
    for x in (5, 7, 9):
        picture.Rect(x - 0.5, 6, 1, 6, "#3b4046")


def _Folder(picture, color):
    picture.Polygon(((1, 3), (5, 3), (6, 4), (13, 4), (13, 12), (1, 12)), color)
    picture.Rect(1, 5, 12, 1, "#ffffff", opacity=0.35)


def _New_Folder(picture, color):
    _Folder(picture, color)
    picture.Rect(6, 6, 2, 5, "#1b1e21")
    picture.Rect(4.5, 7.5, 5, 2, "#1b1e21")


def _Parent_Folder(picture, color):
    _Folder(picture, color)
    picture.Polygon(((7, 5), (10, 8), (8, 8), (8, 11), (6, 11), (6, 8), (4, 8)), "#1b1e21")


def Key(black, pressed):
    """A key seen with its front at the right; white ones are longer."""
    picture = Svg(24 if black else 36, 12)
    if black:
        picture.Rect(0, 0, 24, 12, Ivory)
        picture.Rect(0, 1, 24, 10, "#0b0c0e")
        body = ((0, "#1f5f69"), (1, "#174852")) if pressed else ((0, "#4a5056"), (1, "#1d2023"))
        picture.Rect(0, 1, 22 if not pressed else 23, 9, picture.Gradient(*body))
    else:
        body = ((0, "#8fd9e2"), (1, "#b4e6ec")) if pressed else ((0, "#f6f3ea"), (1, "#dcd8cb"))
        picture.Rect(0, 0, 36, 12, picture.Gradient(*body))
        picture.Rect(0, 11, 36, 1, "#6b685f")
        picture.Rect(35, 0, 1, 12, "#a5a196")
    return picture


def Cell_Picture(entry, size=12):
    """One matrix cell, the grid's line at its right and lower edge: empty, lit indicator, strong note, soft note."""
    picture = Svg(size, size)
    picture.Rect(0, 0, size, size, "#3a4046")
    picture.Rect(0, 0, size - 1, size - 1, "#0e1012")
    inner = size - 1
    if entry == 1:
        picture.Rect(1, 1, inner - 2, inner - 2, Red, round_by=1)
        picture.Rect(2, 2, inner - 5, 1, "#ffd2c8")
    elif entry == 2:
        picture.Rect(1, 1, inner - 2, inner - 2, Cyan)
        picture.Rect(1, 1, inner - 2, 1, "#d8fbff")
    elif entry == 3:
        edge = inner // 3
        picture.Rect(edge, edge, inner - 2 * edge, inner - 2 * edge, Cyan_Dim)
    return picture


def Clock_Light(lit):
    picture = Svg(10, 10)
    picture.Circle(5, 5, 4.6, picture.Gradient((0, "#050607"), (1, "#596067")))
    stops = ((0, "#ff9a88"), (1, "#e3200f")) if lit else ((0, "#5c1d18"), (1, "#2f0f0c"))
    picture.Circle(5, 5, 3.6, picture.Radial(0.42, 0.38, 0.62, *stops))
    return picture


def _Arrow(picture, left, right, y, head_left, head_right, color=Letter):
    picture.Rect(left, y, right - left, 1, color)
    for step in range(1, 4):
        if head_right:
            picture.Rect(right - 1 - step, y - step, 1, 2 * step + 1, color)
        if head_left:
            picture.Rect(left + step, y - step, 1, 2 * step + 1, color)


def Direction(index):
    """Forward, backward, to and fro, a step by chance, turns by chance during (R1) and after (R2) a cycle."""
    picture = Svg(24, 12)
    if index in (0, 1):
        _Arrow(picture, 3, 21, 5, index == 1, index == 0)
    elif index == 2:
        _Arrow(picture, 2, 22, 5, True, True)
    elif index == 7:
        picture.Rect(7, 0, 11, 11, Letter, round_by=2)
        for x, y in ((9, 2), (14, 2), (9, 7), (14, 7), (11.5, 4.5)):
            picture.Rect(x, y, 2, 2, "#1d2023")
    else:
        Write(picture, "R1" if index == 8 else "R2", 0, 2, Letter)
        after = index == 9  # the turn comes at the end only
        _Arrow(picture, 12, 23 - 2 * after, 5, True, True)
        if after:
            picture.Rect(22, 1, 1, 9, Letter)
    return picture


def New_Caption():
    picture = Svg(20, 14)
    Write_Centred(picture, "NEW", 10, 4, Letter)
    return picture


def Pictures():
    named = {
        "button-up3d": Push_Button(20, 20, False), "button-dn3d": Push_Button(20, 20, True),
        "dlg2-up": Push_Button(63, 32, False), "dlg2-dn": Push_Button(63, 32, True),
        "dlg2-ok": Caption("OK"), "dlg2-cancel": Caption("CANCEL"),
        "start-enabled": _Symbol(_Triangle, Green), "start-disabled": _Symbol(_Triangle, Grey_Out),
        "stop-enabled": _Symbol(_Square, Letter), "stop-disabled": _Symbol(_Square, Grey_Out),
        "record": _Symbol(_Dot, Red),
        "tone-a": _Symbol(_Letter("A"), Letter), "tone-b": _Symbol(_Letter("B"), Letter),
        "fd-delete": _Symbol(_Bin, Letter), "fd-newdir": _Symbol(_New_Folder, Yellow),
        "fd-updir": _Symbol(_Parent_Folder, Yellow),
        "seq-new": New_Caption(),
        "seq-new-up": Push_Button(36, 20, False), "seq-new-dn": Push_Button(36, 20, True),
        "seq-clock-0": Clock_Light(False), "seq-clock-1": Clock_Light(True),
    }
    named.update({f"seq-keys-{i}": Key(i % 2 == 1, i >= 2) for i in range(4)})
    named.update({f"seq-pics-{i}": Cell_Picture(i) for i in range(4)})
    named.update({f"fd-seq-pics-{i}": Cell_Picture(i, 8) for i in (0, 2, 3)})
    named.update({f"seq-dir-{i}": Direction(i) for i in (0, 1, 2, 7, 8, 9)})
    return named
