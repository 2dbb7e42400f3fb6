// The clock of the desktop and the one alarm by which the program's timers run.
// User-interface thread only.
#pragma once

#include <QSocketNotifier>
#include <cstdint>
#include <functional>
#include <memory>

// Monotonic time in microseconds.
std::int64_t Monotonic_us();

struct Wake_Timer {
  // Throws std::system_error if the system has no timer to give.
  explicit Wake_Timer(std::function<void()> on_wake);
  ~Wake_Timer();
  Wake_Timer(const Wake_Timer&) = delete;
  Wake_Timer& operator=(const Wake_Timer&) = delete;

  // Calls on_wake at that time, at once if it has passed; a later call replaces an earlier one. Negative:
  // never.
  void Wake_At_us(std::int64_t time_us);

 private:
  int descriptor_;
  std::unique_ptr<QSocketNotifier> notifier_;
};
