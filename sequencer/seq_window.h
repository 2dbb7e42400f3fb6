// The Sequencer window: editing the matrix, the mouse keyboard, direction, range, transposition and tempo.
// Wired by the frame at start; the model, the files and the clock show themselves through it while it is
// open.
#pragma once

#include <array>

#include "sequencer/model.h"

// Fills the event slots of the Sequencer. Called once.
void Seq_Window_Wire();

// The modes in the order of their buttons.
inline constexpr std::array Seq_Mode_Buttons{Play_Mode::Forward,
                                             Play_Mode::Backward,
                                             Play_Mode::Bounce,
                                             Play_Mode::Random_Direction,
                                             Play_Mode::Random_Direction_At_Ends,
                                             Play_Mode::Random_Step};

// Gives every control its place, its tab order and its name. Runs at the window's load.
void Seq_Layout();
// Gives all pictured controls their idle pictures; start and stop come up raised and enabled.
void Seq_Pics_();

// Draws all cells.
void Seq_Redraw();

// The step indicators. Nothing while the window is closed. step in [0, 7].
void Seq_Clock_Show(int step, bool lit);
void Seq_Clock_Dark();
