// The patch panel of the JX-8P: its window as a whole, its sliders and its knob.
// Wired by the frame at start; from then on driven by the user's events and by Patch_Show.
#pragma once

// Fills the event slots of the window and the notice Patch_Shown.
void Patch_Wire();

// The menu command: opens the window at its remembered corner; for an MKS-70 only tells that there is none
// yet.
void Menu_Tone_Patch();

// Gives every element its resting picture and its place. Runs at the window's load.
void Patch_Layout();
