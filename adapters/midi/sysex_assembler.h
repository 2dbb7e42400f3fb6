// Joins the bytes of an input to complete System Exclusive messages.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace Midi {

constexpr std::size_t Longest_Sysex = 10000;  // bytes, F0 and F7 included

struct Sysex_Assembler {
  // Takes the next bytes of the stream, and calls complete for each message that ends in them, F0 to F7. Real
  // time bytes inside a message are left out. A message that another status byte ends, and one that is too
  // long, is dropped; so is everything that is no System Exclusive message.
  void Put(std::string_view bytes, const std::function<void(std::string&& message)>& complete);

 private:
  std::string message_;  // empty: none has begun
};

}  // namespace Midi
