// The two directories that a run of the program lives in.
#pragma once

#include <string>

// Where the settings live, as a program path without a backslash at its end: the directory of the executable
// if MELVOR.FNT stands beside it and it can be written, else the user's configuration directory for MELVOR.
// It may not exist yet (Program_Directory_Make).
const std::string& Program_Directory();
// Makes it, if it is missing. Failures are ignored here: the write that follows tells them.
void Program_Directory_Make();

// Where pictures and font lie, as a host path: the program directory of a portable folder, else share/melvor
// beside the executable's directory.
const std::string& Data_Directory();

// Finds both from the host path of the executable. Called once, before anything else asks.
void Directories_Find(const std::string& executable);
// Sets both by hand: a program path and a host path.
void Directories_Set(std::string program_directory, std::string data_directory);
