// The ring between a thread that must not wait and one that may.
#include "adapters/midi/byte_ring.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace {

// The next record: its tag, a colon, its bytes; empty: there is none.
std::string Next(Midi::Byte_Ring& ring) {
  const auto head = Midi::Take_Head(ring);
  if (!head) return {};
  std::string bytes(head->size, '\0');
  EXPECT_EQ(ring.Read(bytes.data(), bytes.size()), bytes.size());
  return std::to_string(head->tag) + ":" + bytes;
}

TEST(Byte_Ring, Records_Come_Whole_And_In_Order_Round_And_Round_And_What_Has_No_Room_Is_Refused) {
  Midi::Byte_Ring ring(32);
  EXPECT_TRUE(Midi::Put_Record(ring, 7, ""));
  for (unsigned i = 0; i < 100; ++i) {
    EXPECT_TRUE(Midi::Put_Record(ring, i, "abcde"));
    EXPECT_FALSE(Midi::Put_Record(ring, i, "four"));
    EXPECT_EQ(Next(ring), i == 0 ? "7:" : std::to_string(i - 1) + ":xyz");
    EXPECT_TRUE(Midi::Put_Record(ring, i, "xyz"));
    EXPECT_EQ(Next(ring), std::to_string(i) + ":abcde");
  }
}

TEST(Byte_Ring, A_Damaged_Length_Reads_Nothing_And_Leaves_A_Ring_That_Works) {
  for (const std::string& damaged : {std::string("\1\0\0\0\xFF\xFF\xFF\xFF", 8),
                                     std::string("\1\0\0\0\6\0\0\0abcde", 13), std::string("\1\0\0")}) {
    Midi::Byte_Ring ring(32);
    EXPECT_TRUE(ring.Write(damaged, ""));
    EXPECT_EQ(Next(ring), "");
    EXPECT_TRUE(Midi::Put_Record(ring, 2, "after"));
    EXPECT_EQ(Next(ring), "2:after");
  }
}

TEST(Byte_Ring, Two_Threads_Need_No_Lock) {
  constexpr unsigned Records = 20'000;
  const auto bytes_of = [](unsigned i) { return std::string(i % 100, static_cast<char>('a' + i % 26)); };
  Midi::Byte_Ring ring(1024);
  std::thread writer([&] {
    for (unsigned i = 0; i < Records; ++i) {
      while (!Midi::Put_Record(ring, i, bytes_of(i))) std::this_thread::yield();
    }
  });
  unsigned right = 0;
  for (unsigned i = 0; i < Records; ++i) {
    std::string record;
    while ((record = Next(ring)).empty()) std::this_thread::yield();
    right += record == std::to_string(i) + ":" + bytes_of(i) ? 1U : 0U;
  }
  writer.join();
  EXPECT_EQ(right, Records);
}

}  // namespace
