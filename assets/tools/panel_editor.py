"""The main panel: the programmer with all its sections."""

from alphabets import Narrow, Regular
from lettering import Write, Write_Centred
from palette import (Bar_Chorus, Bar_Dco, Bar_Env, Bar_Lfo, Bar_Mixer, Bar_Plain, Bar_Vca, Bar_Vcf, Legend, Letter)
from panel import (Box, Draw_Bar, Draw_Display, Draw_Figures, Draw_Knob, Draw_Plate, Draw_Recess, Draw_Slider,
                   Draw_Switch, New_Panel)
from places import Editor_Buttons, Editor_Knobs, Editor_Sliders, Editor_Switches, Editor_Tone_Name, Editor_Vca_Mode

Upper, Lower, Bottom = 3, 253, 331  # tops of the rows of section bars

# Title, colour, bar (left, right, top) and the corners of its plate, clockwise. Two plates have a step, which leaves
# room for the logo and the buttons.
Sections = (
    ("DCO-1", Bar_Dco, (2, 95, Upper), Box(2, Upper, 95, 250)),
    ("DCO-2", Bar_Dco, (98, 240, Upper), [(98, Upper), (240, Upper), (240, 136), (179, 136), (179, 250), (98, 250)]),
    ("DCO", Bar_Dco, (2, 95, Lower), Box(2, Lower, 95, 328)),
    ("TONE", Bar_Plain, (98, 240, Lower), Box(98, Lower, 240, 328)),
    ("MIXER", Bar_Mixer, (243, 327, Upper),
     [(243, Upper), (327, Upper), (327, 328), (243, 328), (243, Lower), (293, Lower), (293, 136), (243, 136)]),
    ("VCF", Bar_Vcf, (330, 461, Upper), Box(330, Upper, 461, 328)),
    ("VCA", Bar_Vca, (464, 526, Upper), Box(464, Upper, 526, 328)),
    ("LFO", Bar_Lfo, (2, 109, Bottom), Box(2, Bottom, 109, 454)),
    ("ENV-1", Bar_Env, (112, 297, Bottom), Box(112, Bottom, 297, 454)),
    ("ENV-2", Bar_Env, (300, 481, Bottom), Box(300, Bottom, 481, 454)),
    ("CHORUS", Bar_Chorus, (484, 526, Bottom), Box(484, Bottom, 526, 454)),
)

# The middle of the scale figures beside a slider, by its row in the table: between two sliders where they are a pair.
Figures = ((0, 46), (2, 146), (4, 286), (6, 324), (7, 426), (9, 387), (10, 426), (12, 480), (13, 72), (15, 126),
           (19, 306))

# The black window of the display: in the middle of its plate, around the field.
Tone_Window = (103, Editor_Tone_Name[1] - 4, 132, Editor_Tone_Name[3] + 8)


def Editor_Background():
    picture = New_Panel(528, 456)
    for title, color, bar, corners in Sections:
        Draw_Plate(picture, corners)
        Draw_Bar(picture, *bar, color, title, middle=title == "CHORUS")
    for slider in Editor_Sliders:
        Draw_Slider(picture, slider)
    for row, middle in Figures:
        Draw_Figures(picture, Editor_Sliders[row], middle)
    for switch in Editor_Switches + (Editor_Vca_Mode,):
        Draw_Switch(picture, switch)
    for knob in Editor_Knobs:
        Draw_Knob(picture, knob)
    Write(picture, "X-MOD", 197, 21, Letter)
    for left, high, words in ((18, 377, "WAVE FORM"), (265, 388, "KEY FOLLOW"), (445, 388, "KEY FOLLOW")):
        for line, word in enumerate(words.split()):
            Write_Centred(picture, word, left + 7.5, high - 20 + 9 * line, Letter)
    # The lever of two positions has no room for legends beside it: they stand above and below.
    for word, top in (("MODE", 133), ("ENV-2", 143), ("GATE", 182)):
        Write_Centred(picture, word, Editor_Vca_Mode.left + 7.5, top, Letter if word == "MODE" else Legend,
                      Regular if word == "MODE" else Narrow)
    Write_Centred(picture, "NAME / VALUE", 169, 271, Letter)
    Draw_Display(picture, *Tone_Window)
    for place in Editor_Buttons:
        Draw_Recess(picture, *place)
    return picture
