// The sequence: a matrix of 8 steps by 13 notes with its tempo and base note, and the state of its playing.
// Owned by the sequencer's own modules; the file dialog, the frame and the menus read the flags. It outlives
// every window.
#pragma once

#include <array>
#include <cstdint>
#include <string>

constexpr int Seq_Step_Count = 8;
constexpr int Seq_Row_Count = 13;  // one octave with both its ends
constexpr int Seq_Cell_Count = Seq_Step_Count * Seq_Row_Count;

// What the two mouse buttons write into a cell. A file may bring any other byte, which is drawn as empty and
// sent as it stands.
constexpr std::int16_t Seq_Strong = 127;
constexpr std::int16_t Seq_Soft = 63;

constexpr int Seq_Fastest = 120;
constexpr int Seq_Default_Speed = 30;
constexpr int Seq_Default_Range = 2;
constexpr int Seq_Lowest_Note = 24;  // base note of the range "C0..C1" in "C"
constexpr int Semitones_In_Octave = 12;

// The velocity of each note; 0: empty. Index = step * 13 + row, rows from the top.
extern std::array<std::int16_t, Seq_Cell_Count> Seq_Data;
extern int Seq_Speed;        // passes through all steps in a minute, [1, 120]
extern int Seq_Base_Note;    // MIDI note of the bottom row, [0, 255]; 0 until a window or a file sets it
extern int Seq_Range_Index;  // entry of the range list, [0, 4]; beyond it after a file with a higher base
// The file's path after the sequence directory, for the caption. It begins with a backslash once the file
// dialog has left the directory without one at its end.
extern std::string Seq_Name;
extern std::string Seq_File;      // program path, empty for none
extern std::uint8_t Seq_Loaded;   // Flag_On once a file was accepted, until Seq_Clear
extern std::uint8_t Seq_Saved;    // Flag_Off: the matrix was edited
extern std::uint8_t Seq_Running;  // Flag_On while the clock should run

// How the clock walks through the steps. The numbers are those of the window's buttons.
enum class Play_Mode {
  Forward = 0,
  Backward = 1,
  Bounce = 2,
  Random_Step = 7,
  Random_Direction = 8,          // drawn at each tick
  Random_Direction_At_Ends = 9,  // drawn at steps 0 and 7
};
extern Play_Mode Seq_Mode;
extern int Seq_Direction;  // 0: forward; 1: backward

extern int Seq_Step;  // what the next tick plays, [-1, 8]: after passing an end it lies outside the matrix
extern int Seq_Prev_Step;  // what the last tick played, [-1, 8]

// Note of a row, from the top: base note + 12 - row.
int Seq_Row_Note(int row);

// Takes over a mode with the direction that it starts in; the step and the clock go on as they were.
void Seq_Select_Mode(Play_Mode mode);
