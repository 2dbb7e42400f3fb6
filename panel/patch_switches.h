// The two lever switches of the patch panel: bend range with four positions, portamento with two.
#pragma once

constexpr int Bend_Range_Top_px = 28;  // of the highest position
constexpr int Bend_Range_Bottom_px = 58;
constexpr int Portamento_On_Top_px = 133;
constexpr int Portamento_Off_Top_px = 143;
constexpr int Portamento_On = 64;  // lowest byte that counts as on

// Fills the event slots of both.
void Patch_Switches_Wire();
