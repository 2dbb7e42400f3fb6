#include "core/save_as.h"

#include <string>
#include <utility>

#include "core/file_places.h"
#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_origin.h"
#include "core/tone_params.h"
#include "core/tone_save.h"
#include "core/undo.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/state.h"

namespace {

// One Save As, from its start on.
struct Run {
  Run() { current = this; }
  ~Run() { current = nullptr; }

  static inline Run* current = nullptr;

  const Sound sound = Sound_Now();    // what is to be saved
  Tone_Origin origin = Origin_Now();  // where it belongs: as before, then the file that was written last
  const bool could_undo = MELVOR.Menu_Edit_Undo.enabled();
  bool wrote = false;
  bool shows_undo_copy = false;  // the dialog has written, and the editor shows the undo copy
};

// A file that is not there ends the statement alone, not the command.
void Past_Missing_File(void (*statement)()) {
  try {
    statement();
  } catch (const Runtime_Error& error) {
    if (error.number != Error_File_Not_Found) throw;
  }
}

void Take_Title() {
  if (Tone_File.empty()) return;
  const bool root = Has_Form(Dir_Tones, "?:\\");
  Tone_Title = Path_Behind(Tone_File, Dir_Tones.size() + (root ? 0 : 1));
}

void Belongs_To_Written_File(Run& run) {
  if (!Same_Text(Tone_File, run.origin.file)) Title_Show(Tone_Title);
  run.wrote = true;
  run.origin = Origin_Now();
  run.origin.kept = run.sound;
  run.origin.saved = Flag_True;
}

void Save(Run& run) {
  if (Tone_Save()) Belongs_To_Written_File(run);
}

// Before the dialog comes again, for another name of the same sound.
void Show_Sound_Again(Run& run) {
  if (!std::exchange(run.shows_undo_copy, false)) return;
  Sound_Place(run.sound);
  Tone_Saved = Flag_True;
  MELVOR.Menu_Edit_Undo.enabled = run.could_undo;
  Tone_Patch_Show();
  if (Autosend == 1) SysEx_Dump_Send();
}

// One round. False: the user wants to choose another name.
bool Round(Run& run) {
  Past_Missing_File([] {
    Dlg_Kind = "SaveAs_SYX";
    Show(File_Dlg);
  });
  Dlg_Wait();
  if (Run::current != &run) return true;  // the program's closing has run a Save As of its own meanwhile
  Take_Title();
  if (run.shows_undo_copy) {
    Belongs_To_Written_File(run);
  } else if (File_Exists(Tone_File) == Flag_False) {
    Save(run);
    return true;
  }
  const Answer answer =
      Message_Box("File exists: " + Tone_File + " Overwrite?", Box_Yes_No_Cancel + Box_Stop);
  if (answer == Answer::Yes && !run.shows_undo_copy) Save(run);  // else the file holds the sound already
  if (answer == Answer::No) Show_Sound_Again(run);
  return answer != Answer::No;
}

void Rounds(Run& run) {
  while (!Round(run)) continue;
}

// A name that was chosen and not written does not stay: Save would overwrite a file that the user has
// declined to.
void Finish(Run& run) {
  if (Run::current != &run) return;
  if (run.shows_undo_copy) {
    if (Sound_Now() != run.sound) Undo_Keep(run.sound, run.origin);
    return;
  }
  Origin_Place(run.origin);
  if (!run.wrote) return;
  Undo_Keep_Beside_File();
  MELVOR.Menu_Edit_Undo.enabled = false;
}

}  // namespace

void Tone_SaveAs() {
  Run run;
  for (void (*step)(Run&) : {Rounds, Finish}) {
    try {
      step(run);
    } catch (const Runtime_Error& error) {
      Report_File_Error(error, "SaveAs Error ", " : ");
    }
  }
}

void Save_As_Written() {
  Undo_Restore_Quiet();
  if (Run::current != nullptr) Run::current->shows_undo_copy = true;
}
