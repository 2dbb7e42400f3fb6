#include "adapters/qt/mouse_input.h"

#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "adapters/qt/control_view.h"
#include "adapters/qt/form_view.h"
#include "adapters/qt/shell.h"
#include "adapters/qt/shift_state.h"
#include "adapters/qt/wake_timer.h"
#include "platform/input.h"

Mouse_Input::Mouse_Input(Shell& shell) : shell_(shell) {
  pending_timer_.setSingleShot(true);
  pending_timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&pending_timer_, &QTimer::timeout, &pending_timer_,
                   [this] { shell_.gate.Run([this] { Send_Pending(); }); });
}

bool Mouse_Input::Filter(QWidget& receiver, QMouseEvent& event) {
  if (receiver.window()->windowType() == Qt::Popup) {
    if (caught_ != nullptr && event.type() == QEvent::MouseButtonRelease) View_Gone(*caught_);
    return false;
  }
  global_ = event.globalPosition();
  shift_ = Shift_State(event.modifiers());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Press(receiver, event);
    case QEvent::MouseButtonRelease:
      return Release(receiver, event);
    default:
      return Move(receiver, event);
  }
}

Mouse_Event Mouse_Input::Event_At(const Control_View& view, int button) const {
  const QPointF place = view.widget.mapFromGlobal(global_);
  return {button, shift_, static_cast<float>(place.x()), static_cast<float>(place.y())};
}

bool Mouse_Input::Press_Body(QWidget& receiver) {
  Form_View* form_view = shell_.Form_At(receiver);
  if (form_view == nullptr) return false;
  const Shell::Event event(shell_);
  Form_Pressed(form_view->form);
  return true;
}

// A menu bar that is worked by keys keeps them, whatever is pressed.
void Mouse_Input::Leave_Menu_Bar(const QWidget& receiver) {
  auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
  if (bar != nullptr && bar != &receiver) bar->clearFocus();
}

bool Mouse_Input::Press(QWidget& receiver, const QMouseEvent& event) {
  Send_Pending();
  Leave_Menu_Bar(receiver);
  Control_View* view = shell_.Control_At(receiver);
  if (view == nullptr) return Press_Body(receiver);
  Control& control = view->control;
  if (Usable(control) && !view->Is_Surface(receiver)) return false;
  const int button = Button_Bits(event.button());
  if (button == 0) return true;
  if (caught_ == nullptr && Usable(control)) {
    caught_ = view;
    receiver_ = &receiver;
    held_ = 0;
  }
  held_ |= button;
  const bool second = event.type() == QEvent::MouseButtonDblClick && button == Left_Button;
  double_click_ = second && control.on_double_click;
  const Mouse_Event press = Event_At(*view, button);
  sent_place_ = view->widget.mapFromGlobal(global_);
  {
    const Shell::Event scope(shell_);
    if (Usable(control)) view->Before_Press(press);
    if (shell_.Control_At(receiver) == view)
      second ? Mouse_Double(control, press) : Mouse_Down(control, press);
  }
  view = shell_.Control_At(receiver);  // it may be gone
  return view == nullptr || !view->manner.native_mouse || !Usable(view->control);
}

bool Mouse_Input::Release(QWidget& receiver, const QMouseEvent& event) {
  Send_Pending();
  const int button = Button_Bits(event.button());
  if (Control_View* view = caught_; view != nullptr && (held_ & button) != 0) {
    held_ &= ~button;
    if (held_ == 0) View_Gone(*view);
    const bool inside = view->widget.rect().contains(view->widget.mapFromGlobal(global_).toPoint());
    const bool click = inside && !double_click_ && !view->manner.own_click;
    const Shell::Event scope(shell_);
    Mouse_Up(view->control, Event_At(*view, button), click);
  }
  const Control_View* view = shell_.Control_At(receiver);
  if (view == nullptr) return shell_.Form_At(receiver) != nullptr;
  return !view->manner.native_mouse && view->Is_Surface(receiver);
}

bool Mouse_Input::Move(QWidget& receiver, const QMouseEvent& event) {
  if (caught_ != nullptr) {
    held_ &= Button_Bits(event.buttons());
    if (held_ == 0) View_Gone(*caught_);  // the release went elsewhere
  }
  if (caught_ != nullptr) {
    if (pending_ || Monotonic_us() - sent_us_ < Move_Interval_ms * 1000) {
      Hold_Back();
    } else {
      Send_Move();
    }
  } else if (Control_View* view = shell_.Control_At(receiver)) {
    const Shell::Event scope(shell_);
    Mouse_Move(view->control, Event_At(*view, 0));
  }
  const Control_View* view = shell_.Control_At(receiver);
  if (view == nullptr) return shell_.Form_At(receiver) != nullptr;
  return !view->manner.native_mouse && view->Is_Surface(receiver);
}

void Mouse_Input::Hold_Back() {
  if (std::exchange(pending_, true)) return;
  const std::int64_t passed_ms = (Monotonic_us() - sent_us_) / 1000;
  pending_timer_.start(
      static_cast<int>(std::clamp<std::int64_t>(Move_Interval_ms - passed_ms, 0, Move_Interval_ms)));
}

void Mouse_Input::Send_Pending() {
  if (pending_ && caught_ != nullptr) Send_Move();
}

void Mouse_Input::Send_Move() {
  pending_ = false;
  pending_timer_.stop();
  sent_us_ = Monotonic_us();
  sent_place_ = caught_->widget.mapFromGlobal(global_);
  Control& control = caught_->control;
  const Mouse_Event move = Event_At(*caught_, held_);
  const Shell::Event scope(shell_);
  Mouse_Move(control, move);
}

void Mouse_Input::Follow() {
  if (caught_ == nullptr || !caught_->widget.isVisible()) return;
  if (caught_->widget.mapFromGlobal(global_) != sent_place_) Hold_Back();
}

// A widget that still thinks it is pressed would go on by itself, as a scroll arrow does.
void Mouse_Input::Give_Up() {
  if (caught_ == nullptr) return;
  const bool native = caught_->manner.native_mouse;
  View_Gone(*caught_);
  if (!native || !receiver_) return;
  const QPointF outside(-1, -1);
  QMouseEvent release(QEvent::MouseButtonRelease, outside, receiver_->mapToGlobal(outside), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
  static_cast<QObject*>(receiver_)->event(&release);
}

void Mouse_Input::View_Gone(const Control_View& view) {
  if (caught_ != &view) return;
  caught_ = nullptr;
  held_ = 0;
  pending_ = false;
  pending_timer_.stop();
}
