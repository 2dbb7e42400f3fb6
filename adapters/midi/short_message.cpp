#include "adapters/midi/short_message.h"

namespace Midi {
namespace {

// Bytes by the upper half of the status 0x80 to 0xE0, and by the status itself from 0xF0 on.
constexpr std::array<std::uint8_t, 8> Channel_Lengths = {3, 3, 3, 3, 2, 2, 3, 0};
constexpr std::array<std::uint8_t, 16> System_Lengths = {1, 2, 3, 2, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

std::size_t Length_By_Status(std::uint32_t status) {
  if (status < 0x80) return 0;
  if (status >= 0xF0) return System_Lengths[status & 0x0FU];
  return Channel_Lengths[(status >> 4U) & 7U];
}

}  // namespace

Short_Message::Short_Message(std::uint32_t message) : length_(Length_By_Status(message & 0xFFU)) {
  for (char& byte : bytes_) {
    byte = static_cast<char>(message & 0xFFU);
    message >>= 8U;
  }
}

}  // namespace Midi
