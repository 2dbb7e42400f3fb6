// What the Sequencer shows of the model: the cells of the matrix and the step indicators.
// Called by the clock, the transport, the files and the window itself.
#pragma once

// REQUIRE: Seq_Open. index in [0, 103].
void Seq_Draw_Cell(int index);
void Seq_Redraw();  // all cells

// The step indicators. Nothing while the window is closed. step in [0, 7].
void Seq_Clock_Show(int step, bool lit);
void Seq_Clock_Dark();
