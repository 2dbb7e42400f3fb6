#include "windows/modal.h"

#include "platform/desktop.h"
#include "platform/dispatch.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/patch_window.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

std::string Active_Dlg;
int Dlg_Nest = 0;

namespace {

void Menus_Set(bool enabled) {
  for (Menu_Item* menu : {&MELVOR.Menu_File, &MELVOR.Menu_Edit, &MELVOR.Menu_Tone, &MELVOR.Menu_MIDI,
                          &MELVOR.Menu_Windows, &MELVOR.Menu_Help}) {
    menu->enabled = enabled;
  }
}

// The selected element of before may be gone; then the one that has kept the focus is selected.
void Select_Focused() {
  const Control* focused = Focused_Control();
  if (focused != nullptr && focused != Active_Ctl && focused->on_got_focus) focused->on_got_focus();
}

}  // namespace

void Menus_Disable() { Menus_Set(false); }
void Menus_Enable() { Menus_Set(true); }

void Dlg_Enter(Form& window, std::string_view name) {
  Editor.Timer1.enabled = false;
  Ctl_Deselect();
  if (Patch_Open == Flag_On) Patch.enabled = false;
  if (Seq_Open == Flag_On) Sequencer.enabled = false;
  Menus_Disable();
  Active_Dlg = name;
  MELVOR.pointer = Pointer_Shape::Hourglass;
  Editor.enabled = false;
  window.pointer = Pointer_Shape::Arrow;
  Saved_Ctl = Active_Ctl;
  ++Dlg_Nest;
}

void Dlg_Leave() {
  Ctl_Deselect();
  MELVOR.pointer = Pointer_Shape::Default;
  Editor.enabled = true;
  if (Patch_Open == Flag_On) {
    Patch.enabled = true;
    Bring_To_Front(Patch);
  }
  if (Seq_Open == Flag_On) {
    Sequencer.enabled = true;
    Show(Sequencer);
  }
  Do_All_Events();
  Active_Dlg.clear();
  Menus_Enable();
  Ctl_Select(Saved_Ctl);
  if (Active_Ctl != nullptr) Set_Focus(*Active_Ctl);
  Select_Focused();
  Editor.Timer1.enabled = true;
  --Dlg_Nest;
}

void Dlg_Wait() {
  while (!Active_Dlg.empty() && Wait_Events() > 0) continue;
  if (Open_Windows() == 0) throw Program_Ended();
}
