#include "platform/timer.h"

#include "platform/desktop.h"
#include "platform/dispatch.h"
#include "platform/form.h"

namespace {
constexpr std::int64_t us_per_ms = 1000;
constexpr std::int64_t Never = -1;
}  // namespace

struct Timer_Schedule {
  static inline Timer* first = nullptr;
  static inline int suspended = 0;
  static inline std::int64_t asked_us = Never;

  static void Link(Timer& timer) {
    timer.next_ = first;
    first = &timer;
    timer.running_ = true;
  }

  static void Unlink(Timer& timer) {
    for (Timer** link = &first; *link != nullptr; link = &(*link)->next_) {
      if (*link != &timer) continue;
      *link = timer.next_;
      break;
    }
    timer.running_ = false;
  }

  static void Update(Timer& timer) {
    const std::int64_t interval_us = timer.interval_ms() * us_per_ms;
    const bool wanted = timer.enabled() && interval_us > 0;
    if (wanted && !timer.running_) {
      timer.last_us_ = The_Desktop().Now_us();
      Link(timer);
    } else if (!wanted && timer.running_) {
      Unlink(timer);
    }
    timer.due_us_ = timer.last_us_ + interval_us;
    Ask();
  }

  static Timer* Earliest(std::int64_t limit_us) {
    Timer* earliest = nullptr;
    for (Timer* timer = first; timer != nullptr; timer = timer->next_) {
      if (timer->in_tick_ || timer->due_us_ > limit_us) continue;
      if (earliest == nullptr || timer->due_us_ < earliest->due_us_) earliest = timer;
    }
    return earliest;
  }

  static void Ask() {
    const Timer* next = suspended > 0 ? nullptr : Earliest(INT64_MAX);
    const std::int64_t wanted_us = next == nullptr ? Never : next->due_us_;
    if (wanted_us == asked_us) return;
    asked_us = wanted_us;
    The_Desktop().Wake_At_us(wanted_us);
  }

  static void Tick(Timer& timer, std::int64_t now_us) {
    const std::int64_t interval_us = timer.interval_ms() * us_per_ms;
    const std::int64_t missed = (now_us - timer.due_us_) / interval_us;
    timer.last_us_ = timer.due_us_ + missed * interval_us;
    timer.due_us_ = timer.last_us_ + interval_us;
    if (!timer.on_tick) return;
    timer.in_tick_ = true;
    Ask();  // the handler may let events run, and the others keep their times
    Dispatch(timer.on_tick);
    timer.in_tick_ = false;
  }

  static void Run_Due() {
    asked_us = Never;
    const std::int64_t now_us = The_Desktop().Now_us();
    while (suspended == 0) {
      Timer* timer = Earliest(now_us);
      if (timer == nullptr) break;
      Tick(*timer, now_us);
    }
    Ask();
  }

  static void Resume() {
    if (--suspended == 0) Ask();
  }
};

Timer::Timer(Form& form, std::string_view timer_name, int start_interval_ms, bool start_enabled)
    : Component(timer_name), interval_ms(*this, start_interval_ms), enabled(*this, start_enabled) {
  form.timers.push_back(this);
}

Timer::~Timer() {
  if (running_) Timer_Schedule::Unlink(*this);
}

void Timer::Changed() {
  if (Desktop_Installed()) Timer_Schedule::Update(*this);
}

void Timer::Stop() {
  if (running_) Timer_Schedule::Unlink(*this);
  Timer_Schedule::Ask();
}

void Timers_Run_Due() { Timer_Schedule::Run_Due(); }

Timers_Suspended::Timers_Suspended() {
  ++Timer_Schedule::suspended;
  Timer_Schedule::Ask();
}

Timers_Suspended::~Timers_Suspended() { Timer_Schedule::Resume(); }
