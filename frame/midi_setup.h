// The MIDI setup window: instrument, devices, channel and switches.
// Opened by its menu item, and by the load of the frame when a configured device is missing.
#pragma once

void MIDI_Setup_Wire();

// The menu command: stops a running sequencer, then shows the window unless another one holds the program
// modal.
void Menu_MIDI_Setup();
