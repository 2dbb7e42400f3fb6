// The patch panel of the JX-8P, 288 x 169 pixels inside.
// Plain data; places, pictures and rules come from panel/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/form.h"
#include "windows/control_row.h"

constexpr int Patch_Width_px = 288;
constexpr int Patch_Height_px = 169;

struct Patch_Window final : Form {
  Patch_Window();

  Picture_Box Portamento_Time{*this, "Portamento_Time"};
  Picture_Box Portamento_Switch{*this, "Portamento_Switch"};
  Picture_Box Pitch_Bend_LFO{*this, "Pitch_Bend_LFO"};
  Picture_Box Pitch_Bend_Range{*this, "Pitch_Bend_Range"};
  std::array<Picture_Box, 6> Key_Mode = Control_Row<Picture_Box, 6>(*this, "Key_Mode");        // downwards
  std::array<Picture_Box, 4> After_Touch = Control_Row<Picture_Box, 4>(*this, "After_Touch");  // upwards
  Picture_Box UDTune{*this, "UDTune"};
  Picture_Box UDTune_Knopf{UDTune, "UDTune_Knopf"};
};

extern Patch_Window Patch;
