#include "adapters/qt/scroll_view.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>

#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

QWidget& Make_Bar(const Control& control, QWidget& parent) {
  const bool vertical = static_cast<const Scroll_Bar&>(control).orientation == Orientation::Vertical;
  return *new QScrollBar(vertical ? Qt::Vertical : Qt::Horizontal, &parent);
}

// The toolkit turns the picture of a bar round, but not what a press on its arrows and its groove does.
void Turn_Step(QScrollBar& bar, int action) {
  if (QGuiApplication::mouseButtons() == Qt::NoButton) return;
  const bool page = action == QAbstractSlider::SliderPageStepAdd || action == QAbstractSlider::SliderPageStepSub;
  const bool single = action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderSingleStepSub;
  if (!page && !single) return;
  const bool up = action == QAbstractSlider::SliderPageStepSub || action == QAbstractSlider::SliderSingleStepSub;
  const int step = page ? bar.pageStep() : bar.singleStep();
  bar.setSliderPosition(bar.value() + (up ? step : -step));
}

}  // namespace

Scroll_Bar_View::Scroll_Bar_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, Make_Bar(the_control, parent),
                   {.native_mouse = true, .native_keys = true, .greys = true}) {
  auto& bar = static_cast<QScrollBar&>(widget);
  bar.setAccessibleName(To_Qt(control.spoken_name));
  if (Bar().orientation == Orientation::Vertical && Bar().largest_on_top) {
    bar.setInvertedAppearance(true);
    bar.setInvertedControls(false);
    QObject::connect(&bar, &QScrollBar::actionTriggered, &bar, [&bar](int action) { Turn_Step(bar, action); });
  }
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
