#include "adapters/qt/change_list.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

Component_View* Change_List::Find(const Component& component) const {
  const auto found = views_.find(&component);
  return found == views_.end() ? nullptr : found->second;
}

void Change_List::Note(Component& component) {
  changed_.push_back(&component);
  if (std::exchange(asked_, true)) return;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
}

void Change_List::Forget(Component& component) { std::erase(changed_, &component); }

void Change_List::Apply() {
  if (std::exchange(applying_, true)) return;
  while (!changed_.empty()) {
    for (Component* component : std::exchange(changed_, {})) {
      component->Shown();
      if (Component_View* view = Find(*component)) view->Update();
    }
  }
  applying_ = false;
}

bool Change_List::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  asked_ = false;
  Apply();
  return true;
}
