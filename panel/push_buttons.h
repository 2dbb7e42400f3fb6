// Push buttons with a small picture on them, and lights that serve as check boxes and radio buttons.
// Used by the Editor, the sequencer, the oscillator and the file dialog.
#pragma once

#include <span>

#include "platform/controls.h"

// Raised and pressed look of a small button, and of a wide one. The symbol on it moves along.
void Push_Down(Picture_Box& button);
void Push_Up(Picture_Box& button);
void Push_Down_Wide(Picture_Box& button);
void Push_Up_Wide(Picture_Box& button);

// Fills the button's mouse slots so that it goes down with the press and rises with the release.
void Push_On_Mouse(Picture_Box& button);

// The space bar works the element as the left mouse button does: press, release, click. Once, however
// long it is held.
void Work_By_Space(Picture_Box& element);

// Lights with a state, kept as a number in the tag: 0 off, else on. Disabled ones do not change, but for
// being enabled.
void Check_Toggle(Picture_Box& light);
void Check_On(Picture_Box& light);   // green, tag 3
void Check_Off(Picture_Box& light);  // dark, tag 0
void Check_Disable(Picture_Box& light);
bool Check_Is_On(const Picture_Box& light);

// A group of lights of which one is lit, red, with tag 1.
void Radio_Select(std::span<Picture_Box* const> group, int index);  // Runtime_Error 9 outside the group
void Radio_Enable(Picture_Box& light);
void Radio_Disable(Picture_Box& light);
void Radio_Disable_All(std::span<Picture_Box* const> group);
