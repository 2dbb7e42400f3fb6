// Profile files: sections of keys with short text values, as "MELVOR.INI". Section and key names are compared
// without regard to case; unknown sections, keys, comments and line ends stay as they are.
#pragma once

#include <string>
#include <string_view>

// The service's own two operations, on a file by path (drives.h).
// The value's text without blanks around it and without a pair of quotes around the whole; default_value if
// the file, the section or the key is missing or the file cannot be read. Noise in the file is skipped.
std::string Get_Profile_String(std::string_view section, std::string_view key, std::string_view default_value,
                               std::string_view path);
// Sets one value, up to its first line end or zero byte, making file, section and key as needed; the file is
// replaced as a whole (files.h). False if that failed; then the file is as it was.
bool Write_Profile_String(std::string_view section, std::string_view key, std::string_view value,
                          std::string_view path);

// Path of the settings file; "" before it is composed. Set by the frame's load.
extern std::string INI_File;

// A value of the settings, cut to 31 characters and at its first zero character.
std::string INI_Read(std::string_view section, std::string_view key, std::string_view default_value);
// Trims the value and writes it, making the program directory if need be; a failure is told on the standard
// error output alone. Between INI_Hold and INI_Release the values wait, INI_Read sees them, and the file is
// written once at the end. Holds nest.
void INI_Write(std::string_view section, std::string_view key, std::string_view value);
void INI_Hold();
void INI_Release();

// The path with a "\" behind it, unless its last character (after a right trim) is one; trimmed on both
// sides.
std::string Path_Slash(std::string_view path);
