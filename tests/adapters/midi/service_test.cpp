// The list of backends as one service.
#include "adapters/midi/service.h"

#include <thread>

#include "adapters/midi/device_names.h"
#include "fake_backend.h"
#include "support/hand_clock.h"
#include "support/midi_contract.h"

namespace {

TEST(Service, Keeps_The_Contract) {
  Fake_Backend backend;
  backend.outputs = {{"Synth", "1", false}};
  Midi::Service service({&backend}, nullptr);
  Expect_Contract(service, "Synth", [&](std::size_t) { return backend.ports["1"].Bytes(); });
}

struct Service_Test : testing::Test {
  Service_Test() {
    first.outputs = {{"Synth", "a", true}, {"Synth", "b", true}};
    second.outputs = {{"Synth", "a", false}, {"Other", "o", false}};
    second.inputs = {{"Keys", "k", false}};
    service.Refresh();
  }
  Texts Output_Names() {
    Texts names;
    MIDI_Out_Caps caps;
    for (int i = 0; service.Out_Caps(i, caps) == Midi_Ok; ++i) names.emplace_back(caps.name.data());
    return names;
  }

  Posts posts;
  Hand_Clock clock;
  Fake_Backend first, second;
  Midi::Service service{{&first, &second}, posts.Poster(), clock};
  std::int32_t handle = -1;
};

TEST_F(Service_Test, Devices_Run_Through_All_Backends_And_A_Refresh_Leaves_Open_Ones_Alone) {
  EXPECT_EQ(Output_Names(), (Texts{"Synth", "Synth (2)", "Synth (3)", "Other"}));
  ASSERT_EQ(service.Out_Open(handle, 3), Midi_Ok);
  first.outputs = {{"New", "n", false}};
  EXPECT_EQ(service.Out_Count(), 4) << "the numbers hold until then";
  std::int32_t other = -1;
  EXPECT_EQ(service.Out_Open(other, 0), Midi_No_Device) << "gone since the listing";
  service.Refresh();
  EXPECT_EQ(Output_Names(), (Texts{"New", "Synth", "Other"}));
  first.taken = true;
  EXPECT_EQ(service.Out_Open(other, 0), Midi_Allocated) << "there, but another program's";
  EXPECT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_EQ(service.Out_Open(other, 2), Midi_Allocated) << "the same port under another number";
  EXPECT_EQ(service.Out_Open(other, 3), Midi_Bad_Device);
  EXPECT_EQ(other, -1);
  EXPECT_TRUE(Await([this] { return second.ports["o"].Bytes() == "\x90\x3C\x40"; }));
  EXPECT_EQ(Close_Output(service, handle), Midi_Ok);
}

TEST_F(Service_Test, A_Call_Out_Of_Order_Is_Answered_By_Its_Code) {
  MIDI_Header header;
  header.data = "\xF0\xF7";
  header.buffer_length = 3;
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  EXPECT_EQ(service.Out_Long(handle, header), Midi_Unprepared);
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Invalid_Parameter) << "longer than its data";
  EXPECT_EQ(header.flags, 0U);
  ASSERT_EQ(service.Out_Close(handle), Midi_Ok);
  for (const std::int32_t wrong : {0, handle}) {
    for (const int code :
         {service.Out_Short(wrong, 0x90), service.Out_Long(wrong, header), service.Out_Close(wrong),
          service.In_Add_Buffer(wrong, header), service.In_Reset(wrong), service.In_Close(wrong)})
      EXPECT_EQ(code, Midi_Invalid_Handle) << wrong;
  }
}

TEST_F(Service_Test, A_Refused_Message_Makes_The_Port_Try_The_Failed_One_Again) {
  ASSERT_EQ(service.Out_Open(handle, 3), Midi_Ok);
  Fake_Port& port = second.ports["o"];
  port.answer = Midi::Write_Result::Failed;
  ASSERT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  ASSERT_TRUE(Await([&port] { return port.tries == 1; }));
  port.answer = Midi::Write_Result::Taken;
  EXPECT_TRUE(Await([this] { return Send_Long(service, handle, {}) == Midi_Error; }));
  EXPECT_TRUE(Await([&port] { return port.Bytes() == "\x90\x3C\x40"; }));
}

TEST_F(Service_Test, A_Close_Gives_Up_Where_Nothing_Moves_Any_More) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  first.ports["a"].answer = Midi::Write_Result::Busy;
  ASSERT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  for (int asked = 0; asked < 99; ++asked) ASSERT_EQ(service.Out_Close(handle), Midi_Still_Playing) << asked;
  EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
}

TEST_F(Service_Test, A_Close_Waits_Until_The_Wire_Has_Carried_All) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  ASSERT_EQ(Send_Long(service, handle, Byte_String(90, 'x')), Midi_Ok);
  ASSERT_TRUE(Await([this] { return first.ports["a"].Bytes().size() == 90; }));
  for (int asked = 0; asked < 2; ++asked) EXPECT_EQ(service.Out_Close(handle), Midi_Still_Playing);
  EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
  EXPECT_EQ(clock.Now_us(), 29'000);
}

TEST_F(Service_Test, An_Input_Hands_Whole_Messages_To_The_User_Interface_And_None_From_Before_Its_Opening) {
  {
    Test_Input input(service, "Keys");
    second.receiver("\xF0\x01\xF7");
  }
  Test_Input input(service, "Keys");
  // The port speaks on a thread of its own, in pieces.
  std::thread([&] {
    for (const char* piece : {"\x90\x3C\x40\xF0\x41", "\x35\xF7\xF0\x02", "\xF7"}) second.receiver(piece);
  }).join();
  EXPECT_TRUE(input.received.empty()) << "not before the user interface runs its posts";
  posts.Run();
  EXPECT_EQ(input.received, (Texts{"\xF0\x41\x35\xF7", "\xF0\x02\xF7"}));
}

TEST_F(Service_Test, A_Message_Without_A_Buffer_That_Holds_It_Is_Dropped_And_A_Receiver_May_Close) {
  Texts received;
  const auto receive = [&](MIDI_Header& header) {
    received.push_back(header.data.substr(0, header.bytes_recorded));
    if (received.size() == 2) service.In_Close(handle);
  };
  ASSERT_EQ(service.In_Open(handle, 0, receive), Midi_Ok);
  MIDI_Header headers[3];
  for (MIDI_Header& header : headers) {
    header.buffer_length = &header == headers ? 4 : 3;
    EXPECT_EQ(service.In_Prepare(handle, header), Midi_Ok);
    EXPECT_EQ(service.In_Add_Buffer(handle, header), Midi_Ok);
  }
  ASSERT_EQ(service.In_Start(handle), Midi_Ok);
  second.receiver("\xF0\x01\x02\xF7\xF0\x03\x04\xF7\xF0\x05\xF7\xF0\x06\xF7");
  posts.Run();
  EXPECT_EQ(received, (Texts{"\xF0\x01\x02\xF7", "\xF0\x05\xF7"}));
}

TEST(Sysex_Assembler, Joins_Complete_Messages_And_Ignores_The_Rest) {
  const std::string longest = "F0" + std::string(std::size_t{9998} * 2, '1') + "F7";
  const std::pair<std::string, std::string> rows[] = {
      {"90 3C 40 F0 41 F7 B0 7B 00", "F0 41 F7"},
      {"F0 41 FE 35 F8 F7", "F0 41 35 F7"},
      {"F0 41 90 3C 40 F7", ""},
      {"F0 41 F0 42 F7 43 F7", "F0 42 F7"},
      {"F0 F7 F0 01 F7", "F0 F7 F0 01 F7"},
      {longest, Hex_Text(Bytes_Of(longest))},
      {"F0 11" + longest.substr(2) + "F0 01 F7", "F0 01 F7"},
  };
  for (const auto& [stream, want] : rows) {
    Midi::Sysex_Assembler assembler;
    std::string joined;
    for (const char byte : Bytes_Of(stream)) {
      assembler.Put({&byte, 1}, [&](std::string&& message) { joined += message; });
    }
    EXPECT_EQ(Hex_Text(joined), want) << stream.substr(0, 40);
  }
}

TEST(Device_Names, Are_Without_Changing_Numbers_And_Different_Within_31_Bytes) {
  const std::string longest(40, 'x');
  EXPECT_EQ(Midi::Unique_Names({"a2j:Test Synth [24] (playback): MIDI 1",
                                "FLUID Synth (12345):Synth input port (12345:0)", "Midi Through:Port-0 14:0",
                                "Virtual Raw MIDI 0-1", "[17]", longest, longest, "Synth", "Synth [20]",
                                "Synth (2)", "Gerät mit einem langen Namen üü"}),
            (Texts{"a2j:Test Synth (playback): MIDI", "FLUID Synth:Synth input port", "Midi Through:Port-0",
                   "Virtual Raw MIDI 0-1", "MIDI", std::string(31, 'x'), std::string(27, 'x') + " (2)",
                   "Synth", "Synth (2)", "Synth (2) (2)", "Gerät mit einem langen Namen"}));
}

}  // namespace
