// Shift keys and mouse buttons of the toolkit as the program's bits.
#pragma once

#include <Qt>

#include "platform/events.h"

inline int Shift_State(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? Shift_Key : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? Ctrl_Key : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? Alt_Key : 0);
}

// The sum of the program's bits for the buttons; buttons that it does not know count nothing.
inline int Button_Bits(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? Left_Button : 0) |
         (buttons.testFlag(Qt::RightButton) ? Right_Button : 0) |
         (buttons.testFlag(Qt::MiddleButton) ? Middle_Button : 0);
}
