// How the kinds of panel elements look at rest: picture, tag, size and spoken role.
// Called by the layouts of the windows that have elements. Places in pixels of the container.
#pragma once

#include <string_view>

#include "platform/controls.h"

void Lay_Slider(Picture_Box& element, int left, int top);
void Lay_Switch(Picture_Box& element, std::string_view tag, int left, int top);  // tag "bl" or "br"
void Lay_Light(Picture_Box& light, int left, int top);                           // sets no tag

// The dot starts upright; it lies on the body, and bears the same tag.
constexpr int Dot_Start_Top_px = 6;
void Lay_Knob(Picture_Box& body, Picture_Box& dot, std::string_view tag, int left, int top,
              int dot_top = Dot_Start_Top_px);

// A small raised push button with its symbol.
void Lay_Push_Button(Picture_Box& button, Picture_Box& symbol, Picture picture, int left, int top);

// Place in tab order (-1: takes no focus), help context (0: none), and name in plain words.
void Name_Element(Picture_Box& element, int tab, int help, std::string_view spoken);
