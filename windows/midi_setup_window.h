// The MIDI setup window. Plain data; handlers come from frame/.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

constexpr int MIDI_Setup_Width_px = 370;
constexpr int MIDI_Setup_Height_px = 244;

struct MIDI_Setup_Window final : Form {
  MIDI_Setup_Window();

  Label Synthesizer_Label{*this, "Synthesizer_Label"};
  Combo_Box SynthesizerType{*this, "SynthesizerType"};
  Label Output_Label{*this, "Output_Label"};
  Combo_Box Output_Devices{*this, "Output_Devices"};
  Label Input_Label{*this, "Input_Label"};
  Combo_Box Input_Devices{*this, "Input_Devices"};
  Label Channel_Label{*this, "Channel_Label"};
  Combo_Box Channel{*this, "Channel"};
  Check_Box Enable{*this, "Enable"};
  Check_Box AutoSend{*this, "AutoSend"};
  Check_Box AutoPlay{*this, "AutoPlay"};
  Command_Button Cmd_OK{*this, "Cmd_OK"};
};

extern MIDI_Setup_Window MIDI_Setup;
