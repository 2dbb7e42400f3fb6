#include "oscillator/window.h"

#include <string>

#include "oscillator/curve.h"
#include "oscillator/field.h"
#include "oscillator/playback.h"
#include "oscillator/targets.h"
#include "panel/push_buttons.h"
#include "platform/desktop.h"
#include "windows/focus_mark.h"
#include "windows/pictures.h"
#include "windows/state.h"

std::uint8_t Osc_Open = Flag_Off;

namespace {

constexpr std::string_view Inverted = "1";
constexpr std::string_view Upright = "0";
constexpr int Start_Amplitude = 64;
constexpr int Start_Time_ms = 500;
constexpr float Start_Level = 63;

bool Is_Inverted() { return Oscillator.Osc_Invert.tag() == Inverted; }

void Light_Wave(int wave, int light) {
  for (Picture_Box& other : Oscillator.Osc_Wave) other.picture = LED(LED_Dark);
  Oscillator.Osc_Wave[static_cast<std::size_t>(wave)].picture = LED(light);
}

void Wave_Click(int wave) {
  Light_Wave(wave, LED_Green);
  Osc_Generate(wave);
  if (Is_Inverted()) Osc_Turn_Over();
  Osc_Redraw();
}

void Wave_Double_Click() {
  Osc_Flatten();
  Osc_Redraw();
}

void Invert_Click() {
  Osc_Turn_Over();
  Osc_Redraw();
  const bool now_inverted = !Is_Inverted();
  Oscillator.Osc_Invert.tag = std::string(now_inverted ? Inverted : Upright);
  Oscillator.Osc_Invert.picture = LED(now_inverted ? LED_Yellow : LED_Dark);
}

void Amplitude_Change() {
  Oscillator.Label4.caption = std::to_string(Oscillator.VScrollA.value());
  Osc_Redraw();
}

void Offset_Change() {
  Oscillator.Label3.caption = std::to_string(Oscillator.VScrollDelta.value());
  Osc_Show_Offset();
  Osc_Redraw();
}

void Time_Change() {
  Oscillator.Label1.caption = std::to_string(Oscillator.Osc_Time.value());
  Oscillator.Timer_Osc.interval_ms = Oscillator.Osc_Time.value();
}

void Target_Click() {
  const int line = Oscillator.Combo1.index;
  if (line >= 0) Osc_Param = Osc_Targets()[static_cast<std::size_t>(line)].param;
}

// A bar that stands there already runs no handler, and its label and lines need the value all the same.
void Set_Bars() {
  Oscillator.VScrollDelta.value = 0;
  Offset_Change();
  Oscillator.VScrollA.value = Start_Amplitude;
  Amplitude_Change();
  Oscillator.Osc_Time.value = Start_Time_ms;
  Time_Change();
}

void Osc_Load() {
  Ctl_Deselect();
  Oscillator.width = Oscillator_Width_px * Twips_Per_Pixel();
  Oscillator.height = Oscillator_Height_px * Twips_Per_Pixel();
  Osc_Open = Flag_On;
  Osc_Raw = {};
  Osc_Y = Start_Level;
  Osc_Lay_Lines();
  Set_Bars();
  Osc_Layout();
  Wave_Click(0);
  Oscillator.Combo1.Select(0);
}

void Osc_Unload() {
  Oscillator.Timer_Osc.enabled = false;
  Osc_Open = Flag_Off;
}

void Wire_Lights() {
  for (int wave = 0; wave < Osc_Waves; ++wave) {
    Picture_Box& light = Oscillator.Osc_Wave[static_cast<std::size_t>(wave)];
    light.on_click = [wave] { Wave_Click(wave); };
    light.on_double_click = Wave_Double_Click;
    light.is_on = [&light] { return light.picture() != LED(LED_Dark); };
    Work_By_Space(light);
  }
  Oscillator.Osc_Invert.on_click = Invert_Click;
  Oscillator.Osc_Invert.is_on = Is_Inverted;
  Work_By_Space(Oscillator.Osc_Invert);
}

// The start button stays down until the stop button is released.
void Wire_Buttons() {
  Oscillator.Osc_Start.on_mouse_down = [](const Mouse_Event&) { Push_Down(Oscillator.Osc_Start); };
  Oscillator.Osc_Start.on_click = Osc_Start;
  Oscillator.Osc_Stop.on_mouse_down = [](const Mouse_Event&) { Push_Down(Oscillator.Osc_Stop); };
  Oscillator.Osc_Stop.on_mouse_up = [](const Mouse_Event&) {
    Push_Up(Oscillator.Osc_Stop);
    Push_Up(Oscillator.Osc_Start);
  };
  Oscillator.Osc_Stop.on_click = Osc_Stop;
  Work_By_Space(Oscillator.Osc_Start);
  Work_By_Space(Oscillator.Osc_Stop);
}

}  // namespace

void Osc_Wire() {
  Oscillator.on_load = Osc_Load;
  Oscillator.on_unload = Osc_Unload;
  Oscillator.Picture1.on_mouse_move = Osc_Pen;
  Oscillator.Picture1.on_mouse_up = [](const Mouse_Event&) { Light_Wave(Osc_Kept_Wave, LED_Blue); };
  Oscillator.VScrollA.on_change = Amplitude_Change;
  Oscillator.VScrollDelta.on_change = Offset_Change;
  Oscillator.Osc_Time.on_change = Time_Change;
  Oscillator.Combo1.on_click = Target_Click;
  Oscillator.Timer_Osc.on_tick = Osc_Tick;
  Wire_Lights();
  Wire_Buttons();
}

void Osc_Open_Window() { Show(Oscillator); }
