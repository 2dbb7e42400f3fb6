#include "adapters/midi/output_line.h"

#include <algorithm>
#include <utility>

#include "platform/midi_service.h"

namespace Midi {
namespace {
// A sender that wakes a little late keeps to the schedule of the wire; one that was held up for long does not
// make up for it by a burst.
constexpr std::int64_t Catch_Up_us = 5000;
constexpr std::int64_t First_Retry_us = 1000;
constexpr std::int64_t Last_Retry_us = 16000;

constexpr int Message_Of_Status = 0xF0;
constexpr int Control_Change = 0xB0;
constexpr int First_Channel_Mode = 120;  // controllers from here on: All Sound Off to All Notes Off and modes

bool Ends_Notes(std::string_view message) {
  return message.size() == 3 && (message[0] & Message_Of_Status) == Control_Change &&
         message[1] >= First_Channel_Mode;
}

// A line that is too full for a note closes with an All Notes Off, which must not be refused for that reason.
std::size_t Bound(Message_Kind kind, std::string_view message) {
  if (kind == Message_Kind::Long) return Long_Bound;
  return Ends_Notes(message) ? Silence_Bound : Short_Bound;
}

}  // namespace

Output_Line::Output_Line(std::unique_ptr<Sink> sink, bool paced)
    : sink_(std::move(sink)), paced_(paced), piece_(Largest_Write) {}

int Output_Line::Take(Message_Kind kind, std::string_view message, std::int64_t now_us) {
  const std::lock_guard lock(mutex_);
  int code = Midi_Ok;
  if (gone_ || sink_->Gone()) {
    code = Midi_No_Device;
  } else if (std::exchange(failed_, false)) {
    code = Midi_Error;
  } else if (message.size() > Longest_Message) {
    code = Midi_Invalid_Parameter;
  } else if (Waiting_Bytes() >= Bound(kind, message)) {
    code = Midi_Not_Ready;
  }
  if (code != Midi_Ok) {
    ++counts_.refused;
    return code;
  }
  ++counts_.taken;
  taken_bytes_ += message.size();
  if (message.empty()) {
    ++counts_.delivered;
  } else {
    queue_.Push(message, now_us);
  }
  return Midi_Ok;
}

std::int64_t Output_Line::Pump(std::int64_t now_us) {
  for (;;) {
    std::size_t size = 0;
    {
      const std::lock_guard lock(mutex_);
      if (gone_ || failed_ || queue_.Empty()) return Never_us;
      const std::int64_t due_us = Due_us();
      if (due_us > now_us) return due_us;
      size = std::min(queue_.Front_Size() - progress_, Largest_Write);
      queue_.Copy_Front(progress_, size, piece_.data());
    }
    // Outside the lock: a call of the service never waits for the system behind the port.
    const Write_Result result = sink_->Write({piece_.data(), size});
    const std::lock_guard lock(mutex_);
    if (result == Write_Result::Taken) {
      Passed_On(size, now_us);
    } else if (result == Write_Result::Busy) {
      retry_after_us_ = std::clamp(2 * retry_after_us_, First_Retry_us, Last_Retry_us);
      retry_at_us_ = now_us + retry_after_us_;
    } else if (result == Write_Result::Failed) {
      failed_ = true;
    } else {
      gone_ = true;
    }
  }
}

std::int64_t Output_Line::Due_us() const {
  if (!paced_) return retry_at_us_;
  return std::max(retry_at_us_, std::max(queue_.Front_Time_us(), wire_free_us_));
}

void Output_Line::Passed_On(std::size_t size, std::int64_t now_us) {
  const std::int64_t planned_us = std::max(queue_.Front_Time_us(), wire_free_us_);
  const std::int64_t start_us = std::max(planned_us, now_us - Catch_Up_us);
  wire_free_us_ = start_us + static_cast<std::int64_t>(size) * Wire_us_Per_Byte;
  retry_at_us_ = 0;
  retry_after_us_ = 0;
  written_bytes_ += size;
  progress_ += size;
  if (progress_ < queue_.Front_Size()) return;
  progress_ = 0;
  queue_.Pop();
  ++counts_.delivered;
}

std::size_t Output_Line::Waiting_Bytes() const { return taken_bytes_ - sink_->Passed_Bytes(written_bytes_); }

std::size_t Output_Line::Bytes_Under_Way(std::int64_t now_us) {
  const std::lock_guard lock(mutex_);
  if (gone_ || sink_->Gone()) return 0;
  const std::int64_t wire_us = paced_ ? std::max<std::int64_t>(0, wire_free_us_ - now_us) : 0;
  return Waiting_Bytes() + static_cast<std::size_t>((wire_us + Wire_us_Per_Byte - 1) / Wire_us_Per_Byte);
}

Line_Counts Output_Line::Counts() {
  const std::lock_guard lock(mutex_);
  return counts_;
}

}  // namespace Midi
