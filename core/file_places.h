// Where the file dialog looks for files, whether they are there, and how a failure is reported.
// Called by whatever reads or writes tones, sequences and the settings, on the user-interface thread.
#pragma once

#include <string>
#include <string_view>

#include "platform/runtime_error.h"

// Directories of the file dialog, program paths: from the settings in lower case with a "\" at the end, from
// the dialog as its list has them.
extern std::string Dir_Tones;
extern std::string Dir_Sequences;
extern std::string Dir_Oscillators;

// The part of a path after a directory of that length; the program's captions show files so. Empty for a path
// no longer than that.
std::string Path_Behind(const std::string& path, std::size_t directory_length);

// Flag_True if the path can be opened for reading, Flag_False if not. A single trailing "\" is taken off; an
// empty path is not opened and counts as there. The error number is kept in File_Error, 0 for none.
int File_Exists(std::string_view path);
extern int File_Error;

// Shows a failure of a file command in a stop box; a cancelled dialog is none.
void Report_File_Error(const Runtime_Error& error, std::string_view label = "Error ",
                       std::string_view separator = ": ");
