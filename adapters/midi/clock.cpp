#include "adapters/midi/clock.h"

#include <chrono>
#include <thread>

namespace Midi {
namespace {

struct Real_Time final : Clock {
  std::int64_t Now_us() override {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
  }
  void Sleep_us(std::int64_t duration_us) override {
    std::this_thread::sleep_for(std::chrono::microseconds(duration_us));
  }
};

constinit Real_Time real_time;

}  // namespace

Clock& Steady_Clock() { return real_time; }

}  // namespace Midi
