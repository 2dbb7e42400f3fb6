// Pace, bounds and order of an output, by a clock that is moved by hand.
#include "adapters/midi/output_line.h"

#include <gtest/gtest.h>

#include "fake_backend.h"
#include "platform/midi_service.h"

namespace {

using Midi::Message_Kind;

struct Line_Test : testing::Test {
  // Pumps at every time the line asks for, up to the end.
  void Run_Until(std::int64_t end_us) {
    for (std::int64_t due_us = line.Pump(now_us); due_us <= end_us; due_us = line.Pump(now_us))
      now_us = due_us;
    now_us = end_us;
  }
  int Long(const std::string& message) { return line.Take(Message_Kind::Long, message, now_us); }

  Fake_Port port;
  std::int64_t now_us = 0;
  Midi::Output_Line line{std::make_unique<Fake_Sink>(port), true};
};

TEST_F(Line_Test, An_Idle_Wire_Takes_A_Message_At_Once_And_A_Busy_One_Keeps_Its_Spacing) {
  for (const std::size_t size : {10U, 90U, 3U}) Long(std::string(size, 'x'));
  for (const auto& [at_us, next_us, written] :
       {std::tuple{0, std::int64_t{3200}, 10U},
        {3199, 3200, 10U},
        {3200, 32000, 100U},
        {32900, Midi::Never_us, 103U}}) {  // a thread that wakes a little late does not slow the wire down
    EXPECT_EQ(line.Pump(at_us), next_us);
    EXPECT_EQ(port.Bytes().size(), written) << at_us;
  }
  EXPECT_EQ(line.Take(Message_Kind::Short, "\x90\x3C\x40", 32910), Midi_Ok);
  EXPECT_EQ(line.Pump(32910), 32960);
}

TEST_F(Line_Test, A_Port_That_Was_Stuck_Gets_No_Burst) {
  port.answer = Midi::Write_Result::Busy;
  for (int i = 0; i < 100; ++i) Long(std::string(10, 'x'));
  Run_Until(8'000'000);
  port.answer = Midi::Write_Result::Taken;
  Run_Until(8'100'000);
  EXPECT_GE(port.Bytes().size(), 250U);
  EXPECT_LE(port.Bytes().size(), 340U);
}

TEST_F(Line_Test, A_Line_Too_Full_For_A_Note_Still_Takes_The_End_Of_All_Notes) {
  port.answer = Midi::Write_Result::Busy;
  while (line.Take(Message_Kind::Short, "\x90\x3C\x40", now_us) == Midi_Ok) continue;
  const std::string silence("\xB0\x7B\0", 3);
  EXPECT_EQ(line.Take(Message_Kind::Short, silence, now_us), Midi_Ok);
  EXPECT_EQ(line.Take(Message_Kind::Short, "\xB0\x01\x40", now_us), Midi_Not_Ready);
  port.answer = Midi::Write_Result::Taken;
  Run_Until(10'000'000);
  EXPECT_TRUE(port.Bytes().ends_with(silence));
}

TEST_F(Line_Test, A_Large_Message_Is_Written_In_Pieces_And_A_Huge_One_Refused) {
  std::string message;
  for (std::size_t i = 0; i < Midi::Longest_Message; ++i) message += static_cast<char>(i % 127);
  EXPECT_EQ(Long(message + "x"), Midi_Invalid_Parameter);
  EXPECT_EQ(Long(message), Midi_Ok);
  Run_Until(60'000'000);
  EXPECT_EQ(port.Bytes(), message);
}

TEST_F(Line_Test, An_Error_Of_One_Write_Is_Reported_Once_And_The_Message_Tried_Again) {
  port.answer = Midi::Write_Result::Failed;
  EXPECT_EQ(Long("ab"), Midi_Ok);
  EXPECT_EQ(line.Pump(now_us), Midi::Never_us) << "until it was reported";
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(Long("cd"), Midi_Error);
    EXPECT_EQ(Long("ef"), Midi_Ok);
    EXPECT_EQ(line.Pump(now_us), Midi::Never_us);
  }
  port.answer = Midi::Write_Result::Taken;
  EXPECT_EQ(Long("gh"), Midi_Error);
  Run_Until(10'000);
  EXPECT_EQ(port.Bytes(), "abefef");
}

TEST_F(Line_Test, Of_A_Port_That_Goes_In_Mid_Stream_Nothing_Is_Under_Way) {
  for (int i = 0; i < 5; ++i) Long(std::string(100, 'x'));
  Run_Until(40'000);
  port.answer = Midi::Write_Result::Gone;
  EXPECT_EQ(Long("x"), Midi_No_Device);
  EXPECT_EQ(line.Bytes_Under_Way(now_us), 0U) << "a close need not wait";
  EXPECT_EQ(line.Pump(now_us + 100'000), Midi::Never_us);
  EXPECT_EQ(port.Bytes().size(), 200U);
  const auto [taken, delivered, refused] = line.Counts();
  EXPECT_EQ(std::tuple(taken, delivered, refused), std::tuple(5U, 2U, 1U));
}

}  // namespace
