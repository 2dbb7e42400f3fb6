#include "windows/sequencer_window.h"

Sequencer_Window Sequencer;

Sequencer_Window::Sequencer_Window() : Form(Form_Role::Child, "Sequencer") {
  caption = "Sequencer";
  key_preview = true;
  Seq_Tempo.minimum = 1;
  Seq_Tempo.maximum = 120;
  Seq_Tempo.value = 1;
  Seq_Tempo.large_change = 30;
}
