#include "sequencer/seq_editor.h"

#include <algorithm>
#include <array>

#include "core/tone_commands.h"
#include "midi/output.h"
#include "midi/state.h"
#include "panel/push_buttons.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_transport.h"
#include "windows/editor_window.h"
#include "windows/pictures.h"
#include "windows/state.h"

namespace {

constexpr std::array C_Major_Chord{60, 64, 67, 72};
constexpr int Chord_Velocity = 90;

// The notes sound until the right button stops them; the pressed picture stands as long.
void Play_Chord() {
  if (MIDI_Enabled != 1) return;
  Editor.Keys_Pic.picture = Buttons(Keyboard_Down);
  MIDI_Out_Open();
  if (MIDI_Enabled != 1) return;
  const bool filled = std::any_of(Seq_Data.begin(), Seq_Data.begin() + Seq_Row_Count,
                                  [](std::int16_t velocity) { return velocity != 0; });
  Seq_Status = Note_On_Status();
  if (filled) return Seq_Send_Step(0);
  for (const int note : C_Major_Chord) MIDI_SendNote(note, Chord_Velocity);
}

void Keys_Press(const Mouse_Event& event) {
  if (event.button == Left_Button) Play_Chord();
  if (event.button == Right_Button) MIDI_Reset();
}

void Keys_Release(const Mouse_Event& event) {
  if (event.button == Right_Button) Editor.Keys_Pic.picture = Buttons(Keyboard_Up);
}

// While the program waits for a tone, the start button shows that it records, and stop ends the wait.
void Show_Receive() {
  const bool waits = Receive_On != 0;
  Editor.ED_Seq_Start.enabled = !waits;
  if (waits) {
    Push_Down(Editor.ED_Seq_Start);
    Editor.ED_Seq_Start_Pic.picture = Record;
    Editor.ED_Seq_Stop_Pic.picture = Stop_Enabled;
    return;
  }
  Push_Up(Editor.ED_Seq_Start);
  if (Seq_Loaded == Flag_On) {
    Seq_Buttons_On();
  } else {
    Seq_Buttons_Off();
  }
}

}  // namespace

void Seq_Editor_Wire() {
  Editor.Keys_Pic.on_mouse_down = Keys_Press;
  Editor.Keys_Pic.on_mouse_up = Keys_Release;

  Editor.ED_Seq_Start.on_mouse_down = [](const Mouse_Event&) { Seq_Start_Faces_Down(); };
  Editor.ED_Seq_Start.on_mouse_up = [](const Mouse_Event&) { Seq_Start_Release(); };
  Editor.ED_Seq_Start.on_click = ED_Seq_Start_Click;
  Push_On_Mouse(Editor.ED_Seq_Stop);
  Editor.ED_Seq_Stop.on_click = ED_Seq_Stop_Click;

  for (Picture_Box* element : {&Editor.Keys_Pic, &Editor.ED_Seq_Start, &Editor.ED_Seq_Stop}) {
    Work_By_Space(*element);
  }
  Receive_Changed = Show_Receive;
}
