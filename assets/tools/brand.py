"""The program's own marks: logo, badge and application icon."""

from lettering import Text_Path, Text_Width, Write_Centred
from palette import Bar_Chorus, Bar_Dco, Bar_Env, Bar_Lfo, Bar_Mixer, Bar_Vca, Bar_Vcf, Letter, Red, Red_Dim
from svg import Svg

Stripes = (Bar_Dco, Bar_Mixer, Bar_Vcf, Bar_Vca, Bar_Lfo, Bar_Env, Bar_Chorus)


def Logo():
    picture = Svg(110, 50)
    scale = 3
    width = Text_Width("MELVOR") * scale
    left = (110 - width) // 2
    picture.Stroke(Text_Path("MELVOR", left, 7, scale=scale), Letter, scale)
    for i, color in enumerate(Stripes):
        picture.Rect(left, 33 + 2 * i, width, 1, color)
    return picture


def Draw_Mark(picture, name, middle, top):
    """An instrument's name on its panel, 14 pixels high, over the coloured lines."""
    width = Text_Width(name) * 2
    left = round(middle - width / 2)
    picture.Stroke(Text_Path(name, left, top, scale=2), Letter, 2)
    for i, color in enumerate(Stripes):
        picture.Rect(left, top + 19 + 2 * i, width, 1, color)


def Badge():
    picture = Svg(79, 14)
    Write_Centred(picture, "JX-8P EDITOR", 39.5, 3, Bar_Dco, spacing=2)
    return picture


def Icon():
    picture = Svg(64, 64)
    picture.Rect(2, 2, 60, 60, "#0b0c0e", round_by=10)
    picture.Rect(3, 3, 58, 58, picture.Gradient((0, "#3a4046"), (1, "#1b1e21")), round_by=9)
    for i, color in enumerate((Bar_Dco, Bar_Vcf, Bar_Env)):
        left, top = 9 + 16 * i, (34, 16, 26)[i]
        picture.Rect(left, 8, 14, 5, color, round_by=1)
        picture.Rect(left + 5, 17, 4, 40, "#07080a", round_by=2)
        for y in range(20, 57, 6):
            picture.Rect(left, y, 3, 1, "#8a9198")
            picture.Rect(left + 11, y, 3, 1, "#8a9198")
        picture.Rect(left - 1, top + 1, 16, 13, "#000000", round_by=2.5, opacity=0.6)
        picture.Rect(left - 1, top, 16, 12, picture.Gradient((0, "#cdd3d9"), (0.46, "#7d848c"), (1, "#aab1b8")),
                     round_by=2.5)
        picture.Rect(left - 1, top + 4, 16, 4, Red_Dim)
        picture.Rect(left - 1, top + 5, 16, 2, Red)
    return picture


def Pictures():
    return {"logo": Logo(), "badge": Badge(), "icon": Icon()}
