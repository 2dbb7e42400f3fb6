// An output line with the thread that pumps it.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>

#include "adapters/midi/clock.h"
#include "adapters/midi/output_line.h"

namespace Midi {

struct Sender {
  // Throws std::system_error where the system has no thread for it.
  Sender(std::unique_ptr<Sink> sink, bool paced, Clock& clock);
  // What still waits is dropped.
  ~Sender();
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  // As Output_Line::Take, now.
  [[nodiscard]] int Send(Message_Kind kind, std::string_view message);

  // 0: everything has left, or nothing has moved for a second, and the sender may be destroyed. 65: messages
  // are still under way; ask again. Waits 10 ms at most.
  [[nodiscard]] int Close();

  Line_Counts Counts() { return line_.Counts(); }

 private:
  void Run();

  Clock& clock_;
  Output_Line line_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool woken_ = false;
  bool ended_ = false;
  std::size_t close_bytes_ = 0;       // that waited at the last look of a close
  std::int64_t close_moved_us_ = -1;  // when fewer of them waited than before; -1: no close was asked for
  std::thread thread_;
};

}  // namespace Midi
