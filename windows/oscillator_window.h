// The oscillator: curve, pen, wave selectors, target and transport; 386 x 165 pixels inside.
// Plain data; places, pictures and handlers come from oscillator/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"
#include "windows/control_row.h"

constexpr int Oscillator_Width_px = 386;
constexpr int Oscillator_Height_px = 165;

constexpr int Osc_Steps = 18;
constexpr int Osc_Lines = 2 * Osc_Steps;  // the steps, then their connectors
constexpr int Osc_Waves = 10;

struct Oscillator_Window final : Form {
  Oscillator_Window();

  Canvas Picture1{*this, "Picture1"};  // black field of the curve; later lines lie over earlier ones
  std::array<Line, Osc_Steps - 1> VLine = Control_Row<Line, Osc_Steps - 1>(Picture1, "VLine");
  Line HLine{Picture1, "HLine"};
  Line ZLine1{Picture1, "ZLine1"};
  Line ZLine2{Picture1, "ZLine2"};
  std::array<Line, Osc_Lines> Line1 = Control_Row<Line, Osc_Lines>(Picture1, "Line1");
  Line TimeLine{Picture1, "TimeLine"};

  Scroll_Bar VScrollDelta{*this, "VScrollDelta"};  // offset
  Scroll_Bar VScrollA{*this, "VScrollA"};          // amplitude
  Scroll_Bar Osc_Time{*this, "Osc_Time"};          // ms a step
  Label Label1{*this, "Label1"};                   // value of Osc_Time
  Label Label2{*this, "Label2"};                   // value under the pen, or played
  Label Label3{*this, "Label3"};                   // value of VScrollDelta
  Label Label4{*this, "Label4"};                   // value of VScrollA

  Combo_Box Combo1{*this, "Combo1"};  // target
  Picture_Box Osc_Invert{*this, "Osc_Invert"};
  std::array<Picture_Box, Osc_Waves> Osc_Wave = Control_Row<Picture_Box, Osc_Waves>(*this, "Osc_Wave");
  Picture_Box Osc_Start{*this, "Osc_Start"};
  Picture_Box Osc_Start_Pic{Osc_Start, "Osc_Start_Pic"};
  Picture_Box Osc_Stop{*this, "Osc_Stop"};
  Picture_Box Osc_Stop_Pic{Osc_Stop, "Osc_Stop_Pic"};

  Timer Timer_Osc{*this, "Timer_Osc", 500};  // one step of the sweep
};

extern Oscillator_Window Oscillator;
