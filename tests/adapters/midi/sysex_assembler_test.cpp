#include "adapters/midi/sysex_assembler.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_service.h"

namespace {

std::vector<std::string> Assemble(const std::string& bytes, std::size_t piece) {
  Midi::Sysex_Assembler assembler;
  std::vector<std::string> messages;
  for (std::size_t at = 0; at < bytes.size(); at += piece) {
    assembler.Put(std::string_view(bytes).substr(at, piece),
                  [&](std::string&& message) { messages.push_back(Hex_Text(message)); });
  }
  return messages;
}

TEST(Sysex_Assembler, Joins_Complete_Messages_And_Ignores_The_Rest) {
  const struct {
    const char* stream;
    std::vector<std::string> want;
  } rows[] = {
      {"F0 41 35 F7", {"F0 41 35 F7"}},
      {"90 3C 40 F0 41 F7 B0 7B 00", {"F0 41 F7"}},
      {"F0 41 FE 35 F8 F7", {"F0 41 35 F7"}},
      {"F0 41 90 3C 40 F7", {}},
      {"F0 41 F0 42 F7 43 F7", {"F0 42 F7"}},
      {"F0 41 F6 42 F7", {}},
      {"41 42 F7 F7", {}},
      {"F0 F7 F0 01 F7", {"F0 F7", "F0 01 F7"}},
  };
  for (const auto& row : rows) {
    for (const std::size_t piece : {1U, 2U, 3U, 64U}) {
      EXPECT_EQ(Assemble(Bytes_Of(row.stream), piece), row.want) << row.stream << " by " << piece;
    }
  }
}

TEST(Sysex_Assembler, Takes_At_Most_10000_Bytes) {
  const std::string longest = "\xF0" + std::string(9998, 'x') + "\xF7";
  const std::string too_long = "\xF0" + std::string(9999, 'x') + "\xF7";
  EXPECT_EQ(Assemble(longest, 256).size(), 1U);
  EXPECT_EQ(Assemble(too_long + "\xF0\x01\xF7", 256), (std::vector<std::string>{"F0 01 F7"}));
}

}  // namespace
