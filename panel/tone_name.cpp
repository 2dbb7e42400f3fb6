#include "panel/tone_name.h"

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "panel/input_box.h"
#include "platform/text.h"
#include "windows/editor_window.h"
#include "windows/modal.h"
#include "windows/tname_window.h"

namespace {

void TName_Load() {
  Prompt_Place(TName, {TName_Width_px, TName_Height_px});
  TName.Tone_Name.Set_Text(Tone_Name_Str);
  TName.Tone_Name.Select_All();
  Dlg_Enter(TName, "TName");
}

// The name goes out even if it is the same. An unsaved change it is not.
void Cmd_OK_Click() {
  Tone_Name_Str = Upper(TName.Tone_Name.text());
  Tone_Name_Store();
  Editor.Tone_Name.Set_Text(Tone_Name_Str);
  Tone_Name_Send();
  Unload(TName);
}

}  // namespace

void Tone_Name_Wire() {
  TName.on_load = TName_Load;
  TName.on_unload = Dlg_Leave;
  TName.Picture1.on_click = [] { Set_Focus(TName.Tone_Name); };
  TName.Cmd_OK.on_click = Cmd_OK_Click;
  TName.Cmd_Cancel.on_click = [] { Unload(TName); };
  Editor.Tone_Name.on_click = Tone_Name_Open;
  Editor.Tone_Name.on_key_press = [](int& character) {
    if (character == Key::Tab) return;  // it moves on
    character = 0;
    Tone_Name_Open();
  };
}

void Tone_Name_Open() {
  // Its end would free the menus that the wait for a tone has locked.
  if (Active_Dlg.empty() && Receive_On == 0) Show(TName);
}
