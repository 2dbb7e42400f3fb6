// The looks of the program: lettering that fits its pixel geometry, and colours.
#pragma once

#include <QColor>

#include "platform/picture.h"

class QWidget;

// Lettering of labels, lists and buttons, in pixels. The windows are laid out in pixels for lettering of this
// size, whatever the desktop has set.
constexpr int Text_Size_px = 11;

// Style and lettering of the whole application.
void Set_Look();

inline QColor To_Qt(const Color& color) { return {color.red, color.green, color.blue}; }

// Gives the widget these colours, or with own false those of the desktop.
void Set_Colors(QWidget& widget, bool own, const Color& fore, const Color& back);
