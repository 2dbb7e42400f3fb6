// The views of Command_Button, Check_Box and Frame_Box.
#pragma once

#include "adapters/qt/control_view.h"

struct Command_Button_View final : Control_View {
  Command_Button_View(Shell& shell, Control& control, QWidget& parent);

 private:
  void Show_Values() override;
};

struct Check_Box_View final : Control_View {
  Check_Box_View(Shell& shell, Control& control, QWidget& parent);

 private:
  void Show_Values() override;
};

struct Frame_Box_View final : Control_View {
  Frame_Box_View(Shell& shell, Control& control, QWidget& parent);

 private:
  void Show_Values() override;
};
