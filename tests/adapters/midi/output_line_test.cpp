// Pace, bounds and order of an output, by a clock that is moved by hand.
#include "adapters/midi/output_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "fake_backend.h"
#include "platform/midi_service.h"
#include "support/recording_service.h"

namespace {

using Midi::Message_Kind;

struct Line_Test : testing::Test {
  // Pumps at every time the line asks for, up to the end.
  void Run_Until(Midi::Output_Line& line, std::int64_t end_us) {
    for (std::int64_t due_us = line.Pump(now_us); due_us <= end_us; due_us = line.Pump(now_us))
      now_us = due_us;
    now_us = end_us;
  }
  Midi::Output_Line Line(bool paced) { return {std::make_unique<Fake_Sink>(port), paced}; }

  Fake_Port port;
  std::int64_t now_us = 1'000'000;
};

TEST_F(Line_Test, An_Idle_Wire_Takes_A_Message_At_Once) {
  Midi::Output_Line line = Line(true);
  for (int i = 0; i < 3; ++i) {
    line.Take(Message_Kind::Short, "\x90\x3C\x40", now_us);
    line.Pump(now_us);
    EXPECT_EQ(port.Take_Bytes(99), "\x90\x3C\x40");
    now_us += 960;
  }
}

TEST_F(Line_Test, Under_Load_The_Spacing_Is_The_Wires) {
  Midi::Output_Line line = Line(true);
  const std::int64_t start_us = now_us;
  for (const std::size_t size : {10U, 90U, 3U}) line.Take(Message_Kind::Long, std::string(size, 'x'), now_us);
  EXPECT_EQ(line.Pump(now_us), start_us + 3200);
  EXPECT_EQ(port.Bytes().size(), 10U);
  EXPECT_EQ(line.Pump(start_us + 3199), start_us + 3200);
  EXPECT_EQ(port.Bytes().size(), 10U);
  EXPECT_EQ(line.Pump(start_us + 3200), start_us + 32000);
  EXPECT_EQ(port.Bytes().size(), 100U);
  // A thread that wakes a little late does not slow the wire down.
  EXPECT_EQ(line.Pump(start_us + 32900), Midi::Never_us);
  line.Take(Message_Kind::Short, "\x90\x3C\x40", start_us + 32910);
  EXPECT_EQ(line.Pump(start_us + 32910), start_us + 32960);
}

TEST_F(Line_Test, A_Port_That_Was_Stuck_Gets_No_Burst) {
  Midi::Output_Line line = Line(true);
  port.busy = true;
  for (int i = 0; i < 100; ++i) line.Take(Message_Kind::Long, std::string(10, 'x'), now_us);
  Run_Until(line, now_us + 8'000'000);
  EXPECT_EQ(port.Bytes().size(), 0U);
  EXPECT_LT(port.writes, 1000) << "a stuck port is asked from time to time only";
  port.busy = false;
  Run_Until(line, now_us + 100'000);
  EXPECT_GE(port.Bytes().size(), 250U);
  EXPECT_LE(port.Bytes().size(), 340U);
}

TEST_F(Line_Test, A_Software_Port_Is_Not_Paced) {
  Midi::Output_Line line = Line(false);
  for (int i = 0; i < 100; ++i) line.Take(Message_Kind::Long, std::string(10, 'x'), now_us);
  EXPECT_EQ(line.Pump(now_us), Midi::Never_us);
  EXPECT_EQ(port.Bytes().size(), 1000U);
}

TEST_F(Line_Test, A_Large_Message_Is_Written_In_Pieces_And_A_Huge_One_Refused) {
  Midi::Output_Line line = Line(true);
  std::string message(Midi::Longest_Message, 'x');
  for (std::size_t i = 0; i < message.size(); ++i) message[i] = static_cast<char>(i % 127);
  EXPECT_EQ(line.Take(Message_Kind::Long, message + "x", now_us), Midi_Invalid_Parameter);
  EXPECT_EQ(line.Take(Message_Kind::Long, message, now_us), Midi_Ok);
  EXPECT_EQ(line.Take(Message_Kind::Short, "\x90\x3C\x40", now_us), Midi_Not_Ready);
  Run_Until(line, now_us + 60'000'000);
  EXPECT_EQ(port.writes, 32);
  EXPECT_EQ(port.Bytes(), message);
}

TEST_F(Line_Test, Every_Message_Is_Counted_Once) {
  Midi::Output_Line line = Line(false);
  port.busy = true;
  for (int i = 0; i < 5; ++i) line.Take(Message_Kind::Long, std::string(500, 'x'), now_us);
  line.Take(Message_Kind::Long, {}, now_us);
  EXPECT_EQ(line.Bytes_Under_Way(now_us), 1500U);
  Midi::Line_Counts counts = line.Counts();
  EXPECT_EQ(counts.taken, 3U);
  EXPECT_EQ(counts.refused, 3U);
  EXPECT_EQ(counts.delivered, 0U);
  port.busy = false;
  Run_Until(line, now_us + 100'000);
  EXPECT_EQ(line.Counts().delivered, 3U);
  EXPECT_EQ(line.Bytes_Under_Way(now_us), 0U);
}

TEST_F(Line_Test, A_Port_That_Goes_In_Mid_Stream_Ends_The_Line) {
  Midi::Output_Line line = Line(true);
  for (int i = 0; i < 5; ++i) line.Take(Message_Kind::Long, std::string(100, 'x'), now_us);
  Run_Until(line, now_us + 40'000);
  port.gone = true;
  EXPECT_EQ(line.Take(Message_Kind::Short, "\x90\x3C\x40", now_us), Midi_No_Device);
  EXPECT_EQ(line.Bytes_Under_Way(now_us), 0U) << "a close need not wait";
  EXPECT_EQ(line.Pump(now_us + 100'000), Midi::Never_us);
  EXPECT_EQ(port.Bytes().size(), 200U);
}

// A port in front of a wire: 3,125 bytes a second leave its buffer of 4,096 bytes.
struct Wire_Sink final : Midi::Sink {
  explicit Wire_Sink(std::int64_t& clock_us) : now_us(clock_us) {}

  Midi::Write_Result Write(std::string_view bytes) override {
    const double drained = static_cast<double>(now_us - last_us) / 320.0;
    level = std::max(0.0, level - drained) + static_cast<double>(bytes.size());
    last_us = now_us;
    highest = std::max(highest, level);
    messages.push_back({now_us, std::string(bytes)});
    return Midi::Write_Result::Taken;
  }
  bool Gone() const override { return false; }

  struct Message {
    std::int64_t left_us;
    std::string bytes;
  };
  std::int64_t& now_us;
  std::int64_t last_us = 0;
  double level = 0;
  double highest = 0;
  std::vector<Message> messages;
};

// 60 seconds of a slider dragged as fast as moves come, beside the sequencer's chord.
TEST(Wire, A_Drag_Beside_The_Sequencer_Stays_Close_To_The_Hand) {
  std::int64_t now_us = 0;
  auto owned = std::make_unique<Wire_Sink>(now_us);
  Wire_Sink& wire = *owned;
  Midi::Output_Line line(std::move(owned), true);
  std::vector<Wire_Sink::Message> taken;  // with the time at which each was handed over
  const auto take = [&](Message_Kind kind, const std::string& bytes) {
    ASSERT_EQ(line.Take(kind, bytes, now_us), Midi_Ok);
    taken.push_back({now_us, bytes});
  };
  std::string slider = Bytes_Of("F0 41 36 00 21 20 01 22 00 F7");
  std::int64_t due_us = Midi::Never_us;
  for (std::int64_t ms = 0; ms < 60'000; ++ms) {
    for (; due_us <= ms * 1000; due_us = line.Pump(now_us)) now_us = due_us;
    now_us = ms * 1000;
    slider[8] = static_cast<char>(ms / 5 % 128);
    if (ms % 5 == 0) take(Message_Kind::Long, slider);
    for (int note = 0; ms % 62 == 0 && note < 13; ++note) {
      take(Message_Kind::Short, {'\x90', static_cast<char>(48 + note), '\x7F'});
    }
    due_us = line.Pump(now_us);
  }
  for (; due_us != Midi::Never_us; due_us = line.Pump(now_us)) now_us = due_us;

  EXPECT_LE(wire.highest, 4096.0);
  ASSERT_EQ(wire.messages.size(), taken.size());
  std::int64_t oldest_us = 0;
  for (std::size_t i = 0; i < taken.size(); ++i) {
    ASSERT_EQ(wire.messages[i].bytes, taken[i].bytes) << "message " << i;
    oldest_us = std::max(oldest_us, wire.messages[i].left_us - taken[i].left_us);
  }
  EXPECT_LE(oldest_us, 400'000);
}

// More than the wire can carry: what is refused is the caller's to know, the buffer behind stays safe.
TEST(Wire, A_Flood_Is_Refused_At_The_Door_And_Never_Overflows_The_Port) {
  std::int64_t now_us = 0;
  auto owned = std::make_unique<Wire_Sink>(now_us);
  Wire_Sink& wire = *owned;
  Midi::Output_Line line(std::move(owned), true);
  const std::string dump(90, 'x');
  std::int64_t due_us = 0;
  for (std::int64_t ms = 0; ms < 10'000; ++ms) {
    for (; due_us <= ms * 1000; due_us = line.Pump(now_us)) now_us = due_us;
    now_us = ms * 1000;
    line.Take(Message_Kind::Long, dump, now_us);
    due_us = line.Pump(now_us);
  }
  EXPECT_LE(wire.highest, 200.0);
  EXPECT_EQ(line.Counts().taken + line.Counts().refused, 10'000U);
  EXPECT_GE(wire.messages.size(), 345U) << "the wire has no pauses";
}

}  // namespace
