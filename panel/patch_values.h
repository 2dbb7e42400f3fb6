// The patch of the JX-8P as its panel has it: which byte is which, where a byte puts its element, and the one
// way in which sliders, lights and knob change it. Called by the patch panel's elements.
#pragma once

#include <array>
#include <cstdint>

// Index in Patch_Rec; that of the detune, which rules of the tone name too, is Patch_Index_UDTune.
constexpr int Patch_Bend_Range = 0;
constexpr int Patch_Portamento_Time = 1;
constexpr int Patch_Portamento_Switch = 2;
constexpr int Patch_Key_Mode = 3;
constexpr int Patch_After_Touch = 4;
constexpr int Patch_Bend_LFO = 5;

// Tops of the elements in pixels of the panel.
constexpr int Patch_Slider_Bottom_px = 108;  // of both sliders, at 0
constexpr int Bend_Range_Top_px = 28;        // of the highest position
constexpr int Bend_Range_Bottom_px = 58;
constexpr int Portamento_On_Top_px = 133;
constexpr int Portamento_Off_Top_px = 143;

constexpr int Portamento_On = 64;  // lowest byte that counts as on

// The bytes of the items of the two groups of lights; there is no 3.
constexpr auto Key_Mode_Values = std::to_array<std::uint8_t>({0, 1, 2, 4, 5, 6});
constexpr auto After_Touch_Values = std::to_array<std::uint8_t>({0, 1, 2, 4});

// Stores the byte, shows it in the Editor's display (0 to 99 for sliders, -50 to 50 for the knob, nothing
// else; nothing at all while Tone_Loading), sends it if Autosend is on, and marks the tone as changed. index
// in [0, 8], else Runtime_Error 9. value in [0, 255].
void Patch_SetValue(int index, int value);

// Where the byte puts its element: the top of a slider or switch; the item, 0-based, of a group of lights,
// item 0 for a byte that belongs to none. index in [0, 5].
int Patch_Control_Top(int index);
