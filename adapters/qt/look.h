// The looks of the program: lettering that fits its pixel geometry, and colours.
#pragma once

#include <QColor>

#include "platform/picture.h"

class QFont;
class QSize;
class QWidget;

// Lettering of labels, lists and buttons, in pixels. The windows are laid out in pixels for lettering of this
// size, whatever the desktop has set.
constexpr int Text_Size_px = 11;

// Style and lettering of the whole application.
void Set_Look();

inline QColor To_Qt(const Color& color) { return {color.red, color.green, color.blue}; }

// Lists and bars on a background picture are dark as the picture is, whatever colours the desktop has.
void Set_Panel_Colors(QWidget& widget);

// Lettering of a value in a display of this size: three digits fit, as far as they can be read at all.
QFont Display_Font(const QSize& display);

// Gives the widget these colours, or with own false those of the desktop.
void Set_Colors(QWidget& widget, bool own, const Color& fore, const Color& back);
