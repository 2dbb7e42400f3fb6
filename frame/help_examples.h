// The live examples of the help window: one element of each kind to try out. They keep the rules of the real
// panels on a record of their own, and touch neither the tone nor the instrument.
// Wired by help.cpp; from then on driven by the user's events.
#pragma once

#include "core/records.h"

// What the examples hold. The bytes behind the last example are spare.
constexpr int Demo_Pos_Sw = 0;
constexpr int Demo_Tune = 1;
constexpr int Demo_Slider = 2;
constexpr int Demo_Switch = 3;
constexpr int Demo_Light = 4;  // number of the lit light
constexpr int Help_Demo_Size = 9;
extern Byte_Record<Help_Demo_Size> Help_Demo;

extern int Help_LED_Sel;  // the lit light, [0, 3]; 0 at start

// Fills the event slots of the examples.
void Help_Examples_Wire();

// Gives the window its pictures, and the examples their places. Slider and knob stand at their start values,
// the others where they were left.
void Help_Layout();

// Stores the value, shows it in the window's display, and lets the display wait again one second later. Sends
// nothing. index in [0, 4], value in [0, 255].
void Help_Demo_Store(int index, int value);

// What the display of the examples shows one second after the last change. Called by Timer_Display while the
// window is open.
void Help_Show_Waiting();
