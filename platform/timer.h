// Timers of the program and the one schedule that all desktops run them by.
// User-interface thread only.
//
// A timer keeps to its schedule: the n-th tick is due at start + n * interval. A late tick does not push the
// next one; ticks that were missed altogether are not made up for. A timer whose handler still runs (it let
// pending events run) does not tick again inside itself.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/property.h"

struct Form;

struct Timer final : Component {
  // Stopped unless start_enabled. The design values are these.
  Timer(Form& form, std::string_view timer_name, int start_interval_ms, bool start_enabled = false);
  ~Timer() override;

  void Changed() override;

  // Off the schedule, whatever its properties say, until its form loads or one of them changes.
  void Stop();

  Property<int> interval_ms;  // 0 never ticks; a new interval counts from the last tick
  Property<bool> enabled;     // enabling an enabled timer changes nothing
  std::function<void()> on_tick;

 private:
  friend struct Timer_Schedule;
  bool running_ = false;
  bool in_tick_ = false;
  std::int64_t last_us_ = 0;  // when the last tick was due, or the start
  std::int64_t due_us_ = 0;
  Timer* next_ = nullptr;  // list of running timers
};

// Runs the handlers of all timers that are due now, in the order of their times, and asks the desktop for the
// next wake. Called by the desktop at the time it was asked for, or later.
void Timers_Run_Due();

// As long as one of these lives, no timer ticks.
struct Timers_Suspended {
  Timers_Suspended();
  ~Timers_Suspended();
  Timers_Suspended(const Timers_Suspended&) = delete;
  Timers_Suspended& operator=(const Timers_Suspended&) = delete;
};
