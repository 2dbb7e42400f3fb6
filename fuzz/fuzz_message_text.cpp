// Message text: whatever the text, at most one byte comes of each pair of characters, and a text of our own
// making comes back as the bytes it was made of. An input is the text.
#include <cstddef>
#include <cstdint>

#include "core/sysex.h"
#include "fuzz_support.h"
#include "platform/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  Require(Hex_To_Bytes(text).size() <= size / 2);
  std::string written;
  for (const char byte : text) written += Hex(static_cast<std::uint8_t>(byte)) + " ";
  Require(Hex_To_Bytes(written) == text);
  return 0;
}
