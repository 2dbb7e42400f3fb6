// The oscillator's window: its places, its lights and its handlers.
#pragma once

#include <cstdint>

extern std::uint8_t Osc_Open;  // Flag_On while the window is loaded

// Fills the event slots of the window. Called once by the frame at start.
void Osc_Wire();

// The menu command: opens the window, or brings it to the front.
void Osc_Open_Window();

// Gives every element its picture and its place, and fills the list of targets. Runs at the window's load.
void Osc_Layout();
