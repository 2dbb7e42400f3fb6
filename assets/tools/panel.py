"""Panel furniture: plates, section bars, and what stands fixed around sliders, switches, knobs and lamps."""

import math

from alphabets import Narrow, Regular, Symbols, Tiny
from lettering import Text_Path, Text_Width, Write, Write_Centred, Write_Right
from palette import (Bar_Letter, Display, Legend, Letter, Panel, Plate, Plate_Edge, Scale, Scale_Faint, Slot,
                     Slot_Light)
from places import Cap_Axis, Knob_Middle
from svg import Svg

Bar_Height = 11
Title_Gap = 4  # between a title and the cap at its highest place


def New_Panel(width, height):
    picture = Svg(width, height)
    picture.Rect(0, 0, width, height, Panel)
    return picture


def Draw_Plate(picture, corners):
    """A section's plate; corners go around it clockwise, with a light edge along the top sides."""
    picture.Polygon(corners, Plate)
    for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
        if y0 == y1 and x1 > x0:
            picture.Rect(x0, y0, x1 - x0, 1, Plate_Edge)


def Box(x0, y0, x1, y1):
    return [(x0, y0), (x1, y0), (x1, y1), (x0, y1)]


def Draw_Bar(picture, left, right, top, color, title):
    """A section's bar. Its title is a pixel thick, as any other stroke would be blurred at natural size."""
    picture.Rect(left, top, right - left, Bar_Height, color)
    picture.Rect(left, top, right - left, 1, "#ffffff", opacity=0.25)
    picture.Rect(left, top + Bar_Height - 1, right - left, 1, "#000000", opacity=0.3)
    Write_Centred(picture, title, (left + right) / 2, top + 2, Bar_Letter)


def Draw_Section(picture, left, right, top, bottom, color, title):
    Draw_Plate(picture, Box(left, top, right, bottom))
    Draw_Bar(picture, left, right, top, color, title)


def Draw_Slot(picture, left, high, low):
    x, y, height = left + Cap_Axis - 1, high + Cap_Axis - 6, low - high + 13
    picture.Rect(x - 1, y - 1, 5, height + 2, Slot_Light, round_by=2)
    picture.Rect(x, y, 3, height, Slot, round_by=1.5)


def Draw_Title(picture, left, high, title, alphabet=Regular):
    if title:
        Write_Centred(picture, title, left + Cap_Axis + 0.5, high - Title_Gap - 7, Letter, alphabet)


def Draw_Slider(picture, slider):
    """Slot, eleven marks on both sides at the cap's index line, title above."""
    Draw_Slot(picture, slider.left, slider.high, slider.low)
    middle = slider.left + Cap_Axis
    for step in range(11):
        y = slider.high + Cap_Axis + step * (slider.low - slider.high) // 10
        length, color = (4, Scale) if step % 5 == 0 else (3, Scale_Faint)
        picture.Rect(middle - 9 - length, y, length, 1, color)
        picture.Rect(middle + 10, y, length, 1, color)
    Draw_Title(picture, slider.left, slider.high, slider.title)


def Draw_Figures(picture, slider, middle):
    """10, 5 and 0 of a slider's scale, centred on a column beside it."""
    for figure, place in (("10", slider.high), ("5", (slider.high + slider.low) // 2), ("0", slider.low)):
        Write_Centred(picture, figure, middle, place + Cap_Axis - 2, Scale, Tiny)


def Draw_Symbol(picture, name, left, top):
    picture.Stroke(Text_Path((name,), left, top, Symbols), Legend)


def _Draw_Legend(picture, name, edge, top, leftwards):
    """A legend that ends at (leftwards) or begins at column edge: text, or '~symbol' with a figure behind it."""
    symbol, _, figure = name[1:].partition(" ") if name.startswith("~") else ("", "", name)
    width = Text_Width(figure, Narrow) if figure else 0
    if symbol:
        width += Symbols[symbol][0] + (2 if figure else 0)
    left = edge - width if leftwards else edge
    if symbol:
        Draw_Symbol(picture, symbol, left, top)
    if figure:
        Write_Right(picture, figure, left + width, top, Legend, Narrow)


def Draw_Switch(picture, switch):
    """Slot, one mark (from slot to legend) and legend a position on the lamp's side, title above."""
    Draw_Slot(picture, switch.left, switch.high, switch.low)
    leftwards = switch.side == "left"
    count = len(switch.names)
    for position, name in enumerate(switch.names):
        y = switch.low + Cap_Axis - position * (switch.low - switch.high) // (count - 1)
        picture.Rect(switch.left - 3 if leftwards else switch.left + 11, y, 7, 1, Scale_Faint)
        if name:
            _Draw_Legend(picture, name, switch.left - 4 if leftwards else switch.left + 19, y - 3, leftwards)
    Draw_Title(picture, switch.left, switch.high, switch.title)


def Draw_Knob(picture, knob):
    """Marks around the body's middle, figures at the ends of the turn in place of the last ones, title above."""
    x, y = knob.left + Knob_Middle[0], knob.top + Knob_Middle[1]
    for step in range(-5, 6):
        angle = math.radians(knob.degrees * step / 6)
        dx, dy = math.sin(angle), -math.cos(angle)
        main = step == 0
        reach = 16.5 if main else 15.5
        picture.Lines(((x + 13.2 * dx, y + 13.2 * dy), (x + reach * dx, y + reach * dy)),
                      Scale if main else Scale_Faint, 1.1 if main else 0.9, cap="butt")
    low, high = knob.ends
    alphabet = Tiny if low[-1].isdigit() else Narrow
    down = y + 11 if alphabet is Tiny else y + 10
    Write_Right(picture, low, x - 9, down, Scale, alphabet)
    Write(picture, high, x + 9, down, Scale, alphabet)
    if knob.title:
        Write_Centred(picture, knob.title, x, knob.top - 12, Letter)


def Draw_Light(picture, light):
    Write(picture, light.name, light.left + 17, light.top + 4, Letter)


def Draw_Display(picture, x, y, w, h):
    """A black window with a bezel of two pixels around it."""
    picture.Rect(x - 2, y - 2, w + 4, h + 4, picture.Gradient((0, "#0a0b0c"), (1, "#565d64")), round_by=2)
    picture.Rect(x - 1, y - 1, w + 2, h + 2, "#101214", round_by=1)
    picture.Rect(x, y, w, h, Display)


def Draw_Recess(picture, left, top, width, height):
    """The sunken rim around a push button."""
    picture.Rect(left - 1, top - 1, width + 2, height + 2, picture.Gradient((0, "#08090a"), (1, "#4d5359")), round_by=2)
    picture.Rect(left, top, width, height, "#0b0c0e", round_by=1)
