// The tone as a whole and parameter by parameter: how a control changes it (a dragged switch and VCA mode
// store and send their byte themselves), and how it is shown. Called by the panel, the tone commands and the
// tone files, on the user-interface thread.
#pragma once

#include <functional>
#include <string>

// The first tone: blank name, parameters 0, tunes centred, patch 0 with the detune centred; no file, no
// unsaved change. Shows and sends nothing.
void Tone_Clear();

// Stores value at index, shows it in the display (semitones for 13 and 19, -50..50 for 20, 0..99 for sliders,
// nothing for switches; nothing at all while Tone_Loading), sends it if Autosend is on, and marks the tone as
// changed. index in [0, 58], else Runtime_Error 9. value in [0, 255]; elements keep it in [0, 127].
void Tone_Param_Set(int index, int value);

// Rebuilds the name from its ten bytes, writes it into the display, and lets the panel place every element.
// Sends nothing and leaves Tone_Saved alone. Callers set Tone_Loading.
void Tone_Show();

// Places every control of the Patch window. Called only while Patch_Open is set.
void Patch_Show();

// Filled by the panel, called at the end of Tone_Show and by Patch_Show; empty where no panel stands.
extern std::function<void()> Tone_Shown;
extern std::function<void()> Patch_Shown;

// Copies the characters of Tone_Name_Str into Tone, and fills with blanks up to and including index 10. A
// character outside 32 to 127 is stored as a blank, which takes its place in Tone_Name_Str too: a higher byte
// would break the message. A name beyond the record is Runtime_Error 9.
void Tone_Name_Store();

// Shows a value in the Editor's display and lets the name return one second later.
void Display_Value(int value);
// Lets the name return one second from now.
void Display_Hold();
