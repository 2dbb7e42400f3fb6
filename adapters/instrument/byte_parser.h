// The receiver's reading of a MIDI byte stream.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Instrument {

// What the parser finds. Data bytes are 0 to 127.
struct Byte_Handler {
  virtual ~Byte_Handler() = default;
  // A channel message that is complete; data_2 is 0 where the message has only one data byte.
  virtual void Channel_Message(std::uint8_t status, std::uint8_t data_1, std::uint8_t data_2) = 0;
  virtual void Sysex_Begins() = 0;
  virtual void Sysex_Data(std::uint8_t data) = 0;
  virtual void Sysex_Ends() = 0;
};

// Takes any stream: real time bytes may stand anywhere, a status stays in force for channel messages that
// follow without one, and a System Exclusive message ends at any status byte that is no real time.
struct Byte_Parser {
  explicit Byte_Parser(Byte_Handler& handler) : handler_(handler) {}
  void Take(std::string_view bytes);

 private:
  void Take_Status(std::uint8_t status);
  void Take_Data(std::uint8_t data);

  Byte_Handler& handler_;
  bool in_sysex_ = false;
  std::uint8_t status_ = 0;  // in force; 0: none, data bytes mean nothing
  std::array<std::uint8_t, 2> data_{};
  std::size_t count_ = 0;  // of data bytes since the last complete message
};

}  // namespace Instrument
