#include "sequencer/seq_display.h"

#include "sequencer/model.h"
#include "sequencer/seq_pictures.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

void Seq_Draw_Cell(int index) {
  const int velocity = Seq_Data[static_cast<std::size_t>(index)];
  Sequencer.Seq_Matrix.Paint(Look_Of(velocity).matrix, index / Seq_Row_Count * Cell_px,
                             index % Seq_Row_Count * Cell_px);
}

void Seq_Redraw() {
  for (int index = 0; index < Seq_Cell_Count; ++index) Seq_Draw_Cell(index);
}

void Seq_Clock_Show(int step, bool lit) {
  if (Seq_Open != Flag_On) return;
  Sequencer.Seq_Clock[static_cast<std::size_t>(step)].picture = lit ? Indicator_Lit : Indicator_Dark;
}

void Seq_Clock_Dark() {
  for (int step = 0; step < Seq_Step_Count; ++step) Seq_Clock_Show(step, false);
}
