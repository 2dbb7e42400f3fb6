#include "panel/patch.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "panel/meanings.h"
#include "panel/patch_knob.h"
#include "panel/patch_lights.h"
#include "panel/patch_switches.h"
#include "platform/convert.h"
#include "platform/desktop.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/patch_window.h"
#include "windows/state.h"

namespace {

struct Patch_Slider {
  Picture_Box& element;
  int index;
};

const std::array Patch_Sliders{Patch_Slider{Patch.Portamento_Time, Patch_Portamento_Time},
                               Patch_Slider{Patch.Pitch_Bend_LFO, Patch_Bend_LFO}};

bool Is_Patch_Slider(int index) { return index == Patch_Portamento_Time || index == Patch_Bend_LFO; }

void Patch_Slider_Set(const Patch_Slider& slider, int value) {
  Patch_SetValue(slider.index, value);
  slider.element.top = Patch_Control_Top(slider.index);
}

// A key that is none of a slider stores and sends the present value again.
void Patch_Slider_Key(const Patch_Slider& slider, int key_code) {
  const int value = Patch_Rec[slider.index];
  const auto moved = Slider_Key_Value(value, key_code, Page_Of_Patch_Slider);
  Patch_Slider_Set(slider, moved ? *moved : Clamp(value, 0, Value_Limit));
}

void Wire_Slider(const Patch_Slider& slider) {
  Picture_Box& element = slider.element;
  element.on_got_focus = [&element] { Active_Ctl = &element; };
  element.on_lost_focus = Ctl_Deselect;
  element.on_key_down = [&slider](Key_Event& key) { Patch_Slider_Key(slider, key.code); };
  element.on_mouse_down = [&slider](const Mouse_Event&) {
    Patch_SetValue(slider.index, Patch_Rec[slider.index]);
  };
  element.on_mouse_move = [&slider](const Mouse_Event& event) {
    if (event.button != 0) Patch_Slider_Set(slider, Slider_Drag_Value(Patch_Rec[slider.index], event.y));
  };
  Tell_99(element, Page_Of_Patch_Slider, [&slider] { return int{Patch_Rec[slider.index]}; });
}

int Detune() { return Patch_Rec[Patch_Index_UDTune]; }
void Set_Detune(int value) { Patch_SetValue(Patch_Index_UDTune, value); }

// Keys on the dot throw it off its circle until the next other input.
constexpr Knob_Circle Dot_Key_Circle{10, 12, 6};

void Wire_Detune() {
  const Patch_Knob knob{Patch.UDTune, Patch.UDTune_Knopf, Detune, Set_Detune, Fine_Circle};
  Wire_Patch_Knob(knob, Patch.UDTune, Fine_Knob_Key, [] { return Fine_Circle; });
  Wire_Patch_Knob(knob, Patch.UDTune_Knopf, Fine_Dot_Key, [] { return Dot_Key_Circle; });
}

void Show_All() {
  Patch.Pitch_Bend_Range.top = Patch_Control_Top(Patch_Bend_Range);
  for (const Patch_Slider& slider : Patch_Sliders) slider.element.top = Patch_Control_Top(slider.index);
  Patch.Portamento_Switch.top = Patch_Control_Top(Patch_Portamento_Switch);
  for (const int index : {Patch_Key_Mode, Patch_After_Touch}) {
    Patch_Lights_Show(index, Patch_Control_Top(index));
  }
  Dot_Place(Patch.UDTune_Knopf, Fine_Circle, Bipolar_50(Detune()));
}

void Patch_Load() {
  Ctl_Deselect();
  Patch.height = Patch_Height_px * Twips_Per_Pixel();
  Patch.width = Patch_Width_px * Twips_Per_Pixel();
  Patch_Open = Flag_On;
  Patch_Layout();
  Patch_Show();
  Blink_Phase = 0;
  Active_Ctl = &Patch.Portamento_Time;
}

void Patch_Unload() {
  if (MELVOR.Menu_Windows_SavePos.checked()) {
    Patch_Left = Patch.left;
    Patch_Top = Patch.top;
  }
  Patch_Open = Flag_Off;
}

void Close_On_Escape(Key_Event& key) {
  if (key.code != Key::Escape) return;
  key.code = 0;
  Unload(Patch);
}

}  // namespace

void Patch_SetValue(int index, int value) {
  Patch_Rec[index] = To_Byte(value);
  if (Tone_Loading == Flag_Off) {
    if (Is_Patch_Slider(index)) Display_Value(Shown_99(value));
    if (index == Patch_Index_UDTune) Display_Value(Bipolar_50(value));
    Display_Hold();
  }
  Patch_Param_Send(index);
  Tone_Saved = Flag_False;
}

int Patch_Control_Top(int index) {
  const int value = Patch_Rec[index];
  switch (index) {
    case Patch_Bend_Range:
      return Switch_Top_At(Bend_Range_Top_px, std::min(value, Value_Limit));
    case Patch_Portamento_Switch:
      return value < Portamento_On ? Portamento_Off_Top_px : Portamento_On_Top_px;
    case Patch_Key_Mode:
    case Patch_After_Touch:
      return Patch_Light_Of(index, value);
    default:
      return Slider_Top_At(Patch_Slider_Bottom_px, value);
  }
}

void Patch_Wire() {
  for (const Patch_Slider& slider : Patch_Sliders) Wire_Slider(slider);
  Patch_Switches_Wire();
  Patch_Lights_Wire();
  Wire_Detune();
  Patch.on_load = Patch_Load;
  Patch.on_unload = Patch_Unload;
  Patch.on_key_down = Close_On_Escape;
  Patch_Shown = Show_All;
}

void Menu_Tone_Patch() {
  if (Synthesizer == "MKS-70") {
    Message_Box("Sorry, patch settings not available yet.", Box_Ok | Box_Exclamation);
  } else if (Synthesizer == "JX-8P") {
    Patch.left = Patch_Left;
    Patch.top = Patch_Top;
    Show(Patch);
  }
}
