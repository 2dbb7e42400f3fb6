#include "adapters/instrument/byte_parser.h"

namespace Instrument {
namespace {
constexpr std::uint8_t First_Status = 0x80;
constexpr std::uint8_t Program_Change = 0xC0;
constexpr std::uint8_t Pitch_Bend = 0xE0;
constexpr std::uint8_t Sysex_Start = 0xF0;
constexpr std::uint8_t First_Real_Time = 0xF8;
}  // namespace

void Byte_Parser::Take(std::string_view bytes) {
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    if (byte >= First_Real_Time) continue;
    if (byte >= First_Status) {
      Take_Status(byte);
    } else {
      Take_Data(byte);
    }
  }
}

void Byte_Parser::Take_Status(std::uint8_t status) {
  if (in_sysex_) handler_.Sysex_Ends();
  in_sysex_ = status == Sysex_Start;
  count_ = 0;
  status_ = status < Sysex_Start ? status : std::uint8_t{0};
  if (in_sysex_) handler_.Sysex_Begins();
}

void Byte_Parser::Take_Data(std::uint8_t data) {
  if (in_sysex_) {
    handler_.Sysex_Data(data);
    return;
  }
  if (status_ == 0) return;
  data_[count_++] = data;
  const bool short_form = status_ >= Program_Change && status_ < Pitch_Bend;
  if (count_ < (short_form ? 1U : 2U)) return;
  const std::uint8_t second = short_form ? std::uint8_t{0} : data_[1];
  count_ = 0;
  handler_.Channel_Message(status_, data_[0], second);
}

}  // namespace Instrument
