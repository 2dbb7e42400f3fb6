// The two groups of lights of the patch panel: key mode, counted downwards, and after touch, counted upwards.
// One item of each is lit. A click or key chooses an item; a tone that is shown lights one without choosing
// it.
#pragma once

// Fills the event slots of both groups.
void Patch_Lights_Wire();

// Lights the items of the record's present bytes.
void Patch_Lights_Show();
