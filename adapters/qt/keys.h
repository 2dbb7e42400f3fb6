// Key presses of the toolkit as the program's key codes (events.h). The one place where they are mapped.
#pragma once

#include "platform/events.h"

class QKeyEvent;

// A key that has no code of the program's own. Not zero: zero is a key that was taken.
constexpr int Other_Key = 255;

// The key code, the shift state, and whether a held key repeats itself. Back-tab is Tab with Shift.
Key_Event Key_Of(const QKeyEvent& event);

// The character that the key types, 0 for none; Backspace, Tab, Enter and Escape type 8, 9, 13 and 27.
int Character_Of(const QKeyEvent& event);
