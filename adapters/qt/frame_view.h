// The frame form: the main window with the menu bar, and the area in which the child windows live.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <memory>

#include "adapters/qt/form_view.h"
#include "adapters/qt/menu_bar.h"

struct Key_Event;

// The inside of the frame, with the frame's background.
struct Child_Area final : QMdiArea {
  Child_Area(Shell& shell, QWidget& parent);

  void Show_Background(const Form& form);
  // How far the area is scrolled, when a child lies beyond its edge.
  QPoint Scrolled() const { return scrolled_; }
  // Whether children move because the area is scrolled.
  bool Scrolling() const { return scrolling_; }
  // Gives the area the scroll bars that its children need now.
  void Fit();
  // Scrolls so far that the child is seen, its top left corner in any case.
  void Reveal(const QWidget& child);

  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  // The area's own keys (Ctrl+Tab) would bring up windows that the program has locked.
  bool eventFilter(QObject*, QEvent*) override { return false; }

 private:
  Shell& shell_;
  Picture picture_;
  QPoint scrolled_;
  bool scrolling_ = false;
};

struct Frame_Window final : QMainWindow {
  std::function<void()> on_close, on_placed;
  bool was_seen = false;  // some of it has been on the screen: places and states before are not the user's
  bool was_used = false;  // by mouse or key

  void Show_Modified(bool modified);

  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;  // of its native window

 private:
  bool modified_ = false;
};

struct Frame_View final : Form_View {
  Frame_View(Shell& shell, Form& form);
  ~Frame_View() override;

  QWidget& Window() override { return *window_; }
  QWidget& Body() override { return *area_->viewport(); }
  void Activate() override;
  void Bring_To_Front() override;

  void Add_Child(QMdiSubWindow& child);
  void Remove_Child(QMdiSubWindow& child);
  void Activate_Child(QMdiSubWindow& child);
  // A child has moved, come up or gone.
  void Fit() { area_->Fit(); }
  void Reveal(const QWidget& child) { area_->Reveal(child); }
  // The frame's own controls at the very bottom, then the bottom form, then the rest; after a child came up
  // or was activated.
  void Keep_Order();
  QPoint Scrolled() const { return area_->Scrolled(); }
  bool Scrolling() const { return area_->Scrolling(); }

  // Opens the menu that has this access key. False if there is none that can be opened.
  bool Open_Menu(const Key_Event& key) { return menus_->Open(key); }

 private:
  void Show_Window() override;
  void Silence() override;
  void Show_State();
  QMargins Decorations() const;  // of the window manager, zero while they are not known
  void Place(const QRect& outside);
  QRect Outside() const;  // where the window is now, with its decorations
  void Window_Placed();
  void Normal_Window_Placed();

  Frame_Window* window_;
  Child_Area* area_;
  std::unique_ptr<Menu_Bar> menus_;
  Window_State shown_state_ = Window_State::Normal;  // asked for or reported last
  QRect placed_;         // the outer place of the window while it is normal, asked for or reported last
  QMargins asked_with_;  // the decorations that the last request reckoned with
  bool awaits_minimized_ = false;  // it was asked for and has not come yet
  bool was_normal_ = false;        // the window has been seen so
  bool may_ask_again_ = true;      // until the window manager has a normal place to go back to
};
