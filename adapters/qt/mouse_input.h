// The mouse on its way to the controls: a press catches the mouse for its control until all buttons are up,
// places are pixels of that control where it stands at the moment of delivery, and moves come at a bounded
// rate. User-interface thread only.
#pragma once

#include <QPointF>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <cstdint>

#include "platform/events.h"

class QMouseEvent;
struct Control_View;
struct Shell;

// Moves with a button held come no closer than this; the last one always comes.
constexpr int Move_Interval_ms = 5;

struct Mouse_Input {
  explicit Mouse_Input(Shell& shell);

  // Hands a mouse event of the toolkit to the program. True if the widget must not see it.
  bool Filter(QWidget& receiver, QMouseEvent& event);

  // Delivers a move that is still held back.
  void Send_Pending();
  // At the end of an event: a control that moved away under the resting pointer gets another move.
  void Follow();
  // A box or another window takes the mouse: no release will come.
  void Give_Up();
  void View_Gone(const Control_View& view);

 private:
  static void Leave_Menu_Bar(const QWidget& receiver);
  bool Press(QWidget& receiver, const QMouseEvent& event);
  bool Release(QWidget& receiver, const QMouseEvent& event);
  bool Move(QWidget& receiver, const QMouseEvent& event);
  bool Press_Body(QWidget& receiver);
  void Hold_Back();
  void Send_Move();
  Mouse_Event Event_At(const Control_View& view, int button) const;

  Shell& shell_;
  Control_View* caught_ = nullptr;  // the control that was pressed
  QPointer<QWidget> receiver_;      // the part of it that the toolkit sends to
  int held_ = 0;
  bool double_click_ = false;  // the press was the second of a double click that its control took
  QPointF global_;             // where the pointer was last seen, on the screen
  QPointF sent_place_;         // of the last delivered event, in pixels of the control
  int shift_ = 0;
  std::int64_t sent_us_ = 0;
  bool pending_ = false;
  QTimer pending_timer_;
};
