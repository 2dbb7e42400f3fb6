// A clock that only advances when somebody sleeps by it, such as a test. Thread-safe. A close that uses it
// times out in no real time, so a test must first see that the sending thread has had its turn.
#pragma once

#include <atomic>

#include "adapters/midi/clock.h"

struct Hand_Clock final : Midi::Clock {
  std::int64_t Now_us() override { return now_us_; }
  void Sleep_us(std::int64_t duration_us) override { now_us_ += duration_us; }

 private:
  std::atomic<std::int64_t> now_us_ = 0;
};
