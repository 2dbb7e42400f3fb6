// The one-line prompt.
#pragma once

#include <string>
#include <string_view>

#include "platform/desktop.h"

struct Form;

extern std::string Input_Result;  // answer of the last prompt

// Fills the event slots of the prompt's window.
void Input_Box_Wire();

// Asks for a line of text and waits for the answer, which starts as default_text, selected as a whole. Empty
// on Cancel, or if the window is closed. Everything runs meanwhile, the user's input in that window too.
std::string Input_Box(std::string_view prompt, std::string_view title, std::string_view default_text);

// Gives a prompt its size, and its place 150 pixels from the corner.
void Prompt_Place(Form& form, Size_px size);
