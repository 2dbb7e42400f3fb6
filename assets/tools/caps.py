"""The caps, knobs and lamps that move on the panels, and the round and square check marks."""

import math

from palette import Green, Red, Red_Dim
from places import Cap_Axis, Knob_Middle
from svg import Svg


def _Cap_Body(picture, top, bottom):
    """A 15 x 15 body in the upper left of 16 x 16, with its shadow below and to the right."""
    picture.Rect(1, 1, 15, 15, "#000000", round_by=2, opacity=0.55)
    picture.Rect(0, 0, 15, 15, "#0d0f11", round_by=2)
    picture.Rect(1, 1, 13, 13, picture.Gradient((0, top), (0.46, bottom), (0.54, bottom), (1, top)), round_by=1)
    picture.Rect(2, 1, 11, 1, "#ffffff", opacity=0.3)


def Slider_Cap(line, glow):
    picture = Svg(16, 16)
    _Cap_Body(picture, "#868d95", "#454b51")
    picture.Rect(1, Cap_Axis - 1, 13, 3, glow)
    picture.Rect(1, Cap_Axis, 13, 1, line)
    return picture


def Switch_Cap(lamp_left, lit):
    picture = Svg(16, 16)
    _Cap_Body(picture, "#6f767e", "#3b4046")
    lamp, ridges = (2, (9, 11)) if lamp_left else (8, (3, 5))
    for x in ridges:
        picture.Rect(x, 3, 1, 9, "#15181a")
        picture.Rect(x + 1, 3, 1, 9, "#949ba3", opacity=0.7)
    picture.Rect(lamp, Cap_Axis - 2, 5, 5, "#0c0d0f", round_by=1)
    if lit:
        picture.Rect(lamp, Cap_Axis - 2, 5, 5, Red, round_by=1.5)
        picture.Rect(lamp + 1, Cap_Axis - 1, 2, 1, "#ffd2c8")
    else:
        picture.Rect(lamp + 1, Cap_Axis - 1, 3, 3, "#5a1a14")
    return picture


def Knob_Dot(color, rim):
    picture = Svg(4, 4)
    picture.Circle(2, 2, 2, rim)
    picture.Circle(2, 2, 1.4, color)
    return picture


def Knob_Body():
    picture = Svg(28, 26)
    x, y = Knob_Middle
    picture.Circle(x + 0.8, y + 1.9, 11.6, "#000000", opacity=0.5)
    picture.Circle(x, y, 11.8, "#0b0c0e")
    picture.Circle(x, y, 11, picture.Gradient((0, "#5b6168"), (1, "#26292d")))
    for i in range(24):
        angle = math.radians(15 * i + 7.5)
        dx, dy = math.sin(angle), math.cos(angle)
        picture.Lines(((x + 9.2 * dx, y + 9.2 * dy), (x + 10.8 * dx, y + 10.8 * dy)), "#121416", 0.9, cap="butt")
    picture.Circle(x, y, 8.9, "#17191b")
    picture.Circle(x, y, 8.3, picture.Gradient((0, "#7d848c"), (1, "#3a3f44")))
    picture.Circle(x, y, 7.5, picture.Gradient((0, "#4d5359"), (1, "#5d646b")))
    return picture


def Keyboard(pressed):
    """The little keyboard, an octave of eight white keys; pressed, it stands a pixel lower and is lit."""
    picture = Svg(41, 20)
    picture.Rect(0, 0, 41, 20, "#0d0f11")
    down = 1 if pressed else 0
    shades = ("#b9d9de", "#7fdbe8") if pressed else ("#c9c6bb", "#f2efe6")
    ivory = picture.Gradient((0, shades[0]), (1, shades[1]))
    for i in range(8):
        picture.Rect(1 + 5 * i, 1 + down, 4, 18 - down, ivory)
        if not pressed:
            picture.Rect(1 + 5 * i, 18, 4, 1, "#96938a")
    for i in (0, 1, 3, 4, 5, 7):
        if i < 7:
            picture.Rect(4 + 5 * i, 1 + down, 3, 10, "#121416")
            picture.Rect(5 + 5 * i, 1 + down, 1, 8 + down, "#3c4147")
    return picture


# Lens: (middle, edge) colours, rim colour, strength of the highlight.
Lamps = (
    ("#5c1d18", "#2f0f0c", "#0a0b0c", 0.18),
    ("#ff7a66", "#e3200f", "#0a0b0c", 0.5),
    ("#86b8ff", "#1f5fe0", "#0a0b0c", 0.5),
    ("#9dff9a", "#1fb83a", "#0a0b0c", 0.5),
    ("#fff6a0", "#f0c81e", "#d8281a", 0.5),
    ("#757b81", "#585e64", "#33383c", 0.1),
    ("#ffb3a4", "#ff2a12", "#0a0b0c", 0.95),
)


def Lamp(middle, edge, rim, highlight):
    picture = Svg(14, 14)
    picture.Circle(7, 7, 6.5, picture.Gradient((0, "#050607"), (1, "#596067")))
    picture.Circle(7, 7, 5.6, rim)
    picture.Circle(7, 7, 4.5, picture.Radial(0.42, 0.38, 0.62, (0, middle), (1, edge)))
    picture.Circle(5.6, 5.2, 1.5, "#ffffff", opacity=highlight)
    return picture


def Check_Box(ticked, enabled):
    picture = Svg(13, 13)
    picture.Rect(0, 0, 13, 13, "#0b0c0e")
    picture.Rect(1, 1, 11, 11, "#565c62" if enabled else "#2c3034")
    picture.Rect(2, 2, 9, 9, "#15181a" if enabled else "#24282b")
    if ticked:
        picture.Lines(((3.5, 6.5), (5.5, 8.8), (9.5, 3.8)), Green if enabled else "#6d747b", 1.8, cap="butt")
    return picture


def Option_Button(dotted, enabled):
    picture = Svg(12, 12)
    picture.Circle(6, 6, 6, "#0b0c0e")
    picture.Circle(6, 6, 5, "#565c62" if enabled else "#2c3034")
    picture.Circle(6, 6, 4, "#15181a" if enabled else "#24282b")
    if dotted:
        picture.Circle(6, 6, 2.3, Green if enabled else "#6d747b")
    return picture


def Pictures():
    buttons = (Switch_Cap(True, False), Switch_Cap(True, True), Switch_Cap(False, False), Switch_Cap(False, True),
               Knob_Dot(Red, Red_Dim), Knob_Dot("#141618", "#2b2f33"),
               Slider_Cap(Red, Red_Dim), Slider_Cap("#000000", "#1b1e21"),
               Knob_Body(), Keyboard(False), Keyboard(True))
    named = {f"buttons-{i}": picture for i, picture in enumerate(buttons)}
    named.update({f"led-{i}": Lamp(*row) for i, row in enumerate(Lamps)})
    for i in range(4):
        named[f"cb-pics-{i}"] = Check_Box(i % 2 == 1, i < 2)
        named[f"ob-pics-{i}"] = Option_Button(i % 2 == 1, i < 2)
    return named
