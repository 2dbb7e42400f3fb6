// One open JACK output: a ring of stamped messages between the sender thread and the server's process thread.
#pragma once

#include <jack/jack.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/midi/byte_ring.h"

namespace Jack {

enum class Slot_State {
  Free,
  Opening,  // messages gather, until the port is there and connected
  Live,
  Closing,
};

// Where in the period of count frames that starts at period_start a message stands that was stamped with the
// frame time: one period behind its stamp, or at once if that has passed. Nothing: in a later period.
std::optional<jack_nframes_t> Offset_In_Period(jack_nframes_t stamp, jack_nframes_t period_start,
                                               jack_nframes_t count);

struct Output_Slot {
  std::atomic<Slot_State> state = Slot_State::Free;
  std::atomic<jack_port_t*> port = nullptr;  // ours
  std::atomic<bool> gone = false;            // the other port is no longer there
  std::string other;                         // full name of the other port
  bool opened = false;                       // has become live, or will never; of the worker

  // User-interface thread. REQUIRES: the slot is free, or its process thread has left it.
  void Empty();
  // Sender thread. Puts a message in as a whole, with the frame time of now; false: no room.
  [[nodiscard]] bool Put(jack_nframes_t now, std::string_view message);
  // Bytes of messages in periods that have ended, since the slot was opened. Any thread.
  std::size_t Passed_Bytes() const { return passed_; }
  // Whether all that was put in has gone out. REQUIRES: the sender thread has ended.
  bool Drained() const { return passed_ == put_; }

  // Process thread: writes what is due into the port's buffer of the period of count frames that starts at
  // the frame time. Each message stands exactly one period after its stamp; what has no room goes into the
  // next period.
  void Process(jack_nframes_t period_start, jack_nframes_t count);

 private:
  bool Next_Message();

  // More than an output ever has under way: 4,096 bytes and one long message, with their heads.
  static constexpr std::size_t Ring_Size = 32768;

  Midi::Byte_Ring ring_{Ring_Size};  // of messages, each with the frame of its stamp as its tag
  std::atomic<std::size_t> passed_ = 0;
  std::size_t put_ = 0;  // of the sender thread

  // of the process thread
  std::size_t placed_ = 0;    // in buffers, that of this period included
  jack_nframes_t stamp_ = 0;  // of the message that goes out
  std::uint32_t left_ = 0;    // bytes of it that were not placed yet
};

}  // namespace Jack
