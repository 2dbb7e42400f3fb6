// Keys on their way to the program, which decides what each one does; the toolkit's own widget sees only what
// is left. User-interface thread only.
#pragma once

class QKeyEvent;
class QWidget;
struct Form;
struct Shell;

struct Key_Input {
  explicit Key_Input(Shell& shell) : shell_(shell) {}

  // Hands a key event of the toolkit to the program. True if nothing else must see it.
  bool Filter(QWidget& receiver, QKeyEvent& event);

 private:
  Form* Target(const QWidget& receiver) const;
  bool Press(QWidget& receiver, QKeyEvent& event);
  void Leave_To_Widget(Form& form, QWidget& receiver, QKeyEvent& event);

  Shell& shell_;
};
