#include "adapters/midi/sysex_assembler.h"

#include <utility>

namespace Midi {
namespace {
constexpr unsigned char Sysex_Start = 0xF0;
constexpr unsigned char Sysex_End = 0xF7;
constexpr unsigned char First_Status = 0x80;
constexpr unsigned char First_Real_Time = 0xF8;
}  // namespace

void Sysex_Assembler::Put(std::string_view bytes,
                          const std::function<void(std::string&& message)>& complete) {
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= First_Real_Time) continue;
    if (byte == Sysex_Start) {
      message_.assign(1, c);
      continue;
    }
    if (message_.empty()) continue;
    if ((byte >= First_Status && byte != Sysex_End) || message_.size() >= Longest_Sysex) {
      message_.clear();
      continue;
    }
    message_ += c;
    if (byte == Sysex_End) complete(std::exchange(message_, {}));
  }
}

}  // namespace Midi
