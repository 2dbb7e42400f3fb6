// The sequencer's part of the Editor: the little keyboard and the start and stop buttons.
#pragma once

// Fills the event slots of Keys_Pic, ED_Seq_Start and ED_Seq_Stop, and the notice Receive_Changed. Called
// once by the frame at start; places and pictures of the three come from the Editor's own load.
void Seq_Editor_Wire();
