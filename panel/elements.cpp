#include "panel/elements.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <utility>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "panel/element_rules.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"
#include "windows/state.h"

namespace {

constexpr int Positions = 4;
constexpr int Band = 32;
constexpr int Largest_Unsent_Step = 4;
constexpr double Dot_Radius_px = 5.0;
constexpr double Degrees_Upright = 90.0;

// Of the last step of a switch drag, in whichever window. No switch has the index of the start.
int Drag_Last_Value = 0;
int Drag_Last_Index = -1;

bool Is_Three_Way(int index) { return index == Index_Chorus_Mode || index == Index_LFO_Waveform; }

bool Is_Tune(int index) { return index == Index_DCO1_Tune || index == Index_DCO2_Tune; }

struct Three_Way_Row {
  int low;
  int high;
  int rows_below_top;
};

constexpr std::array Three_Way_Rows{Three_Way_Row{0, 15, 2}, Three_Way_Row{32, 47, 1},
                                    Three_Way_Row{64, 96, 0}};

void Tune_Set(int index, int semitones) {
  Knob_Mark(Tune_Circle, semitones);
  Tone_Param_Set(index, Semitone_Value(semitones));
}

void Fine_Tune_Set(int index, int value) {
  Knob_Mark(Fine_Circle, Bipolar_50(value));
  Tone_Param_Set(index, value);
}

}  // namespace

void On_Key(Picture_Box& element, std::function<void(int key_code)> work) {
  element.on_key_down = [work = std::move(work)](Key_Event& key) {
    if (key.code != Key::Tab) work(key.code);
  };
}

int Slider_Top_At(int bottom, int value) { return bottom - Slider_Offset_px(value); }

int Switch_Top_At(int top, int value) { return top + Switch_Row_px * (Positions - 1 - value / Band); }

void Slider_Place(Picture_Box& cap, const Element_Range& range) {
  cap.top = Slider_Top_At(range.bottom, Tone[range.index]);
}

void Slider_Key(Picture_Box& cap, const Element_Range& range, int key_code) {
  if (const auto value = Slider_Key_Value(Tone[range.index], key_code, Page_Of_Slider)) {
    Tone_Param_Set(range.index, *value);
  }
  Slider_Place(cap, range);
}

void Slider_Drag(Picture_Box& cap, const Element_Range& range, float y) {
  Tone_Param_Set(range.index, Slider_Drag_Value(Tone[range.index], y));
  Slider_Place(cap, range);
}

void Switch_Place(Picture_Box& cap, const Element_Range& range) {
  const int value = Tone[range.index];
  if (value > Value_Limit) return;
  if (!Is_Three_Way(range.index)) {
    cap.top = Switch_Top_At(range.top, value);
    return;
  }
  for (const Three_Way_Row& row : Three_Way_Rows) {
    if (value >= row.low && value <= row.high) cap.top = range.top + Switch_Row_px * row.rows_below_top;
  }
}

void Switch_Key(Picture_Box& cap, const Element_Range& range, int key_code) {
  if (const auto value = Switch_Key_Value(Tone[range.index], key_code, Is_Three_Way(range.index))) {
    Tone_Param_Set(range.index, *value);
  }
  Switch_Place(cap, range);
}

bool Drag_Step_Counts(int index, int value) {
  const bool counts = std::abs(Drag_Last_Value - value) > Largest_Unsent_Step && Drag_Last_Index == index;
  Drag_Last_Value = value;
  Drag_Last_Index = index;
  return counts;
}

void Switch_Drag(Picture_Box& cap, const Element_Range& range, float y) {
  const int value = Switch_Drag_Value(Tone[range.index], y);
  Tone[range.index] = To_Byte(value);
  Switch_Place(cap, range);
  if (Drag_Step_Counts(range.index, value)) Tone_Param_Send(range.index);
  Tone_Saved = Flag_False;
}

void Knob_Key(int index, int key_code) {
  if (Is_Tune(index)) {
    Tune_Set(index, Tune_Knob_Key(Semitone_12(Tone[index]), key_code));
  } else {
    Fine_Tune_Set(index, Fine_Knob_Key(Tone[index], key_code));
  }
}

void Knob_Drag(int index, float x) {
  if (Is_Tune(index)) {
    const int moved = Knob_Drag_Value(Semitone_12(Tone[index]), Tune_Drag_Units(x));
    Tune_Set(index, Clamp(moved, -Tune_Knob_Limit, Tune_Knob_Limit));
  } else {
    Fine_Tune_Set(index, Clamp(Knob_Drag_Value(Tone[index], Fine_Drag_Units(x)), 0, Value_Limit));
  }
}

void Knob_Mark(const Knob_Circle& circle, double shown) {
  if (Active_Ctl == nullptr || Active_Ctl->tag().find("kn") == std::string::npos) return;
  Dot_Place(*Active_Ctl, circle, shown);
}

void Dot_Place(Picture_Box& dot, const Knob_Circle& circle, double shown) {
  const double angle = (Degrees_Upright + circle.degrees * shown) * std::numbers::pi / 180.0;
  dot.left = circle.left - Round_16(std::cos(angle) * Dot_Radius_px);
  dot.top = circle.top - Round_16(std::sin(angle) * Dot_Radius_px);
}
