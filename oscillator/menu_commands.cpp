#include "oscillator/menu_commands.h"

#include "core/records.h"
#include "platform/desktop.h"
#include "windows/file_dlg_window.h"
#include "windows/state.h"

void Menu_File_Osc_Open() {
  if (Tone_Saved == Flag_False) {
    const Answer answer = Message_Box("Save actual TONE first?", Box_Yes_No_Cancel | Box_Question);
    if (answer == Answer::Cancel) return;
    if (answer == Answer::Yes) Menu_File_Osc_SaveAs();
    if (answer == Answer::No) Tone_Saved = Flag_True;
  }
  if (Tone_Saved != Flag_True) return;
  Dlg_Kind = "Open_OSC";
  Show(File_Dlg);
}

void Menu_File_Osc_SaveAs() { Message_Box("OSC SaveAs"); }
