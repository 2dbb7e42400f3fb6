"""The patch panels of the two instruments."""

from alphabets import Narrow
from brand import Draw_Mark
from lettering import Write, Write_Centred
from palette import Bar_Chorus, Bar_Dco, Bar_Env, Bar_Lfo, Bar_Mixer, Bar_Plain, Bar_Vca, Bar_Vcf, Letter
from panel import (Draw_Display, Draw_Figures, Draw_Knob, Draw_Light, Draw_Recess, Draw_Section, Draw_Slider,
                   Draw_Switch, New_Panel)
from places import (Mks70_Knobs, Mks70_Lights, Mks70_Sliders, Mks70_Switches, Patch_Knobs, Patch_Lights,
                    Patch_Sliders, Patch_Switches)

# Left, right, top, bottom, colour, title.
Patch_Sections = (
    (2, 74, 2, 167, Bar_Dco, "PORTAMENTO"),
    (77, 142, 2, 167, Bar_Lfo, "BENDER"),
    (145, 216, 2, 109, Bar_Vcf, "KEY MODE"),
    (145, 216, 112, 167, Bar_Mixer, "UNISON DETUNE"),
    (219, 286, 2, 167, Bar_Env, "AFTER TOUCH"),
)

Mks70_Sections = (
    (0, 64, 2, 122, Bar_Vcf, "KEY MODE"),
    (67, 130, 2, 122, Bar_Mixer, "TONE A/B"),
    (133, 258, 2, 122, Bar_Env, "AFTER TOUCH"),
    (0, 130, 125, 257, Bar_Chorus, "CHASE"),
    (133, 203, 125, 257, Bar_Dco, "PORTAMENTO"),
    (206, 258, 125, 257, Bar_Lfo, "BENDER"),
    (261, 332, 125, 257, Bar_Vca, "VOLUME"),
    (0, 332, 260, 302, Bar_Plain, "PATCH"),
    (0, 201, 305, 419, Bar_Dco, "TONE"),
    (203, 248, 305, 419, Bar_Lfo, "LFO"),
    (251, 332, 305, 419, Bar_Vcf, "KEY ASSIGN"),
)


def _Draw_Elements(picture, sliders, switches, knobs, lights, figures):
    for slider in sliders:
        Draw_Slider(picture, slider)
    for row, middle in figures:
        Draw_Figures(picture, sliders[row], middle)
    for switch in switches:
        Draw_Switch(picture, switch)
    for knob in knobs:
        Draw_Knob(picture, knob)
    for light in lights:
        Draw_Light(picture, light)


def Patch_Background():
    picture = New_Panel(288, 169)
    for section in Patch_Sections:
        Draw_Section(picture, *section)
    _Draw_Elements(picture, Patch_Sliders, Patch_Switches, Patch_Knobs, Patch_Lights, ((0, 46), (1, 112)))
    Draw_Mark(picture, "JX-8P", 252, 110)
    return picture


def Mks70_Background():
    picture = New_Panel(332, 421)
    for section in Mks70_Sections:
        Draw_Section(picture, *section)
    _Draw_Elements(picture, Mks70_Sliders, Mks70_Switches, Mks70_Knobs, Mks70_Lights,
                   ((0, 191), (1, 35), (3, 237), (4, 302), (5, 170), (6, 209)))
    for left, word in ((143, "VIBRATO"), (182, "BRILLIANCE"), (221, "VOLUME")):
        Write_Centred(picture, word, left + 7.5, 15, Letter, Narrow)
    Draw_Mark(picture, "MKS-70", 296, 40)
    Write(picture, "MODE", 84, 147, Letter)
    for left in (6, 35):
        Draw_Recess(picture, left, 277, 22, 22)
    for left, top, words in ((62, 285, "SELECT"), (16, 320, "TONE NUMBER"), (16, 372, "SPLIT POINT")):
        Write(picture, words, left, top, Letter)
    Draw_Display(picture, 113, 275, 214, 22)
    return picture


def Pictures():
    return {"patch-background": Patch_Background(), "mks70-background": Mks70_Background()}
