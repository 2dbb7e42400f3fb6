// The two groups of lights of the patch panel: key mode, counted downwards, and after touch, counted upwards.
// One item of each is lit. A click or key chooses an item; a tone that is shown lights one without choosing
// it.
#pragma once

// The items, 0-based, that were chosen last: a key goes on from there, whatever a tone has lit since.
extern int Key_Mode_Sel;     // [0, 5]
extern int After_Touch_Sel;  // [0, 3]

// Fills the event slots of both groups.
void Patch_Lights_Wire();

// Lights the items of the record's present bytes.
void Patch_Lights_Show();
