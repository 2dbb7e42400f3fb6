// The JACK backend against a real server without hardware, with an independent client at the other end.
#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <thread>

#include "adapters/jack/jack_backend.h"
#include "adapters/jack/output_slot.h"
#include "adapters/midi/service.h"
#include "capture.h"
#include "jack_server.h"
#include "support/jack_capture/jack_peer.h"
#include "support/midi_contract.h"
#include "support/recording_service.h"

namespace {

struct Jack_Rig final : Midi_Rig {
  Jack_Server server;
  std::unique_ptr<Jack_Peer> peer = std::make_unique<Jack_Peer>("peer");
  Jack::Jack_Backend backend;
  Midi::Service service{{&backend}};
  bool held = false;

  Midi_Service& Service() override { return service; }
  std::string Device_Name() override { return "peer:in"; }
  Byte_String Received(std::size_t count) override {
    Byte_String bytes;
    Await([&] {
      for (const Jack_Event& event : peer->Take_Events()) bytes += event.bytes;
      return bytes.size() >= count;
    });
    // The sender hears of the end of a period with the next one.
    const unsigned periods = peer->Periods();
    Await([&] { return peer->Periods() - periods > 2; });
    return bytes;
  }
  void Hold() override {
    server.Stop();
    held = true;
  }
  void Release() override {
    if (held) server.Go_On();
    held = false;
  }
  void Unplug() override {
    peer.reset();
    // The server tells its clients in its own time: a message of no bytes finds out.
    std::int32_t handle = 1;
    MIDI_Header header;
    EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Ok);
    EXPECT_TRUE(Await([&] { return service.Out_Long(handle, header) != Midi_Ok; }));
  }
};

const Rig_Maker Over_Jack{"Jack", [] { return std::make_unique<Jack_Rig>(); }};
MIDI_RIGS(Midi_Contract, Over_Jack);
MIDI_RIGS(Midi_Hold_Contract, Over_Jack);
MIDI_RIGS(Midi_Unplug_Contract, Over_Jack);

Byte_String Note(int number) {
  return {static_cast<char>(0x90 + number / 16384), static_cast<char>(number / 128 % 128),
          static_cast<char>(number % 128)};
}

std::uint32_t Packed(const Byte_String& bytes) {
  std::uint32_t message = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) message = message << 8U | static_cast<unsigned char>(bytes[i]);
  return message;
}

TEST(Jack, Without_A_Server_The_List_Is_Empty_And_Nothing_Is_Printed_Or_Started) {
  Jack_Server::Choose_Name();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  {
    Jack::Jack_Backend backend;
    Midi::Service service({&backend});
    service.Refresh();
    EXPECT_EQ(service.Out_Count(), 0);
    EXPECT_EQ(service.In_Count(), 0);
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_FALSE(Jack_Peer("probe").Is_Open());
}

TEST(Jack, A_Server_May_Stand_Still_For_8_Seconds) {
  Jack_Rig rig;
  std::int32_t handle = -1;
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, "peer:in")), Midi_Ok);
  int taken = 0;
  const auto send = [&] {
    if (rig.service.Out_Short(handle, Packed(Note(taken))) == Midi_Ok) ++taken;
  };
  for (int i = 0; i < 10; ++i) send();
  rig.Hold();
  // All these calls return while nobody answers. A call that waited for the server would wait for ever.
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(8);
  while (std::chrono::steady_clock::now() < end) {
    send();
    rig.service.Refresh();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  EXPECT_EQ(rig.service.Out_Close(handle), Midi_Still_Playing);
  rig.Release();
  for (int i = 0; i < 10; ++i) send();
  Byte_String want;
  for (int i = 0; i < taken; ++i) want += Note(i);
  EXPECT_GT(taken, 100);
  EXPECT_EQ(Hex_Text(rig.Received(want.size())), Hex_Text(want));
}

TEST(Jack, A_Device_Can_Be_Opened_And_Closed_While_The_Server_Stands_Still) {
  Jack_Rig rig;
  rig.Hold();
  std::int32_t handle = -1;
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, "peer:in")), Midi_Ok);
  EXPECT_EQ(rig.service.Out_Close(handle), Midi_Ok);
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, "peer:in")), Midi_Ok);
  EXPECT_EQ(rig.service.Out_Short(handle, 0x403C90), Midi_Ok);
  rig.Release();
  EXPECT_EQ(Hex_Text(rig.Received(3)), "90 3C 40");
}

// The receiver is a program of its own: two clients in one process do not survive their server.
TEST(Jack, A_Server_That_Dies_Is_Told_And_Found_Again) {
  Jack_Server server;
  Jack::Jack_Backend backend;
  Midi::Service service({&backend});
  std::int32_t handle = -1;
  for (const char* sent : {"90 3C 40", "90 3D 40"}) {
    Capture capture("peer");
    const auto listed = [&] {
      service.Refresh();
      return Find_Output(service, "peer:in") >= 0;
    };
    ASSERT_TRUE(Await(listed));
    ASSERT_EQ(service.Out_Open(handle, Find_Output(service, "peer:in")), Midi_Ok);
    const std::uint32_t message = Packed(Bytes_Of(sent));
    ASSERT_EQ(service.Out_Short(handle, message), Midi_Ok);
    EXPECT_TRUE(Await([&] { return capture.Lines() == std::vector<std::string>{sent}; }));
    server.Kill();
    int code = Midi_Ok;
    EXPECT_TRUE(Await([&] { return (code = service.Out_Short(handle, message)) != Midi_Ok; }));
    EXPECT_EQ(code, Midi_No_Device);
    service.Refresh();  // with the output still open
    EXPECT_EQ(service.Out_Count(), 0);
    EXPECT_EQ(service.Out_Short(handle, message), Midi_No_Device);
    EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
    server.Start();
  }
}

TEST(Jack, A_Second_Program_Gets_A_Name_Of_Its_Own) {
  Jack_Rig rig;
  Jack::Jack_Backend second;
  Midi::Service second_service({&second});
  std::int32_t handle = -1;
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, "peer:in")), Midi_Ok);
  ASSERT_EQ(second_service.Out_Open(handle, Find_Output(second_service, "peer:in")), Midi_Ok);
  const std::set<std::string> want = {"MELVOR:out", "MELVOR-01:out"};
  EXPECT_TRUE(Await([&] {
    const std::vector<std::string> connections = rig.peer->Connections();
    return std::set<std::string>(connections.begin(), connections.end()) == want;
  }));
}

TEST(Jack, Hardware_Ports_Are_Known_By_Their_Alias_And_Paced) {
  Jack_Rig rig;
  const Jack_Peer hardware("system", JackPortIsPhysical, "Test Synth");
  rig.backend.Refresh();
  std::vector<std::string> names;
  std::vector<bool> wires;
  for (const Midi::Port& port : rig.backend.Ports(Midi::Direction::Output)) {
    names.push_back(port.name);
    wires.push_back(port.wire);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"peer:in", "Test Synth"}));
  EXPECT_EQ(wires, (std::vector<bool>{false, true}));
}

TEST(Jack, An_Input_Joins_What_Comes_In_Pieces) {
  Post_Desktop desktop;
  Jack_Rig rig;
  {
    Test_Input input(rig.service, Find_Input(rig.service, "peer:out"));
    // The connection is made in the background: send until the first has come.
    EXPECT_TRUE(Await([&] {
      rig.peer->Send("\xF0\x41\xF7");
      const unsigned periods = rig.peer->Periods();
      Await([&] { return rig.peer->Periods() - periods > 2; });
      bool ran = false;
      desktop.Post([&ran] { ran = true; });
      desktop.Run_Until([&ran] { return ran; });
      return !input.received.empty();
    }));
    input.received.clear();
    const std::string dump = "\xF0" + std::string(65, '\x11') + "\xF7";
    for (const std::string& piece : {dump.substr(0, 20), std::string("\xFE"), dump.substr(20)})
      rig.peer->Send(piece);
    EXPECT_TRUE(desktop.Run_Until([&] { return !input.received.empty() && input.received.back() == dump; }));
  }
  std::int32_t handle = -1;
  EXPECT_EQ(rig.service.In_Open(handle, Find_Input(rig.service, "peer:out"), [](MIDI_Header&) {}), Midi_Ok);
}

TEST(Jack, A_Message_Stands_One_Period_Behind_Its_Stamp) {
  using Offset = std::optional<jack_nframes_t>;
  constexpr jack_nframes_t Wrap = 0xFFFFFFF0;  // the frame time runs over after a day
  const struct {
    jack_nframes_t stamp;
    jack_nframes_t period_start;
    Offset want;
  } rows[] = {
      {1000, 1000 + 256, 0},       {1100, 1000 + 256, 100},       {1255, 1000 + 256, 255},
      {1300, 1000 + 256, {}},      {1511, 1000 + 256, {}},  // stamped in the period that runs
      {900, 1000 + 256, 0},                                 // late
      {1000 + 8 * 48000, 1256, 0},                          // stamped while the server stood still
      {Wrap, Wrap + 256, 0},       {Wrap + 100, Wrap + 256, 100},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Jack::Offset_In_Period(row.stamp, row.period_start, 256), row.want) << row.stamp;
  }
}

}  // namespace
