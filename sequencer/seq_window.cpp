#include "sequencer/seq_window.h"

#include <string>

#include "midi/output.h"
#include "midi/state.h"
#include "panel/push_buttons.h"
#include "platform/convert.h"
#include "platform/table.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_display.h"
#include "sequencer/seq_files.h"
#include "sequencer/seq_pictures.h"
#include "sequencer/seq_transport.h"
#include "windows/editor_window.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/pictures.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

namespace {

constexpr int Strong_Key_Velocity = 127;
constexpr Picture New_Up{"seq-new-up"};
constexpr Picture New_Down{"seq-new-dn"};
constexpr int Key_Down_Offset = 2;  // from a key's picture to its pressed one

constexpr std::array<std::string_view, 5> Range_Items{"C0..C1", "C1..C2", "C2..C3", "C3..C4", "C4..C5"};
constexpr auto Trans_Items = Full_Table<std::string_view, Seq_Row_Count>(
    {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B", "C+"});

constexpr int Nothing = -1;

// Keys that select a transposition, by the shift state.
struct Trans_Key_Row {
  int code;
  int plain;
  int shift;
  int alt;
  int other;  // any other state
};

constexpr std::array Trans_Keys{
    Trans_Key_Row{'C', 0, 1, 12, Nothing}, Trans_Key_Row{'D', 2, 3, 2, 2},
    Trans_Key_Row{'E', 4, 4, 4, 4},        Trans_Key_Row{'F', 5, 6, 5, 5},
    Trans_Key_Row{'G', 7, 8, 7, 7},        Trans_Key_Row{'A', 9, 10, 9, 9},
    Trans_Key_Row{'B', 11, 11, 11, 11},    Trans_Key_Row{'H', 11, 11, 11, 11},  // the German name of B
};

int Trans_Of(const Key_Event& key) {
  for (const Trans_Key_Row& row : Trans_Keys) {
    if (row.code != key.code) continue;
    switch (key.shift) {
      case 0:
        return row.plain;
      case Shift_Key:
        return row.shift;
      case Alt_Key:
        return row.alt;
      default:
        return row.other;
    }
  }
  return Nothing;
}

// A file's base note beyond the range list leaves that list without a selection; the note holds until one is
// made.
void Base_Note_From_Lists() {
  const int range = Sequencer.Seq_Range.index();
  const int trans = Sequencer.Seq_Trans.index();
  if (range < 0 || trans < 0) return;
  Seq_Base_Note = range * Semitones_In_Octave + Seq_Lowest_Note + trans;
}

// The rows are about to address other notes, so those that sound end first.
void Range_Click() {
  Seq_SendAllNotesOff();
  Base_Note_From_Lists();
}

void Tempo_Change() {
  Seq_Speed = Sequencer.Seq_Tempo.value();
  Sequencer.Seq_Tempo_Label.caption = std::to_string(Seq_Speed);
  Seq_Interval_Set();
}

// Letters belong to the transposition here, also while a list has the focus; Alt is left to the menus.
void Window_Key(Key_Event& key) {
  const int trans = Trans_Of(key);
  if (trans != Nothing) Sequencer.Seq_Trans.Select(trans);
  Base_Note_From_Lists();
  if (trans != Nothing && key.shift != Alt_Key) key.code = 0;
}

void Matrix_Press(const Mouse_Event& event) {
  const int step = Round_16(static_cast<double>(event.x)) / Cell_px;
  const int row = Round_16(static_cast<double>(event.y)) / Cell_px;
  const int index = Checked_Index(step * Seq_Row_Count + row, Seq_Cell_Count);
  std::int16_t& cell = Seq_Data[static_cast<std::size_t>(index)];
  if (event.button == Left_Button) cell = cell == Seq_Strong ? std::int16_t{0} : Seq_Strong;
  if (event.button == Right_Button) cell = cell == Seq_Soft ? std::int16_t{0} : Seq_Soft;
  Seq_Draw_Cell(index);
  Seq_Saved = Flag_Off;
  if (MIDI_Enabled == 1) Seq_Buttons_On();
}

int Key_Up_Entry(const Picture_Box& key) { return key.tag() == "b" ? 1 : 0; }

void Key_Release(int index) {
  Picture_Box& key = Sequencer.Seq_Keys[static_cast<std::size_t>(index)];
  key.picture = Seq_Keys_Pics(Key_Up_Entry(key));
}

void Key_Press(int index, const Mouse_Event& event) {
  Picture_Box& key = Sequencer.Seq_Keys[static_cast<std::size_t>(index)];
  key.picture = Seq_Keys_Pics(Key_Up_Entry(key) + Key_Down_Offset);
  const bool heard = MIDI_Enabled == 1;
  MIDI_Out_Open();
  if (MIDI_Enabled == 1 && event.button == Left_Button)
    Seq_SendNote(Seq_Base_Note + index, Strong_Key_Velocity);
  if (MIDI_Enabled == 1 && event.button == Right_Button) Seq_SendAllNotesOff();
  if (heard && MIDI_Enabled != 1) Key_Release(index);  // the box of an error has taken the release
}

void Directions_Click(std::size_t place) {
  for (Picture_Box& button : Sequencer.Seq_Directions) {
    button.picture = LED(LED_Dark);
    button.tag = "0";
  }
  Sequencer.Seq_Directions[place].picture = LED(LED_Red);
  Sequencer.Seq_Directions[place].tag = "1";
  Seq_Select_Mode(Seq_Mode_Buttons[place]);
}

void New_Look(Picture face, int left, int top) {
  Sequencer.Seq_New.picture = face;
  Sequencer.Seq_New_Pic.left = left;
  Sequencer.Seq_New_Pic.top = top;
}

void New_Raised() { New_Look(New_Up, 8, 3); }

void New_Press() {
  Seq_Stop_Click();
  New_Look(New_Down, 9, 4);
  Menu_File_Seq_New();
  New_Raised();
}

template <std::size_t count>
void Fill(List_Control& list, const std::array<std::string_view, count>& items) {
  list.Clear();
  for (const std::string_view item : items) list.Add_Item(std::string(item));
}

void Show_Range() {
  Fill(Sequencer.Seq_Range, Range_Items);
  if (Seq_Range_Index >= 0 && Seq_Range_Index < Sequencer.Seq_Range.Count()) {
    Sequencer.Seq_Range.Select(Seq_Range_Index);
  } else {
    Range_Click();
  }
}

void Show_Tempo() {
  Sequencer.Seq_Tempo.Set_Value(Seq_Speed);
  Tempo_Change();
}

void Window_Load() {
  Seq_Layout();
  Sequencer.left = Seq_Left;
  Sequencer.top = Seq_Top;
  Seq_Open = Flag_On;
  Sequencer.caption = Seq_Caption();
  for (int key = 0; key < Seq_Row_Count; ++key) Key_Release(key);
  Seq_Clock_Dark();
  Seq_Redraw();
  Show_Range();
  Show_Tempo();
  Seq_Pics_();
  Directions_Click(0);
  Fill(Sequencer.Seq_Trans, Trans_Items);
  Sequencer.Seq_Trans.Select(0);
}

// The clock stops in any case, also where the Editor's stop only ends the wait for a tone.
void Window_Query_Unload(bool&) {
  Seq_Stop_Clock();
  ED_Seq_Stop_Click();
  Seq_SendAllNotesOff();
  if (Sequencer.Seq_Range.index() >= 0) Seq_Range_Index = Sequencer.Seq_Range.index();
  if (MELVOR.Menu_Windows_SavePos.checked()) {
    Seq_Left = Sequencer.left();
    Seq_Top = Sequencer.top();
  }
  Seq_Open = Flag_Off;
  Dlg_Leave();
}

void Wire_Buttons() {
  Sequencer.Seq_Start.on_mouse_down = [](const Mouse_Event&) { Seq_Start_Faces_Down(); };
  Sequencer.Seq_Start.on_mouse_up = [](const Mouse_Event&) { Seq_Start_Release(); };
  Sequencer.Seq_Start.on_click = Seq_Start_Click;
  Push_On_Mouse(Sequencer.Seq_Stop);
  Sequencer.Seq_Stop.on_click = Seq_Stop_Click;
  Sequencer.Seq_New.on_mouse_down = [](const Mouse_Event&) { New_Press(); };
  Sequencer.Seq_New.on_mouse_up = [](const Mouse_Event&) { New_Raised(); };
  for (std::size_t place = 0; place < Seq_Mode_Buttons.size(); ++place) {
    Sequencer.Seq_Directions[place].on_click = [place] { Directions_Click(place); };
    Work_By_Space(Sequencer.Seq_Directions[place]);
  }
  for (Picture_Box* button : {&Sequencer.Seq_Start, &Sequencer.Seq_Stop, &Sequencer.Seq_New}) {
    Work_By_Space(*button);
  }
}

}  // namespace

void Seq_Pics_() {
  for (Picture_Box& button : Sequencer.Seq_Directions) button.picture = LED(LED_Dark);
  Sequencer.Seq_Directions[0].picture = LED(LED_Red);
  Sequencer.Seq_Legend[0].picture = Soft_Cell.matrix;
  Sequencer.Seq_Legend[1].picture = Strong_Cell.matrix;
  Sequencer.Seq_Legend[2].picture = Empty_Cell.matrix;
  Sequencer.Seq_Start_Pic.picture = Start_Enabled;
  Sequencer.Seq_Stop_Pic.picture = Stop_Enabled;
  Push_Up(Sequencer.Seq_Start);
  Push_Up(Sequencer.Seq_Stop);
  New_Raised();
}

void Seq_Window_Wire() {
  Sequencer.on_load = Window_Load;
  Sequencer.on_query_unload = Window_Query_Unload;
  Sequencer.on_unload = [] { Seq_Select_Mode(Play_Mode::Forward); };
  Sequencer.on_key_down = Window_Key;
  Sequencer.Seq_Matrix.on_mouse_down = Matrix_Press;
  for (int key = 0; key < Seq_Row_Count; ++key) {
    Picture_Box& box = Sequencer.Seq_Keys[static_cast<std::size_t>(key)];
    box.on_mouse_down = [key](const Mouse_Event& event) { Key_Press(key, event); };
    box.on_mouse_up = [key](const Mouse_Event&) { Key_Release(key); };
  }
  Sequencer.Seq_Range.on_click = Range_Click;
  Sequencer.Seq_Trans.on_click = Base_Note_From_Lists;
  Sequencer.Seq_Tempo.on_change = Tempo_Change;
  Wire_Buttons();
}
