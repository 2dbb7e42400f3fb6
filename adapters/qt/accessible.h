// The light views and drop-down lists as screen readers and other assistive programs see them.
#pragma once

class QWidget;
struct Shell;

// From now on pictures, canvases and drop-down lists are known by their spoken names, roles and values, and
// can be worked. shell must live until Forget_Accessible.
void Install_Accessible(Shell& shell);
void Forget_Accessible();

// The widget has a new value, which assistive programs may want to tell.
void Tell_Change(QWidget& widget);
