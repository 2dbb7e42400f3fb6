#include "adapters/qt/picture_views.h"

#include <QPainter>
#include <algorithm>

#include "adapters/qt/look.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"

void Painted_Widget::paintEvent(QPaintEvent*) {
  if (control == nullptr) return;
  QPainter painter(this);
  paint(painter);
}

Painted_View::Painted_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new Painted_Widget(parent), {}) {
  auto& painted = static_cast<Painted_Widget&>(widget);
  painted.control = &control;
  painted.paint = [this](QPainter& painter) { Paint(painter); };
  painted.setAccessibleName(To_Qt(control.spoken_name));
}

Painted_View::~Painted_View() { static_cast<Painted_Widget&>(widget).control = nullptr; }

void Painted_View::Paint_Picture(QPainter& painter, const Picture& picture, QPoint place) {
  const QPixmap pixmap = shell.pictures.Get(picture, widget.devicePixelRatioF());
  if (!pixmap.isNull()) painter.drawPixmap(place, pixmap);
}

void Picture_Box_View::Show_Values() {
  const auto& box = static_cast<const Picture_Box&>(control);
  if (box.picture() != shown_) {
    shown_ = box.picture();
    widget.update();
  }
}

// A box that is a pixel larger than its picture on every side has a border.
QPoint Picture_Box_View::Inset() const {
  const auto& box = static_cast<const Picture_Box&>(control);
  const QPixmap pixmap = shell.pictures.Get(box.picture(), widget.devicePixelRatioF());
  if (pixmap.isNull()) return {};
  const QSize around = QSize(control.width(), control.height()) - pixmap.deviceIndependentSize().toSize();
  return around == QSize(2, 2) ? QPoint(1, 1) : QPoint();
}

void Picture_Box_View::Paint(QPainter& painter) { Paint_Picture(painter, shown_, Inset()); }

void Canvas_View::Show_Values() {
  const auto& canvas = static_cast<const Canvas&>(control);
  if (canvas.picture() != shown_picture_ || canvas.back_color() != shown_color_) {
    shown_picture_ = canvas.picture();
    shown_color_ = canvas.back_color();
    widget.update();
  }
  const std::vector<Painted_Picture>& wanted = canvas.painted();
  for (std::size_t place = 0; place < std::max(shown_.size(), wanted.size()); ++place) {
    const bool same = place < shown_.size() && place < wanted.size() && shown_[place] == wanted[place];
    if (same) continue;
    if (place < shown_.size()) Repaint_Stroke(shown_[place]);
    if (place < wanted.size()) Repaint_Stroke(wanted[place]);
  }
  shown_ = wanted;
}

void Canvas_View::Repaint_Stroke(const Painted_Picture& stroke) {
  const QPixmap pixmap = shell.pictures.Get(stroke.picture, widget.devicePixelRatioF());
  widget.update(QRect(QPoint(stroke.left_px, stroke.top_px), pixmap.deviceIndependentSize().toSize()));
}

void Canvas_View::Paint(QPainter& painter) {
  painter.fillRect(widget.rect(), To_Qt(shown_color_));
  Paint_Picture(painter, shown_picture_, QPoint(0, 0));
  for (const Painted_Picture& stroke : shown_) {
    Paint_Picture(painter, stroke.picture, QPoint(stroke.left_px, stroke.top_px));
  }
}

Line_View::Line_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Painted_View(the_shell, the_control, parent) {
  widget.setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRect Line_View::Place() const {
  const auto& line = static_cast<const Line&>(control);
  const QPoint corner(std::min(line.x1(), line.x2()), std::min(line.y1(), line.y2()));
  const QPoint far_corner(std::max(line.x1(), line.x2()), std::max(line.y1(), line.y2()));
  return {corner, far_corner};
}

void Line_View::Show_Values() {
  const auto& line = static_cast<const Line&>(control);
  const QLine wanted(line.x1(), line.y1(), line.x2(), line.y2());
  if (wanted == shown_ && line.color() == shown_color_) return;
  shown_ = wanted;
  shown_color_ = line.color();
  widget.update();
}

// An upright or level line fills its pixels, at any scaling of the screen; a stroke along their edge would
// fall between those of the screen.
void Line_View::Paint(QPainter& painter) {
  if (shown_.dx() == 0 || shown_.dy() == 0) return painter.fillRect(widget.rect(), To_Qt(shown_color_));
  painter.setPen(To_Qt(shown_color_));
  painter.drawLine(shown_.translated(-widget.pos()));
}
