// MIDI over the ALSA sequencer. Raw bytes go into variable-length events as they are. Prints nothing.
#pragma once

#include <memory>

#include "adapters/midi/backend.h"

namespace Alsa {

struct Client;

struct Alsa_Backend final : Midi::Backend {
  Alsa_Backend();
  ~Alsa_Backend() override;
  Alsa_Backend(const Alsa_Backend&) = delete;
  Alsa_Backend& operator=(const Alsa_Backend&) = delete;

  // Where the machine had no sequencer, or that failed, looks whether it has one now.
  void Refresh() override;
  std::vector<Midi::Port> Ports(Midi::Direction direction) override;
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override;
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) override;

 private:
  std::shared_ptr<Client> client_;  // also of the open ports, while they last
};

}  // namespace Alsa
