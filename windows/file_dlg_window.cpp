#include "windows/file_dlg_window.h"

File_Dlg_Window File_Dlg;

File_Dlg_Window::File_Dlg_Window() : Form(Form_Role::Child, "File_Dlg") {
  caption = "File";
  key_preview = true;
  for (Frame_Box* panel : {&FD_SYX, &FD_SEQ, &FD_OSC}) panel->visible = false;
}
