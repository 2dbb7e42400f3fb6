// The list of backends as one service, and the contract over it and over the recording service.
#include "adapters/midi/service.h"

#include <gtest/gtest.h>

#include <thread>

#include "adapters/midi/device_names.h"
#include "adapters/midi/short_message.h"
#include "fake_backend.h"
#include "support/midi_contract.h"
#include "support/recording_service.h"

namespace {

using Midi::Direction;
using Texts = std::vector<std::string>;

struct Recording_Rig final : Midi_Rig {
  Recording_Service service;
  std::size_t read = 0;

  Midi_Service& Service() override { return service; }
  std::string Device_Name() override { return "JX-8P"; }
  Byte_String Received(std::size_t /*count*/) override {
    Byte_String bytes = service.Wire().substr(read);
    read += bytes.size();
    return bytes;
  }
  void Unplug() override { service.Unplug(); }
};

struct Fake_Rig final : Midi_Rig {
  explicit Fake_Rig(bool wire) {
    backend.there[Direction::Output] = {{"Synth", "1", wire}};
    service.Refresh();
  }

  Fake_Backend backend;
  Fake_Port& port = backend.ports["1"];
  Midi::Service service{{&backend}};

  Midi_Service& Service() override { return service; }
  std::string Device_Name() override { return "Synth"; }
  Byte_String Received(std::size_t count) override {
    Await([&] { return port.Bytes().size() >= count; });
    return port.Take_Bytes();
  }
  void Hold() override { port.busy = true; }
  void Release() override { port.busy = false; }
  void Unplug() override {
    backend.there.clear();
    port.gone = true;
  }
};

const Rig_Maker Recording{"Recording", [] { return std::make_unique<Recording_Rig>(); }};
const Rig_Maker Software_Port{"Software_Port", [] { return std::make_unique<Fake_Rig>(false); }};
const Rig_Maker Wire_Port{"Wire_Port", [] { return std::make_unique<Fake_Rig>(true); }};
MIDI_RIGS(Midi_Contract, Recording, Software_Port, Wire_Port);
MIDI_RIGS(Midi_Hold_Contract, Software_Port);
MIDI_RIGS(Midi_Unplug_Contract, Recording, Software_Port);

struct Service_Test : testing::Test {
  Service_Test() {
    first.there[Direction::Output] = {{"Synth", "a", true}, {"Synth", "b", true}};
    second.there[Direction::Output] = {{"Synth", "a", false}, {"Other", "o", false}};
    second.there[Direction::Input] = {{"Keys", "k", false}};
    service.Refresh();
  }
  Texts Output_Names() {
    Texts names;
    MIDI_Out_Caps caps;
    for (int i = 0; service.Out_Caps(i, caps) == Midi_Ok; ++i) names.emplace_back(caps.name.data());
    return names;
  }
  void Receive(const std::string& bytes) { second.opened["k"](bytes); }

  Post_Desktop desktop;
  Fake_Backend first;
  Fake_Backend second;
  Midi::Service service{{&first, &second}};
  std::int32_t handle = -1;
};

TEST_F(Service_Test, Devices_Run_Through_All_Backends) {
  EXPECT_EQ(Output_Names(), (Texts{"Synth", "Synth (2)", "Synth (3)", "Other"}));
  ASSERT_EQ(service.Out_Open(handle, 2), Midi_Ok);
  EXPECT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_TRUE(Await([&] { return second.ports["a"].Bytes() == "\x90\x3C\x40"; }));
  EXPECT_EQ(service.Out_Open(handle, 4), Midi_Bad_Device);
  EXPECT_EQ(service.Out_Open(handle, -1), Midi_Bad_Device);
  MIDI_In_Caps caps;
  EXPECT_EQ(service.In_Caps(1, caps), Midi_Bad_Device);
}

TEST_F(Service_Test, A_Refresh_Lists_Anew_And_Leaves_Open_Devices_Alone) {
  ASSERT_EQ(service.Out_Open(handle, 3), Midi_Ok);
  first.there[Direction::Output] = {{"New", "n", false}};
  second.there[Direction::Input].clear();
  EXPECT_EQ(service.Out_Count(), 4) << "the numbers hold until then";
  std::int32_t other = -1;
  EXPECT_EQ(service.Out_Open(other, 0), Midi_No_Device) << "gone since the listing";
  EXPECT_EQ(service.In_Open(other, 0, [](MIDI_Header&) {}), Midi_No_Device);
  service.Refresh();
  EXPECT_EQ(Output_Names(), (Texts{"New", "Synth", "Other"}));
  EXPECT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_EQ(service.Out_Open(other, 2), Midi_Allocated) << "the same port under another number";
  EXPECT_EQ(Close_Output(service, handle), Midi_Ok);
  EXPECT_EQ(second.ports["o"].Bytes(), "\x90\x3C\x40");
  EXPECT_EQ(service.Out_Open(other, 2), Midi_Ok);
}

TEST_F(Service_Test, A_Handle_That_Is_Not_Open_Is_Answered_With_5) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  ASSERT_EQ(service.Out_Close(handle), Midi_Ok);
  MIDI_Header header;
  for (const std::int32_t wrong : {-1, 0, handle, handle + 1}) {
    const int codes[] = {service.Out_Short(wrong, 0x90),
                         service.Out_Prepare(wrong, header),
                         service.Out_Long(wrong, header),
                         service.Out_Unprepare(wrong, header),
                         service.Out_Close(wrong),
                         service.In_Prepare(wrong, header),
                         service.In_Add_Buffer(wrong, header),
                         service.In_Unprepare(wrong, header),
                         service.In_Start(wrong),
                         service.In_Reset(wrong),
                         service.In_Close(wrong)};
    for (const int code : codes) EXPECT_EQ(code, Midi_Invalid_Handle) << wrong;
  }
}

TEST_F(Service_Test, A_Long_Message_Needs_A_Prepared_Header_As_Long_As_Its_Data) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  MIDI_Header header;
  header.data = "\xF0\xF7";
  header.buffer_length = 3;
  EXPECT_EQ(service.Out_Long(handle, header), Midi_Unprepared);
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Invalid_Parameter);
  header.flags = Header_Prepared;
  EXPECT_EQ(service.Out_Long(handle, header), Midi_Invalid_Parameter);
}

TEST_F(Service_Test, A_Close_Gives_Up_Where_Nothing_Moves_Any_More) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  first.ports["a"].busy = true;
  ASSERT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_EQ(service.Out_Close(handle), Midi_Still_Playing);
  EXPECT_EQ(Close_Output(service, handle), Midi_Ok);
  EXPECT_EQ(first.ports["a"].Bytes(), "");
}

TEST_F(Service_Test, An_Input_Hands_Whole_Messages_To_The_User_Interface) {
  Test_Input input(service, 0);
  // The port speaks on a thread of its own, in pieces.
  std::thread([&] {
    for (const char* piece : {"\x90\x3C\x40\xF0\x41", "\x35\xF7\xF0\x01", "\xF7"}) Receive(piece);
  }).join();
  EXPECT_TRUE(input.received.empty()) << "not before the user interface runs its posts";
  desktop.Run_Posts();
  EXPECT_EQ(input.received, (Texts{"\xF0\x41\x35\xF7", "\xF0\x01\xF7"}));
}

TEST_F(Service_Test, Messages_Of_A_Closed_Or_Stopped_Input_Are_Dropped) {
  const std::string message = "\xF0\x01\xF7";
  {
    Test_Input input(service, 0);
    Receive(message);
  }
  desktop.Run_Posts();  // the message comes after the close: the receiver is gone, as is its list
  MIDI_Header header;
  header.buffer_length = 10;
  Test_Input input(service, 0);
  Receive(message);
  EXPECT_EQ(service.In_Reset(input.handle), Midi_Ok);
  Receive(message);
  EXPECT_EQ(service.In_Prepare(input.handle, header), Midi_Ok);
  EXPECT_EQ(service.In_Add_Buffer(input.handle, header), Midi_Ok);
  EXPECT_EQ(service.In_Start(input.handle), Midi_Ok);
  desktop.Run_Posts();
  EXPECT_TRUE(input.received.empty());
}

TEST_F(Service_Test, A_Message_Without_A_Buffer_That_Holds_It_Is_Dropped_And_A_Receiver_May_Close) {
  Texts received;
  const auto receive = [&](MIDI_Header& header) {
    received.push_back(header.data.substr(0, header.bytes_recorded));
    EXPECT_NE(header.flags & Header_Done, 0U);
    if (received.size() == 2) service.In_Close(handle);
  };
  ASSERT_EQ(service.In_Open(handle, 0, receive), Midi_Ok);
  MIDI_Header headers[3];
  EXPECT_EQ(service.In_Add_Buffer(handle, headers[0]), Midi_Unprepared);
  for (MIDI_Header& header : headers) {
    header.buffer_length = &header == headers ? 4 : 3;
    EXPECT_EQ(service.In_Prepare(handle, header), Midi_Ok);
    EXPECT_EQ(service.In_Add_Buffer(handle, header), Midi_Ok);
    EXPECT_EQ(service.In_Add_Buffer(handle, header), Midi_Still_Playing);
    EXPECT_EQ(service.In_Unprepare(handle, header), Midi_Still_Playing);
  }
  ASSERT_EQ(service.In_Start(handle), Midi_Ok);
  Receive("\xF0\x01\x02\xF7\xF0\x03\x04\xF7\xF0\x05\xF7\xF0\x06\xF7");
  desktop.Run_Posts();
  EXPECT_EQ(received, (Texts{"\xF0\x01\x02\xF7", "\xF0\x05\xF7"}));
  EXPECT_EQ(service.In_Start(handle), Midi_Invalid_Handle);
}

TEST(Sysex_Assembler, Joins_Complete_Messages_And_Ignores_The_Rest) {
  const std::string longest = "F0" + std::string(std::size_t{9998} * 2, '1') + "F7";
  const struct {
    std::string stream;
    Texts want;
  } rows[] = {
      {"90 3C 40 F0 41 F7 B0 7B 00", {"F0 41 F7"}},
      {"F0 41 FE 35 F8 F7", {"F0 41 35 F7"}},
      {"F0 41 90 3C 40 F7", {}},
      {"F0 41 F0 42 F7 43 F7", {"F0 42 F7"}},
      {"F0 41 F6 42 F7", {}},
      {"F0 F7 F0 01 F7", {"F0 F7", "F0 01 F7"}},
      {longest, {Hex_Text(Bytes_Of(longest))}},
      {"F0 11" + longest.substr(2) + "F0 01 F7", {"F0 01 F7"}},
  };
  for (const auto& row : rows) {
    const std::string bytes = Bytes_Of(row.stream);
    for (const std::size_t piece : {1U, 3U, 256U}) {
      Midi::Sysex_Assembler assembler;
      Texts messages;
      for (std::size_t at = 0; at < bytes.size(); at += piece) {
        assembler.Put(std::string_view(bytes).substr(at, piece),
                      [&](std::string&& message) { messages.push_back(Hex_Text(message)); });
      }
      EXPECT_EQ(messages, row.want) << row.stream.substr(0, 40) << " by " << piece;
    }
  }
}

TEST(Short_Message, Is_As_Long_As_Its_Status_Says) {
  constexpr struct {
    unsigned status;
    std::size_t length;
  } Rows[] = {{0x00, 0}, {0x7F, 0}, {0x80, 3}, {0xBF, 3}, {0xC0, 2}, {0xDF, 2}, {0xE0, 3},
              {0xF1, 2}, {0xF2, 3}, {0xF3, 2}, {0xF6, 1}, {0xF8, 1}, {0xFF, 1}};
  for (const auto& row : Rows) {
    const std::string want = std::string{static_cast<char>(row.status), '\x01', '\x02'}.substr(0, row.length);
    EXPECT_EQ(Hex_Text(Midi::Short_Message(row.status | 0x55020100U).Bytes()), Hex_Text(want));
  }
}

TEST(Device_Names, Are_Without_Changing_Numbers_And_Different_Within_31_Bytes) {
  const std::string longest(40, 'x');
  const struct {
    std::string name;
    std::string want;
  } rows[] = {
      {"a2j:Test Synth [24] (playback): MIDI 1", "a2j:Test Synth (playback): MIDI"},
      {"FLUID Synth (12345):Synth input port (12345:0)", "FLUID Synth:Synth input port"},
      {"Midi Through:Port-0 14:0", "Midi Through:Port-0"},
      {"Virtual Raw MIDI 0-1", "Virtual Raw MIDI 0-1"},
      {"Clock 4:33rpm", "Clock 4:33rpm"},
      {" Two\tblanks  here ", "Two blanks here"},
      {"[17]", "MIDI"},
      {"", "MIDI (2)"},
      {longest, std::string(31, 'x')},
      {longest, std::string(27, 'x') + " (2)"},
      {"Synth", "Synth"},
      {"Synth [20]", "Synth (2)"},
      {"Synth", "Synth (3)"},
      {"Synth (2)", "Synth (2) (2)"},
      {"Gerät mit einem langen Namen üü", "Gerät mit einem langen Namen"},
  };
  Texts names;
  for (const auto& row : rows) names.push_back(row.name);
  names = Midi::Unique_Names(names);
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(names[i], rows[i].want);
}

}  // namespace
