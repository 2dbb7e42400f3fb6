// The time by which the adapters give up, so that a test can let it pass by hand.
#pragma once

#include <cstdint>

namespace Midi {

// REQUIRES: outlives its users, including threads that were abandoned in a library call that hangs.
struct Clock {
  virtual std::int64_t Now_us() = 0;                    // never goes back; any thread
  virtual void Sleep_us(std::int64_t duration_us) = 0;  // of the calling thread

 protected:
  ~Clock() = default;
};

Clock& Steady_Clock();  // real time

}  // namespace Midi
