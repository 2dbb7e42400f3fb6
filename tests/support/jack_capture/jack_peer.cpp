#include "support/jack_capture/jack_peer.h"

#include <jack/midiport.h>

#include <stdexcept>

namespace {

constexpr std::size_t Received_Size = 1'048'576;
constexpr std::size_t To_Send_Size = 16'384;

struct Head {
  jack_nframes_t frame;
  std::uint32_t size;
};

void Say_Nothing(const char* /*message*/) {}

bool Put(jack_ringbuffer_t* ring, Head head, const char* bytes) {
  if (jack_ringbuffer_write_space(ring) < sizeof head + head.size) return false;
  jack_ringbuffer_write(ring, reinterpret_cast<const char*>(&head), sizeof head);
  jack_ringbuffer_write(ring, bytes, head.size);
  return true;
}

bool Next(jack_ringbuffer_t* ring, Head& head) {
  if (jack_ringbuffer_peek(ring, reinterpret_cast<char*>(&head), sizeof head) < sizeof head) return false;
  if (jack_ringbuffer_read_space(ring) < sizeof head + head.size) return false;
  jack_ringbuffer_read_advance(ring, sizeof head);
  return true;
}

}  // namespace

Jack_Peer::Jack_Peer(const std::string& name, unsigned long in_flags, const std::string& alias) {
  jack_set_error_function(Say_Nothing);
  jack_set_info_function(Say_Nothing);
  client_ = jack_client_open(name.c_str(), JackNoStartServer, nullptr);
  if (client_ == nullptr) return;
  received_ = jack_ringbuffer_create(Received_Size);
  to_send_ = jack_ringbuffer_create(To_Send_Size);
  in_ = jack_port_register(client_, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput | in_flags, 0);
  out_ = jack_port_register(client_, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
  if (!alias.empty()) jack_port_set_alias(in_, alias.c_str());
  const auto process = [](jack_nframes_t count, void* self) {
    return static_cast<Jack_Peer*>(self)->Process(count);
  };
  jack_set_process_callback(client_, process, this);
  jack_on_shutdown(
      client_, [](void* self) { static_cast<Jack_Peer*>(self)->dead_ = true; }, this);
  jack_activate(client_);
}

Jack_Peer::~Jack_Peer() {
  if (client_ == nullptr) return;
  jack_client_close(client_);
  jack_ringbuffer_free(received_);
  jack_ringbuffer_free(to_send_);
}

std::string Jack_Peer::Name() const { return jack_get_client_name(client_); }

int Jack_Peer::Process(jack_nframes_t count) {
  const jack_nframes_t start = jack_last_frame_time(client_);
  void* in = jack_port_get_buffer(in_, count);
  const std::uint32_t events = jack_midi_get_event_count(in);
  for (std::uint32_t i = 0; i < events; ++i) {
    jack_midi_event_t event{};
    if (jack_midi_event_get(&event, in, i) != 0) continue;
    const Head head{start + event.time, static_cast<std::uint32_t>(event.size)};
    if (!Put(received_, head, reinterpret_cast<const char*>(event.buffer))) overrun_ = true;
  }
  void* out = jack_port_get_buffer(out_, count);
  jack_midi_clear_buffer(out);
  for (Head head{}; Next(to_send_, head);) {
    jack_midi_data_t* data = jack_midi_event_reserve(out, 0, head.size);
    if (data == nullptr) {
      overrun_ = true;
      jack_ringbuffer_read_advance(to_send_, head.size);
      continue;
    }
    jack_ringbuffer_read(to_send_, reinterpret_cast<char*>(data), head.size);
  }
  ++periods_;
  return 0;
}

std::vector<Jack_Event> Jack_Peer::Take_Events() {
  if (overrun_) throw std::runtime_error("the test's JACK client could not keep up");
  std::vector<Jack_Event> events;
  for (Head head{}; Next(received_, head);) {
    Jack_Event event;
    event.time_us = static_cast<std::int64_t>(jack_frames_to_time(client_, head.frame));
    event.bytes.resize(head.size);
    jack_ringbuffer_read(received_, event.bytes.data(), head.size);
    events.push_back(event);
  }
  return events;
}

void Jack_Peer::Send(const std::string& bytes) {
  if (!Put(to_send_, {0, static_cast<std::uint32_t>(bytes.size())}, bytes.data())) {
    throw std::runtime_error("too much for the test's JACK client to send");
  }
}

void Jack_Peer::Connect_To(const std::string& pattern) {
  const char** names = jack_get_ports(client_, pattern.c_str(), JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput);
  for (const char** name = names; name != nullptr && *name != nullptr; ++name) {
    if (jack_port_connected_to(in_, *name) == 0) jack_connect(client_, *name, jack_port_name(in_));
  }
  jack_free(names);
}

std::vector<std::string> Jack_Peer::Connections() const {
  std::vector<std::string> list;
  const char** names = jack_port_get_all_connections(client_, in_);
  for (const char** name = names; name != nullptr && *name != nullptr; ++name) list.emplace_back(*name);
  jack_free(names);
  return list;
}
