// Message boxes.
#pragma once

#include <string_view>

#include "platform/desktop.h"

class QWidget;

// Shows the box over the window that is active now and returns the answer; by Escape or the close box it is
// Cancel where there is such a button, No in a Yes/No box, else Ok. A quit of the program ends it as Escape
// does.
Answer Ask(std::string_view text, int style, std::string_view title, QWidget* over);

// The answer of Escape in a box of this style.
Answer Escape_Answer(int style);
