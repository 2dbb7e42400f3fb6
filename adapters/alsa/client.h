// The program's client at the ALSA sequencer, with its open ports and the thread that reads its events.
#pragma once

#include <alsa/asoundlib.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "adapters/midi/backend.h"

namespace Alsa {

// A port of another client that messages go to.
struct Destination {
  snd_seq_addr_t address{};
  bool wire = false;
  int own_port = -1;
  std::atomic<bool> gone = false;
};

// A port of another client that messages come from.
struct Origin {
  int own_port = -1;
  Midi::Byte_Receiver receiver;
};

struct Client {
  // nullptr: this machine has no sequencer. Throws std::system_error where there is no thread for it.
  [[nodiscard]] static std::unique_ptr<Client> Open();
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  // The sequencer itself failed: nothing goes or comes any more, and only another client may help. Any
  // thread.
  bool Lost() const { return lost_; }

  // User-interface thread. Hardware first: it is what most people want.
  std::vector<Midi::Port> Ports(Midi::Direction direction) const;
  // False: the port is no longer there, or refuses.
  [[nodiscard]] bool Open_Output(const Midi::Port& port, Destination& destination);
  [[nodiscard]] bool Open_Input(const Midi::Port& port, Origin& origin);
  // The port itself goes in the background: the kernel first waits for the wire. Nothing of it is used any
  // more.
  void Close_Output(Destination& destination);
  void Close_Input(Origin& origin);

  // Sends the bytes, as they are, in one event. Sender threads.
  [[nodiscard]] Midi::Write_Result Write(const Destination& destination, std::string_view bytes);

 private:
  explicit Client(snd_seq_t* sequencer);
  [[nodiscard]] bool Listen_To_Announcements();
  int Make_Port(const char* name, unsigned capabilities);
  [[nodiscard]] bool Encode(std::string_view bytes, snd_seq_event_t& event);
  bool Is_There(const Midi::Port& port, Midi::Direction direction, snd_seq_addr_t& address) const;
  void Delete_Later(int own_port);
  void Run();
  void Delete_Ports();
  [[nodiscard]] bool Read_Events();  // those that have come; false: no more will
  void Take(const snd_seq_event_t& event);
  void Lose(const snd_seq_event_t& event);
  void Lose_All();
  void Receive(int own_port, std::string_view bytes);
  void Break_All();

  snd_seq_t* sequencer_;
  snd_midi_event_t* decoder_ = nullptr;
  int file_ = -1;  // the sequencer's own
  int wake_ = -1;  // an event counter: something to delete, or the end
  int announcements_ = -1;
  std::atomic<bool> ended_ = false;
  std::atomic<bool> lost_ = false;
  std::mutex output_;  // guards what follows, and the library's output
  snd_midi_event_t* encoder_ = nullptr;
  std::mutex ports_;  // guards what follows
  std::vector<Destination*> destinations_;
  std::vector<Origin*> origins_;
  std::vector<int> to_delete_;
  std::thread thread_;
};

}  // namespace Alsa
