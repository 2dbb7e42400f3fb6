// What the oscillator can drive: the lines of its target list.
#pragma once

#include <span>
#include <string_view>

// Values of Osc_Param that are no parameter of the tone.
constexpr int Osc_Drives_Notes = 96;
constexpr int Osc_Drives_Bend_LFO = 97;
constexpr int Osc_Drives_Portamento = 98;
constexpr int Osc_Drives_Mixer = 99;  // DCO2's level alone, turned over

struct Osc_Target {
  std::string_view text;
  int param;  // index in Tone, or one of the values above
};

// In the order of the list.
std::span<const Osc_Target> Osc_Targets();
