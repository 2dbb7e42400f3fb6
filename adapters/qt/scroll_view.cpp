#include "adapters/qt/scroll_view.h"

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

}  // namespace

Scroll_Bar_View::Scroll_Bar_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, Make_Bar(the_control, parent),
                   {.native_mouse = true, .native_keys = true, .greys = true}) {
  auto& bar = static_cast<QScrollBar&>(widget);
  bar.setAccessibleName(To_Qt(control.spoken_name));
  QObject::connect(&bar, &QScrollBar::valueChanged, &bar, [this](int place) {
    Report([&scroll_bar = Bar(), value = Turned(place)] { User_Scrolled(scroll_bar, value); });
  });
}

// The toolkit's bars grow downwards; its own way to turn one leaves presses on arrows and groove as they were.
int Scroll_Bar_View::Turned(int value) const {
  const bool turned = Bar().orientation == Orientation::Vertical && Bar().largest_on_top;
  return turned ? Bar().minimum() + Bar().maximum() - value : value;
}

void Scroll_Bar_View::Show_Values() {
  auto& bar = static_cast<QScrollBar&>(widget);
  const QSignalBlocker from_the_program(bar);
  bar.setRange(Bar().minimum(), Bar().maximum());
  bar.setSingleStep(Bar().small_change);
  bar.setPageStep(Bar().large_change);
  bar.setValue(Turned(Bar().value()));
}
