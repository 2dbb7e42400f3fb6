#include "adapters/qt/child_view.h"

#include <QCloseEvent>
#include <QLayout>

#include "adapters/qt/frame_view.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

void Sub_Window::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (on_close) on_close();
}

void Sub_Window::moveEvent(QMoveEvent* event) {
  QMdiSubWindow::moveEvent(event);
  if (on_placed) on_placed();
}

void Sub_Window::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  if (on_placed) on_placed();
}

void Sub_Window::mousePressEvent(QMouseEvent* event) {
  if (on_press && on_press()) QMdiSubWindow::mousePressEvent(event);
}

void Sub_Window::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

namespace {

Qt::WindowFlags Flags_Of(Border border) {
  if (border == Border::None) return Qt::SubWindow | Qt::FramelessWindowHint;
  return Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
}

}  // namespace

// A child form needs the frame; one that loads before it would have no place to be.
Child_View::Child_View(Shell& the_shell, Form& the_form)
    : Form_View(the_shell, the_form),
      window_(new Sub_Window(Flags_Of(the_form.border))),
      body_(new Form_Body(the_shell, window_)) {
  window_->setSystemMenu(nullptr);       // it would bring shortcuts of its own
  window_->setFocusPolicy(Qt::NoFocus);  // a press gives the focus by the program alone
  window_->setWidget(body_);
  shell.frame->Add_Child(*window_);
  window_->on_close = [this] { Report_Closing(); };
  window_->on_placed = [this] {
    if (!window_->isVisible() || shell.frame->Scrolling()) return;
    shell.frame->Fit();
    const bool by_user = !placing_;
    if (by_user && form.border != Border::None) Report_Place(Inside());
  };
  window_->on_press = [&shell = shell, form = &form] {
    const Shell::Event event(shell);
    const bool free = form->enabled();
    free ? User_Activated(*form) : Form_Pressed(*form);
    return free && shell.View_Of(*form) != nullptr;
  };
  Build_Controls();
}

Child_View::~Child_View() {
  shell.frame->Remove_Child(*window_);
  window_->deleteLater();
}

QRect Child_View::Inside() const { return {window_->pos() + shell.frame->Scrolled(), body_->size()}; }

void Child_View::Silence() {
  window_->on_close = window_->on_placed = {};
  window_->on_press = {};
}

void Child_View::Show_Window() {
  body_->Show_Background(form);
  if (Inside() != Wanted_Place()) Show_Place();
  if (window_->isHidden() == form.visible()) {
    window_->setVisible(form.visible());
    // Its title bar has its final height only now.
    if (Inside() != Wanted_Place()) Show_Place();
    shell.frame->Fit();
    if (form.visible()) shell.frame->Reveal(*window_);
  }
  shell.frame->Keep_Order();
}

void Child_View::Show_Place() {
  placing_ = true;
  QRect wanted = Wanted_Place();
  if (form.border == Border::None) wanted.moveTopLeft(QPoint(0, 0));
  body_->setFixedSize(wanted.size());
  window_->setFixedSize(window_->layout()->totalMinimumSize());
  window_->move(wanted.topLeft() - shell.frame->Scrolled());
  placing_ = false;
}

void Child_View::Activate() { shell.frame->Activate_Child(*window_); }

void Child_View::Bring_To_Front() {
  window_->raise();
  shell.frame->Keep_Order();
  if (window_->isVisible() && window_->visibleRegion().isEmpty()) shell.frame->Reveal(*window_);
}
