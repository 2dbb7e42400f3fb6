#include "adapters/qt/focus_frame.h"

#include <QPainter>

void Focus_Frame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(Qt::black);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(Qt::white);
  painter.drawRect(rect().adjusted(1, 1, -2, -2));
}
