#include "filebrowser/preview.h"

#include <string>

#include "core/settings.h"
#include "core/tone_files.h"
#include "filebrowser/soundcheck.h"
#include "filebrowser/state.h"
#include "midi/output.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/profile_file.h"
#include "sequencer/model.h"
#include "sequencer/seq_files.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

int notes_asked_for = 0;

void Play_Note() {
  const int this_note = ++notes_asked_for;
  Display_Blink = Flag_False;
  MELVOR.Timer_Display.enabled = true;
  while (FD_Open == Flag_True && Display_Blink == Flag_False) {
    if (Wait_Events() == 0) return;
  }
  if (FD_Open == Flag_False || this_note != notes_asked_for) return;
  MELVOR.Timer_Display.enabled = false;
  MIDI_SendNote(Soundcheck_Note, Soundcheck_Velocity);
}

void Hear_Tone(const std::string& path) {
  if (Autosend == 1) Seq_SendAllNotesOff();
  Tone_Load(path, Load_Mode::Soundcheck);
  if (Autoplay != 1 || Tone_Found != Flag_On || FD_Open == Flag_False) return;
  if (Soundcheck == 0) {
    Play_Note();
  } else {
    FD_Start_Click(File_Dlg.FD_SYX_Button_Start);
  }
}

// From the beginning, also where another sequence plays.
void Hear_Sequence(const std::string& path) {
  Seq_Load(path, Load_Mode::Soundcheck);
  if (MIDI_Enabled != 1 || Autoplay != 1 || Seq_Loaded != Flag_On) return;
  FD_Stop_Click();
  FD_Start_Click(File_Dlg.FD_SEQ_Button_Start);
}

}  // namespace

void FD_File_Pressed() {
  FD_Selected = File_Dlg.FD_List_Files.file_name();
  FD_Selected_Kind = Selected_Kind::File;
  File_Dlg.FD_FileName.Set_Text(FD_Selected);
  const std::string path = Path_Slash(File_Dlg.FD_List_Files.path()) + FD_Selected;
  FD_Selected_Path = path;
  if (FD_Selected.empty()) return;
  if (Dlg_Kind == "Open_SYX") Hear_Tone(path);
  if (Dlg_Kind == "Open_SEQ") Hear_Sequence(path);
}
