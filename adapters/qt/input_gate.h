// Where the user's events wait while the program lets only timers, posts and repaints run. The window
// system's own queue holds most of them back; what the toolkit makes itself (the repeat of a held scroll
// arrow, the delayed opening of a submenu) comes here, and everything behind it keeps its order.
// User-interface thread only.
#pragma once

#include <QObject>
#include <deque>
#include <functional>

class QEvent;

struct Input_Gate : QObject {
  enum class Mode {
    Open,
    Shut,  // pending events run without the user's input
    Box,   // a message box is open: only its own events pass
  };

  // As long as one of these lives, the gate stands in that mode.
  struct In_Mode {
    In_Mode(Input_Gate& gate, Mode mode);
    ~In_Mode();
    In_Mode(const In_Mode&) = delete;
    In_Mode& operator=(const In_Mode&) = delete;

    Input_Gate& gate;
    const Mode mode_before;
    const bool passing_before;
  };

  // Whether an event for the program must wait now, because the gate is not open or earlier ones wait still.
  bool Must_Wait() const { return mode_ != Mode::Open || (!passing_ && !waiting_.empty()); }
  bool Box_Open() const { return mode_ == Mode::Box; }

  // Runs deed now, or behind all that waits.
  void Run(std::function<void()> deed);
  // Keeps a copy of an event of the toolkit, to be sent again to its receiver if that still lives.
  void Keep(QObject& receiver, const QEvent& event);
  // Lets out, in order, all that may pass now.
  void Drain();

 private:
  void Drain_Soon();

  Mode mode_ = Mode::Open;
  bool passing_ = false;  // one that waited runs at this moment
  std::deque<std::function<void()>> waiting_;
};
