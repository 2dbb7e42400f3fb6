// Keeps the toolkit's focus where the program has its own, and reports where the user moved it by other
// means. User-interface thread only.
#pragma once

class QFocusEvent;
class QWidget;
struct Shell;

struct Focus_Keeper {
  explicit Focus_Keeper(Shell& shell) : shell_(shell) {}

  // Puts the toolkit's focus where the program's is. Menus keep the keyboard while they are open.
  void Follow();
  // A widget got the toolkit's focus.
  void Note(const QWidget& widget, const QFocusEvent& event);

 private:
  Shell& shell_;
  bool moving_ = false;
};
