"""Where the movable elements stand, in pixels of their panel: what slots, scales and legends are drawn for.

An element's place is its top left corner. Caps are 16 x 16; the row and column that a cap's index line and lamp stand
on is Cap_Axis, the middle of its 15 x 15 body (the sixteenth row and column are its shadow).
"""

from collections import namedtuple

Cap_Axis = 7
Knob_Middle = (14, 12)  # the dot circles about this point of the 28 x 26 body

# high and low are the Tops at the highest and the lowest value. names: position legends, lowest value first. side: the
# legends' side, that of the cap's lamp except for VCA mode, which has no room there.
Slider = namedtuple("Slider", "left high low title")
Switch = namedtuple("Switch", "left high low side names title")
Knob = namedtuple("Knob", "left top ends degrees title")  # ends: figures at the ends of the turn; degrees: half turn
Light = namedtuple("Light", "left top name")

Semitones, Fine = ("-12", "+12"), ("-50", "+50")
Range = ("16'", "8'", "4'", "2'")
Waveform = ("~noise", "~square", "~pulse", "~sawtooth")
Dynamics = ("OFF", "1", "2", "3")
Env_Mode = ("~env-down 2", "~env-up 2", "~env-down 1", "~env-up 1")
Three_Steps = ("0", "1", "2", "3")

Editor_Sliders = (
    Slider(19, 152, 232, "LFO"), Slider(58, 152, 232, "ENV"),
    Slider(119, 152, 232, "LFO"), Slider(158, 152, 232, "ENV"),
    Slider(259, 32, 112, "DCO-1"), Slider(298, 32, 112, "DCO-2"), Slider(299, 152, 232, "ENV"),
    Slider(399, 32, 112, "FREQ"), Slider(438, 32, 112, "RES"),
    Slider(360, 152, 232, "LFO"), Slider(399, 152, 232, "ENV"), Slider(438, 152, 232, "KEY"),
    Slider(489, 32, 112, "LEVEL"),
    Slider(45, 357, 437, ""), Slider(84, 357, 437, ""),
    Slider(135, 357, 437, "A"), Slider(165, 357, 437, "D"), Slider(195, 357, 437, "S"), Slider(225, 357, 437, "R"),
    Slider(315, 357, 437, "A"), Slider(345, 357, 437, "D"), Slider(375, 357, 437, "S"), Slider(405, 357, 437, "R"),
)

# A title of "" is lettered by the panel itself.
Editor_Switches = (
    Switch(19, 32, 62, "left", Range, "RANGE"), Switch(59, 32, 62, "left", Waveform, "WAVEFORM"),
    Switch(119, 32, 62, "left", Range, "RANGE"), Switch(159, 32, 62, "left", Waveform, "WAVEFORM"),
    Switch(189, 32, 62, "right", ("OFF", "SYNC 1", "SYNC 2", "XMOD"), ""),
    Switch(19, 278, 308, "left", Dynamics, "DYNAMICS"), Switch(59, 278, 308, "left", Env_Mode, "MODE"),
    Switch(259, 278, 308, "left", Dynamics, "DYNAMICS"), Switch(299, 278, 308, "left", Env_Mode, "MODE"),
    Switch(359, 32, 62, "left", Three_Steps, "HPF"),
    Switch(359, 278, 308, "left", Dynamics, "DYNAMICS"), Switch(399, 278, 308, "left", Env_Mode, "MODE"),
    Switch(489, 278, 308, "left", Dynamics, "DYNAMICS"),
    Switch(488, 398, 418, "right", ("OFF", "1", "2"), "MODE"),
    Switch(18, 377, 397, "left", ("~random", "~square", "~triangle"), ""),
    Switch(265, 388, 418, "right", Dynamics, ""), Switch(445, 388, 418, "right", Dynamics, ""),
    Switch(489, 152, 162, "left", ("GATE", "ENV-2"), "MODE"),
)

Editor_Knobs = (
    Knob(32, 102, Semitones, 144, "TUNE"), Knob(122, 102, Semitones, 144, "TUNE"),
    Knob(182, 102, Fine, 150, "FINE TUNE"),
)
Editor_Tone_Name = (105, 291, 121, 18)
Editor_Buttons = ((188, 223, 22, 22), (214, 223, 43, 22), (261, 223, 22, 22))

Patch_Sliders = (Slider(20, 28, 108, "TIME"), Slider(86, 28, 108, "LFO"))
Patch_Switches = (
    Switch(20, 133, 143, "right", ("OFF", "ON"), ""), Switch(117, 28, 58, "right", ("2", "3", "4", "7"), "RANGE"),
)
Patch_Lights = tuple(Light(152, 17 + 15 * i, name) for i, name in enumerate(
    ("POLY 1", "UNISON 1", "SOLO 1", "POLY 2", "UNISON 2", "SOLO 2"))) + tuple(
    Light(222, 17 + 15 * (3 - i), name) for i, name in enumerate(("OFF", "VIBRATO", "BRILLIANCE", "VOLUME")))
Patch_Knobs = (Knob(161, 133, Fine, 150, ""),)

Mks70_Sliders = (
    Slider(165, 156, 236, "TIME"), Slider(8, 155, 235, "LEVEL"), Slider(47, 155, 235, "TIME"),
    Slider(211, 317, 397, ""), Slider(276, 156, 236, "TOTAL"),
    Slider(143, 23, 103, ""), Slider(182, 23, 103, ""), Slider(221, 23, 103, ""),
)
Mks70_Switches = (
    Switch(221, 166, 196, "right", ("2", "3", "4", "7"), "RANGE"),
    Switch(84, 383, 393, "right", ("OFF", "ON"), "PORTA"), Switch(128, 383, 393, "right", ("OFF", "ON"), "BENDER"),
    Switch(169, 383, 393, "right", ("OFF", "ON"), "HOLD"), Switch(85, 225, 235, "right", ("OFF", "ON"), "PLAY"),
)
Mks70_Knobs = (
    Knob(76, 29, ("A", "B"), 150, "BALANCE"), Knob(76, 91, Fine, 150, "DETUNE"),
    Knob(111, 335, Semitones, 144, "SHIFT"), Knob(165, 335, Fine, 150, "DETUNE"),
)
Mks70_Lights = tuple(Light(8, 23 + 15 * i, name) for i, name in enumerate(
    ("DUAL", "SPLIT", "T-VOICE", "X-FADE", "WHOLE A", "WHOLE B"))) + tuple(
    Light(86, 189 - 15 * i, name) for i, name in enumerate("123")) + tuple(
    Light(255, 322 + 15 * i, name) for i, name in enumerate(
        ("POLY 1", "UNISON 1", "SOLO 1", "POLY 2", "UNISON 2", "SOLO 2")))

Oscillator_Bars = ((9, "OFFSET"), (37, "AMP"), (66, "TIME"))
Oscillator_Waves = tuple((234 if i % 2 == 0 else 311, 74 + 16 * (i // 2)) for i in range(10))

Matrix_Left, Matrix_Top, Cell, Steps, Rows = 44, 19, 12, 8, 13
Keys_Left = 6
Black_Keys = (1, 3, 6, 8, 10)
Direction_Places = {0: (156, 19), 1: (214, 19), 2: (272, 19), 8: (156, 41), 9: (214, 41), 7: (272, 41)}
Legend_Places = ((6, 189, "SOFT"), (46, 189, "STRONG"), (97, 189, "EMPTY"))
Seq_Buttons = ((160, 173, 22, 22, "START"), (196, 173, 22, 22, "STOP"), (232, 173, 38, 22, ""))

# The examples of the help window are 18 x 18 with a border of one pixel: their caps stand a pixel further in.
Help_Slider = Slider(63, 6, 86, "")
Help_Switches = (Switch(14, 6, 36, "right", ("4", "3", "2", "1"), ""), Switch(107, 6, 16, "right", ("OFF", "ON"), ""))
Help_Knob = Knob(8, 68, Semitones, 144, "")
