#include "adapters/instrument/instrument.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Instrument {
namespace {

constexpr std::uint8_t Note_Off = 0x80;
constexpr std::uint8_t Note_On = 0x90;
constexpr std::uint8_t Control_Change = 0xB0;
constexpr std::uint8_t All_Sound_Off = 120;
constexpr std::uint8_t All_Notes_Off = 123;  // the mode messages 124 to 127 are one too

bool Silences(std::uint8_t controller) { return controller == All_Sound_Off || controller >= All_Notes_Off; }

}  // namespace

bool Receiver::Sounds(int channel, int note) const {
  return notes_[static_cast<std::size_t>(channel) * Notes + static_cast<std::size_t>(note)];
}

void Receiver::Channel_Message(std::uint8_t status, std::uint8_t data_1, std::uint8_t data_2) {
  const std::size_t first = (status & 0x0FU) * Notes;
  const unsigned kind = status & 0xF0U;
  if (kind == Note_On) {
    notes_[first + data_1] = data_2 > 0;
  } else if (kind == Note_Off) {
    notes_[first + data_1] = false;
  } else if (kind == Control_Change && Silences(data_1)) {
    for (std::size_t note = 0; note < Notes; ++note) notes_[first + note] = false;
  }
}

struct Built_In::In_Cable final : Midi::Sink {
  explicit In_Cable(Built_In& built_in) : built_in_(built_in) {}
  Midi::Write_Result Write(std::string_view bytes) override {
    const std::lock_guard lock(built_in_.mutex_);
    built_in_.receiver_.Take(bytes);
    return Midi::Write_Result::Taken;
  }
  bool Gone() const override { return false; }

 private:
  Built_In& built_in_;
};

struct Built_In::Out_Cable final : Midi::Source {
  Out_Cable(const Built_In& built_in, Midi::Byte_Receiver receiver)
      : built_in_(built_in), receiver_(std::move(receiver)) {}
  void Started() override { receiver_(built_in_.Tone_Dump()); }

 private:
  const Built_In& built_in_;
  Midi::Byte_Receiver receiver_;
};

Parameter_List Built_In::Values(const List_Id& id) const {
  const std::lock_guard lock(mutex_);
  return receiver_.memory.Values(id);
}

// The unit number is that of the last message, 0 before.
std::string Built_In::Tone_Dump() const {
  const std::lock_guard lock(mutex_);
  const int unit = std::max(0, receiver_.memory.Last_Unit());
  return receiver_.memory.Tone_Dump(static_cast<std::uint8_t>(unit));
}

std::vector<Midi::Port> Built_In::Ports(Midi::Direction /*direction*/) {
  return {{"Built-in JX-8P", "built-in", false}};
}

std::unique_ptr<Midi::Sink> Built_In::Open_Output(const Midi::Port& /*port*/) {
  return std::make_unique<In_Cable>(*this);
}

std::unique_ptr<Midi::Source> Built_In::Open_Input(const Midi::Port& /*port*/, Midi::Byte_Receiver receiver) {
  return std::make_unique<Out_Cable>(*this, std::move(receiver));
}

}  // namespace Instrument
