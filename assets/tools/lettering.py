"""Letters as strokes, so that no picture asks for an installed font."""

from alphabets import Regular
from svg import Number


def Text_Width(text, alphabet=Regular, spacing=1):
    return sum(alphabet[letter][0] + spacing for letter in text) - spacing


def _Stroke_Path(stroke, left, top, scale):
    """'06 01 ~00 10' with its corner at (left, top) as path data through the middles of the pixels."""
    path, command = "", "M"
    for token in stroke.split():
        if token.startswith("~"):
            command = "Q"
        column, row = int(token[-2]), int(token[-1])
        place = f"{Number(left + (column + 0.5) * scale)} {Number(top + (row + 0.5) * scale)}"
        path += (" " if path.endswith("~") else command) + place
        if token.startswith("~"):
            path += "~"
        else:
            command = "L"
    return path.replace("~", "")


def Text_Path(text, left, top, alphabet=Regular, spacing=1, scale=1):
    path = ""
    for letter in text:
        width, strokes = alphabet[letter]
        path += "".join(_Stroke_Path(s, left, top, scale) for s in strokes.split(",") if s)
        left += (width + spacing) * scale
    return path


def Write(picture, text, left, top, color, alphabet=Regular, spacing=1):
    """Writes text with its top left corner at a whole pixel."""
    picture.Stroke(Text_Path(text, left, top, alphabet, spacing), color)


def Write_Centred(picture, text, middle, top, color, alphabet=Regular, spacing=1):
    Write(picture, text, round(middle - Text_Width(text, alphabet, spacing) / 2), top, color, alphabet, spacing)


def Write_Right(picture, text, right, top, color, alphabet=Regular, spacing=1):
    Write(picture, text, right - Text_Width(text, alphabet, spacing), top, color, alphabet, spacing)
