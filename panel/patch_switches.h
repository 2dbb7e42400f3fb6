// The two lever switches of the patch panel: bend range with four positions, portamento with two.
#pragma once

// Fills the event slots of both.
void Patch_Switches_Wire();
