#include "midi/state.h"

std::uint8_t MIDI_Enabled = 0;
std::uint8_t MIDI_Channel = 1;
std::uint8_t Autosend = 1;
std::string Synthesizer = "JX-8P";
int MIDI_Setup_Needed = 0;
int Receive_On = 0;
int Seq_Status = 0;
Byte_String SysEx_Text;

int Note_On_Status() { return Status_Note_On + MIDI_Channel - 1; }
int Control_Status() { return Status_Control + MIDI_Channel - 1; }
