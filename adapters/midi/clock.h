// The time by which the adapters give up, so that a test can let it pass by hand.
#pragma once

#include <cstdint>

namespace Midi {

// Outlives all who use it, threads that were left behind with a system that hangs included.
struct Clock {
  virtual std::int64_t Now_us() = 0;                    // never goes back; any thread
  virtual void Sleep_us(std::int64_t duration_us) = 0;  // of the calling thread

 protected:
  ~Clock() = default;
};

Clock& Steady_Clock();  // real time

}  // namespace Midi
