// The picture stores: names of the pictures that elements take turns to show. Sizes are in pixels.
#pragma once

#include <string_view>

#include "platform/picture.h"

// Entry of a store, 0-based. Runtime_Error 9 outside it.
Picture Buttons(int index);        // [0, 10]: switch caps, knob dots, slider caps, knob body, little keyboard
Picture LED(int index);            // [0, 6]: dark, red, blue, green, yellow, grey, bright red; 14 x 14
Picture CB_Pics(int index);        // [0, 3]: check boxes, 13 x 13
Picture OB_Pics(int index);        // [0, 3]: round buttons, 12 x 12
Picture Seq_Keys_Pics(int index);  // [0, 3]: white up, black up, white down, black down

// Places in Buttons.
constexpr int Cap_Left_Lamp = 0;   // switch cap 16 x 16, lamp dark; + 1 lit
constexpr int Cap_Right_Lamp = 2;  // likewise
constexpr int Knob_Dot = 4;        // 4 x 4, red; + 1 dark
constexpr int Slider_Cap = 6;      // 16 x 16, red centre line; + 1 dark
constexpr int Knob_Body = 8;       // 28 x 26
constexpr int Keyboard_Up = 9;     // 41 x 20
constexpr int Keyboard_Down = 10;

// Places in LED.
constexpr int LED_Dark = 0;
constexpr int LED_Red = 1;
constexpr int LED_Blue = 2;
constexpr int LED_Green = 3;
constexpr int LED_Yellow = 4;
constexpr int LED_Disabled = 5;

constexpr Picture Button_Up3D{"button-up3d"};  // 20 x 20
constexpr Picture Button_Dn3D{"button-dn3d"};
constexpr Picture Dlg2_Up{"dlg2-up"};  // 63 x 32
constexpr Picture Dlg2_Dn{"dlg2-dn"};
constexpr Picture Dlg2_Ok{"dlg2-ok"};  // 51 x 20
constexpr Picture Dlg2_Cancel{"dlg2-cancel"};

// Symbols on small push buttons, 14 x 14.
constexpr Picture Start_Enabled{"start-enabled"};
constexpr Picture Start_Disabled{"start-disabled"};
constexpr Picture Stop_Enabled{"stop-enabled"};
constexpr Picture Stop_Disabled{"stop-disabled"};
constexpr Picture Record{"record"};
