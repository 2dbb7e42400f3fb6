// The view of Scroll_Bar.
#pragma once

#include "adapters/qt/control_view.h"

struct Scroll_Bar_View final : Control_View {
  Scroll_Bar_View(Shell& shell, Control& control, QWidget& parent);

 private:
  Scroll_Bar& Bar() const { return static_cast<Scroll_Bar&>(control); }
  void Show_Values() override;
};
