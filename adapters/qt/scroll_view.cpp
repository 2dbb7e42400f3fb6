#include "adapters/qt/scroll_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

// A bar with its largest value on top. The toolkit turns its picture round and the arrow keys, but not what a
// press on its arrows and its groove does, nor the keys of the ends: Home leads to the top.
struct Turned_Bar final : QScrollBar {
  explicit Turned_Bar(QWidget& parent) : QScrollBar(Qt::Vertical, &parent) {
    setInvertedAppearance(true);
    setInvertedControls(false);
    QObject::connect(this, &QScrollBar::actionTriggered, this, [this](int action) { Turn_Step(action); });
  }

 private:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Home) return setValue(maximum());
    if (event->key() == Qt::Key_End) return setValue(minimum());
    QScrollBar::keyPressEvent(event);
  }
  void mousePressEvent(QMouseEvent* event) override {
    held_ = true;
    QScrollBar::mousePressEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    held_ = false;
    QScrollBar::mouseReleaseEvent(event);
  }
  // By the action, not by how far the toolkit has gone: at an end it goes nowhere.
  void Turn_Step(int action) {
    if (!held_) return;
    int up = 0;
    if (action == SliderSingleStepAdd) up = -singleStep();
    if (action == SliderSingleStepSub) up = singleStep();
    if (action == SliderPageStepAdd) up = -pageStep();
    if (action == SliderPageStepSub) up = pageStep();
    if (up != 0) setSliderPosition(value() + up);
  }

  bool held_ = false;
};

QWidget& Make_Bar(const Control& control, QWidget& parent) {
  const auto& bar = static_cast<const Scroll_Bar&>(control);
  const bool vertical = bar.orientation == Orientation::Vertical;
  if (vertical && bar.largest_on_top) return *new Turned_Bar(parent);
  auto* widget = new QScrollBar(vertical ? Qt::Vertical : Qt::Horizontal, &parent);
  widget->setInvertedControls(vertical);  // the toolkit's keys and wheel are those of a text that is scrolled
  return *widget;
}

}  // namespace

Scroll_Bar_View::Scroll_Bar_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, Make_Bar(the_control, parent),
                   {.native_mouse = true, .native_keys = true, .greys = true}) {
  auto& bar = static_cast<QScrollBar&>(widget);
  bar.setAccessibleName(To_Qt(control.spoken_name));
  QObject::connect(&bar, &QScrollBar::valueChanged, &bar, [this](int value) {
    Report([&scroll_bar = Bar(), value] { User_Scrolled(scroll_bar, value); });
  });
}

void Scroll_Bar_View::Show_Values() {
  auto& bar = static_cast<QScrollBar&>(widget);
  const QSignalBlocker from_the_program(bar);
  bar.setRange(Bar().minimum(), Bar().maximum());
  bar.setSingleStep(Bar().small_change);
  bar.setPageStep(Bar().large_change);
  bar.setValue(Bar().value());
}
