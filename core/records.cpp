#include "core/records.h"

#include <algorithm>

#include "windows/state.h"

Byte_Record<Tone_Size> Tone;
Byte_Record<Patch_Size> Patch_Rec;
Byte_Record<Tone_Size> Tone_Undo;
Byte_Record<Patch_Size> Patch_Undo;
std::string Tone_Name_Str;
std::string Tone_File;
std::string Tone_Title;
int Tone_Saved = Flag_True;
std::uint8_t Tone_Loading = Flag_Off;

namespace {

constexpr int Byte_Limit = 127;
constexpr int Slider_Travel_px = 80;

constexpr std::array Slider_Indices{14, 15, 21, 22, 28, 29, 30, 34, 35, 36, 37, 38,
                                    41, 45, 46, 47, 48, 49, 50, 52, 53, 54, 55};

// Lowest byte of the band of each semitone, from -12 up.
constexpr std::array<int, 25> Semitone_Bands{0,  8,  12, 16, 20, 24, 32, 36,  40,  44,  48,  52, 56,
                                             72, 76, 80, 84, 88, 92, 96, 104, 108, 112, 116, 120};
constexpr int Semitone_Span = 12;

// The bytes that share the number of the byte before them.
constexpr std::array Bipolar_Twins{5,  9,  14, 19, 24, 28, 33, 38,  42,  46,  51,  56,  60, 64,
                                   68, 72, 77, 82, 86, 90, 95, 100, 104, 109, 114, 119, 123};
constexpr int Bipolar_Lowest = -50;

}  // namespace

bool Is_Slider(int index) { return std::ranges::binary_search(Slider_Indices, index); }

int Semitone_12(int byte) {
  if (byte < 0 || byte > Byte_Limit) return 0;
  const auto above = std::ranges::upper_bound(Semitone_Bands, byte);
  return static_cast<int>(above - Semitone_Bands.begin()) - 1 - Semitone_Span;
}

int Semitone_Value(int semitones) {
  const int row = Checked_Index(semitones + Semitone_Span, static_cast<int>(Semitone_Bands.size()));
  return Semitone_Bands[static_cast<std::size_t>(row)];
}

int Bipolar_50(int byte) {
  if (byte < 0 || byte > Byte_Limit) return 0;
  const auto above = std::ranges::upper_bound(Bipolar_Twins, byte);
  return Bipolar_Lowest + byte - static_cast<int>(above - Bipolar_Twins.begin());
}

int Shown_99(int byte) { return byte * 99 / Byte_Limit; }
int Slider_Offset_px(int byte) { return byte * Slider_Travel_px / Byte_Limit; }
