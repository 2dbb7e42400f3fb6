#include "frame/midi_setup.h"

#include <array>
#include <string>

#include "core/settings.h"
#include "core/sysex.h"
#include "midi/devices.h"
#include "midi/input.h"
#include "midi/output.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/profile_file.h"
#include "platform/text.h"
#include "sequencer/model.h"
#include "sequencer/seq_transport.h"
#include "windows/frame_window.h"
#include "windows/midi_setup_window.h"
#include "windows/modal.h"
#include "windows/state.h"

namespace {

constexpr int Channels = 16;
constexpr int Instruction_Style = 640;  // the digits of 64 and of 0, joined: an OK button only

struct Instruction {
  std::string_view synthesizer;
  std::string_view text;
};

constexpr std::array Instructions{
    Instruction{"JX-8P",
                "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
                "setting on your JX-8P:\r\r"
                "* Press MIDI button\r"
                "* Press buttons 2 and 6\r"
                "* Move EDIT slider until the display shows 'EXCLUSIVE ON'\r"
                "* Unprotect the memory (back side switch 'Protect' to 'OFF')\r"
                "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
                "* Protect the memory (back side switch 'Protect' to 'ON')\r"},
    Instruction{"MKS-70",
                "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
                "setting on your MKS-70:\r\r"
                "* Press MIDI button\r"
                "* Press buttons 1 and 4\r"
                "* Move Alpha Dial until the display shows 'SYSTEM EXCLUSIVE ON'\r"
                "* Unprotect the memory (Set 'Protect' to 'OFF')\r"
                "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
                "* Protect the memory again (Set 'Protect' to 'ON')\r"},
};

std::string_view Instruction_Text() {
  for (const Instruction& instruction : Instructions) {
    if (instruction.synthesizer == Synthesizer) return instruction.text;
  }
  return {};
}

void Set_Switches(bool enabled) {
  MIDI_Setup.AutoSend.enabled = enabled;
  MIDI_Setup.AutoPlay.enabled = enabled;
  MELVOR.Menu_Tone_Receive.enabled = enabled;
  MELVOR.Menu_Tone_Send.enabled = enabled;
}

void MIDI_Setup_Controls_On() {
  if (midiInGetNumDevs() > 0) MIDI_Setup.Input_Devices.enabled = true;
  if (midiOutGetNumDevs() > 0) MIDI_Setup.Output_Devices.enabled = true;
  Set_Switches(true);
}

void MIDI_Setup_Controls_Off() {
  MIDI_Setup.Input_Devices.enabled = false;
  MIDI_Setup.Output_Devices.enabled = false;
  Set_Switches(false);
}

void Enable_Change() {
  MIDI_Enabled = MIDI_Setup.Enable.value() ? 1 : 0;
  if (MIDI_Enabled != 0) {
    MIDI_Setup_Controls_On();
  } else {
    MIDI_Setup_Controls_Off();
  }
}

void Close_MIDI() {
  MIDI_Out_Close_Wholly();
  MIDI_In_Close();
}

template <class Caps>
void Fill_List(Combo_Box& list, const std::vector<Caps>& table) {
  list.Clear();
  for (const Caps& row : table) list.Add_Item(MIDI_Name_Of(row));
}

// The list shows the instrument only if it knows it; the settings may name any.
void Select_Synthesizer() {
  const std::vector<std::string>& types = MIDI_Setup.SynthesizerType.items();
  for (std::size_t place = 0; place < types.size(); ++place) {
    if (types[place] == Synthesizer) MIDI_Setup.SynthesizerType.Select(static_cast<int>(place));
  }
}

void Setup_Load() {
  MIDI_Setup.width = MIDI_Setup_Width_px * Twips_Per_Pixel();
  MIDI_Setup.height = MIDI_Setup_Height_px * Twips_Per_Pixel();
  MIDI_Setup.left = MELVOR.width / 2 - MIDI_Setup.width / 2;
  MIDI_Setup.top = MELVOR.height / 2 - MIDI_Setup.height / 2;
  Dlg_Enter(MIDI_Setup, "MIDI_Setup");
  Close_MIDI();
  MIDI_Relist_Devices();
  MIDI_Setup.Channel.Clear();
  for (int channel = 1; channel <= Channels; ++channel) MIDI_Setup.Channel.Add_Item(std::to_string(channel));
  MIDI_Setup.Channel.Select(MIDI_Channel - 1);
  MIDI_Setup.Enable.value = MIDI_Enabled != 0;
  Enable_Change();
  Fill_List(MIDI_Setup.Input_Devices, MIDI_In_Devices);
  Fill_List(MIDI_Setup.Output_Devices, MIDI_Out_Devices);
  MIDI_Setup.Input_Devices.Select(MIDI_In_Device);
  MIDI_Setup.Output_Devices.Select(MIDI_Out_Device);
  MIDI_Setup.AutoPlay.Set_Value(Autoplay != 0);
  MIDI_Setup.AutoSend.Set_Value(Autosend != 0);
  Select_Synthesizer();
}

void Synthesizer_Click() {
  Synthesizer = MIDI_Setup.SynthesizerType.Selected_Text();
  SysEx_Heads_Build();
}

void OK_Click() {
  MIDI_In_Close();
  MIDI_Out_Close_Wholly();
  const Combo_Box& inputs = MIDI_Setup.Input_Devices;
  const Combo_Box& outputs = MIDI_Setup.Output_Devices;
  if (inputs.index() != -1) MIDI_In_Device = inputs.index();
  if (outputs.index() != -1) MIDI_Out_Device = outputs.index();
  MIDI_In_Name = Trim(inputs.Item(inputs.index()));
  MIDI_Out_Name = Trim(outputs.Item(outputs.index()));
  MIDI_Channel = static_cast<std::uint8_t>(MIDI_Setup.Channel.index() + 1);
  MIDI_Setup_Needed = 0;
  Message_Box(Instruction_Text(), Instruction_Style, "MIDI System Exclusive enabled?");
  Unload(MIDI_Setup);
}

void Setup_Closing(bool&) {
  INI_Hold();
  INI_Write("MIDI", "Autosend", std::to_string(Autosend));
  INI_Write("MIDI", "Channel", std::to_string(MIDI_Channel));
  INI_Write("MIDI", "Control Channel", "[Not used]");
  if (MIDI_Setup.Input_Devices.index() != -1)
    INI_Write("MIDI", "Input", MIDI_Setup.Input_Devices.Selected_Text());
  if (MIDI_Setup.Output_Devices.index() != -1) {
    INI_Write("MIDI", "Output", MIDI_Setup.Output_Devices.Selected_Text());
  }
  INI_Release();
  Seq_Status = Note_On_Status();
  SysEx_Heads_Build();
  Dlg_Leave();
}

}  // namespace

void MIDI_Setup_Wire() {
  MIDI_Setup.on_load = Setup_Load;
  MIDI_Setup.on_query_unload = Setup_Closing;
  Close_On_Escape(MIDI_Setup);
  MIDI_Setup.Enable.on_click = Enable_Change;
  MIDI_Setup.AutoSend.on_click = [] { Autosend = MIDI_Setup.AutoSend.value() ? 1 : 0; };
  MIDI_Setup.AutoPlay.on_click = [] { Autoplay = MIDI_Setup.AutoPlay.value() ? 1 : 0; };
  MIDI_Setup.SynthesizerType.on_click = Synthesizer_Click;
  MIDI_Setup.Cmd_OK.on_click = OK_Click;
}

void Menu_MIDI_Setup() {
  Seq_Stop_For_Setup();
  if (Active_Dlg.empty()) Show(MIDI_Setup);
}
