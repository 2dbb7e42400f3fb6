// The clock: one tick of Seq_Tmr plays one step of the matrix and moves on.
#pragma once

// Fills the tick of Seq_Tmr and the notice MIDI_Lost. Called once by the frame at start.
void Seq_Clock_Wire();

// Plays one step: draws the direction where the mode wants it, shows the position if the Sequencer is open,
// sends 13 notes if MIDI_Enabled is 1, and moves on. An empty cell is sent as velocity 0, which ends the
// row's note. Allocates nothing, opens nothing.
void Seq_Tick();

// Sends the 13 notes of a step, the top row first; a note that switches MIDI off ends it. step in [0, 7].
void Seq_Send_Step(int step);

void Seq_Step_Forward(int& step);
void Seq_Step_Back(int& step);

// Length of a step: 7500 / tempo milliseconds, to the nearest integer, a tie to the even neighbour. speed in
// [1, 255]; Runtime_Error 11 for 0.
int Seq_Interval_ms(int speed);
// Gives Seq_Tmr the interval of Seq_Speed, also while it runs.
void Seq_Interval_Set();
