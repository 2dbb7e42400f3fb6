// The patch panel of the MKS-70, with its two tones A and B: a window in construction. It is complete as a
// layout; its lists, the tone buttons and the detune knob act. No menu opens it. Its record is neither loaded
// nor sent as a whole.
#pragma once

#include <string>

#include "core/records.h"

extern Byte_Record<65> MKS70_Patch;  // starts as zeros

// Index in MKS70_Patch.
constexpr int MKS70_Split_A = 20;  // as note numbers, 21 to 108
constexpr int MKS70_Split_B = 21;
constexpr int MKS70_Tone_A = 29;  // as entries of the list, 0 to 99
constexpr int MKS70_Detune_A = 32;
constexpr int MKS70_Tone_B = 38;
constexpr int MKS70_Detune_B = 41;

extern std::string MKS70_Patch_Name;
extern std::string Tone_Select;  // "A" or "B": the tone that the panel shows; empty before the first load

// Fills the event slots of the window.
void MKS70_Wire();

// Keep what the panel shows for the one tone, and show the other.
void Tone_A_Select();
void Tone_B_Select();

// Stores the byte, shows it in the window's own Patch_Name (0 to 99 for 1 and 5, -50 to 50 for the detunes;
// nothing while Tone_Loading), sends it and marks the tone as changed. index in [0, 64], else
// Runtime_Error 9. value in [0, 255].
void MKS70_SetValue(int index, int value);

// Sends one parameter with the head of the JX-8P, if Autosend and MIDI_Enabled are 1.
void MKS70_SendParam(int index);

// Gives every element its resting picture and its place. Runs at the end of the window's load.
void MKS70_Layout();
