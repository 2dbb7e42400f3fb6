// The run of the program: load of the frame, run, closing.
// Called by app/ once; from then on by the frame's own events.
#pragma once

// Wires every window and loads the frame. False if the program cannot run on this screen: then the frame is
// gone again, after a box that says why.
bool Start_Up();
extern bool Starting_Up;  // while it loads the frame; start value false

// Ends the program in order without questions, for a signal of the system: clock off, All Notes Off, settings
// written. A start that is under way goes to its end first, without boxes.
void End_Without_Questions();
extern bool End_Wanted;  // it was called during the start; start value false
