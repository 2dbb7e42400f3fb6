// The cells of a canvas as assistive programs see them: check boxes that the canvas' mouse buttons work.
#pragma once

#include <QAccessible>
#include <functional>
#include <vector>

#include "platform/controls.h"

struct Painted_Widget;

// Lives as long as the canvas' own accessible interface.
struct Accessible_Cells {
  // Where a mouse button goes down on the canvas, as the user's deed.
  using Press = std::function<void(const Mouse_Event&)>;

  Accessible_Cells(Painted_Widget& painted, Press press) : painted_(painted), press_(std::move(press)) {}
  ~Accessible_Cells();
  Accessible_Cells(const Accessible_Cells&) = delete;
  Accessible_Cells& operator=(const Accessible_Cells&) = delete;

  int Count() const;                     // 0: the widget shows no canvas with cells, or its form is closed
  QAccessibleInterface* Cell(int cell);  // nullptr: there is no such cell
  int Index_Of(const QAccessibleInterface* cell) const;  // -1: none of them

 private:
  Painted_Widget& painted_;
  Press press_;
  std::vector<QAccessible::Id> ids_;  // by cell; empty until the first is asked for
};
