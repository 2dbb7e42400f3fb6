// The view of Scroll_Bar.
#pragma once

#include "adapters/qt/control_view.h"

struct Scroll_Bar_View final : Control_View {
  Scroll_Bar_View(Shell& shell, Control& control, QWidget& parent);

 private:
  int Turned(int value) const;  // a value as the bar's place, and back
  Scroll_Bar& Bar() const { return static_cast<Scroll_Bar&>(control); }
  void Show_Values() override;
};
