// The device tables: what MIDI outputs and inputs there are, by number and name.
// Called by the start of the program and by the setup window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/midi_service.h"

// Index = device number of the service. The name field of each row is cleaned and padded with blanks.
extern std::vector<MIDI_Out_Caps> MIDI_Out_Devices;
extern std::vector<MIDI_In_Caps> MIDI_In_Devices;

extern int MIDI_Out_Device;  // index of the chosen device; -1: not found, or none chosen
extern int MIDI_In_Device;
extern std::string MIDI_Out_Name;  // its name, trimmed
extern std::string MIDI_In_Name;

// Fills both tables; tells the user where there is no device. MIDI_Enabled is 1 afterwards if there is any
// device, the handles are closed (-1). False if there is none at all.
bool MIDI_List_Devices();

// Fills both tables anew without a word, and finds the chosen devices again by their names.
void MIDI_Relist_Devices();

// The part of a name field before its first zero, trimmed.
std::string MIDI_Device_Name(std::string_view field);

// The first device of that name, blanks at the ends apart; -1 for none.
int MIDI_Find_Output(std::string_view name);
int MIDI_Find_Input(std::string_view name);

// The name of a table row, trimmed.
template <class Caps>
std::string MIDI_Name_Of(const Caps& row) {
  return MIDI_Device_Name(std::string_view(row.name.data(), row.name.size()));
}
