#include "windows/input_dlg_window.h"

Input_Dlg_Window Input_Dlg;

Input_Dlg_Window::Input_Dlg_Window() : Form(Form_Role::Independent, "Input_Dlg") {
  Input_Msg.Place(12, 10, 296, 34);
  Input_Msg.wraps = true;

  Input_Textbox.Place(12, 46, 296, 23);
  Input_Textbox.tab_index = 0;

  Input_OK.caption = "Ok";
  Input_OK.Place(142, 79, 80, 24);
  Input_OK.tab_index = 1;
  Input_OK.is_default = true;

  Input_Cancel.caption = "Cancel";
  Input_Cancel.Place(228, 79, 80, 24);
  Input_Cancel.tab_index = 2;
  Input_Cancel.is_cancel = true;
}
