#include "filebrowser/dialog.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/file_places.h"
#include "core/settings.h"
#include "filebrowser/confirm.h"
#include "filebrowser/folders.h"
#include "filebrowser/keyboard.h"
#include "filebrowser/modes.h"
#include "filebrowser/preview.h"
#include "filebrowser/soundcheck.h"
#include "filebrowser/state.h"
#include "midi/output.h"
#include "panel/push_buttons.h"
#include "platform/text.h"
#include "sequencer/seq_display.h"
#include "sequencer/seq_files.h"
#include "windows/file_dlg_window.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/state.h"

namespace {

constexpr int Display_Blink_After_Unload = 1;  // neither of the flag's values: a waiting preview goes on

struct Directory_Row {
  std::string_view pattern;
  std::string* directory;
};

constexpr std::array Directory_Rows{
    Directory_Row{"*.SYX", &Dir_Tones},
    Directory_Row{"*.SEQ", &Dir_Sequences},
    Directory_Row{"*.OSC", &Dir_Oscillators},
};

// The setting that the list's pattern belongs to, nullptr for none.
std::string* Directory_Of_Pattern() {
  const std::string pattern = Upper(File_Dlg.FD_List_Files.pattern());
  const auto row = std::ranges::find(Directory_Rows, std::string_view(pattern), &Directory_Row::pattern);
  return row == Directory_Rows.end() ? nullptr : row->directory;
}

void Place_Window() {
  const bool remembered = MELVOR.Menu_Windows_SavePos.checked();
  File_Dlg.left = remembered ? FileDlg_Left : 0;
  File_Dlg.top = remembered ? FileDlg_Top : 0;
}

void Dialog_Load() {
  Ctl_Deselect();
  FD_Cancelled = Flag_False;
  Place_Window();
  Menus_Disable();
  Dlg_Enter(File_Dlg, "File_Dlg");
  Pics_Assign_Dlg();
  FD_Setup_Mode();
  File_Dlg.FD_List_Drives.Refresh();
  FD_Drive = File_Dlg.FD_List_Drives.drive();
  FD_Soundcheck_Load();
  Seq_Previews_Begin();
  const std::string* directory = Directory_Of_Pattern();
  FD_Show_Directory(directory != nullptr ? *directory : std::string());
  File_Dlg.FD_FileName.Select_All();
  FD_Open = Flag_True;
}

void Dialog_Unload() {
  MELVOR.Timer_Display.enabled = false;
  Display_Blink = Display_Blink_After_Unload;
  MIDI_Reset();
  FD_Soundcheck_Keep();
  if (std::string* directory = Directory_Of_Pattern()) *directory = File_Dlg.FD_List_Files.path();
  if (Seq_Open == Flag_On) Seq_Redraw();  // Save would write what a preview has left in memory
  Menus_Enable();
  if (MELVOR.Menu_Windows_SavePos.checked()) {
    FileDlg_Left = File_Dlg.left;
    FileDlg_Top = File_Dlg.top;
  }
  Dlg_Leave();
  FD_Open = Flag_False;
}

void Cancel() {
  FD_Cancelled = Flag_True;
  Unload(File_Dlg);
}

void Wire_Wide(Picture_Box& button, void (*work)()) {
  button.on_mouse_down = [&button](const Mouse_Event&) { Push_Down_Wide(button); };
  button.on_mouse_up = [&button](const Mouse_Event&) { Push_Up_Wide(button); };
  button.on_click = work;
}

}  // namespace

void FD_Wire() {
  File_Dlg.on_load = Dialog_Load;
  File_Dlg.on_unload = Dialog_Unload;
  Wire_Wide(File_Dlg.FD_Button_Ok, FD_Confirm);
  Wire_Wide(File_Dlg.FD_Button_Cancel, Cancel);
  File_Dlg.FD_List_Filter.on_click = FD_Filter_Click;
  File_Dlg.FD_List_Files.on_mouse_down = [](const Mouse_Event&) { FD_File_Pressed(); };
  File_Dlg.FD_List_Files.on_double_click = FD_Double_Click;
  FD_Folders_Wire();
  FD_Soundcheck_Wire();
  FD_Keyboard_Wire();
}
