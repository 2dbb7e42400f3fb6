// The oscillator's curve: 18 steps as generated or drawn, and as played.
// Called by the oscillator's window; read by its playback. The curve lives as long as that window: its load
// starts it anew.
//
// Levels count as on the screen: 0 is the top, 127 the bottom. A played value is 127 minus the level, so that
// a high line sends a high value.
#pragma once

#include <array>
#include <cstdint>

#include "windows/oscillator_window.h"

constexpr int Osc_Lowest_Level = 127;

struct Osc_Level {
  std::int16_t start = 0;
  std::int16_t end = 0;  // only the start is played
  bool operator==(const Osc_Level&) const = default;
};
using Osc_Curve = std::array<Osc_Level, Osc_Steps>;

extern Osc_Curve Osc_Raw;  // as generated or drawn; drawing can take it beyond [0, 127]
extern Osc_Curve Osc_Out;  // after amplitude and offset, in [0, 127]
extern float Osc_Y;        // level that the generators work with; a random run goes on from it

// The wave whose generator leaves the curve as it is.
constexpr int Osc_Kept_Wave = 8;

// Fills Osc_Raw with a shape. wave in [0, 9], else Runtime_Error 9.
void Osc_Generate(int wave);
// Turns Osc_Raw upside down.
void Osc_Turn_Over();
// Lays Osc_Raw on its middle line, level 64.
void Osc_Flatten();

// Makes Osc_Out of Osc_Raw. amplitude in [0, 127], of which 64 keeps the size; a positive offset moves the
// curve up.
void Osc_Shape(int amplitude, int offset);
// Makes Osc_Raw of Osc_Out, so that Osc_Shape gives it again. amplitude in [1, 127].
void Osc_Unshape(int amplitude, int offset);
