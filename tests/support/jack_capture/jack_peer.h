// A JACK client for tests, with one MIDI port "in" and one "out". It shares nothing with the program's own.
#pragma once

#include <jack/jack.h>
#include <jack/midiport.h>

#include <atomic>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

struct Jack_Event {
  std::int64_t time_us = 0;  // of the frame it stands at, by the server's clock
  std::string bytes;
};

struct Jack_Peer {
  // in_flags: more flags for the port "in", such as JackPortIsPhysical. alias: a second name of it, if not
  // empty.
  explicit Jack_Peer(const std::string& name, unsigned long in_flags = 0, const std::string& alias = {}) {
    jack_set_error_function([](const char*) {});
    jack_set_info_function([](const char*) {});
    client_ = jack_client_open(name.c_str(), JackNoStartServer, nullptr);
    if (client_ == nullptr) return;
    in_ = jack_port_register(client_, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput | in_flags, 0);
    out_ = jack_port_register(client_, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    if (!alias.empty()) jack_port_set_alias(in_, alias.c_str());
    jack_set_process_callback(client_, Process, this);
    jack_on_shutdown(client_, Die, this);
    jack_activate(client_);
  }
  ~Jack_Peer() { Close(); }

  void Close() {
    if (client_ != nullptr) jack_client_close(client_);
    client_ = nullptr;  // not before: the server's thread uses it until then
  }
  bool Sees(const char* port) const { return jack_port_by_name(client_, port) != nullptr; }
  // As long as the lock is held, this client does not end its period.
  std::unique_lock<std::mutex> Hold() { return std::unique_lock(mutex_); }
  bool Is_Open() const { return client_ != nullptr; }  // false: no server runs
  bool Is_Dead() const { return dead_; }               // the server has gone

  std::vector<Jack_Event> Take_Events() {  // that came since the last call
    const std::lock_guard lock(mutex_);
    return std::exchange(received_, {});
  }
  void Send(const std::string& bytes) {  // as one event at the start of a period
    const std::lock_guard lock(mutex_);
    to_send_.push_back(bytes);
  }

 private:
  static void Die(void* self) { static_cast<Jack_Peer*>(self)->dead_ = true; }

  // The server waits for its clients, so this may take its time.
  static int Process(jack_nframes_t count, void* peer) {
    Jack_Peer& self = *static_cast<Jack_Peer*>(peer);
    const std::lock_guard lock(self.mutex_);
    void* in = jack_port_get_buffer(self.in_, count);
    const jack_nframes_t start = jack_last_frame_time(self.client_);
    for (std::uint32_t i = 0; i < jack_midi_get_event_count(in); ++i) {
      jack_midi_event_t event{};
      jack_midi_event_get(&event, in, i);
      const jack_time_t time_us = jack_frames_to_time(self.client_, start + event.time);
      self.received_.push_back(
          {static_cast<std::int64_t>(time_us), {reinterpret_cast<const char*>(event.buffer), event.size}});
    }
    void* out = jack_port_get_buffer(self.out_, count);
    jack_midi_clear_buffer(out);
    for (; !self.to_send_.empty(); self.to_send_.pop_front()) {
      const std::string& bytes = self.to_send_.front();
      const auto* data = reinterpret_cast<const jack_midi_data_t*>(bytes.data());
      if (jack_midi_event_write(out, 0, data, bytes.size()) != 0) break;  // no room: in the next period
    }
    return 0;
  }

  jack_client_t* client_ = nullptr;
  jack_port_t* in_ = nullptr;
  jack_port_t* out_ = nullptr;
  std::mutex mutex_;
  std::vector<Jack_Event> received_;
  std::deque<std::string> to_send_;
  std::atomic<bool> dead_ = false;
};
