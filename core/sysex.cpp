#include "core/sysex.h"

#include <algorithm>

#include "core/records.h"
#include "midi/output.h"
#include "midi/state.h"
#include "platform/text.h"

std::string SysEx_APR_Tone;
std::string SysEx_APR_ToneB;
std::string SysEx_APR_Patch;
std::string SysEx_IPR_Tone;
std::string SysEx_IPR_ToneB;
std::string SysEx_IPR_Patch;
std::array<unsigned char, SysEx_Image_Size> SysEx_Image{};

namespace {

constexpr std::string_view APR = "F0 41 35 ";
constexpr std::string_view IPR = "F0 41 36 ";

struct Head_Row {
  std::string_view synthesizer;
  std::string* head;
  std::string_view form;
  std::string_view address;
};

constexpr std::array Head_Rows{
    Head_Row{"JX-8P", &SysEx_APR_Tone, APR, " 21 20 01 "},
    Head_Row{"JX-8P", &SysEx_APR_Patch, APR, " 21 30 01 "},
    Head_Row{"JX-8P", &SysEx_IPR_Tone, IPR, " 21 20 01 "},
    Head_Row{"JX-8P", &SysEx_IPR_Patch, IPR, " 21 30 01 "},
    Head_Row{"MKS-70", &SysEx_APR_Tone, APR, " 24 20 01 "},
    Head_Row{"MKS-70", &SysEx_APR_ToneB, APR, " 24 20 02 "},
    Head_Row{"MKS-70", &SysEx_APR_Patch, APR, " 24 30 01 "},
    Head_Row{"MKS-70", &SysEx_IPR_Tone, IPR, " 24 20 01 "},
    Head_Row{"MKS-70", &SysEx_IPR_ToneB, IPR, " 24 20 02 "},
    Head_Row{"MKS-70", &SysEx_IPR_Patch, IPR, " 24 30 01 "},
};

// Scratch text of single messages; a dump has its own, so that neither disturbs the other.
std::string single_text;

std::string Head(std::string_view form, std::string_view address) {
  return std::string(form) + SysEx_Unit() + std::string(address);
}

bool Sends_Changes() { return Autosend == 1 && MIDI_Enabled == 1; }

void Append_Value(std::string& text, int value) {
  text += Hex(value);
  text += ' ';
}

void Append_Patch(std::string& text, const Byte_Record<Patch_Size>& patch) {
  for (int index = 0; index < Patch_Sent; ++index) {
    Append_Value(text, index);
    Append_Value(text, patch[index]);
  }
}

}  // namespace

std::string SysEx_Unit() { return Hex(MIDI_Channel - 1); }

void SysEx_Heads_Build() {
  for (const Head_Row& row : Head_Rows) {
    if (row.synthesizer == Synthesizer) *row.head = Head(row.form, row.address);
  }
}

Byte_String Hex_To_Bytes(std::string_view text) {
  Byte_String bytes;
  std::size_t place = 0;
  while (place + 1 < text.size()) {
    const int number = Hex_Value(text.substr(place, 2));
    if (number >= 0) bytes += static_cast<char>(number);
    place += 2;
    if (place < text.size() && text[place] == ' ') ++place;
  }
  return bytes;
}

std::string Bytes_To_Text(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) text += Hex_2(static_cast<std::uint8_t>(byte)) + " ";
  return text;
}

void SysEx_Dump_Text() {
  static std::string text;
  text = SysEx_APR_Tone;
  for (const std::uint8_t byte : Tone.bytes) Append_Value(text, byte);
  text += "247 ";  // decimal, and thus two bytes on the wire
  text += SysEx_IPR_Patch;
  Append_Patch(text, Patch_Rec);
  text += "F7";
  SysEx_Text = Hex_To_Bytes(text);
}

void SysEx_Dump_Send() {
  if (MIDI_Enabled != 1) return;
  SysEx_Dump_Text();
  MIDI_Send_Long(SysEx_Text);
}

void SysEx_Param_Send(std::string_view head, int parameter, int value) {
  single_text = head;
  Append_Value(single_text, parameter);
  single_text += Hex(value);
  single_text += " F7";
  MIDI_Send_Long(Hex_To_Bytes(single_text));
}

void Tone_Param_Send(int index) {
  const int value = Tone[index];
  if (Sends_Changes()) SysEx_Param_Send(SysEx_IPR_Tone, index, value);
}

void Patch_Param_Send(int index) {
  const int value = Patch_Rec[index];
  if (Sends_Changes()) SysEx_Param_Send(Head(IPR, " 21 30 01 "), index, value);
}

void Tone_Name_Send() {
  if (!Sends_Changes()) return;
  single_text = Head(IPR, " 21 20 01 ");
  for (int index = 0; index < Tone_Name_Length; ++index) {
    Append_Value(single_text, index);
    Append_Value(single_text, Tone[index]);
  }
  single_text += " F7";
  MIDI_Send_Long(Hex_To_Bytes(single_text));
}

Byte_String SysEx_Image_Of(const Byte_Record<Tone_Size>& tone, const Byte_Record<Patch_Size>& patch) {
  std::string text = Head(APR, " 21 20 01 ");
  for (const std::uint8_t byte : tone.bytes) Append_Value(text, byte);
  text += "F7 ";
  text += Head(IPR, " 21 30 01 ");
  Append_Patch(text, patch);
  text += "F7";
  return Hex_To_Bytes(text);
}

void SysEx_Image_Build() {
  std::ranges::copy(SysEx_Image_Of(Tone, Patch_Rec), SysEx_Image.begin());
  SysEx_Heads_Build();
}
