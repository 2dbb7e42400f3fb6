#include "filebrowser/state.h"

#include "windows/state.h"

std::string FD_Ext;
std::string FD_Selected;
std::string FD_Selected_Path;
Selected_Kind FD_Selected_Kind = Selected_Kind::File;
std::string FD_Dir;
int FD_Cancelled = Flag_False;
std::string FD_Drive;
