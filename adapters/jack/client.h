// The program's client at the JACK server, with its open ports.
#pragma once

#include <jack/jack.h>
#include <semaphore.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "adapters/jack/output_slot.h"
#include "adapters/jack/worker.h"
#include "adapters/midi/backend.h"
#include "adapters/midi/byte_ring.h"
#include "adapters/midi/clock.h"

namespace Jack {

struct Input_Slot {
  std::atomic<Slot_State> state = Slot_State::Free;
  std::atomic<jack_port_t*> port = nullptr;
  std::atomic<bool> lost = false;  // an event that had no room
  std::string other;               // full name of the other port
  bool opened = false;             // has become live, or will never; of the worker
  Midi::Byte_Receiver receiver;    // under Client's lock
};

struct Client : std::enable_shared_from_this<Client> {
  // Connects to the running server, on the worker; never starts one. nullptr: there is none. The client is
  // taken down on the worker too, whoever lets it go last.
  static std::shared_ptr<Client> Connect(const std::weak_ptr<Worker::Queue>& worker, Midi::Clock& clock);
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  bool Dead() const { return dead_; }  // the server has gone
  jack_nframes_t Now();                // frame time; any thread
  // Takes the client of a dead server down while its ports are still held, which the library would else do by
  // itself when the next client is made. Worker only.
  void Take_Down();

  // Below: user-interface thread. None of them waits for the server.
  std::vector<Midi::Port> Ports(Midi::Direction direction) const;
  // nullptr: the port is no longer there, or no slot is free.
  [[nodiscard]] Output_Slot* Open_Output(const std::string& destination);
  void Close_Output(Output_Slot& slot);
  [[nodiscard]] Input_Slot* Open_Input(const std::string& origin, Midi::Byte_Receiver receiver);
  void Close_Input(Input_Slot& slot);  // its receiver is not called any more

 private:
  static constexpr std::size_t Slots = 8;
  static constexpr std::size_t Input_Ring_Size = 65536;

  Client(jack_client_t* client, const std::weak_ptr<Worker::Queue>& worker, Midi::Clock& clock);
  [[nodiscard]] bool Activate();
  bool Has_Port(const std::string& name) const;
  template <class Slot>
  void Post_Opening(Slot& slot, const char* name, unsigned long flags);
  template <class Slot>
  void Post_Closing(Slot& slot);
  template <class Slot>
  void Close_Drained(Slot& slot);
  [[nodiscard]] int Link(const Output_Slot& slot) const;
  [[nodiscard]] int Link(const Input_Slot& slot) const;
  static void Lost(Output_Slot& slot) { slot.gone = true; }
  static void Lost(Input_Slot&) {}  // an input whose port is not there stays silent
  // Whether nothing of the slot is on its way any more, or can be.
  bool Drained(const Output_Slot& slot) const;
  bool Drained(const Input_Slot&) const { return true; }
  // Polls look on the worker, with other tasks in between, until it returns true or patience_us has passed;
  // then runs next. Worker only.
  using Look = std::function<bool()>;
  using Task = std::function<void()>;
  void When(Look look, std::int64_t patience_us, Task next);
  void Look_Until(std::int64_t end_us, Look look, Task next);
  void After_Periods(unsigned count, Task next);
  void Find_Gone();
  int Process(jack_nframes_t count);
  void Read_Input(std::uint32_t slot, jack_nframes_t count);
  void Run_Input();

  jack_client_t* const client_;  // valid until it is taken down, for the process thread until that has ended
  std::mutex taking_down_;       // guards what follows
  bool taken_down_ = false;
  std::weak_ptr<Worker::Queue> worker_;
  Midi::Clock& clock_;
  std::string own_prefix_;  // our name and ":"
  std::atomic<bool> dead_ = false;
  std::atomic<bool> look_posted_ = false;  // for ports that have gone
  std::atomic<unsigned> periods_ = 0;
  std::array<Output_Slot, Slots> outputs_;
  std::array<Input_Slot, Slots> inputs_;
  Midi::Byte_Ring input_ring_{Input_Ring_Size};  // of events, each with the number of its slot as its tag
  sem_t input_waits_{};
  std::atomic<bool> ended_ = false;
  std::mutex receivers_;
  std::thread input_thread_;
};

}  // namespace Jack
