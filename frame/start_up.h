// The run of the program: load of the frame, run, closing.
// Called by app/ once; from then on by the frame's own events.
#pragma once

// Wires every window and loads the frame. False if the program cannot run on this screen: then the frame is
// gone again, after a box that says why.
bool Start_Up();

// Ends the program in order without questions or any other box, for a signal of the system: clock off, All
// Notes Off, settings written. During the start it only makes an end.
void End_Without_Questions();

// For std::atexit: the toolkit ends the process where it stands when its display goes. All Notes Off,
// settings written, without events or windows. Does nothing during the start or after the end.
void End_Without_Desktop();
