"""Backgrounds of the oscillator, the sequencer, the help examples and the frame."""

from alphabets import Narrow
from faces import Direction
from lettering import Write, Write_Centred, Write_Right
from palette import Bar_Dco, Bar_Env, Bar_Lfo, Bar_Vcf, Ivory, Letter
from panel import (Box, Draw_Display, Draw_Figures, Draw_Knob, Draw_Plate, Draw_Recess, Draw_Section, Draw_Slider,
                   Draw_Switch, New_Panel)
from places import (Black_Keys, Cell, Direction_Places, Help_Knob, Help_Slider, Help_Switches, Keys_Left,
                    Legend_Places, Matrix_Left, Matrix_Top, Oscillator_Bars, Oscillator_Waves, Rows, Seq_Buttons, Steps)
from svg import Svg
from waves import Draw_Wave


# The oscillator's sections: left, right, colour. The curve fills its section to the top, so an edge stands for the bar.
Oscillator_Sections = ((2, 94, Bar_Lfo), (96, 230, Bar_Dco), (232, 384, Bar_Vcf))
Oscillator_Edge = 2


def Oscillator_Background():
    picture = New_Panel(386, 165)
    for left, right, color in Oscillator_Sections:
        Draw_Plate(picture, Box(left, 2, right, 163))
        picture.Rect(left, 1, right - left, Oscillator_Edge, color)
    for left, title in Oscillator_Bars:
        Write_Centred(picture, title, left + 7.5, 8, Letter, Narrow)
        Draw_Recess(picture, left, 22, 15, 100)
        Draw_Recess(picture, left - 2, 128, 19, 13)
    Write_Centred(picture, "MS", 73.5, 147, Letter, Narrow)
    Draw_Display(picture, 98, 5, 130, 130)
    for left, title, edge in ((133, "START", 129), (163, "STOP", 189)):
        Draw_Recess(picture, left, 138, 22, 22)
        (Write_Right if title == "START" else Write)(picture, title, edge, 146, Letter)
    Write(picture, "TARGET", 235, 8, Letter)
    Write_Right(picture, "VALUE", 302, 8, Letter)
    Draw_Recess(picture, 306, 5, 22, 13)
    Write(picture, "INVERT", 252, 56, Letter)
    for index, (left, top) in enumerate(Oscillator_Waves):
        Draw_Wave(picture, index, left + 19, top + 1)
    return picture


# The sequencer's sections: left, right, top, bottom, colour, title.
Sequencer_Sections = (
    (147, 328, 2, 62, Bar_Dco, "DIRECTION"),
    (147, 328, 65, 113, Bar_Vcf, "NOTES"),
    (147, 328, 116, 155, Bar_Lfo, "TEMPO"),
    (147, 328, 158, 208, Bar_Env, "PLAY"),
)


def _Draw_Keyboard_Ground(picture):
    """White behind the keys, so that black ones stand between white ones."""
    picture.Rect(Keys_Left - 1, Matrix_Top - 1, 38, Rows * Cell + 2, "#0b0c0e")
    picture.Rect(Keys_Left, Matrix_Top, 36, Rows * Cell, Ivory)
    for key in Black_Keys:
        top = Matrix_Top + Cell * (Rows - 1 - key)
        picture.Rect(Keys_Left + 24, top + 5, 12, 1, "#6b685f")
        picture.Rect(Keys_Left + 35, top, 1, Cell, "#a5a196")


def Sequencer_Background():
    picture = New_Panel(330, 210)
    Draw_Plate(picture, Box(2, 2, 144, 208))
    for section in Sequencer_Sections:
        Draw_Section(picture, *section)
    _Draw_Keyboard_Ground(picture)
    picture.Rect(Matrix_Left - 1, Matrix_Top - 1, Steps * Cell + 1, Rows * Cell + 1, "#3a4046")
    picture.Rect(Matrix_Left, Matrix_Top, Steps * Cell - 1, Rows * Cell - 1, "#0e1012")
    Write(picture, "STEP", 19, 8, Letter)
    for left, top, name in Legend_Places:
        picture.Rect(left - 1, top - 1, Cell + 1, Cell + 1, "#3a4046")
        Write(picture, name, left + 15, top + 2, Letter)
    for index, (left, top) in Direction_Places.items():
        picture.Place(Direction(index), left + 17, top + 1)
    Write(picture, "RANGE", 155, 80, Letter)
    Write(picture, "TRANSPOSE", 241, 80, Letter)
    Draw_Recess(picture, 155, 133, 130, 15)
    Draw_Recess(picture, 293, 133, 26, 15)
    for left, top, width, height, name in Seq_Buttons:
        Draw_Recess(picture, left, top, width, height)
        if name:
            Write_Centred(picture, name, left + width / 2, top + height + 3, Letter)
    return picture


def Help_Background():
    picture = New_Panel(160, 134)
    Draw_Plate(picture, Box(2, 2, 158, 132))
    Draw_Slider(picture, Help_Slider)
    Draw_Figures(picture, Help_Slider, Help_Slider.left - 10)
    for switch in Help_Switches:
        Draw_Switch(picture, switch)
    Draw_Knob(picture, Help_Knob)
    for i, name in enumerate("ABCD"):
        Write(picture, name, 126, 44 + 15 * i, Letter)
    Draw_Display(picture, 13, 110, 132, 18)
    return picture


def Frame_Background():
    """A plain tile: brushed metal, the lines so faint that no seam shows."""
    picture = Svg(64, 64)
    picture.Rect(0, 0, 64, 64, "#15181a")
    for y in range(0, 64, 4):
        picture.Rect(0, y, 64, 1, "#181b1e")
    return picture


def Pictures():
    return {"oscillator-background": Oscillator_Background(), "sequencer-background": Sequencer_Background(),
            "help-howto-background": Help_Background(), "frame-background": Frame_Background()}
