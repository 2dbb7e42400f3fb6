#include "midi/setup.h"

#include <cstdlib>
#include <string>

#include "midi/devices.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/profile_file.h"
#include "platform/text.h"

namespace {

constexpr std::string_view Not_Configured = "Not configured";
constexpr int Highest_Channel = 16;

// One direction: its key in the settings, its word in the boxes, and where the device found is kept.
struct Direction {
  std::string_view key;
  std::string_view word;
  int (*find)(std::string_view name);
  int* device;
  std::string* name;
};

constexpr Direction Output{"OUTPUT", "output", MIDI_Find_Output, &MIDI_Out_Device, &MIDI_Out_Name};
constexpr Direction Input{"INPUT", "input", MIDI_Find_Input, &MIDI_In_Device, &MIDI_In_Name};

bool Check_Device(const Direction& direction) {
  const std::string name = MIDI_Device_Name(INI_Read("MIDI", direction.key, Not_Configured));
  const std::string device = "MIDI " + std::string(direction.word) + " device ";
  if (name == Not_Configured) {
    Message_Box(device + "not configured - starting MIDI setup.");
  } else {
    *direction.device = direction.find(name);
    if (*direction.device >= 0) {
      *direction.name = Trim(name);
      return true;
    }
    Message_Box(device + "(" + name + ") not available - starting MIDI setup.");
  }
  MIDI_Setup_Needed = 1;
  return true;
}

bool MIDI_Setup_Output() { return Check_Device(Output); }
bool MIDI_Setup_Input() { return Check_Device(Input); }

}  // namespace

bool MIDI_Read_Setup() {
  const int channel = Leading_Number(INI_Read("MIDI", "Channel", "1"));  // its sign does not count
  const bool usable = channel != 0 && channel >= -Highest_Channel && channel <= Highest_Channel;
  MIDI_Channel = static_cast<std::uint8_t>(usable ? std::abs(channel) : 1);
  if (MIDI_Enabled != 1) return true;
  const bool output = MIDI_Setup_Output();
  const bool input = MIDI_Setup_Input();
  return output && input;
}

bool MIDI_Init() {
  const bool any = MIDI_List_Devices();
  MIDI_Read_Setup();
  Receive_On = 0;
  return any;
}
