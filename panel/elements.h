// The panel elements of the tone: sliders, lever switches and knobs, their places and what keys and mouse do
// to them. Called by the handlers of the Editor's elements. A slider or switch is told which cap moves, so
// that cap and value never part; of a knob the selected dot (Active_Ctl) moves.
#pragma once

#include <functional>
#include <string_view>

#include "platform/controls.h"

// What an instance of a slider or switch carries. Tops in pixels of the panel.
struct Element_Range {
  int index;   // in the record
  int top;     // at the highest value
  int bottom;  // at the lowest value
};

// Fills the key slot: work gets every key but Tab, which only moves the focus.
void On_Key(Picture_Box& element, std::function<void(int key_code)> work);

constexpr int Switch_Row_px = 10;  // between two positions of a switch

// A key on a slider: the new value is stored, shown and sent, the cap placed. Any other key places the cap
// only.
void Slider_Key(Picture_Box& cap, const Element_Range& range, int key_code);
// One move of the mouse with a button held, y from the top edge of the cap.
void Slider_Drag(Picture_Box& cap, const Element_Range& range, float y);
void Slider_Place(Picture_Box& cap, const Element_Range& range);

void Switch_Key(Picture_Box& cap, const Element_Range& range, int key_code);
// Stores the value at once; sends it only if Drag_Step_Counts.
void Switch_Drag(Picture_Box& cap, const Element_Range& range, float y);
// Places the cap by the band of its value; a three-way switch leaves it alone in the gaps between its bands,
// any switch beyond 127.
void Switch_Place(Picture_Box& cap, const Element_Range& range);

// Place of a slider's cap for a value: its base line minus up to 80 pixels.
int Slider_Top_At(int bottom, int value);
// Place of a four-position switch for a value, in quarters: three rows below top at the lowest.
int Switch_Top_At(int top, int value);

// Knobs of the tone. index is 13, 19 (tune) or 20 (fine tune).
void Knob_Key(int index, int key_code);
void Knob_Drag(int index, float x);

// Circle of a knob's dot inside its body, in pixels; degrees a unit of the shown value.
struct Knob_Circle {
  int left;
  int top;
  int degrees;
};
constexpr Knob_Circle Tune_Circle{12, 10, 12};
constexpr Knob_Circle Fine_Circle{12, 10, 3};

// Places the selected dot for a shown value; nothing if the selected element is no knob.
void Knob_Mark(const Knob_Circle& circle, double shown);
// Places a dot for a shown value, whichever element is selected.
void Dot_Place(Picture_Box& dot, const Knob_Circle& circle, double shown);

// Whether a step of a switch drag may be sent: the last one was on the same switch and differed by more
// than 4. Remembers the step in any case.
bool Drag_Step_Counts(int index, int value);
