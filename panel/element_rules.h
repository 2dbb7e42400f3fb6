// The rules of the panel elements as functions of value, key and mouse place: what a key or a drag makes of a
// byte. Used by every window that has elements; nothing is stored, shown or sent here.
#pragma once

#include <optional>

// What the page keys add to a value, by kind of window.
constexpr int Page_Of_Slider = 16;        // sliders of the Editor and of the live examples
constexpr int Page_Of_Patch_Slider = 10;  // sliders of the patch windows
constexpr int Page_Of_Tune_Knob = 6;
constexpr int Page_Of_Fine_Knob = 10;

// Slider: the new byte in [0, 127], or nothing for a key that is none of a slider.
std::optional<int> Slider_Key_Value(int value, int key_code, int page);
// Slider, by the mouse: y in pixels from the top edge of the cap, negative above it. [0, 127]
int Slider_Drag_Value(int value, float y);

// Lever switch with three or four positions: the new byte, or nothing for a key that is none of a switch.
std::optional<int> Switch_Key_Value(int value, int key_code, bool three_way);
// [0, 127]; half a step goes to the even neighbour.
int Switch_Drag_Value(int value, float y);

// Knobs: every key gives a value, at the least the old one clamped.
int Tune_Knob_Key(int semitones, int key_code);  // [-12, 12]
int Fine_Knob_Key(int value, int key_code);      // [0, 127]
int Fine_Dot_Key(int value, int key_code);       // the same, to which the arrow keys are none

// Whether the key throws a two-position switch.
bool Is_Toggle_Key(int key_code);

// Knob drag: the horizontal place in drag units, which is compared with Knob_Last_X. Moves Knob_Last_X along.
// Returns value moved by the difference.
int Knob_Drag_Value(int value, int drag_x);
// Four pixels a unit on a tune knob, one on a fine knob.
int Tune_Drag_Units(float x);
int Fine_Drag_Units(float x);

constexpr int Tune_Knob_Limit = 12;
constexpr int Value_Limit = 127;
