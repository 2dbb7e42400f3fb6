"""The main panel: the programmer with all its sections."""

from alphabets import Narrow, Regular
from lettering import Write, Write_Centred
from palette import (Bar_Chorus, Bar_Dco, Bar_Env, Bar_Lfo, Bar_Mixer, Bar_Plain, Bar_Vca, Bar_Vcf, Letter)
from panel import (Box, Draw_Bar, Draw_Display, Draw_Figures, Draw_Knob, Draw_Plate, Draw_Recess, Draw_Slider,
                   Draw_Switch, Draw_Title, New_Panel)
from places import Editor_Buttons, Editor_Knobs, Editor_Sliders, Editor_Switches, Editor_Tone_Name

Upper, Lower, Bottom = 3, 253, 331  # tops of the rows of section bars

# Title, colour, bar (left, right, top) and the corners of its plate, clockwise. Two plates have a step, which leaves
# room for the logo and the buttons.
Sections = (
    ("DCO-1", Bar_Dco, (2, 95, Upper), Box(2, Upper, 95, 250)),
    ("DCO-2", Bar_Dco, (98, 239, Upper), [(98, Upper), (239, Upper), (239, 136), (182, 136), (182, 250), (98, 250)]),
    ("DCO", Bar_Dco, (2, 95, Lower), Box(2, Lower, 95, 328)),
    ("TONE", Bar_Plain, (98, 239, Lower), Box(98, Lower, 239, 328)),
    ("MIXER", Bar_Mixer, (242, 330, Upper),
     [(242, Upper), (330, Upper), (330, 328), (242, 328), (242, Lower), (290, Lower), (290, 136), (242, 136)]),
    ("VCF", Bar_Vcf, (333, 461, Upper), Box(333, Upper, 461, 328)),
    ("VCA", Bar_Vca, (464, 526, Upper), Box(464, Upper, 526, 328)),
    ("LFO", Bar_Lfo, (2, 109, Bottom), Box(2, Bottom, 109, 454)),
    ("ENV-1", Bar_Env, (112, 297, Bottom), Box(112, Bottom, 297, 454)),
    ("ENV-2", Bar_Env, (300, 478, Bottom), Box(300, Bottom, 478, 454)),
    ("CHORUS", Bar_Chorus, (481, 526, Bottom), Box(481, Bottom, 526, 454)),
)

# The middle of the scale figures beside a slider, by its row in the table: between two sliders where they are a pair.
Figures = ((0, 46), (2, 146), (4, 286), (6, 324), (7, 426), (9, 387), (10, 426), (12, 479), (13, 72), (15, 125),
           (19, 305))

# The black window of the display: in the middle of its plate, around the field.
Tone_Window = (103, Editor_Tone_Name[1] - 4, 131, Editor_Tone_Name[3] + 8)


def Editor_Background():
    picture = New_Panel(528, 456)
    for title, color, bar, corners in Sections:
        Draw_Plate(picture, corners)
        Draw_Bar(picture, *bar, color, title)
    for slider in Editor_Sliders:
        Draw_Slider(picture, slider)
    for row, middle in Figures:
        Draw_Figures(picture, Editor_Sliders[row], middle)
    for switch in Editor_Switches:
        Draw_Switch(picture, switch)
    for knob in Editor_Knobs:
        Draw_Knob(picture, knob)
    Write(picture, "X-MOD", 197, 21, Letter)
    # The legends of the LFO are narrow, so that there is more room between two of them than between their words.
    for left, high, words, alphabet in ((18, 377, "WAVE FORM", Narrow), (265, 388, "KEY FOLLOW", Regular),
                                        (445, 388, "KEY FOLLOW", Regular)):
        for line, word in enumerate(words.split()):
            Write_Centred(picture, word, left + 7.5, high - 20 + 9 * line, Letter, alphabet)
    for left, title in ((45, "DELAY TIME"), (84, "RATE")):
        Draw_Title(picture, left, 357, title, Narrow)
    Write_Centred(picture, "NAME / VALUE", 168.5, 271, Letter)
    Draw_Display(picture, *Tone_Window)
    for place in Editor_Buttons:
        Draw_Recess(picture, *place)
    return picture
