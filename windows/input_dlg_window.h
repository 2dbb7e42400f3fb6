// The one-line prompt, a window of its own. Plain data; handlers come from panel/.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

constexpr int Input_Dlg_Width_px = 320;
constexpr int Input_Dlg_Height_px = 112;

struct Input_Dlg_Window final : Form {
  Input_Dlg_Window();

  Label Input_Msg{*this, "Input_Msg"};
  Text_Box Input_Textbox{*this, "Input_Textbox"};
  Command_Button Input_OK{*this, "Input_OK"};
  Command_Button Input_Cancel{*this, "Input_Cancel"};
};

extern Input_Dlg_Window Input_Dlg;
