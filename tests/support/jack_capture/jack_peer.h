// A JACK client for tests, with one MIDI port "in" and one "out". It shares nothing with the program's own.
#pragma once

#include <jack/jack.h>
#include <jack/ringbuffer.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

struct Jack_Event {
  std::int64_t time_us = 0;  // of the frame it stands at, by the server's clock
  std::string bytes;
};

struct Jack_Peer {
  // in_flags: more flags for the port "in", such as JackPortIsPhysical. alias: a second name of it, if not
  // empty.
  explicit Jack_Peer(const std::string& name, unsigned long in_flags = 0, const std::string& alias = {});
  ~Jack_Peer();
  Jack_Peer(const Jack_Peer&) = delete;
  Jack_Peer& operator=(const Jack_Peer&) = delete;

  bool Is_Open() const { return client_ != nullptr; }  // false: no server runs
  bool Is_Dead() const { return dead_; }               // the server has gone
  std::string Name() const;

  std::vector<Jack_Event> Take_Events();  // that came since the last call
  unsigned Periods() const { return periods_; }
  // As one event at the start of the next period. Up to 16 KB wait.
  void Send(const std::string& bytes);

  // Connects "in" to every MIDI output whose full name the pattern (a regular expression) matches, where it
  // is not yet.
  void Connect_To(const std::string& pattern);
  std::vector<std::string> Connections() const;  // of "in"

 private:
  int Process(jack_nframes_t count);

  jack_client_t* client_ = nullptr;
  jack_port_t* in_ = nullptr;
  jack_port_t* out_ = nullptr;
  jack_ringbuffer_t* received_ = nullptr;
  jack_ringbuffer_t* to_send_ = nullptr;
  std::atomic<bool> dead_ = false;
  std::atomic<bool> overrun_ = false;
  std::atomic<unsigned> periods_ = 0;
};
