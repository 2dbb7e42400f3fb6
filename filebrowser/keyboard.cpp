#include "filebrowser/keyboard.h"

#include <algorithm>
#include <array>
#include <string>

#include "filebrowser/confirm.h"
#include "filebrowser/soundcheck.h"
#include "panel/push_buttons.h"
#include "platform/desktop.h"
#include "sequencer/model.h"
#include "windows/file_dlg_window.h"
#include "windows/state.h"

namespace {

constexpr int Alt_Itself = 18;

void Focus_File_Name() {
  Set_Focus(File_Dlg.FD_FileName);
  File_Dlg.FD_FileName.Select_All();
}

void Choose_Sequence() {
  if (Seq_Loaded == Flag_On) FD_Soundcheck_Click(1);
}

struct Alt_Row {
  char letter;
  void (*work)();
};

constexpr std::array Alt_Rows{
    Alt_Row{'C', [] { FD_Soundcheck_Click(0); }},
    Alt_Row{'D', [] { Set_Focus(File_Dlg.FD_List_Dirs); }},
    Alt_Row{'F', [] { Set_Focus(File_Dlg.FD_List_Files); }},
    Alt_Row{'N', Focus_File_Name},
    Alt_Row{'P', FD_Autoplay_Click},
    Alt_Row{'Q', Choose_Sequence},
    Alt_Row{'S', FD_Autosend_Click},
    Alt_Row{'T', [] { Set_Focus(File_Dlg.FD_List_Filter); }},
    Alt_Row{'V', [] { Set_Focus(File_Dlg.FD_List_Drives); }},
};

// Wherever a combination leads, the focus ends in the file name.
void Alt_Key_Down(int code) {
  const auto row = std::ranges::find(Alt_Rows, code, &Alt_Row::letter);
  if (row != Alt_Rows.end()) row->work();
  Do_Events();
  Set_Focus(File_Dlg.FD_FileName);
}

void Window_Key(Key_Event& key) {
  if (key.code == Key::Escape) {
    key.code = 0;
    File_Dlg.FD_Button_Cancel.on_click();
  } else if (key.shift == Alt_Key && key.code != Alt_Itself) {
    const int code = key.code;
    key.code = 0;
    if (!key.repeated) Alt_Key_Down(code);
  }
}

void File_Name_Key(Key_Event& key) {
  if (key.code != Key::Enter) return;
  key.code = 0;
  if (!key.repeated) FD_Confirm();
}

// The chosen file's name may not be in the name field yet: the arrow keys load nothing.
void Files_Key(Key_Event& key) {
  if (key.code != Key::Enter) return;
  const std::string chosen = File_Dlg.FD_List_Files.file_name();
  if (!chosen.empty() && !key.repeated) File_Dlg.FD_FileName.Set_Text(chosen);
  File_Name_Key(key);
}

}  // namespace

void FD_Keyboard_Wire() {
  File_Dlg.on_key_down = Window_Key;
  File_Dlg.FD_FileName.on_key_down = File_Name_Key;
  File_Dlg.FD_List_Files.on_key_down = Files_Key;
  for (Control* control : File_Dlg.controls) {
    const bool works = control->on_mouse_down || control->on_click;
    if (control->kind == Kind::Picture_Box && works) Work_By_Space(static_cast<Picture_Box&>(*control));
  }
}
