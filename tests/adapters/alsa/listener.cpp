#include "listener.h"

#include <cerrno>
#include <chrono>
#include <utility>

namespace {
constexpr unsigned All =
    SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_SUBS_WRITE | SND_SEQ_PORT_CAP_READ | SND_SEQ_PORT_CAP_SUBS_READ;
}

Listener::Listener() {
  snd_seq_open(&sequencer_, "default", SND_SEQ_OPEN_DUPLEX, SND_SEQ_NONBLOCK);
  snd_seq_set_client_name(sequencer_, "Listener");
  port_ = snd_seq_create_simple_port(sequencer_, "in", All, SND_SEQ_PORT_TYPE_MIDI_GENERIC);
  thread_ = std::thread(&Listener::Read, this);
}

Listener::~Listener() {
  ended_ = true;
  thread_.join();
  snd_seq_close(sequencer_);
}

void Listener::Delete_Port() { snd_seq_delete_simple_port(sequencer_, port_); }

std::string Listener::Take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(bytes_, {});
}

void Listener::Read() {
  while (!ended_) {
    snd_seq_event_t* event = nullptr;
    const int result = asleep_ ? -EAGAIN : snd_seq_event_input(sequencer_, &event);
    const std::lock_guard lock(mutex_);
    if (result == -EAGAIN) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    } else if (result < 0) {
      bytes_ += "events were lost";
    } else if (event->type == SND_SEQ_EVENT_SYSEX) {
      bytes_.append(static_cast<const char*>(event->data.ext.ptr), event->data.ext.len);
    }
  }
}

void Listener::Send(const std::vector<std::string>& events) {
  for (const std::string& bytes : events) {
    snd_seq_event_t event;
    snd_seq_ev_clear(&event);
    snd_seq_ev_set_source(&event, static_cast<unsigned char>(port_));
    snd_seq_ev_set_subs(&event);
    snd_seq_ev_set_direct(&event);
    snd_seq_ev_set_sysex(&event, static_cast<unsigned>(bytes.size()), const_cast<char*>(bytes.data()));
    snd_seq_event_output_direct(sequencer_, &event);
  }
}
