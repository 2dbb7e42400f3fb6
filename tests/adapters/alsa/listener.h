// A software client of the sequencer, "Listener", with one port "in". It shares nothing with the program's
// own.
#pragma once

#include <alsa/asoundlib.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

struct Listener {
  Listener();
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  std::string Take();  // what it has read since the last call
  // While it sleeps it reads nothing, and the kernel keeps what it has room for.
  void Sleep(bool asleep) { asleep_ = asleep; }
  void Delete_Port();
  // To whoever is connected, System Exclusive bytes in events as given.
  void Send(const std::vector<std::string>& events);

 private:
  void Read();

  snd_seq_t* sequencer_ = nullptr;
  int port_ = -1;
  std::atomic<bool> asleep_ = false;
  std::atomic<bool> ended_ = false;
  std::mutex mutex_;
  std::string bytes_;
  std::thread thread_;
};
