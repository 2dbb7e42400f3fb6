// The two groups of lights of the patch panel: key mode, counted downwards, and after touch, counted upwards.
// One item of each is lit. A click or key chooses an item; a tone that is shown lights one without choosing
// it.
#pragma once

// Fills the event slots of both groups.
void Patch_Lights_Wire();

// index is Patch_Key_Mode or Patch_After_Touch.
int Patch_Light_Of(int index,
                   int value);  // the item that a byte lights; item 0 for a byte that belongs to none
void Patch_Lights_Show(int index, int item);
