// An independent form: a window of its own that locks the program's other windows while it is shown.
#pragma once

#include "adapters/qt/form_view.h"

struct Independent_View final : Form_View {
  Independent_View(Shell& shell, Form& form);
  ~Independent_View() override;

  QWidget& Window() override { return body_; }
  QWidget& Body() override { return body_; }
  void Activate() override;
  void Bring_To_Front() override;

 private:
  void Show_Window() override;
  void Silence() override;

  Form_Body& body_;
};
