// An open input: its buffers, and the way of a complete message from the input's thread into one of them.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/midi/backend.h"
#include "adapters/midi/sysex_assembler.h"
#include "platform/midi_service.h"

namespace Midi {

// Runs a function on the user-interface thread, after those that it was given before. Any thread.
using Poster = std::function<void(std::function<void()>)>;

// User-interface thread only, but for the bytes that come from its source.
struct Input {
  Input(Midi_Receiver receiver, Poster post);
  ~Input();
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  // Opens the port. False if it is no longer there.
  [[nodiscard]] bool Open(Backend& backend, const Port& port);

  [[nodiscard]] int Add_Buffer(MIDI_Header& header);
  bool Has_Buffer(const MIDI_Header& header) const;
  void Start();  // REQUIRES: Open succeeded
  void Reset();  // stops, and gives all buffers back empty

 private:
  // Lives as long as the last message that is on its way to the user-interface thread.
  struct State {
    Midi_Receiver receiver;
    std::vector<MIDI_Header*> buffers;
    unsigned runs = 0;
    std::atomic<unsigned> run = 0;  // number of the start that lasts, 0: stopped
  };
  void Take_Bytes(std::string_view bytes);
  static void Deliver(const std::shared_ptr<State>& state, unsigned run, std::string& message);

  Poster post_;
  std::shared_ptr<State> state_;
  Sysex_Assembler assembler_;
  std::unique_ptr<Source> source_;
};

}  // namespace Midi
