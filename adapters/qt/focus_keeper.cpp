#include "adapters/qt/focus_keeper.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <utility>

#include "adapters/qt/control_view.h"
#include "adapters/qt/form_view.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

bool Menu_Has_Keys() {
  return QApplication::activePopupWidget() != nullptr ||
         qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace

void Focus_Keeper::Follow() {
  Form* form = Active_Form();
  Form_View* view = form == nullptr ? nullptr : shell_.View_Of(*form);
  if (moving_ || view == nullptr || view->Window().isHidden() || Menu_Has_Keys()) return;
  moving_ = true;
  view->Activate();
  const Control_View* focused = form->focus == nullptr ? nullptr : shell_.View_Of(*form->focus);
  const bool can = focused != nullptr && focused->widget.isEnabled() && !focused->widget.isHidden();
  QWidget& wanted = can ? focused->widget : view->Body();
  if (wanted.window()->focusWidget() != &wanted) wanted.setFocus(Qt::OtherFocusReason);
  moving_ = false;
  Show_Frame(can && !Blinks(focused->control) ? &focused->widget : nullptr);
}

void Focus_Keeper::Show_Frame(QWidget* around) {
  if (!frame_) {
    if (around == nullptr) return;
    frame_ = new Focus_Frame(around->parentWidget());
  }
  frame_->setWidget(around);
}

void Focus_Keeper::Note(const QWidget& widget, const QFocusEvent& event) {
  if (moving_ || shell_.changes.Applying()) return;
  // The toolkit gives the focus back after a box, a menu or another program had it.
  const bool comes_back = event.reason() == Qt::ActiveWindowFocusReason ||
                          event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
  const Control_View* view = shell_.Control_At(widget);
  if (comes_back || view == nullptr || &view->control == Focused_Control()) return;
  shell_.Deliver([&shell = shell_, control = &view->control] {
    if (shell.View_Of(*control) != nullptr) User_Focused(*control);
  });
}
