// The Sequencer: matrix, mouse keyboard, step indicators, direction, notes, tempo and transport; 330 x 210
// pixels inside. Plain data; places, pictures and handlers come from sequencer/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/form.h"
#include "windows/control_row.h"

constexpr int Sequencer_Width_px = 330;
constexpr int Sequencer_Height_px = 210;

struct Sequencer_Window final : Form {
  Sequencer_Window();

  std::array<Picture_Box, 8> Seq_Clock = Control_Row<Picture_Box, 8>(*this, "Seq_Clock");
  std::array<Picture_Box, 13> Seq_Keys =
      Control_Row<Picture_Box, 13>(*this, "Seq_Keys");  // semitones from below
  Canvas Seq_Matrix{*this, "Seq_Matrix"};
  std::array<Picture_Box, 3> Seq_Legend =
      Control_Row<Picture_Box, 3>(*this, "Seq_Legend");  // soft, strong, empty

  // In the order of their places: forward, backward, bounce, the two random directions, random step.
  std::array<Picture_Box, 6> Seq_Directions = Control_Row<Picture_Box, 6>(*this, "Seq_Directions");

  Combo_Box Seq_Range{*this, "Seq_Range"};  // base octave
  Combo_Box Seq_Trans{*this, "Seq_Trans"};  // base note in it
  Scroll_Bar Seq_Tempo{*this, "Seq_Tempo"};
  Label Seq_Tempo_Label{*this, "Seq_Tempo_Label"};

  Picture_Box Seq_Start{*this, "Seq_Start"};
  Picture_Box Seq_Start_Pic{Seq_Start, "Seq_Start_Pic"};
  Picture_Box Seq_Stop{*this, "Seq_Stop"};
  Picture_Box Seq_Stop_Pic{Seq_Stop, "Seq_Stop_Pic"};
  Picture_Box Seq_New{*this, "Seq_New"};
  Picture_Box Seq_New_Pic{Seq_New, "Seq_New_Pic"};
};

extern Sequencer_Window Sequencer;
