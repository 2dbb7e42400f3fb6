// What the file dialog remembers between its events, and from one opening to the next.
// Written by filebrowser/ alone.
#pragma once

#include <string>

enum class Selected_Kind { File, Dir };

extern std::string FD_Ext;       // put behind a bare name; "*" + FD_Ext is the list's pattern: ".syx"
extern std::string FD_Selected;  // the entry picked last: a file's name or a directory's path; empty for none
extern std::string FD_Selected_Path;  // of a picked file, as its directory was at that time
extern Selected_Kind FD_Selected_Kind;
extern std::string FD_Dir;    // the directory of FD_List_Dirs at the start of a confirm or double click
extern int FD_Cancelled;      // Flag_True after Cancel, Flag_False from the load on
extern std::string FD_Drive;  // the drive that was reached last without an error
