// Every event of the toolkit that comes from the user passes here, on its way to the program or to the
// toolkit's own widgets.
#pragma once

#include <QObject>

struct Shell;

struct User_Events : QObject {
  explicit User_Events(Shell& shell) : shell_(shell) {}

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool Must_Wait(QObject& receiver, QEvent& event) const;

  Shell& shell_;
};
