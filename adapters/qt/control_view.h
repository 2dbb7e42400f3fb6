// The view of a control: what all kinds have in common.
#pragma once

#include <QWidget>
#include <memory>

#include "adapters/qt/change_list.h"
#include "platform/controls.h"

struct Shell;

struct Control_View : Component_View {
  // How a press or key on the view is shared between the program and the toolkit's own widget.
  struct Manner {
    bool native_mouse = false;  // the widget sees presses after the program has
    bool native_keys = false;   // the widget sees keys that nobody took
    bool own_click = false;     // the widget itself tells when it was clicked: a release is none
    bool greys = false;         // a disabled one looks so
  };

  // widget: made by the kind's view inside the container's widget, which owns it.
  Control_View(Shell& shell, Control& control, QWidget& widget, Manner manner);
  ~Control_View() override;

  void Update() final;

  // Shows the pointer shape that tells how the control is worked, or the window's while it cannot be.
  void Show_Pointer();

  // Tells assistive programs the value in words if it has changed, even where no pixel has.
  void Tell_Value();

  // Forgets the control, which may go away; the widget stays until its window is destroyed.
  void Detach();

  // The user presses here, before the program hears of it. place: pixels of the control.
  virtual void Before_Press(const Mouse_Event& place);
  // Whether a press on this part of the widget is one on the control: not on the scroll bar of a list.
  virtual bool Is_Surface(const QWidget& part) const;
  // Where the pixels of what lies on the control begin.
  virtual QPoint Inset() const { return {}; }

  Shell& shell;
  Control& control;
  QWidget& widget;
  const Manner manner;

 protected:
  virtual void Show_Values() = 0;
  virtual QRect Place() const;

  // Reports something that the user did, then shows what the program made of it.
  void Report(const std::function<void()>& deed);

 private:
  std::string told_;
};

// Whether the user can work the control now: its form, and everything that it lies on, is enabled.
bool Usable(const Control& control);

// Makes the view of the control inside the widget of its container.
std::unique_ptr<Control_View> Make_Control_View(Shell& shell, Control& control, QWidget& parent);
