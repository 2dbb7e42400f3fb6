// The Sequencer window: editing the matrix, the mouse keyboard, direction, range, transposition and tempo.
// Wired by the frame at start.
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
