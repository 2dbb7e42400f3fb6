// The start of MIDI: device tables, channel, and the check of the configured devices.
// Called by the frame's load.
#pragma once

// Lists the devices, reads the setup, and leaves Receive off. False if there is no device at all.
bool MIDI_Init();

// Reads the channel and checks both configured devices; a missing one is told in a box and sets
// MIDI_Setup_Needed.
bool MIDI_Read_Setup();
