// The views that only paint: Picture_Box, Canvas and Line. They are light widgets without a background of
// their own, so that what lies below shows through and a change repaints no more than its own pixels.
#pragma once

#include <QWidget>
#include <vector>

#include "adapters/qt/control_view.h"

// A widget that paints by its view and is known to screen readers by its control (accessible.h).
struct Light_Widget final : QWidget {
  explicit Light_Widget(QWidget& parent) : QWidget(&parent) {}

  Control* control = nullptr;  // nullptr once its form is closed
  std::function<void(QPainter&)> paint;

  void paintEvent(QPaintEvent* event) override;
};

struct Light_View : Control_View {
  Light_View(Shell& shell, Control& control, QWidget& parent);
  ~Light_View() override;

 protected:
  virtual void Paint(QPainter& painter) = 0;
  void Paint_Picture(QPainter& painter, const Picture& picture, QPoint place);
};

struct Picture_Box_View final : Light_View {
  using Light_View::Light_View;

  QPoint Inset() const override;

 private:
  void Show_Values() override;
  void Paint(QPainter& painter) override;

  Picture shown_;
};

struct Canvas_View final : Light_View {
  using Light_View::Light_View;

 private:
  void Show_Values() override;
  void Paint(QPainter& painter) override;
  void Repaint_Stroke(const Painted_Picture& stroke);

  std::vector<Painted_Picture> shown_;
  Picture shown_picture_;
  Color shown_color_ = Black;
};

struct Line_View final : Light_View {
  Line_View(Shell& shell, Control& control, QWidget& parent);

 private:
  QRect Place() const override;
  void Show_Values() override;
  void Paint(QPainter& painter) override;

  QLine shown_;
  Color shown_color_ = Black;
};
