#include "windows/editor_window.h"

Editor_Window Editor;

Editor_Window::Editor_Window() : Form(Form_Role::Child, "Editor") {
  border = Border::None;
  bottom = true;
  caption = "Editor";
}
