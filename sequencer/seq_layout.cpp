#include <array>
#include <string>

#include "platform/desktop.h"
#include "platform/table.h"
#include "sequencer/model.h"
#include "sequencer/seq_pictures.h"
#include "sequencer/seq_window.h"
#include "windows/pictures.h"
#include "windows/sequencer_window.h"

namespace {

constexpr Picture Sequencer_Background{"sequencer-background"};
constexpr Picture New_Caption{"seq-new"};

constexpr int Matrix_Left_px = 44;
constexpr int Matrix_Top_px = 19;
constexpr int Pitch_px = 12;
constexpr int Indicator_Top_px = 7;
constexpr int Indicator_Size_px = 10;
constexpr int Key_Left_px = 6;
constexpr int White_Width_px = 36;
constexpr int Black_Width_px = 24;
constexpr int Light_Size_px = 14;

constexpr auto Note_Names = Full_Table<std::string_view, Seq_Row_Count>(
    {"C", "C sharp", "D", "D sharp", "E", "F", "F sharp", "G", "G sharp", "A", "A sharp", "B", "upper C"});
constexpr std::array<int, 3> Legend_Lefts{6, 46, 97};

struct Direction_Row {
  int left;
  int top;
  std::string_view spoken;
};

constexpr auto Direction_Rows = Full_Table<Direction_Row, Seq_Mode_Buttons.size()>({
    {156, 19, "Forward"},
    {214, 19, "Backward"},
    {272, 19, "Back and forth"},
    {156, 41, "Random direction at each step"},
    {214, 41, "Random direction at the ends"},
    {272, 41, "Random step"},
});
static_assert(std::tuple_size_v<decltype(Sequencer_Window::Seq_Directions)> == Seq_Mode_Buttons.size());

constexpr int First_Direction_Tab = 0;
constexpr int Range_Tab = 6;
constexpr int Trans_Tab = 7;
constexpr int Tempo_Tab = 8;
constexpr int Start_Tab = 9;
constexpr int Stop_Tab = 10;
constexpr int New_Tab = 11;

bool Is_Black(int key) { return key == 1 || key == 3 || key == 6 || key == 8 || key == 10; }

void Name(Control& control, int tab, std::string_view spoken) {
  control.tab_index = tab;
  control.spoken_name = spoken;
}

std::string_view Note_Name(int cell) {
  return Note_Names[static_cast<std::size_t>(Seq_Row_Count - 1 - cell % Seq_Row_Count)];
}

std::string Step_Name(int cell) { return "step " + std::to_string(cell / Seq_Row_Count + 1); }

std::string Spoken_Cell(int cell) {
  const int velocity = Seq_Data[static_cast<std::size_t>(cell)];
  if (velocity == Seq_Strong) return "strong";
  return velocity == Seq_Soft ? "soft" : "";
}

// "step 1: C strong, upper C soft; step 3: E strong"
std::string Spoken_Matrix() {
  std::string steps;
  for (int step = 0; step < Seq_Step_Count; ++step) {
    std::string notes;
    for (int row = Seq_Row_Count - 1; row >= 0; --row) {
      const int cell = step * Seq_Row_Count + row;
      const std::string velocity = Spoken_Cell(cell);
      if (velocity.empty()) continue;
      notes += (notes.empty() ? " " : ", ") + std::string(Note_Name(cell)) + " " + velocity;
    }
    if (notes.empty()) continue;
    steps += (steps.empty() ? "" : "; ") + Step_Name(step * Seq_Row_Count) + ":" + notes;
  }
  return steps.empty() ? "empty" : steps;
}

void Place_Matrix() {
  Sequencer.Seq_Matrix.Place(Matrix_Left_px, Matrix_Top_px, Seq_Step_Count * Pitch_px - 1,
                             Seq_Row_Count * Pitch_px - 1);
  Sequencer.Seq_Matrix.spoken_name = "Note matrix";
  Sequencer.Seq_Matrix.spoken_value = Spoken_Matrix;
  Sequencer.Seq_Matrix.cells = {
      .rows = Seq_Row_Count,
      .size_px = Pitch_px,
      .spoken_name = [](int cell) { return std::string(Note_Name(cell)) + ", " + Step_Name(cell); },
      .spoken_value = Spoken_Cell,
      .left_action = "Strong",
      .right_action = "Soft",
  };
  Sequencer.Seq_Matrix.tool_tip = "Left button: strong note; right button: soft note";
  for (int key = 0; key < Seq_Row_Count; ++key) {
    Picture_Box& box = Sequencer.Seq_Keys[static_cast<std::size_t>(key)];
    box.tag = Is_Black(key) ? "b" : "w";
    box.Place(Key_Left_px, Matrix_Top_px + Pitch_px * (Seq_Row_Count - 1 - key),
              Is_Black(key) ? Black_Width_px : White_Width_px, Pitch_px);
    box.role = Role::Button;
    box.spoken_name = "Key " + std::string(Note_Names[static_cast<std::size_t>(key)]);
    box.tool_tip = "Left button: play; right button: all notes off";
  }
  for (int step = 0; step < Seq_Step_Count; ++step) {
    Picture_Box& indicator = Sequencer.Seq_Clock[static_cast<std::size_t>(step)];
    indicator.Place(Matrix_Left_px + Pitch_px * step, Indicator_Top_px, Indicator_Size_px, Indicator_Size_px);
    indicator.spoken_name = "Step " + std::to_string(step + 1);
  }
  for (std::size_t entry = 0; entry < Legend_Lefts.size(); ++entry) {
    Sequencer.Seq_Legend[entry].Place(Legend_Lefts[entry], 189, Pitch_px, Pitch_px);
  }
}

void Place_Directions() {
  for (std::size_t place = 0; place < Direction_Rows.size(); ++place) {
    const Direction_Row& row = Direction_Rows[place];
    Picture_Box& button = Sequencer.Seq_Directions[place];
    button.Place(row.left, row.top, Light_Size_px, Light_Size_px);
    button.role = Role::Choice_Light;
    button.tool_tip = std::string(row.spoken);
    button.is_on = [&button] { return button.tag() == "1"; };
    Name(button, First_Direction_Tab + static_cast<int>(place), row.spoken);
  }
}

void Place_Button(Picture_Box& button, Picture_Box& symbol, int left, int width, int tab,
                  std::string_view spoken) {
  button.Place(left, 173, width, 22);
  button.role = Role::Button;
  button.tool_tip = std::string(spoken);
  Name(button, tab, spoken);
  symbol.mouse_through = true;
  symbol.Place(3, 3, 14, 14);
}

void Place_Values() {
  Sequencer.Seq_Range.Place(155, 90, 80, 20);
  Name(Sequencer.Seq_Range, Range_Tab, "Range");
  Sequencer.Seq_Trans.Place(241, 90, 80, 20);
  Name(Sequencer.Seq_Trans, Trans_Tab, "Transpose");
  Sequencer.Seq_Tempo.Place(155, 133, 130, 15);
  Name(Sequencer.Seq_Tempo, Tempo_Tab, "Tempo, sequences a minute");

  Label& value = Sequencer.Seq_Tempo_Label;
  value.Place(293, 133, 26, 15);
  value.alignment = Alignment::Center;
  value.own_colors = true;
  value.fore_color = Cyan;
  value.back_color = Black;
}

}  // namespace

void Seq_Layout() {
  Sequencer.width = Sequencer_Width_px * Twips_Per_Pixel();
  Sequencer.height = Sequencer_Height_px * Twips_Per_Pixel();
  Sequencer.picture = Sequencer_Background;
  Place_Matrix();
  Place_Directions();
  Place_Values();
  Place_Button(Sequencer.Seq_Start, Sequencer.Seq_Start_Pic, 160, 22, Start_Tab, "Start sequencer");
  Place_Button(Sequencer.Seq_Stop, Sequencer.Seq_Stop_Pic, 196, 22, Stop_Tab, "Stop sequencer");
  Place_Button(Sequencer.Seq_New, Sequencer.Seq_New_Pic, 232, 38, New_Tab, "New sequence");
  Sequencer.Seq_New_Pic.width = 20;
  Sequencer.Seq_New_Pic.picture = New_Caption;
}
