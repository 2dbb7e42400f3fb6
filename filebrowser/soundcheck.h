// The side panels: what is sent and played when a file is clicked, and the buttons that play the sequence.
// Called by the dialog's load and unload, and by the preview.
#pragma once

#include "platform/controls.h"

// Fills the event slots of the panels. Called once.
void FD_Soundcheck_Wire();

// Fills the lists and lets lights, lists and buttons show the settings. With MIDI off, Autoplay and Autosend
// become 0 for good.
void FD_Soundcheck_Load();
// Takes note and velocity over from the lists.
void FD_Soundcheck_Keep();

// What can be chosen at this state of Autoplay.
void FD_Refresh_Panel();

void FD_Autoplay_Click();
void FD_Autosend_Click();
// item: 0 the note, 1 the sequence. Nothing while the item is disabled.
void FD_Soundcheck_Click(int item);

// A Start button stays down if the sequence could be started, else it rises.
void FD_Start_Click(Picture_Box& button);
void FD_Stop_Click();
