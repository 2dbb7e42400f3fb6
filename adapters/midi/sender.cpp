#include "adapters/midi/sender.h"

#include <chrono>
#include <utility>

#include "platform/midi_service.h"

namespace Midi {
namespace {

constexpr std::int64_t Close_Wait_us = 10'000;
constexpr std::int64_t Give_Up_us = 1'000'000;
constexpr std::int64_t Close_Step_us = 1000;

}  // namespace

Sender::Sender(std::unique_ptr<Sink> sink, bool paced, Clock& clock)
    : clock_(clock), line_(std::move(sink), paced) {
  thread_ = std::thread(&Sender::Run, this);
}

Sender::~Sender() {
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

int Sender::Send(Message_Kind kind, std::string_view message) {
  const int code = line_.Take(kind, message, clock_.Now_us());
  {
    const std::lock_guard lock(mutex_);
    woken_ = true;
  }
  changed_.notify_one();  // a refusal too can be the time to try again
  return code;
}

int Sender::Close() {
  const std::int64_t end_us = clock_.Now_us() + Close_Wait_us;
  for (;;) {
    const std::int64_t now_us = clock_.Now_us();
    const std::size_t bytes = line_.Bytes_Under_Way(now_us);
    if (bytes == 0) return Midi_Ok;
    if (close_moved_us_ < 0 || bytes != close_bytes_) close_moved_us_ = now_us;
    close_bytes_ = bytes;
    if (now_us - close_moved_us_ >= Give_Up_us) return Midi_Ok;
    if (now_us >= end_us) return Midi_Still_Playing;
    // What waits inside a system leaves without notice, so the line is looked at again from time to time.
    clock_.Sleep_us(Close_Step_us);
  }
}

void Sender::Run() {
  std::unique_lock lock(mutex_);
  while (!ended_) {
    woken_ = false;
    lock.unlock();
    const std::int64_t again_us = line_.Pump(clock_.Now_us());
    lock.lock();
    const auto called = [this] { return woken_ || ended_; };
    if (again_us == Never_us) {
      changed_.wait(lock, called);
    } else {
      changed_.wait_for(lock, std::chrono::microseconds(again_us - clock_.Now_us()), called);
    }
  }
}

}  // namespace Midi
