// The Editor's elements: one row each, with parameter number, place, tab order, help context and spoken name.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "panel/elements.h"
#include "windows/editor_window.h"

using Editor_Element = Picture_Box Editor_Window::*;

struct Slider_Row {
  Editor_Element element;
  Element_Range range;  // index in Tone, top at 127, top at 0
  int left;
  int tab;
  int help;
  std::string_view spoken;
};

// How the cap of a switch is placed when a whole tone is shown.
enum class Bands { Quarters, Thirds, Halves };

struct Switch_Row {
  Editor_Element element;
  Element_Range range;
  std::string_view tag;  // "bl" or "br": the side of the lamp on the cap
  int left;
  Bands bands;
  int tab;
  int help;
  std::string_view spoken;
  std::array<std::string_view, 4> positions;  // spoken, from the lowest value up
};

struct Knob_Row {
  Editor_Element body;
  Editor_Element dot;
  std::string_view tag;
  int index;
  int left;
  int top;
  Knob_Circle circle;
  int body_tab;
  int dot_tab;
  int help;
  std::string_view spoken;
};

std::span<const Slider_Row> Editor_Sliders();
std::span<const Switch_Row>
Editor_Switches();  // VCA_Mode among them, whose keys and mouse have rules of their own
std::span<const Knob_Row> Editor_Knobs();
