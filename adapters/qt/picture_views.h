// The views that only paint: Picture_Box, Canvas and Line. They are light widgets without a background of
// their own, so that what lies below shows through and a change repaints no more than its own pixels.
#pragma once

#include <QWidget>
#include <vector>

#include "adapters/qt/control_view.h"

// A widget that paints by its view and is known to screen readers by its control (accessible.h).
struct Painted_Widget final : QWidget {
  explicit Painted_Widget(QWidget& parent) : QWidget(&parent) {}

  Control* control = nullptr;  // nullptr once its form is closed
  std::function<void(QPainter&)> paint;

  void paintEvent(QPaintEvent* event) override;
};

struct Painted_View : Control_View {
  Painted_View(Shell& shell, Control& control, QWidget& parent);
  ~Painted_View() override;

 protected:
  virtual void Paint(QPainter& painter) = 0;
  void Paint_Picture(QPainter& painter, const Picture& picture, QPoint place);
};

struct Picture_Box_View final : Painted_View {
  using Painted_View::Painted_View;

  QPoint Inset() const override;

 private:
  void Show_Values() override;
  void Paint(QPainter& painter) override;

  Picture shown_;
};

struct Canvas_View final : Painted_View {
  using Painted_View::Painted_View;

 private:
  void Show_Values() override;
  void Paint(QPainter& painter) override;
  void Repaint_Stroke(const Painted_Picture& stroke);

  std::vector<Painted_Picture> shown_;
  Picture shown_picture_;
  Color shown_color_ = Black;
};

struct Line_View final : Painted_View {
  Line_View(Shell& shell, Control& control, QWidget& parent);

 private:
  QRect Place() const override;
  void Show_Values() override;
  void Paint(QPainter& painter) override;

  QLine shown_;
  Color shown_color_ = Black;
};
