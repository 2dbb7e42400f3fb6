#include "sequencer/model.h"

#include "windows/state.h"

std::array<std::int16_t, Seq_Cell_Count> Seq_Data{};
int Seq_Speed = Seq_Default_Speed;
int Seq_Base_Note = 0;
int Seq_Range_Index = Seq_Default_Range;
std::string Seq_Name;
std::string Seq_File;
std::uint8_t Seq_Loaded = Flag_Off;
std::uint8_t Seq_Saved = Flag_On;
std::uint8_t Seq_Running = Flag_Off;

Play_Mode Seq_Mode = Play_Mode::Forward;
int Seq_Direction = 0;

int Seq_Step = 0;
int Seq_Prev_Step = 0;

int Seq_Row_Note(int row) { return Seq_Base_Note + Semitones_In_Octave - row; }

void Seq_Select_Mode(Play_Mode mode) {
  Seq_Mode = mode;
  Seq_Direction = mode == Play_Mode::Backward ? 1 : 0;
}
