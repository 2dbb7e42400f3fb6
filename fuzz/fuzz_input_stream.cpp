// The input stream: however the bytes come in, what comes out is a whole System Exclusive message, and the
// same ones come out when the stream arrives byte by byte. An input is the stream.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "adapters/midi/sysex_assembler.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view stream(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> at_once;
  std::vector<std::string> in_bytes;
  Midi::Sysex_Assembler whole;
  whole.Put(stream, [&](std::string&& message) { at_once.push_back(message); });
  Midi::Sysex_Assembler single;
  for (std::size_t place = 0; place < size; ++place) {
    single.Put(stream.substr(place, 1), [&](std::string&& message) { in_bytes.push_back(message); });
  }
  Require(at_once == in_bytes);
  for (const std::string& message : at_once) {
    Require(message.size() >= 2 && message.size() <= Midi::Longest_Sysex);
    Require(message.front() == '\xF0' && message.back() == '\xF7');
    for (std::size_t place = 1; place + 1 < message.size(); ++place) {
      Require(static_cast<std::uint8_t>(message[place]) < 0x80);
    }
  }
  return 0;
}
