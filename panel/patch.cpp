#include "panel/patch.h"

#include <array>

#include "core/records.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "panel/meanings.h"
#include "panel/patch_knob.h"
#include "panel/patch_lights.h"
#include "panel/patch_switches.h"
#include "panel/patch_values.h"
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

void Patch_Slider_Place(const Patch_Slider& slider) { slider.element.top = Patch_Control_Top(slider.index); }

// A key that is none of a slider stores and sends the present value again.
void Patch_Slider_Key(const Patch_Slider& slider, int key_code) {
  const int value = Patch_Rec[slider.index];
  const auto moved = Slider_Key_Value(value, key_code, Page_Of_Patch_Slider);
  Patch_SetValue(slider.index, moved ? *moved : Clamp(value, 0, Value_Limit));
  Patch_Slider_Place(slider);
}

void Patch_Slider_Drag(const Patch_Slider& slider, float y) {
  Patch_SetValue(slider.index, Slider_Drag_Value(Patch_Rec[slider.index], y));
  Patch_Slider_Place(slider);
}

void Wire_Slider(const Patch_Slider& slider) {
  Picture_Box& element = slider.element;
  Mark_On_Focus(element, element);
  On_Key(element, [&slider](int key_code) { Patch_Slider_Key(slider, key_code); });
  element.on_mouse_down = [&slider](const Mouse_Event&) {
    Patch_SetValue(slider.index, Patch_Rec[slider.index]);
  };
  element.on_mouse_move = [&slider](const Mouse_Event& event) {
    if (event.button != 0) Patch_Slider_Drag(slider, event.y);
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
  for (const Patch_Slider& slider : Patch_Sliders) Patch_Slider_Place(slider);
  Patch.Portamento_Switch.top = Patch_Control_Top(Patch_Portamento_Switch);
  Patch_Lights_Show();
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
  Ctl_Select(&Patch.Portamento_Time);
}

void Patch_Unload() {
  if (MELVOR.Menu_Windows_SavePos.checked()) {
    Patch_Left = Patch.left;
    Patch_Top = Patch.top;
  }
  Patch_Open = Flag_Off;
}

}  // namespace

void Patch_Wire() {
  for (const Patch_Slider& slider : Patch_Sliders) Wire_Slider(slider);
  Patch_Switches_Wire();
  Patch_Lights_Wire();
  Wire_Detune();
  Patch.on_load = Patch_Load;
  Patch.on_unload = Patch_Unload;
  Close_On_Escape(Patch);
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
