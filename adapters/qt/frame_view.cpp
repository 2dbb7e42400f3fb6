#include "adapters/qt/frame_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QPainter>
#include <QRegion>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>
#include <algorithm>
#include <cstdlib>

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

void Frame_Window::Show_Modified(bool modified) {
  modified_ = modified;
  setWindowModified(modified);
}

void Frame_Window::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // The toolkit takes the mark away whenever a child window closes.
  if (event->type() == QEvent::ModifiedChange && isWindowModified() != modified_)
    setWindowModified(modified_);
  if (event->type() == QEvent::WindowStateChange && on_placed) on_placed();
}

// The size of the decorations may change without an event of its own, so each repaint looks at it.
bool Frame_Window::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose) was_seen = was_seen || windowHandle()->isExposed();
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) was_used = true;
  const bool looks = event->type() == QEvent::Expose || event->type() == QEvent::UpdateRequest;
  if (looks && on_placed) on_placed();
  return QMainWindow::eventFilter(watched, event);
}

namespace {

int Area(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

// The place if the screens show all of it, else the nearest one on a single screen, no larger than that: the
// screen that it was on may be gone.
QRect On_Screens(const QRect& outside) {
  QRegion shown;
  QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect one = screen->availableGeometry();
    shown += one;
    if (Area(one.intersected(outside)) > Area(room.intersected(outside))) room = one;
  }
  if (QRegion(outside).subtracted(shown).isEmpty()) return outside;
  QRect whole(outside.topLeft(), outside.size().boundedTo(room.size()));
  whole.moveRight(std::min(whole.right(), room.right()));
  whole.moveBottom(std::min(whole.bottom(), room.bottom()));
  whole.moveTopLeft({std::max(whole.left(), room.left()), std::max(whole.top(), room.top())});
  return whole;
}

// Whether a scaled screen, whose pixels are finer than the form's, rounds one place to the other.
bool Rounds_To(const QRect& place, const QRect& other, qreal scale) {
  const int most = scale == 1 ? 0 : 1;
  const QPoint corners = place.topLeft() - other.topLeft();
  const QSize sizes = place.size() - other.size();
  const auto near = [most](int difference) { return std::abs(difference) <= most; };
  return near(corners.x()) && near(corners.y()) && near(sizes.width()) && near(sizes.height());
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
  window_->Show_Modified(form.modified());
  area_->Show_Background(form);
  for (const Form* child : Loaded_Children()) {
    if (Form_View* view = shell.View_Of(*child)) view->Show_Pointer();
  }
  // A window that is not up yet can be maximized, but not minimized.
  if (!window_->isHidden() || form.state() != Window_State::Minimized) Show_State();
  if (const QRect wanted = Wanted_Place(); wanted != placed_) Place(wanted);
  if (window_->isHidden() != form.visible()) return;
  window_->winId();
  window_->windowHandle()->installEventFilter(window_);
  window_->setVisible(form.visible());
  Show_State();
}

void Frame_View::Show_State() {
  if (form.state() == shown_state_) return;
  shown_state_ = form.state();
  Qt::WindowStates wanted = window_->windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized);
  if (shown_state_ == Window_State::Maximized) wanted |= Qt::WindowMaximized;
  if (shown_state_ == Window_State::Minimized) wanted |= Qt::WindowMinimized;
  awaits_minimized_ = shown_state_ == Window_State::Minimized;
  window_->setWindowState(wanted);
}

QMargins Frame_View::Decorations() const {
  return window_->windowHandle() == nullptr ? QMargins() : window_->windowHandle()->frameMargins();
}

void Frame_View::Place(const QRect& wanted) {
  const QRect outside = On_Screens(wanted);
  placed_ = wanted;
  asked_with_ = Decorations();
  if (!asked_with_.isNull()) return window_->setGeometry(outside.marginsRemoved(asked_with_));
  window_->move(outside.topLeft());
  window_->resize(outside.size());
}

// The native window's place, which changes as a whole: the toolkit reports corner and size one after the
// other.
QRect Frame_View::Outside() const { return window_->windowHandle()->geometry().marginsAdded(Decorations()); }

void Frame_View::Window_Placed() {
  if (!window_->was_seen || !window_->isVisible() || shell.changes.Applying()) return;
  const Qt::WindowStates states = window_->windowState();
  shown_state_ = states.testFlag(Qt::WindowMinimized)   ? Window_State::Minimized
                 : states.testFlag(Qt::WindowMaximized) ? Window_State::Maximized
                                                        : Window_State::Normal;
  form.state = shown_state_;
  if (shown_state_ == Window_State::Normal) return Normal_Window_Placed();
  if (was_normal_) may_ask_again_ = false;
  // The toolkit believes in the state that it asked for until the window manager has heard of the window.
  if (!window_->windowHandle()->isExposed()) awaits_minimized_ = false;
}

// The window manager reports the size of its decorations only after the window has come up, and another one
// for a maximized window: then the place that was asked for is asked for again, so that the whole window has
// the size that the form says.
void Frame_View::Normal_Window_Placed() {
  if (awaits_minimized_ && !window_->was_used)
    return;  // a request for a place would bring the window up again
  was_normal_ = true;
  if (may_ask_again_ && Decorations() != asked_with_) return Place(placed_);
  const QSize room = window_->screen()->availableGeometry().size();
  const bool fills_screen = Outside().size().boundedTo(room) == room;
  if (fills_screen || Rounds_To(Outside(), placed_, window_->devicePixelRatioF())) return;
  placed_ = Outside();
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
