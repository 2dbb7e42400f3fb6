// The settings of a run: read at the load of the frame, written when it unloads.
// Called by the frame; single values are changed by the windows that show them.
#pragma once

#include <cstdint>
#include <string>

extern std::uint8_t Autoplay;             // 1: the file dialog plays what is clicked
extern std::uint8_t Soundcheck;           // what it plays for a tone: 0 a note, 1 the sequence
extern std::uint8_t Soundcheck_Note;      // [24, 72]
extern std::uint8_t Soundcheck_Velocity;  // [0, 127]

// Places the frame, then reads everything but the keys that the MIDI start has read. A number outside its
// range counts as the default; a switch is on at "1" alone, Soundcheck at anything but "0".
void Settings_Load();

// Writes everything, in one replacement of the file. A failure is told on the standard error output alone.
void Settings_Save();

// Version number of the platform, as 4.10; only compared with 3.95, which stands between two default frame
// sizes.
double Windows_Version();
constexpr double Version_Of_New_Frames = 3.95;
