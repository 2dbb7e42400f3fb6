// MIDI over JACK. Raw bytes go into JACK MIDI events as they are. Never starts a server, prints nothing.
#pragma once

#include <future>
#include <memory>

#include "adapters/midi/backend.h"
#include "adapters/midi/clock.h"

namespace Jack {

struct Client;
struct Worker;

struct Jack_Backend final : Midi::Backend {
  explicit Jack_Backend(Midi::Clock& clock = Midi::Steady_Clock());
  ~Jack_Backend() override;
  Jack_Backend(const Jack_Backend&) = delete;
  Jack_Backend& operator=(const Jack_Backend&) = delete;

  // Connects to the server if that is not done yet, or if it died. Waits half a second at most for a server
  // that does not answer; once it does, the next Refresh sees it.
  void Refresh() override;
  std::vector<Midi::Port> Ports(Midi::Direction direction) override;
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override;
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) override;

 private:
  Midi::Clock& clock_;
  std::unique_ptr<Worker> worker_;
  std::shared_ptr<Client> client_;
  std::future<std::shared_ptr<Client>> connecting_;
};

}  // namespace Jack
