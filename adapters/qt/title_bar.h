// Title bar and edge of the windows inside the frame: dark as the panels that they surround. The active
// window has a lighter bar, brighter lettering and a coloured edge.
#pragma once

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionTitleBar;
class QWidget;

// The style gives the places of icon, text and close button.
void Paint_Title_Bar(const QStyle& style, const QStyleOptionTitleBar& bar, QPainter& painter,
                     const QWidget* widget);

void Paint_Window_Edge(const QStyleOption& window, QPainter& painter);
