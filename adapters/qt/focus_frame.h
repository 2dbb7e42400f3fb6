// The frame around the control that has the focus.
#pragma once

#include <QFocusFrame>

// Two lines, one light and one dark, so that it shows on every panel and on light and dark desktops alike.
struct Focus_Frame final : QFocusFrame {
  explicit Focus_Frame(QWidget* parent) : QFocusFrame(parent) {}

  void paintEvent(QPaintEvent* event) override;
};
