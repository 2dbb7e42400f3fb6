// The built-in instrument: a device "Built-in JX-8P" among the outputs and inputs, so that the program does
// its whole job on a machine without MIDI. It is a receiver of its own, which knows nothing of how the
// program makes its bytes. It makes no sound: it keeps what an instrument would keep. It has no tone buttons
// either: whoever starts to listen gets the JX-8P's tone at once, as if one had been pressed.
#pragma once

#include <bitset>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/instrument/byte_parser.h"
#include "adapters/instrument/parameter_memory.h"
#include "adapters/midi/backend.h"

namespace Instrument {

// The instrument's inside: what a stream of bytes does to it. It listens to all channels and all unit
// numbers.
struct Receiver final : private Byte_Handler {
  Receiver() = default;
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;

  void Take(std::string_view bytes) { parser_.Take(bytes); }

  Parameter_Memory memory;
  int Sounding_Notes() const { return static_cast<int>(notes_.count()); }
  bool Sounds(int channel, int note) const;  // channel in [0, 15], note in [0, 127]

 private:
  static constexpr std::size_t Channels = 16;
  static constexpr std::size_t Notes = 128;

  void Channel_Message(std::uint8_t status, std::uint8_t data_1, std::uint8_t data_2) override;
  void Sysex_Begins() override { memory.Message_Begins(); }
  void Sysex_Data(std::uint8_t data) override { memory.Message_Data(data); }
  void Sysex_Ends() override {}

  Byte_Parser parser_{*this};
  std::bitset<Channels * Notes> notes_;
};

// The device. Safe for threads.
struct Built_In final : Midi::Backend {
  // --- for whoever wants to look inside
  Parameter_List Values(const List_Id& id) const;

  // --- the backend
  void Refresh() override {}
  std::vector<Midi::Port> Ports(Midi::Direction direction) override;
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override;
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) override;

 private:
  struct In_Cable;   // an open output of the program
  struct Out_Cable;  // an open input of the program
  std::string Tone_Dump() const;

  mutable std::mutex mutex_;
  Receiver receiver_;
};

}  // namespace Instrument
