// Reading tone files, raw System Exclusive: the reader scans any file for the first form it knows.
// Called by the menus and by the file dialog.
#pragma once

#include <cstdint>
#include <string>

// How a file is loaded: for real, or as the preview of the file dialog.
enum class Load_Mode { Open, Soundcheck };

// Flag_On when the last load has met at least one tone.
extern std::uint8_t Tone_Found;

// Loads the first tone of the file (asking about further ones) and its patch. Failures are told in boxes; a
// tone that the end of the file cuts short leaves Tone as it was. With Autosend on, a dump goes out after
// each message. A preview leaves Tone_Loading at Flag_On. A load that fails leaves it at Flag_Off, and one
// that had taken a tone by then leaves that as an unsaved change.
void Tone_Load(const std::string& path, Load_Mode mode);
