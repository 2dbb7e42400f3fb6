// The patch panel of the JX-8P: its elements and the one way in which they change the patch.
// Wired by the frame at start; from then on driven by the user's events and by Patch_Show.
#pragma once

// Index in Patch_Rec.
constexpr int Patch_Bend_Range = 0;
constexpr int Patch_Portamento_Time = 1;
constexpr int Patch_Portamento_Switch = 2;
constexpr int Patch_Key_Mode = 3;
constexpr int Patch_After_Touch = 4;
constexpr int Patch_Bend_LFO = 5;

constexpr int Patch_Slider_Bottom_px = 108;  // of both sliders, at 0

// Fills the event slots of the window and the notice Patch_Shown.
void Patch_Wire();

// The menu command: opens the window at its remembered corner; for an MKS-70 only tells that there is none
// yet.
void Menu_Tone_Patch();

// Stores the byte, shows it in the Editor's display (0 to 99 for sliders, -50 to 50 for the knob, nothing
// else; nothing at all while Tone_Loading), sends it if Autosend is on, and marks the tone as changed. index
// in [0, 8], else Runtime_Error 9. value in [0, 255].
void Patch_SetValue(int index, int value);

// Where the byte puts its element: the row of a slider or switch, the item of a group of lights. index in [0,
// 5].
int Patch_Control_Top(int index);

// Gives every element its resting picture and its place. Runs at the window's load.
void Patch_Layout();
