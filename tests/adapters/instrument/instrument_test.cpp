// The built-in instrument: what a byte stream does to it, and its place among the devices.
#include "adapters/instrument/instrument.h"

#include <numeric>

#include "adapters/midi/service.h"
#include "support/midi_contract.h"

namespace {

using Instrument::Parameter_List;

constexpr Instrument::List_Id Tone{0x21, 0x20, 1};

// 1, 2, ... 59
Parameter_List Counting_Tone() {
  Parameter_List values(59);
  std::iota(values.begin(), values.end(), std::uint8_t{1});
  return values;
}

Byte_String Dump(const char* head) {
  Byte_String bytes = Bytes_Of(head);
  for (const std::uint8_t value : Counting_Tone()) bytes += static_cast<char>(value);
  return bytes;
}

TEST(Receiver, Takes_The_59_Values_Of_A_Dump_Whatever_Follows_Them_And_Nothing_Of_A_Shorter_One) {
  const Byte_String whole = Dump("F0 41 35 00 21 20 01");
  for (const char* rest : {"F7", "24 07 F0 41 36 00 21 30 01 05 7F F7", "90 3C 40", ""}) {
    Instrument::Receiver receiver;
    receiver.Take(whole + Bytes_Of(rest));
    EXPECT_EQ(receiver.memory.Values(Tone), Counting_Tone()) << rest;
  }
  Instrument::Receiver receiver;
  receiver.Take(whole.substr(0, whole.size() - 1) + "\xF7");
  EXPECT_EQ(receiver.memory.Values(Tone), Instrument::Receiver().memory.Values(Tone));
}

TEST(Receiver, A_Parameter_Message_Holds_Pairs_Up_To_Its_End) {
  Instrument::Receiver receiver;
  // No F7: the next status byte ends it, and its lone last byte means nothing.
  receiver.Take(Name_Message() + Bytes_Of("90 3C 40"));
  EXPECT_EQ(receiver.memory.Values(Tone)[0], 'T');
  EXPECT_EQ(receiver.memory.Values(Tone)[15], 0);
  EXPECT_TRUE(receiver.Sounds(0, 0x3C));
  // A clock byte ends nothing; a number that the list does not have is passed over, and so is another list.
  receiver.Take(Bytes_Of("F0 41 36 00 21 20 01 0B F8 7F 3B 11 0C 22 F7 F0 41 36 00 21 30 01 0B 00 F7"));
  EXPECT_EQ(receiver.memory.Values(Tone)[11], 0x7F);
  EXPECT_EQ(receiver.memory.Values(Tone)[12], 0x22);
}

TEST(Built_In, Transmits_Its_Tone_To_Who_Starts_To_Listen) {
  Posts posts;
  Instrument::Built_In instrument;
  Midi::Service service({&instrument}, posts.Poster());
  const std::int32_t handle = Open_Output(service, "Built-in JX-8P");
  const Byte_String dump = Dump("F0 41 35 09 21 20 01") + "\xF7";
  ASSERT_EQ(Send_Long(service, handle, dump), Midi_Ok);
  ASSERT_TRUE(Await([&] { return instrument.Values(Tone) == Counting_Tone(); }));
  Test_Input input(service, "Built-in JX-8P");
  EXPECT_TRUE(posts.Run_Until([&] { return input.received == Texts{dump}; }));
}

}  // namespace
