// The entry of the tone's name. Plain data; handlers come from panel/.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

constexpr int TName_Width_px = 264;
constexpr int TName_Height_px = 96;

struct TName_Window final : Form {
  TName_Window();

  Picture_Box Picture1{*this, "Picture1"};  // the background, on which everything lies
  Label Label1{Picture1, "Label1"};
  Text_Box Tone_Name{Picture1, "Tone_Name"};
  Command_Button Cmd_OK{Picture1, "Cmd_OK"};
  Command_Button Cmd_Cancel{Picture1, "Cmd_Cancel"};
};

extern TName_Window TName;
