#include "sequencer/seq_transport.h"

#include "core/tone_commands.h"
#include "midi/output.h"
#include "midi/state.h"
#include "panel/push_buttons.h"
#include "sequencer/model.h"
#include "sequencer/seq_display.h"
#include "windows/editor_window.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/pictures.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

namespace {

// The status byte of notes is there for whichever start comes first: a file's preview may be that.
void Start_Clock(int first_step) {
  Seq_Status = Note_On_Status();
  Seq_Step = first_step;
  MELVOR.Seq_Tmr.enabled = true;
  Seq_Running = Flag_On;
}

void Silence_And_Close() {
  MIDI_Reset();
  MIDI_Out_Close();
}

}  // namespace

void Seq_Stop_Clock() {
  MELVOR.Seq_Tmr.enabled = false;
  Seq_Running = Flag_Off;
  Seq_Step = 0;
  Seq_Clock_Dark();
  Seq_Start_Faces_Up();
}

void ED_Seq_Start_Click() {
  if (Seq_Loaded != Flag_On && Seq_Saved != Flag_Off) return;
  MIDI_Out_Open();
  Start_Clock(0);
  Seq_Start_Faces_Down();
}

void ED_Seq_Stop_Click() {
  if (Receive_On != 0) return Tone_Receive_Toggle();
  Seq_Stop_Clock();
  Editor.Keys_Pic.picture = Buttons(Keyboard_Up);
  Silence_And_Close();
}

void Seq_Start_Click() {
  if (MIDI_Enabled != 1) return;
  MIDI_Out_Open();
  Seq_Clock_Dark();
  Start_Clock(Seq_Direction == 1 ? Seq_Step_Count - 1 : 0);
  Seq_Start_Faces_Down();
}

void Seq_Stop_Click() {
  Seq_Stop_Clock();
  Seq_SendAllNotesOff();
  ED_Seq_Stop_Click();
  Push_Up(Editor.ED_Seq_Stop);
}

void Seq_Start_Play() {
  if (MIDI_Enabled != 1 || Seq_Loaded != Flag_On) return;
  MIDI_Out_Open();
  Start_Clock(0);
}

void Seq_Stop_Play() {
  Seq_Stop_Clock();
  MIDI_Out_Close();
}

void Seq_Stop_For_Tone_Menu() {
  if (!MELVOR.Seq_Tmr.enabled()) return;
  Seq_Stop_Clock();
  Silence_And_Close();
}

void Seq_Stop_For_Setup() {
  if (!MELVOR.Seq_Tmr.enabled()) return;
  Seq_Stop_Clock();
  MIDI_Reset();
}

void Menu_MIDI_CloseOutput() {
  MIDI_Reset();
  if (MELVOR.Seq_Tmr.enabled()) Seq_Stop_Clock();
  MIDI_Out_Close_Wholly();
}

void Seq_Start_Faces_Down() {
  Push_Down(Editor.ED_Seq_Start);
  if (Seq_Open == Flag_On) Push_Down(Sequencer.Seq_Start);
}

void Seq_Start_Faces_Up() {
  Push_Up(Editor.ED_Seq_Start);
  if (Seq_Open == Flag_On) Push_Up(Sequencer.Seq_Start);
  if (!File_Dlg.Loaded()) return;
  Push_Up(File_Dlg.FD_SYX_Button_Start);
  Push_Up(File_Dlg.FD_SEQ_Button_Start);
}

void Seq_Start_Release() {
  if (Seq_Running != Flag_On) Seq_Start_Faces_Up();
}

void Seq_Buttons_On() {
  Editor.ED_Seq_Start_Pic.picture = Start_Enabled;
  Editor.ED_Seq_Stop_Pic.picture = Stop_Enabled;
}

void Seq_Buttons_Off() {
  Editor.ED_Seq_Start_Pic.picture = Start_Disabled;
  Editor.ED_Seq_Stop_Pic.picture = Stop_Disabled;
}
