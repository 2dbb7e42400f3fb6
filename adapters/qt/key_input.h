// Keys on their way to the program, which decides what each one does; the toolkit's own widget sees only what
// is left. User-interface thread only.
#pragma once

#include <cstdint>

class QKeyEvent;
class QWidget;
struct Form;
struct Shell;

struct Key_Input {
  explicit Key_Input(Shell& shell) : shell_(shell) {}

  // Hands a key event of the toolkit to the program. True if nothing else must see it.
  bool Filter(QWidget& receiver, QKeyEvent& event);

 private:
  bool Is_Held_Answer(const QKeyEvent& event) const;
  bool Repeats(const QKeyEvent& event) const;
  Form* Target(const QWidget& receiver) const;
  bool Press(QWidget& receiver, QKeyEvent& event);
  void Leave_To_Widget(Form& form, QWidget& receiver, QKeyEvent& event);

  Shell& shell_;
  // The last release of a key. A held key under X is released and pressed again in one moment, which the
  // toolkit does not always see.
  int released_key_ = 0;
  std::uint64_t released_ms_ = 0;
};
