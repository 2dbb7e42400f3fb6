// The views of lettering: Label and Text_Box.
#pragma once

#include "adapters/qt/control_view.h"

class QLineEdit;
class QPlainTextEdit;

struct Label_View final : Control_View {
  Label_View(Shell& shell, Control& control, QWidget& parent);

 private:
  void Show_Values() override;
};

// A line or, with multi_line, a field of several lines.
struct Text_Box_View final : Control_View {
  Text_Box_View(Shell& shell, Control& control, QWidget& parent);

 private:
  Text_Box& Box() const { return static_cast<Text_Box&>(control); }
  void Show_Values() override;
  void Show_Face();
  void Show_Line(QLineEdit& line);
  void Show_Field(QPlainTextEdit& field);
  void Report_Typed(const QString& text, int start_unit, int end_unit);
  void Listen(QLineEdit& line);
  void Listen(QPlainTextEdit& field);

  QString shown_face_;
};
