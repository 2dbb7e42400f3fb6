#include "midi/devices.h"

#include <algorithm>

#include "midi/input.h"
#include "midi/output.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/text.h"

std::vector<MIDI_Out_Caps> MIDI_Out_Devices;
std::vector<MIDI_In_Caps> MIDI_In_Devices;
int MIDI_Out_Device = -1;
int MIDI_In_Device = -1;
std::string MIDI_Out_Name;
std::string MIDI_In_Name;

namespace {

template <class Caps>
void Fill_Table(std::vector<Caps>& table, int count, int (*query)(int device, Caps& caps)) {
  table.assign(static_cast<std::size_t>(count), Caps{});
  for (int device = 0; device < count; ++device) {
    Caps& row = table[static_cast<std::size_t>(device)];
    query(device, row);
    const std::string name = MIDI_Name_Of(row);
    row.name.fill(' ');
    std::ranges::copy(name, row.name.begin());
  }
}

template <class Caps>
int Find(const std::vector<Caps>& table, std::string_view name) {
  const std::string wanted = Trim(name);
  const auto row =
      std::ranges::find_if(table, [&](const Caps& caps) { return MIDI_Name_Of(caps) == wanted; });
  return row == table.end() ? -1 : static_cast<int>(row - table.begin());
}

}  // namespace

bool MIDI_List_Devices() {
  const int outputs = midiOutGetNumDevs();
  Fill_Table(MIDI_Out_Devices, outputs, midiOutGetDevCaps);
  if (outputs > 0) {
    MIDI_Enabled = 1;
  } else {
    Message_Box("No MIDI output device installed. MIDI functions disabled");
    MIDI_Enabled = 0;
    Autosend = 0;
  }
  MIDI_Out_Handle = -1;

  const int inputs = midiInGetNumDevs();
  Fill_Table(MIDI_In_Devices, inputs, midiInGetDevCaps);
  if (inputs > 0) {
    MIDI_Enabled = 1;
  } else {
    Message_Box("No MIDI input device installed. MIDI functions disabled");
  }
  MIDI_In_Handle = -1;
  return inputs > 0 || outputs > 0;
}

void MIDI_Relist_Devices() {
  midiRefreshDevices();
  Fill_Table(MIDI_Out_Devices, midiOutGetNumDevs(), midiOutGetDevCaps);
  Fill_Table(MIDI_In_Devices, midiInGetNumDevs(), midiInGetDevCaps);
  MIDI_Out_Device = MIDI_Out_Name.empty() ? -1 : MIDI_Find_Output(MIDI_Out_Name);
  MIDI_In_Device = MIDI_In_Name.empty() ? -1 : MIDI_Find_Input(MIDI_In_Name);
}

std::string MIDI_Device_Name(std::string_view field) { return Trim(field.substr(0, field.find('\0'))); }

int MIDI_Find_Output(std::string_view name) { return Find(MIDI_Out_Devices, name); }
int MIDI_Find_Input(std::string_view name) { return Find(MIDI_In_Devices, name); }
