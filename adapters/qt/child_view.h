// A child form: a window inside the frame.
#pragma once

#include <QMdiSubWindow>

#include "adapters/qt/form_view.h"

// Tells what the user does with the window instead of acting on it.
struct Sub_Window final : QMdiSubWindow {
  explicit Sub_Window(Qt::WindowFlags flags) : QMdiSubWindow(nullptr, flags) {}

  std::function<void()> on_close, on_placed;
  std::function<bool()> on_press;  // on the title bar or border; false: the window is locked

  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

struct Child_View final : Form_View {
  Child_View(Shell& shell, Form& form);
  ~Child_View() override;

  QWidget& Window() override { return *window_; }
  QWidget& Body() override { return *body_; }
  void Activate() override;
  void Bring_To_Front() override;

 private:
  void Show_Window() override;
  void Silence() override;
  void Show_Place();
  QRect Inside() const;  // its corner in the frame's inside, and the size of its own inside

  Sub_Window* window_;
  Form_Body* body_;
  bool placing_ = false;
};
