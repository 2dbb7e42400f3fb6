#include "windows/tname_window.h"

TName_Window TName;

TName_Window::TName_Window() : Form(Form_Role::Child, "TName") {
  caption = "Tone Name";
  Picture1.Place(0, 0, TName_Width_px, TName_Height_px);

  Label1.caption = "Please enter a name for the Tone:";
  Label1.Place(12, 10, 240, 17);

  Tone_Name.Place(12, 30, 240, 23);
  Tone_Name.tab_index = 0;
  Tone_Name.max_length = 10;
  Tone_Name.spoken_name = "Name of the tone";

  Cmd_OK.caption = "&OK";
  Cmd_OK.Place(86, 63, 80, 24);
  Cmd_OK.tab_index = 1;
  Cmd_OK.is_default = true;

  Cmd_Cancel.caption = "&Cancel";
  Cmd_Cancel.Place(172, 63, 80, 24);
  Cmd_Cancel.tab_index = 2;
  Cmd_Cancel.is_cancel = true;
}
