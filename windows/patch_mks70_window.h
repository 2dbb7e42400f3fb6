// The patch panel of the MKS-70, 332 x 421 pixels inside: a window in construction that no menu opens.
// Plain data; places, pictures and rules come from panel/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/form.h"
#include "windows/control_row.h"

constexpr int Patch_MKS70_Width_px = 332;
constexpr int Patch_MKS70_Height_px = 421;

struct Patch_MKS70_Window final : Form {
  Patch_MKS70_Window();

  // Lights, numbered as the instrument numbers them: 0 to 4 and 8; 0 to 2; 0 to 2 and 4 to 6.
  std::array<Picture_Box, 6> Key_Mode = Control_Row<Picture_Box, 6>(*this, "Key_Mode");
  std::array<Picture_Box, 3> Chase_Mode = Control_Row<Picture_Box, 3>(*this, "Chase_Mode");
  std::array<Picture_Box, 6> Key_Assign = Control_Row<Picture_Box, 6>(*this, "Key_Assign");

  Picture_Box UL_Balance{*this, "UL_Balance"};
  Picture_Box UL_Balance_Knopf{UL_Balance, "UL_Balance_Knopf"};
  Picture_Box Dual_Detune{*this, "Dual_Detune"};
  Picture_Box Dual_Detune_Knopf{Dual_Detune, "Dual_Detune_Knopf"};
  Picture_Box Chromatic_Shift{*this, "Chromatic_Shift"};
  Picture_Box Chromatic_Shift_Knopf{Chromatic_Shift, "Chromatic_Shift_Knopf"};
  Picture_Box UDTune{*this, "UDTune"};
  Picture_Box UDTune_Knopf{UDTune, "UDTune_Knopf"};

  Picture_Box Bend_range{*this, "Bend_range"};
  Picture_Box Portamento{*this, "Portamento"};
  Picture_Box Portamento_Sw{*this, "Portamento_Sw"};
  Picture_Box Bender{*this, "Bender"};
  Picture_Box Hold{*this, "Hold"};
  Picture_Box Chase_Level{*this, "Chase_Level"};
  Picture_Box Chase_Time{*this, "Chase_Time"};
  Picture_Box Chase_Play{*this, "Chase_Play"};
  Picture_Box LFO_Mod_Depth{*this, "LFO_Mod_Depth"};
  Picture_Box Total_Volume{*this, "Total_Volume"};
  Picture_Box AFT_Vibrato{*this, "AFT_Vibrato"};
  Picture_Box AFT_Brilliance{*this, "AFT_Brilliance"};
  Picture_Box AFT_Volume{*this, "AFT_Volume"};

  Picture_Box Tone_A{*this, "Tone_A"};  // which tone the panel shows
  Picture_Box Tone_A_Pic{Tone_A, "Tone_A_Pic"};
  Picture_Box Tone_B{*this, "Tone_B"};
  Picture_Box Tone_B_Pic{Tone_B, "Tone_B_Pic"};
  Text_Box Patch_Name{*this, "Patch_Name"};
  Combo_Box Tone_Number{*this, "Tone_Number"};
  Combo_Box Split_Point{*this, "Split_Point"};
};

extern Patch_MKS70_Window Patch_MKS70;
