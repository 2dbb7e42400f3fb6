#include "sequencer/model.h"

#include "sequencer/seq_transport.h"
#include "sequencer/seq_window.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

constexpr int Default_Speed = 30;
constexpr int Default_Range = 2;

}  // namespace

std::array<std::int16_t, Seq_Cell_Count> Seq_Data{};
int Seq_Speed = Default_Speed;
int Seq_Base_Note = 0;
int Seq_Range_Index = Default_Range;
std::string Seq_Name;
std::string Seq_File;
std::uint8_t Seq_Loaded = Flag_Off;
std::uint8_t Seq_Saved = Flag_On;
std::uint8_t Seq_Running = Flag_Off;

Play_Mode Seq_Mode = Play_Mode::Forward;
int Seq_Direction = 0;

int Seq_Step = 0;
int Seq_Prev_Step = 0;

void Seq_Clear() {
  Seq_Step = 0;
  Seq_Data.fill(0);
  if (Seq_Open == Flag_On) Seq_Redraw();
  MELVOR.Menu_File_Seq_Save.enabled = false;
  Seq_Saved = Flag_On;
  Seq_Name.clear();
  Seq_Range_Index = Default_Range;
  Seq_Speed = Default_Speed;
  Seq_Loaded = Flag_Off;
  Seq_Running = Flag_Off;
  Seq_Buttons_Off();
}

int Seq_Row_Note(int row) { return Seq_Base_Note + Semitones_In_Octave - row; }

void Seq_Select_Mode(Play_Mode mode) {
  Seq_Mode = mode;
  Seq_Direction = mode == Play_Mode::Backward ? 1 : 0;
}
