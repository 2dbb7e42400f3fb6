// Colours of the panel that the toolkit's own parts take on, whatever colours the desktop has.
#pragma once

#include <QColor>

constexpr QColor Panel_Plate(0x28, 0x2c, 0x30);
constexpr QColor Panel_Well(0x14, 0x17, 0x1a);
constexpr QColor Panel_Button(0x3e, 0x44, 0x4a);
constexpr QColor Panel_Edge(0x56, 0x5c, 0x62);
constexpr QColor Panel_Letter(0xe4, 0xe8, 0xec);
constexpr QColor Panel_Legend(0xa6, 0xad, 0xb4);
constexpr QColor Panel_Faint_Letter(0x7d, 0x85, 0x8c);
constexpr QColor Panel_Chosen(0x1c, 0x7d, 0x8a);
