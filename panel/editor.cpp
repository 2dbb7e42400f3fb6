#include "panel/editor.h"

#include <algorithm>
#include <string>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "panel/editor_tables.h"
#include "panel/element_rules.h"
#include "panel/meanings.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"
#include "windows/state.h"

namespace {

constexpr int Upper_Row_Top = 32;
constexpr int Lower_Row_Top = 278;
constexpr int Half = 64;

void Wire_Slider(const Slider_Row& row) {
  Picture_Box& element = Editor.*row.element;
  Mark_On_Focus(element, element);
  On_Key(element, [&element, &row](int key_code) { Slider_Key(element, row.range, key_code); });
  element.on_mouse_down = [&row](const Mouse_Event&) {
    Tone_Param_Set(row.range.index, Tone[row.range.index]);
  };
  element.on_mouse_move = [&element, &row](const Mouse_Event& event) {
    if (event.button != 0) Slider_Drag(element, row.range, event.y);
  };
  Tell_99(element, Page_Of_Slider, [&row] { return int{Tone[row.range.index]}; });
}

int Band_Of(Bands bands, int value) {
  switch (bands) {
    case Bands::Quarters:
      return std::min(value / 32, 3);
    case Bands::Thirds:
      return std::min(value / 32, 2);
    case Bands::Halves:
      return std::min(value / Half, 1);
  }
  return 0;
}

void Wire_Switch(const Switch_Row& row) {
  Picture_Box& element = Editor.*row.element;
  Mark_On_Focus(element, element);
  On_Key(element, [&element, &row](int key_code) { Switch_Key(element, row.range, key_code); });
  element.on_mouse_move = [&element, &row](const Mouse_Event& event) {
    if (event.button != 0) Switch_Drag(element, row.range, event.y);
  };
  Tell_Position(element, {row.positions.begin(), row.positions.end()},
                [&row] { return Band_Of(row.bands, Tone[row.range.index]); });
}

void Wire_Knob(const Knob_Row& row) {
  Picture_Box& dot = Editor.*row.dot;
  for (Picture_Box* element : {&(Editor.*row.body), &dot}) {
    Mark_On_Focus(*element, dot);
    On_Key(*element, [&row](int key_code) { Knob_Key(row.index, key_code); });
    element->on_mouse_down = [&row](const Mouse_Event&) { Tone_Param_Set(row.index, Tone[row.index]); };
    element->on_mouse_move = [&row](const Mouse_Event& event) {
      if (event.button != 0) Knob_Drag(row.index, event.x);
    };
    const auto tell = row.index == Index_DCO2_FTune ? Tell_Bipolar : Tell_Semitones;
    tell(*element, [&row] { return int{Tone[row.index]}; });
  }
}

// The present value goes out after every key and press, whether or not it has changed.
void VCA_Mode_Send() {
  Tone_Param_Send(Index_VCA_Mode);
  Tone_Saved = Flag_False;
}

void VCA_Mode_Toggle() {
  const int value = Tone[Index_VCA_Mode];
  if (value > Value_Limit) return;
  const bool up = value < Half;
  Tone[Index_VCA_Mode] = To_Byte(up ? value + Half : value - Half);
  Editor.VCA_Mode.top = Editor.VCA_Mode.top() + (up ? -Switch_Row_px : Switch_Row_px);
}

void Wire_VCA_Mode() {
  On_Key(Editor.VCA_Mode, [](int key_code) {
    if (Is_Toggle_Key(key_code)) VCA_Mode_Toggle();
    VCA_Mode_Send();
  });
  Editor.VCA_Mode.on_mouse_down = [](const Mouse_Event&) {
    VCA_Mode_Toggle();
    VCA_Mode_Send();
  };
  Editor.VCA_Mode.on_mouse_move = nullptr;
}

void Select_First() {
  Blink_Phase = 0;
  Ctl_Select(&Editor.DCO1_Range);
}

void Blink_Tick() {
  Blink_Phase = Blink_Phase == 0 ? 1 : 0;
  Ctl_Blink();
}

void Place_Switch_Of(const Switch_Row& row) {
  const int value = Tone[row.range.index];
  if (value > Value_Limit) return;
  const int lowest = row.range.bottom;
  (Editor.*row.element).top = lowest - Switch_Row_px * Band_Of(row.bands, value);
}

void Place_Switch(const Switch_Row& row) {
  Picture_Box& element = Editor.*row.element;
  if (row.range.top == Upper_Row_Top) {
    element.top = Switch_Top_Upper(row.range.index);
  } else if (row.range.top == Lower_Row_Top) {
    element.top = Switch_Top_Lower(row.range.index);
  } else {
    Place_Switch_Of(row);
  }
}

// In the order of the parameters, the knobs last. Both tables are in that order.
void Show_All() {
  auto slider = Editor_Sliders().begin();
  const auto place_sliders_before = [&slider](int index) {
    for (; slider != Editor_Sliders().end() && slider->range.index < index; ++slider)
      (Editor.*slider->element).top = Slider_Top(slider->range.index);
  };
  for (const Switch_Row& row : Editor_Switches()) {
    place_sliders_before(row.range.index);
    Place_Switch(row);
  }
  place_sliders_before(Tone_Size);
  for (const Knob_Row& row : Editor_Knobs()) Knob_Show(row.tag);
}

void Editor_Load() {
  Pics_Assign();
  Select_First();
}

}  // namespace

int Slider_Top(int index) {
  const auto row =
      std::ranges::find(Editor_Sliders(), index, [](const Slider_Row& slider) { return slider.range.index; });
  return Slider_Top_At(row == Editor_Sliders().end() ? 0 : row->range.bottom, Tone[index]);
}

int Switch_Top_Upper(int index) {
  return Tone[index] > Value_Limit ? 0 : Switch_Top_At(Upper_Row_Top, Tone[index]);
}
int Switch_Top_Lower(int index) {
  return Tone[index] > Value_Limit ? 0 : Switch_Top_At(Lower_Row_Top, Tone[index]);
}

void Knob_Show(std::string_view tag) {
  const auto row = std::ranges::find(Editor_Knobs(), tag, &Knob_Row::tag);
  if (row == Editor_Knobs().end()) return;
  const int value = Tone[row->index];
  Picture_Box& dot = Editor.*row->dot;
  Dot_Place(dot, row->circle, row->index == Index_DCO2_FTune ? Bipolar_50(value) : Semitone_12(value));
}

void Editor_Wire() {
  for (const Slider_Row& row : Editor_Sliders()) Wire_Slider(row);
  for (const Switch_Row& row : Editor_Switches()) Wire_Switch(row);
  for (const Knob_Row& row : Editor_Knobs()) Wire_Knob(row);
  Wire_VCA_Mode();
  Editor.Tone_Name.on_lost_focus = Ctl_Deselect;
  Editor.Timer1.on_tick = Blink_Tick;
  Editor.on_load = Editor_Load;
  Editor.on_activate = Select_First;
  Editor.on_deactivate = Ctl_Deselect;
  Tone_Shown = Show_All;
}
