// Keeps the toolkit's focus where the program has its own, and reports where the user moved it by other
// means. User-interface thread only.
#pragma once

#include <QPointer>

#include "adapters/qt/focus_frame.h"

class QFocusEvent;
struct Shell;

struct Focus_Keeper {
  explicit Focus_Keeper(Shell& shell) : shell_(shell) {}

  // Puts the toolkit's focus where the program's is, and a frame around a control that does not blink there.
  // Menus keep the keyboard while they are open.
  void Follow();
  // A widget got the toolkit's focus.
  void Note(const QWidget& widget, const QFocusEvent& event);

 private:
  void Show_Frame(QWidget* around);

  Shell& shell_;
  bool moving_ = false;
  QPointer<Focus_Frame> frame_;  // belongs to the window where it was last
};
