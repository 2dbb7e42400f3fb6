#include "adapters/qt/shell.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "adapters/qt/control_view.h"
#include "adapters/qt/form_view.h"
#include "adapters/qt/frame_view.h"
#include "platform/dispatch.h"
#include "platform/form.h"
#include "platform/timer.h"

Shell::Shell(std::string_view pictures_directory)
    : pictures(pictures_directory),
      posts([this](const std::function<void()>& fn) {
        const Event event(*this);
        Dispatch(fn);
      }),
      wake_timer([this] {
        const Event event(*this);
        Timers_Run_Due();
      }),
      mouse(*this),
      keys(*this),
      focus(*this),
      user_events(*this) {
  qApp->installEventFilter(&user_events);
}

Shell::~Shell() {
  qApp->removeEventFilter(&user_events);
  for (const auto& view : forms_) view->Detach();
  // Child windows live inside the frame's window, so they go first.
  while (!forms_.empty()) forms_.pop_back();
}

Shell::Event::Event(Shell& the_shell) : shell(the_shell) { ++shell.depth_; }

Shell::Event::~Event() {
  shell.changes.Apply();
  if (const Control* focused = Focused_Control()) {
    if (Control_View* view = shell.View_Of(*focused)) view->Tell_Value();
  }
  shell.focus.Follow();
  shell.mouse.Follow();
  if (--shell.depth_ == 0) std::exchange(shell.dropped_, {}).clear();
}

void Shell::Deliver(std::function<void()> deed) {
  gate.Run([this, deed = std::move(deed)] {
    const Event event(*this);
    deed();
  });
}

Form_View* Shell::View_Of(const Form& form) const { return static_cast<Form_View*>(changes.Find(form)); }

Control_View* Shell::View_Of(const Control& control) const {
  return static_cast<Control_View*>(changes.Find(control));
}

Control_View* Shell::Control_At(const QWidget& widget) const {
  for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget()) {
    if (Control_View* view = control_widgets.value(part)) return view;
    if (form_bodies.contains(part)) return nullptr;
  }
  return nullptr;
}

Form_View* Shell::Form_At(const QWidget& widget) const { return form_bodies.value(&widget); }

void Shell::Add_Form(Form& form) {
  const Event event(*this);
  forms_.push_back(Make_Form_View(*this, form));
}

void Shell::Drop_Form(Form& form) {
  const Event event(*this);
  const auto dropped = std::ranges::find_if(forms_, [&](const auto& view) { return &view->form == &form; });
  if (dropped == forms_.end()) return;
  (*dropped)->Detach();
  dropped_.push_back(std::move(*dropped));
  forms_.erase(dropped);
}
