// The Editor: places its elements, wires their events, and shows a whole tone.
// Wired by the frame at start; from then on driven by the user's events.
#pragma once

#include <string_view>

// Fills the event slots of the Editor's window and the notice Tone_Shown. The sequencer's two buttons are
// wired by the sequencer.
void Editor_Wire();

// Gives every element its resting picture and its place. Runs at the window's load.
void Pics_Assign();

// Places the dot of the knob with that tag for the record's present value.
void Knob_Show(std::string_view tag);

// Tops of sliders and switches for the record's present value: for a whole tone, without any focus.
int Slider_Top(int index);        // index of a slider; any other counts as base line 0
int Switch_Top_Upper(int index);  // 0 for a byte above 127
int Switch_Top_Lower(int index);
