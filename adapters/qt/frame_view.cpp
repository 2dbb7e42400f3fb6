#include "adapters/qt/frame_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>
#include <algorithm>

#include "adapters/qt/control_view.h"
#include "adapters/qt/look.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

Child_Area::Child_Area(Shell& shell, QWidget& parent) : QMdiArea(&parent), shell_(shell) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);  // a press gives the focus by the program alone
}

void Child_Area::Show_Background(const Form& form) {
  const QBrush brush(form.own_colors() ? To_Qt(form.back_color()) : palette().color(QPalette::Dark));
  if (background() != brush) setBackground(brush);
  if (picture_ == form.picture()) return;
  picture_ = form.picture();
  viewport()->update();
}

void Child_Area::paintEvent(QPaintEvent* event) {
  QMdiArea::paintEvent(event);
  const QPixmap pixmap = shell_.pictures.Get(picture_, devicePixelRatioF());
  if (!pixmap.isNull()) QPainter(viewport()).drawPixmap(-scrolled_, pixmap);
}

void Child_Area::scrollContentsBy(int dx, int dy) {
  scrolled_ -= QPoint(dx, dy);
  scrolling_ = true;
  QMdiArea::scrollContentsBy(dx, dy);
  scrolling_ = false;
}

void Child_Area::Fit() {
  QResizeEvent event(size(), size());
  QMdiArea::resizeEvent(&event);
}

void Child_Area::Reveal(const QWidget& child) {
  const auto scroll = [](QScrollBar& bar, int start, int end, int room) {
    bar.setValue(bar.value() + (end > room ? std::min(end - room, start) : std::min(start, 0)));
  };
  const QRect place = child.geometry();
  scroll(*horizontalScrollBar(), place.left(), place.right(), viewport()->width());
  scroll(*verticalScrollBar(), place.top(), place.bottom(), viewport()->height());
}

void Frame_Window::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (on_close) on_close();
}

void Frame_Window::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (on_placed) on_placed();
}

void Frame_Window::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (on_placed) on_placed();
}

void Frame_Window::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && on_placed) on_placed();
}

namespace {

constexpr QSize Least_Title(80, 16);

// The place, or the first screen's corner if too little of the title bar could be taken hold of: the screen
// that it was on may have gone.
QRect On_A_Screen(const QRect& outside) {
  const QRect title(outside.topLeft(), QSize(outside.width(), Least_Title.height()));
  const auto shows = [&title](const QScreen* screen) {
    const QSize seen = screen->availableGeometry().intersected(title).size();
    return seen.expandedTo(Least_Title) == seen;
  };
  if (std::ranges::any_of(QGuiApplication::screens(), shows)) return outside;
  return {QGuiApplication::primaryScreen()->availableGeometry().topLeft(), outside.size()};
}

}  // namespace

Frame_View::Frame_View(Shell& the_shell, Form& the_form)
    : Form_View(the_shell, the_form), window_(new Frame_Window), area_(new Child_Area(the_shell, *window_)) {
  window_->setCentralWidget(area_);
  menus_ = std::make_unique<Menu_Bar>(shell, form, *window_);
  window_->on_close = [this] { Report_Closing(); };
  window_->on_placed = [this] { Window_Placed(); };
  shell.frame = this;
  Build_Controls();
}

Frame_View::~Frame_View() {
  shell.frame = nullptr;
  menus_.reset();
  window_->deleteLater();
}

void Frame_View::Silence() { window_->on_close = window_->on_placed = {}; }

void Frame_View::Show_Window() {
  area_->Show_Background(form);
  for (const Form* child : Loaded_Children()) {
    if (Form_View* view = shell.View_Of(*child)) view->Show_Pointer();
  }
  Show_State();
  if (const QRect wanted = Wanted_Place(); wanted != placed_) Place(wanted);
  if (window_->isHidden() == form.visible()) window_->setVisible(form.visible());
}

void Frame_View::Show_State() {
  constexpr Qt::WindowStates ours = Qt::WindowMaximized | Qt::WindowMinimized;
  Qt::WindowStates wanted = window_->windowState() & ~ours;
  if (form.state() == Window_State::Maximized) wanted |= Qt::WindowMaximized;
  if (form.state() == Window_State::Minimized) wanted |= Qt::WindowMinimized;
  if (window_->windowState() != wanted) window_->setWindowState(wanted);
}

QMargins Frame_View::Decorations() const {
  return window_->windowHandle() == nullptr ? QMargins() : window_->windowHandle()->frameMargins();
}

void Frame_View::Place(const QRect& wanted) {
  const QRect outside = On_A_Screen(wanted);
  placed_ = wanted;
  asked_blindly_ = Decorations().isNull();
  window_->move(outside.topLeft());
  window_->resize(outside.size().shrunkBy(Decorations()));
}

// The window manager tells the size of its decorations only after the window has come up: then the place that
// was asked for is asked for again, so that the whole window has the size that the form says.
void Frame_View::Window_Placed() {
  if (!window_->isVisible() || shell.changes.Applying()) return;
  const Qt::WindowStates states = window_->windowState();
  if (states.testFlag(Qt::WindowMinimized)) {
    form.state = Window_State::Minimized;
    return;
  }
  form.state = states.testFlag(Qt::WindowMaximized) ? Window_State::Maximized : Window_State::Normal;
  if (asked_blindly_ && !Decorations().isNull()) {
    asked_blindly_ = false;
    if (form.state() == Window_State::Normal) return Place(placed_);
  }
  placed_ = window_->geometry().marginsAdded(Decorations());
  Report_Place(placed_);
}

// Its window is active whenever one of its children is.
void Frame_View::Activate() {}

void Frame_View::Bring_To_Front() { window_->raise(); }

void Frame_View::Add_Child(QMdiSubWindow& child) { area_->addSubWindow(&child, child.windowFlags()); }

void Frame_View::Remove_Child(QMdiSubWindow& child) { area_->removeSubWindow(&child); }

void Frame_View::Activate_Child(QMdiSubWindow& child) {
  if (area_->currentSubWindow() == &child) return;
  area_->setActiveSubWindow(&child);
  Keep_Order();
}

void Frame_View::Keep_Order() {
  for (const Form* child : Loaded_Children()) {
    if (!child->bottom) continue;
    if (Form_View* view = shell.View_Of(*child)) view->Window().lower();
  }
  for (const Control* control : form.controls) {
    const Control_View* view = shell.View_Of(*control);
    if (view != nullptr && control->container == nullptr) view->widget.lower();
  }
}
