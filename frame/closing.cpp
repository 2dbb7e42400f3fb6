#include "frame/closing.h"

#include <initializer_list>
#include <optional>

#include "core/records.h"
#include "core/settings.h"
#include "core/tone_commands.h"
#include "frame/menus.h"
#include "midi/output.h"
#include "midi/state.h"
#include "panel/display_font.h"
#include "platform/desktop.h"
#include "sequencer/model.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_transport.h"
#include "windows/editor_window.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/help_window.h"
#include "windows/midi_setup_window.h"
#include "windows/patch_window.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"
#include "windows/tname_window.h"

namespace {

void Silence() {
  if (MELVOR.Seq_Tmr.enabled()) Seq_Stop_Clock();
  MIDI_Reset();
}

// A dialog that is open is left as by its Cancel: the saves below need the file dialog for themselves, and
// the closing of a sequencer would unlock what the dialog holds.
void Leave_Dialogs() {
  for (Form* dialog : std::initializer_list<Form*>{&File_Dlg, &Help, &TName, &MIDI_Setup}) Unload(*dialog);
}

// Asks about both unsaved things. The prompt for the sequence comes even after Cancel for the tone; what
// counts at the end is whether anything is still unsaved, unless the last answer was Cancel.
void Frame_Query(bool& cancel) {
  Silence();
  Leave_Dialogs();
  if (Seq_Open == Flag_On) Unload(Sequencer);
  if (Patch_Open == Flag_On) Unload(Patch);
  std::optional<Answer> last;
  if (Tone_Saved == Flag_False) {
    last = Message_Box("Save actual TONE first?", Box_Yes_No_Cancel + Box_Question);
    if (last == Answer::Yes) Menu_File_SYX_Save();
    if (last == Answer::No) Tone_Saved = Flag_True;
  }
  if (Seq_Saved == Flag_Off) {
    last = Message_Box("Save actual SEQUENCE first?", Box_Yes_No_Cancel + Box_Question);
    if (last == Answer::Yes) Menu_File_Seq_SaveAs();
    if (last == Answer::No) Seq_Saved = Flag_On;
  }
  cancel = last == Answer::Cancel || Tone_Saved == Flag_False || Seq_Saved == Flag_Off;
}

void Frame_Unload() {
  if (Receive_On != 0) Tone_Receive_Toggle();
  Pics_Release_Font();
  MELVOR.Timer_Display.enabled = false;
  Editor.Timer1.enabled = false;
  Seq_Stop_Clock();
  Settings_Save();
  MIDI_Out_Close_Wholly();
  Do_Events();
}

}  // namespace

void Closing_Wire() {
  MELVOR.on_query_unload = Frame_Query;
  MELVOR.on_unload = Frame_Unload;
}
