// Short messages as the service gets them, packed in 32 bits.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace Midi {

struct Short_Message {
  // message: low byte status, then data 1 and data 2.
  explicit Short_Message(std::uint32_t message);

  // As long as its status says; empty where it does not begin with a status byte.
  std::string_view Bytes() const { return {bytes_.data(), length_}; }

 private:
  std::array<char, 3> bytes_{};
  std::size_t length_ = 0;
};

}  // namespace Midi
