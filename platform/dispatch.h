// The one place where an event enters the program, and where a failure that no handler took ends.
#pragma once

#include <functional>
#include <utility>

// Thrown out of a wait, for a dialog or a box, in which the program has been closed: whatever waited has
// nothing left to go on with. Ends its event without a word.
struct Program_Ended {};

// Tells the user about the exception that is being handled: a stop box with number and text.
// REQUIRES: called inside a catch block.
void Report_Failure() noexcept;

// Called at the end of every event, and of those inside another one; must not raise. Filled at the start.
extern std::function<void()> Event_Ended;

// Runs one event. What escapes from it is reported; the event ends there, the program and its data live on.
template <class Handler>
void Dispatch(Handler&& handler) noexcept {
  try {
    std::forward<Handler>(handler)();
  } catch (...) {
    Report_Failure();
  }
  if (Event_Ended) Event_Ended();
}
