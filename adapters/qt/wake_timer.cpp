#include "adapters/qt/wake_timer.h"

#include <sys/timerfd.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace {
constexpr std::int64_t us_per_s = 1'000'000;
constexpr std::int64_t ns_per_us = 1000;
}  // namespace

std::int64_t Monotonic_us() {
  timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * us_per_s + now.tv_nsec / ns_per_us;
}

// A kernel timer with an absolute time instead of the toolkit's: it is exact to the microsecond, cannot
// drift, and is served wherever events run, nested loops included.
Wake_Timer::Wake_Timer(std::function<void()> on_wake)
    : descriptor_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
  if (descriptor_ < 0) throw std::system_error(errno, std::generic_category(), "timerfd_create");
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, on_wake = std::move(on_wake)] {
                     std::uint64_t expirations = 0;
                     // Nothing to read: it was set anew between its ringing and now.
                     if (read(descriptor_, &expirations, sizeof expirations) == sizeof expirations) on_wake();
                   });
}

Wake_Timer::~Wake_Timer() {
  notifier_.reset();
  close(descriptor_);
}

void Wake_Timer::Wake_At_us(std::int64_t time_us) {
  itimerspec alarm = {};
  if (time_us >= 0) {
    const std::int64_t at_us = std::max<std::int64_t>(time_us, 1);  // zero would stop the timer
    alarm.it_value.tv_sec = at_us / us_per_s;
    alarm.it_value.tv_nsec = (at_us % us_per_s) * ns_per_us;
  }
  timerfd_settime(descriptor_, TFD_TIMER_ABSTIME, &alarm, nullptr);
}
