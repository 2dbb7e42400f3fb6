// The views of the lists: List_Box, Dir_List and File_List as rows, Combo_Box and Drive_List as drop-down
// lists.
#pragma once

#include <string>
#include <vector>

#include "adapters/qt/control_view.h"

struct List_Box_View final : Control_View {
  List_Box_View(Shell& shell, Control& control, QWidget& parent);

  // Selects the row, so that the program finds it selected when it hears of the press. The widget itself sees
  // no press: a handler may fill the list anew, and then another row lies under the pointer.
  void Before_Press(const Mouse_Event& place) override;

 private:
  List_Control& List() const { return static_cast<List_Control&>(control); }
  void Show_Values() override;

  std::vector<std::string> shown_;
};

struct Combo_Box_View final : Control_View {
  Combo_Box_View(Shell& shell, Control& control, QWidget& parent);

 private:
  List_Control& List() const { return static_cast<List_Control&>(control); }
  void Show_Values() override;

  std::vector<std::string> shown_;
};
