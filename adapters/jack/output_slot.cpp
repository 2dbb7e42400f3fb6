#include "adapters/jack/output_slot.h"

#include <jack/midiport.h>

#include <algorithm>

namespace Jack {

std::optional<jack_nframes_t> Offset_In_Period(jack_nframes_t stamp, jack_nframes_t period_start,
                                               jack_nframes_t count) {
  const auto frames = static_cast<std::int32_t>(stamp + count - period_start);
  const auto period = static_cast<std::int32_t>(count);
  // While the server is stopped its frame time runs on, but its periods do not: what was stamped meanwhile is
  // far ahead of them when they go on, and due at once.
  if (frames < 0 || frames >= 2 * period) return 0;
  if (frames >= period) return std::nullopt;
  return static_cast<jack_nframes_t>(frames);
}

void Output_Slot::Empty() {
  ring_.Reset();
  passed_ = 0;
  put_ = 0;
  placed_ = 0;
  left_ = 0;
  gone = false;
}

bool Output_Slot::Put(jack_nframes_t now, std::string_view message) {
  if (!Midi::Put_Record(ring_, now, message)) return false;
  put_ += message.size();
  return true;
}

// Makes the next message the one that goes out, if there is one.
bool Output_Slot::Next_Message() {
  if (left_ > 0) return true;
  const std::optional<Midi::Record_Head> head = Midi::Take_Head(ring_);
  if (!head) return false;
  stamp_ = head->tag;
  left_ = head->size;
  return true;
}

void Output_Slot::Process(jack_nframes_t period_start, jack_nframes_t count) {
  jack_port_t* own = port;
  if (own == nullptr) return;
  void* buffer = jack_port_get_buffer(own, count);
  jack_midi_clear_buffer(buffer);
  passed_ = placed_;
  if (state != Slot_State::Live) return;
  jack_nframes_t last_offset = 0;
  bool empty = true;
  while (Next_Message()) {
    const std::optional<jack_nframes_t> due = Offset_In_Period(stamp_, period_start, count);
    if (!due) return;
    const jack_nframes_t offset = std::max(*due, last_offset);
    const std::size_t room = jack_midi_max_event_size(buffer);
    // Only a message that no whole period has room for is divided.
    if (room == 0 || (room < left_ && !empty)) return;
    const auto size = static_cast<std::uint32_t>(std::min<std::size_t>(room, left_));
    jack_midi_data_t* data = jack_midi_event_reserve(buffer, offset, size);
    if (data == nullptr) return;
    ring_.Read(reinterpret_cast<char*>(data), size);
    left_ -= size;
    placed_ += size;
    last_offset = offset;
    empty = false;
  }
}

}  // namespace Jack
