// Tone files: raw System Exclusive, 89 bytes as written; the reader scans any file for the first form it
// knows. Called by the menus and by the file dialog.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/runtime_error.h"

// How a file is loaded: for real, or as the preview of the file dialog.
enum class Load_Mode { Open, Soundcheck };

// Flag_On when the last load has met at least one tone.
extern std::uint8_t Tone_Found;

// Loads the first tone of the file (asking about further ones) and its patch. Failures are told in boxes; a
// tone that the end of the file cuts short leaves Tone as it was. With Autosend on, a dump goes out after
// each message. A preview leaves Tone_Loading at Flag_On. A load that fails leaves it at Flag_Off, and one
// that had taken a tone by then leaves that as an unsaved change.
void Tone_Load(const std::string& path, Load_Mode mode);

// Writes Tone_File; asks first if that would overwrite what another save of MELVOR has not put there. False
// if nothing was written, because the user declined or because of a failure, which a box reports; the old
// file and Tone_Saved are then unchanged.
bool Tone_Save();

// Shows a failure of a file command in a stop box; a cancelled dialog is none.
void Report_File_Error(const Runtime_Error& error, std::string_view label = "Error ",
                       std::string_view separator = ": ");

// Flag_True if the path can be opened for reading, Flag_False if not. A single trailing "\" is taken off; an
// empty path is not opened and counts as there. The error number is kept in File_Error, 0 for none.
int File_Exists(std::string_view path);
extern int File_Error;
