// The entry of the tone's name.
#pragma once

// Fills the event slots of the window, and of the Editor's display, which opens it by a click or key press.
void Tone_Name_Wire();

// The menu command: opens the window, unless another one holds the program modal.
void Tone_Name_Open();
