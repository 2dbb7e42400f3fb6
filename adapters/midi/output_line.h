// The way of messages from a call of the service to a port: one queue, its bounds, and the pace of the wire.
// Knows no clock of its own: whoever calls tells the time, so that tests move it by hand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

#include "adapters/midi/backend.h"
#include "adapters/midi/message_queue.h"

namespace Midi {

constexpr std::int64_t Wire_us_Per_Byte = 320;  // 31,250 bits a second, ten of them to the byte
constexpr std::size_t Long_Bound = 1024;        // long messages are taken while fewer bytes wait
constexpr std::size_t Short_Bound = 4096;       // short ones while fewer than this do
constexpr std::size_t Silence_Bound = 4352;     // those that end all notes while fewer than this do
constexpr std::size_t Longest_Message = 65536;
constexpr std::int64_t Never_us = std::numeric_limits<std::int64_t>::max();

enum class Message_Kind { Short, Long };

struct Line_Counts {
  std::uint64_t taken = 0;      // messages that were answered with 0
  std::uint64_t delivered = 0;  // of these, passed on whole to the port
  std::uint64_t refused = 0;    // answered with another code
};

struct Output_Line {
  Output_Line(std::unique_ptr<Sink> sink, bool paced);

  // Takes a message for delivery behind all others. 0; 67: too much waits; 68: the port has gone; 11: longer
  // than Longest_Message; 1: the port failed to take an earlier message, which is reported once, and tried
  // again at the next Pump. An empty message is taken and nothing comes of it. Any thread; does not wait for
  // the port.
  [[nodiscard]] int Take(Message_Kind kind, std::string_view message, std::int64_t now_us);

  // Passes on what is due. Returns the time at which it wants to be called again, Never_us: not before the
  // next Take. One thread only.
  [[nodiscard]] std::int64_t Pump(std::int64_t now_us);

  // Taken and not yet passed on by the system, or still on the wire; 0 for a port that has gone.
  std::size_t Bytes_Under_Way(std::int64_t now_us);
  Line_Counts Counts();

 private:
  std::size_t Waiting_Bytes() const;
  std::int64_t Due_us() const;
  void Passed_On(std::size_t size, std::int64_t now_us);

  const std::unique_ptr<Sink> sink_;
  const bool paced_;
  std::mutex mutex_;
  Message_Queue queue_;
  Line_Counts counts_;
  std::size_t taken_bytes_ = 0;
  std::size_t written_bytes_ = 0;
  bool gone_ = false;
  bool failed_ = false;              // not reported yet; nothing is passed on until then
  std::size_t progress_ = 0;         // bytes of the oldest message that were passed on
  std::int64_t wire_free_us_ = 0;    // when the wire has carried what was passed on
  std::int64_t retry_at_us_ = 0;     // a busy port is not asked before
  std::int64_t retry_after_us_ = 0;  // the pause that led there
  std::vector<char> piece_;          // of the pumping thread
};

}  // namespace Midi
