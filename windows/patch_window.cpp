#include "windows/patch_window.h"

Patch_Window Patch;

Patch_Window::Patch_Window() : Form(Form_Role::Child, "Patch") {
  caption = "Patch Parameter";
  key_preview = true;
}
