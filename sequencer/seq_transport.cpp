#include "sequencer/seq_transport.h"

#include "core/tone_commands.h"
#include "midi/output.h"
#include "midi/state.h"
#include "panel/push_buttons.h"
#include "sequencer/model.h"
#include "sequencer/seq_display.h"
#include "windows/editor_window.h"
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

void Stop_Timer() {
  MELVOR.Seq_Tmr.enabled = false;
  Seq_Step = 0;
}

void Close_And_Mark_Stopped() {
  MIDI_Out_Close();
  Seq_Running = Flag_Off;
  Seq_Start_Faces_Up();
}

// The step played last and the one to come, as forward play leaves them.
void Dark_Around_Step() {
  const int last = Seq_Step == 0 ? Seq_Step_Count - 1 : Seq_Step - 1;
  const int next = Seq_Step == Seq_Step_Count ? 0 : Seq_Step;
  if (Seq_Step >= 0) Seq_Clock_Show(last, false);
  Seq_Clock_Show(next < 0 ? 0 : next, false);
}

}  // namespace

void ED_Seq_Start_Click() {
  if (Seq_Loaded != Flag_On && Seq_Saved != Flag_Off) return;
  MIDI_Out_Open();
  Start_Clock(0);
  Seq_Start_Faces_Down();
}

void ED_Seq_Stop_Click() {
  if (Receive_On != 0) return Tone_Receive_Toggle();
  Stop_Timer();
  Seq_Clock_Dark();
  Editor.Keys_Pic.picture = Buttons(Keyboard_Up);
  MIDI_Reset();
  Close_And_Mark_Stopped();
}

void Seq_Start_Click() {
  if (MIDI_Enabled != 1) return;
  MIDI_Out_Open();
  Seq_Clock_Dark();
  Start_Clock(Seq_Direction == 1 ? Seq_Step_Count - 1 : 0);
  Seq_Start_Faces_Down();
}

void Seq_Stop_Click() {
  Stop_Timer();
  Seq_Clock_Dark();
  Seq_SendAllNotesOff();
  Seq_Running = Flag_Off;
  Push_Up(Sequencer.Seq_Start);
  ED_Seq_Stop_Click();
  Push_Up(Editor.ED_Seq_Stop);
}

void Seq_Start_Play() {
  if (MIDI_Enabled != 1 || Seq_Loaded != Flag_On) return;
  MIDI_Out_Open();
  Start_Clock(0);
}

void Seq_Stop_Play() {
  MELVOR.Seq_Tmr.enabled = false;
  Dark_Around_Step();
  Seq_Step = 0;
  Close_And_Mark_Stopped();
}

void Seq_Stop_For_Tone_Menu() {
  if (!MELVOR.Seq_Tmr.enabled()) return;
  Stop_Timer();
  MIDI_Reset();
  Close_And_Mark_Stopped();
}

void Seq_Stop_For_Setup() {
  if (!MELVOR.Seq_Tmr.enabled()) return;
  Stop_Timer();
  MIDI_Reset();
  Seq_Running = Flag_Off;
  Seq_Start_Faces_Up();
}

void Menu_MIDI_CloseOutput() {
  MIDI_Reset();
  if (MELVOR.Seq_Tmr.enabled()) {
    Stop_Timer();
    Close_And_Mark_Stopped();
  }
  MIDI_Out_Close_Wholly();
}

void Seq_Start_Faces_Down() {
  Push_Down(Editor.ED_Seq_Start);
  if (Seq_Open == Flag_On) Push_Down(Sequencer.Seq_Start);
}

void Seq_Start_Faces_Up() {
  Push_Up(Editor.ED_Seq_Start);
  if (Seq_Open == Flag_On) Push_Up(Sequencer.Seq_Start);
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
