// Directories and drives in the file dialog, and its buttons Up, Delete and New folder.
// Called by the controls of the dialog.
#pragma once

#include <string>
#include <string_view>

// Fills the event slots of the directory and drive lists and of the three buttons. Called once.
void FD_Folders_Wire();

// Shows a directory in all three lists; one that is gone gives way to the current directory. Empty: the
// current directory.
void FD_Show_Directory(const std::string& path);

// The directory above, with a "\" behind it. The root of a drive is its own.
std::string FD_Parent_Dir(std::string_view path);
