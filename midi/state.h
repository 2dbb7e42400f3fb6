// What the whole program knows about MIDI: switches, channel, instrument, the scratch message.
// Written by the MIDI start, the setup window and the settings; MIDI_Enabled also by any output error,
// Autosend by the file dialog and, while the program waits for a tone, by Receive.
#pragma once

#include <cstdint>
#include <string>

#include "platform/midi_service.h"

extern std::uint8_t MIDI_Enabled;  // 1: MIDI functions on; 0: off
extern std::uint8_t MIDI_Channel;  // [1, 16]; on the wire it is this minus 1
extern std::uint8_t Autosend;      // 1: parameter changes are sent at once
extern std::string Synthesizer;    // "JX-8P" or "MKS-70"
extern int MIDI_Setup_Needed;      // 1: a configured device is missing, the load opens the setup window
extern int Receive_On;             // 1 while the program waits for a tone
extern int Seq_Status;             // status byte of Seq_SendNote; 0 until the first of its writers has run
extern Byte_String SysEx_Text;     // scratch message of the dump and of All Notes Off

// Status bytes: the kind of message, to which the channel on the wire is added.
constexpr int Status_Note_On = 144;
constexpr int Status_Control = 176;
constexpr int Controller_All_Notes_Off = 123;

int Note_On_Status();
int Control_Status();
