#include "adapters/qt/key_input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include "adapters/qt/control_view.h"
#include "adapters/qt/form_view.h"
#include "adapters/qt/frame_view.h"
#include "adapters/qt/keys.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

bool Key_Input::Filter(QWidget& receiver, QKeyEvent& event) {
  if (event.type() == QEvent::KeyRelease) {
    released_key_ = event.key();
    released_ms_ = event.timestamp();
  }
  // Open menus and drop-down lists, and a menu bar that is worked by keys, have their own ways.
  if (QApplication::activePopupWidget() != nullptr || qobject_cast<QMenuBar*>(&receiver) != nullptr)
    return false;
  if (Target(receiver) == nullptr) return event.type() == QEvent::KeyPress && Is_Held_Answer(event);
  switch (event.type()) {
    case QEvent::ShortcutOverride:
      // Accepting it keeps the toolkit's own shortcuts and access keys quiet. The key Alt alone leads to the
      // menu bar.
      if (event.key() == Qt::Key_Alt) return false;
      event.accept();
      return true;
    case QEvent::KeyPress:
      return Press(receiver, event);
    default:
      return shell_.Control_At(receiver) == nullptr;
  }
}

// The form that keys go to: an independent one in its own window, else the active child, else the frame.
Form* Key_Input::Target(const QWidget& receiver) const {
  if (const Form_View* view = shell_.Form_At(*receiver.window())) return &view->form;
  if (shell_.frame == nullptr || receiver.window() != &shell_.frame->Window()) return nullptr;
  Form* active = Active_Form();
  if (active != nullptr && active->role == Form_Role::Child) return active;
  return &shell_.frame->form;
}

// Of a box: the key that was pressed before it opened must not answer it.
bool Key_Input::Is_Held_Answer(const QKeyEvent& event) const {
  const bool answers =
      event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
  return answers && Repeats(event);
}

// An event that was made up has no time.
bool Key_Input::Repeats(const QKeyEvent& event) const {
  if (event.isAutoRepeat()) return true;
  return event.timestamp() != 0 && event.timestamp() == released_ms_ && event.key() == released_key_;
}

bool Key_Input::Press(QWidget& receiver, QKeyEvent& event) {
  shell_.mouse.Send_Pending();
  Form* form = Target(receiver);
  if (form == nullptr) return true;
  Control* control = form->focus;
  Key_Event key = Key_Of(event);
  key.repeated = Repeats(event);
  bool used = true;
  {
    const Shell::Event scope(shell_);
    used = Key_Down(*form, control, key, Character_Of(event));
  }
  if (!used && shell_.View_Of(*form) != nullptr && form->focus == control)
    Leave_To_Widget(*form, receiver, event);
  return true;
}

void Key_Input::Leave_To_Widget(Form& form, QWidget& receiver, QKeyEvent& event) {
  if (form.role != Form_Role::Independent && shell_.frame->Open_Menu(Key_Of(event))) return;
  const Control_View* view = shell_.Control_At(receiver);
  const bool its_own = view != nullptr && &view->control == form.focus;
  const bool leads_away = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  // A list would look for an entry that begins so.
  const bool access_key = event.modifiers().testFlag(Qt::AltModifier) && !event.text().isEmpty();
  if (!its_own || leads_away || access_key || !view->manner.native_keys || !Usable(view->control)) return;
  // Straight to the widget: what it does not want must not wander up to its containers.
  static_cast<QObject*>(&receiver)->event(&event);
}
