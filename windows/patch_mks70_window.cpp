#include "windows/patch_mks70_window.h"

Patch_MKS70_Window Patch_MKS70;

Patch_MKS70_Window::Patch_MKS70_Window() : Form(Form_Role::Child, "Patch_MKS70") {
  caption = "Patch Parameter";
  key_preview = true;
}
