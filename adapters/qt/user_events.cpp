#include "adapters/qt/user_events.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "adapters/qt/control_view.h"
#include "adapters/qt/shell.h"

namespace {

enum class Way { Not_The_Users, Mouse, Key, Other, Focus };

Way Way_Of(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return Way::Mouse;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      return Way::Key;
    case QEvent::Wheel:
    case QEvent::ContextMenu:
      return Way::Other;
    case QEvent::FocusIn:
      return Way::Focus;
    default:
      return Way::Not_The_Users;
  }
}

}  // namespace

bool User_Events::eventFilter(QObject* receiver, QEvent* event) {
  const Way way = Way_Of(event->type());
  if (way == Way::Not_The_Users || !receiver->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*receiver);
  if (way == Way::Focus) {
    shell_.focus.Note(widget, static_cast<QFocusEvent&>(*event));
    return false;
  }
  if (Must_Wait(*receiver, *event)) return true;
  if (way == Way::Mouse) return shell_.mouse.Filter(widget, static_cast<QMouseEvent&>(*event));
  if (way == Way::Key) return shell_.keys.Filter(widget, static_cast<QKeyEvent&>(*event));
  const Control_View* view = shell_.Control_At(widget);
  return view != nullptr && !Usable(view->control);
}

bool User_Events::Must_Wait(QObject& receiver, QEvent& event) const {
  if (!shell_.gate.Must_Wait() || shell_.gate.Box_Open()) return false;
  // The question about shortcuts comes before its key press, and is asked again when that is let out.
  if (event.type() == QEvent::ShortcutOverride) {
    event.accept();
  } else {
    shell_.gate.Keep(receiver, event);
  }
  return true;
}
