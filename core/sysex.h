// System Exclusive messages of the instrument. Each is composed as text of hexadecimal numbers, one or two
// digits each, separated by blanks, and turned into bytes by Hex_To_Bytes. Some forms are odd on purpose: the
// dump has 24 07 where an F7 would stand, the name message ends in 0F without F7. Called by whatever changes
// or sends the tone, on the user-interface thread.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/records.h"
#include "platform/midi_service.h"

// Heads of seven bytes with a trailing blank. APR: all parameters (0x35), IPR: individual ones (0x36).
extern std::string SysEx_APR_Tone;
extern std::string SysEx_APR_ToneB;
extern std::string SysEx_APR_Patch;
extern std::string SysEx_IPR_Tone;
extern std::string SysEx_IPR_ToneB;
extern std::string SysEx_IPR_Patch;

// Composes the heads from MIDI_Channel and Synthesizer; an unknown Synthesizer leaves them as they are.
void SysEx_Heads_Build();

// The channel's unit number as the heads write it: "0" to "F".
std::string SysEx_Unit();

// Reads the text pair by pair; a pair that is no number adds no byte, a single last character is never read.
Byte_String Hex_To_Bytes(std::string_view text);

// Leaves the dump of tone and patch, 90 bytes, in SysEx_Text.
void SysEx_Dump_Text();
// Composes the dump and sends it if MIDI_Enabled is 1. Does not look at Autosend: the callers decide.
void SysEx_Dump_Send();

// One parameter of the tone, 10 bytes, or of the patch. Sent only if Autosend and MIDI_Enabled are 1.
void Tone_Param_Send(int index);   // index in [0, 58], else Runtime_Error 9
void Patch_Param_Send(int index);  // index in [0, 8], else Runtime_Error 9

// The name as ten parameters in one message of 28 bytes, under the same condition.
void Tone_Name_Send();

// Sends head, parameter number, value and F7 as one message, whatever the switches say. parameter and value
// in [0, 255].
void SysEx_Param_Send(std::string_view head, int parameter, int value);

// Heads of messages in a file, as patterns of the text that Bytes_To_Text makes of them: "?" is any digit.
constexpr int SysEx_Head_Size = 7;
constexpr std::string_view Tone_Head_Form = "F0 41 35 ?? 21 20 01 ";
constexpr std::string_view Patch_Head_Form = "F0 41 36 ?? 21 30 01 ";
// Two hexadecimal digits and a blank for each byte.
std::string Bytes_To_Text(std::string_view bytes);

// The image of a tone file: tone dump and patch message with model byte 0x21, whatever the instrument.
constexpr std::size_t SysEx_Image_Size = 89;
Byte_String SysEx_Image_Of(const Byte_Record<Tone_Size>& tone, const Byte_Record<Patch_Size>& patch);
extern std::array<unsigned char, SysEx_Image_Size> SysEx_Image;
// Fills it from the editor's records, then composes the heads of the present instrument again.
void SysEx_Image_Build();
