// The two records that are all the program knows about a sound, their undo copies, and how a byte reads on
// the panel. Laid out as the instrument's own parameter numbers: the index in Tone is the parameter number on
// the wire.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/convert.h"

// A row of bytes whose index is checked at every access: Runtime_Error 9 outside it.
template <int count>
struct Byte_Record {
  std::uint8_t& operator[](int index) { return bytes[static_cast<std::size_t>(Checked_Index(index, count))]; }
  std::uint8_t operator[](int index) const {
    return bytes[static_cast<std::size_t>(Checked_Index(index, count))];
  }
  bool operator==(const Byte_Record&) const = default;

  std::array<std::uint8_t, static_cast<std::size_t>(count)> bytes{};
};

constexpr int Tone_Size = 59;
constexpr int Tone_Name_Length = 10;      // bytes 0 to 9
constexpr int Tone_First_Parameter = 10;  // 10 itself is spare
constexpr int Patch_Size = 9;
constexpr int Patch_Sent = 7;  // bytes 7 and 8 are neither dumped nor stored

// Parameter numbers that rules are written for.
constexpr int Index_DCO1_Tune = 13;
constexpr int Index_DCO2_Tune = 19;
constexpr int Index_DCO2_FTune = 20;
constexpr int Index_Chorus_Mode = 43;
constexpr int Index_LFO_Waveform = 44;
constexpr int Index_VCA_Mode = 58;
constexpr int Patch_Index_UDTune = 6;

// Bytes are 0 to 127 in normal use; the panel's elements clamp, nothing else does.
extern Byte_Record<Tone_Size> Tone;
extern Byte_Record<Patch_Size> Patch_Rec;
extern Byte_Record<Tone_Size> Tone_Undo;
extern Byte_Record<Patch_Size> Patch_Undo;

extern std::string Tone_Name_Str;  // the name as text, upper case, trimmed
extern std::string Tone_File;      // program path of the tone file, empty for none
extern std::string Tone_Title;     // the same, relative to Dir_Tones, for the caption
extern int Tone_Saved;             // Flag_True: no unsaved change
extern std::uint8_t
    Tone_Loading;  // Flag_On while the record is moved into the controls: nothing is shown as a value

// Whether the parameter is a continuous slider.
bool Is_Slider(int index);

// A tune byte in semitones, -12 to 12, with wide bands at the centre, the fifths and the ends; 0 above 127.
int Semitone_12(int byte);
// The lowest byte of a semitone's band. semitones in [-12, 12], else Runtime_Error 9.
int Semitone_Value(int semitones);
// A fine tune byte as -50 to 50; 0 outside [0, 127].
int Bipolar_50(int byte);

// A slider's byte, [0, 127], as the display shows it, 0 to 99, and as pixels above its base line, 0 to 80.
int Shown_99(int byte);
int Slider_Offset_px(int byte);
