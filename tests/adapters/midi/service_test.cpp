// The list of backends as one service: device numbers, names, handles, and the way of an input's messages.
#include "adapters/midi/service.h"

#include <gtest/gtest.h>

#include <thread>

#include "adapters/midi/short_message.h"
#include "fake_backend.h"
#include "support/midi_contract.h"
#include "support/recording_service.h"

namespace {

struct Service_Test : testing::Test {
  Service_Test() {
    first.outputs = {{"Synth", "a", true}, {"Synth", "b", true}};
    second.outputs = {{"Synth", "a", false}, {"Other", "o", false}};
    second.inputs = {{"Keys", "k", false}};
    service.Refresh();
  }
  std::vector<std::string> Output_Names() {
    std::vector<std::string> names;
    MIDI_Out_Caps caps;
    for (int i = 0; i < service.Out_Count() && service.Out_Caps(i, caps) == Midi_Ok; ++i) {
      names.emplace_back(caps.name.data());
    }
    return names;
  }

  Post_Desktop desktop;
  Fake_Backend first;
  Fake_Backend second;
  Midi::Service service{{&first, &second}};
  std::int32_t handle = -1;
};

TEST_F(Service_Test, Devices_Run_Through_All_Backends) {
  EXPECT_EQ(Output_Names(), (std::vector<std::string>{"Synth", "Synth (2)", "Synth (3)", "Other"}));
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
  first.outputs = {{"New", "n", false}};
  EXPECT_EQ(service.Out_Count(), 4) << "the numbers hold until then";
  service.Refresh();
  EXPECT_EQ(Output_Names(), (std::vector<std::string>{"New", "Synth", "Other"}));
  EXPECT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_TRUE(Await([&] { return second.ports["o"].Bytes().size() == 3; }));
  std::int32_t other = -1;
  EXPECT_EQ(service.Out_Open(other, 2), Midi_Allocated) << "the same port under another number";
  EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
  EXPECT_EQ(service.Out_Open(other, 2), Midi_Ok);
}

TEST_F(Service_Test, A_Port_That_Went_Since_The_Listing_Cannot_Be_Opened) {
  second.outputs.clear();
  second.inputs.clear();
  EXPECT_EQ(service.Out_Open(handle, 3), Midi_No_Device);
  EXPECT_EQ(service.In_Open(handle, 0, [](MIDI_Header&) {}), Midi_No_Device);
  EXPECT_EQ(handle, -1);
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
  EXPECT_FALSE(service.Error_Text(Midi_Invalid_Handle).empty());
  EXPECT_EQ(service.Error_Text(12), "");
}

TEST_F(Service_Test, A_Long_Message_Needs_A_Prepared_Header_As_Long_As_Its_Data) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  MIDI_Header header;
  header.data = "\xF0\xF7";
  header.buffer_length = 3;
  EXPECT_EQ(service.Out_Long(handle, header), Midi_Unprepared);
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Invalid_Parameter);
  header.buffer_length = 2;
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Ok);
  header.buffer_length = 3;
  EXPECT_EQ(service.Out_Long(handle, header), Midi_Invalid_Parameter);
}

TEST_F(Service_Test, A_Close_Gives_Up_Where_Nothing_Moves_Any_More) {
  ASSERT_EQ(service.Out_Open(handle, 0), Midi_Ok);
  first.ports["a"].busy = true;
  ASSERT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_EQ(service.Out_Close(handle), Midi_Still_Playing);
  int code = Midi_Still_Playing;
  EXPECT_TRUE(Await([&] { return (code = service.Out_Close(handle)) != Midi_Still_Playing; }));
  EXPECT_EQ(code, Midi_Ok);
  EXPECT_EQ(first.ports["a"].Bytes(), "");
}

TEST_F(Service_Test, An_Input_Hands_Whole_Messages_To_The_User_Interface) {
  Test_Input input(service, 0);
  // The port speaks on a thread of its own, in pieces.
  std::thread([&] {
    second.opened["k"]("\x90\x3C\x40\xF0\x41");
    second.opened["k"]("\x35\xF7\xF0\x01");
    second.opened["k"]("\xF7");
  }).join();
  EXPECT_TRUE(input.received.empty()) << "not before the user interface runs its posts";
  EXPECT_TRUE(desktop.Run_Until([&] { return input.received.size() == 2; }));
  EXPECT_EQ(input.received, (std::vector<Byte_String>{"\xF0\x41\x35\xF7", "\xF0\x01\xF7"}));
}

TEST_F(Service_Test, Messages_Of_A_Closed_Or_Stopped_Input_Are_Dropped) {
  const std::string message = "\xF0\x01\xF7";
  const auto run_posts = [this] {
    bool ran = false;
    desktop.Post([&ran] { ran = true; });
    EXPECT_TRUE(desktop.Run_Until([&ran] { return ran; }));
  };
  {
    Test_Input input(service, 0);
    second.opened["k"](message);
  }
  run_posts();  // the message comes after the close: the receiver is gone, as is its list
  Test_Input input(service, 0);
  second.opened["k"](message);
  EXPECT_EQ(service.In_Reset(input.handle), Midi_Ok);
  second.opened["k"](message);
  EXPECT_EQ(service.In_Start(input.handle), Midi_Ok);
  run_posts();
  EXPECT_TRUE(input.received.empty());
}

TEST_F(Service_Test, A_Message_Without_A_Buffer_That_Holds_It_Is_Dropped) {
  std::vector<Byte_String> received;
  ASSERT_EQ(service.In_Open(handle, 0, [&](MIDI_Header& header) { received.push_back(header.data); }),
            Midi_Ok);
  MIDI_Header small;
  MIDI_Header large;
  small.buffer_length = 3;
  large.buffer_length = 4;
  EXPECT_EQ(service.In_Add_Buffer(handle, small), Midi_Unprepared);
  for (MIDI_Header* header : {&small, &large}) {
    EXPECT_EQ(service.In_Prepare(handle, *header), Midi_Ok);
    EXPECT_EQ(service.In_Add_Buffer(handle, *header), Midi_Ok);
  }
  EXPECT_EQ(service.In_Add_Buffer(handle, small), Midi_Still_Playing);
  EXPECT_EQ(service.In_Unprepare(handle, small), Midi_Still_Playing);
  ASSERT_EQ(service.In_Start(handle), Midi_Ok);
  for (const char* message : {"\xF0\x01\x02\xF7", "\xF0\x03\x04\xF7", "\xF0\x05\xF7", "\xF0\x06\xF7"}) {
    second.opened["k"](message);
  }
  EXPECT_TRUE(desktop.Run_Until([&] { return received.size() == 2; }));
  EXPECT_EQ(received, (std::vector<Byte_String>{"\xF0\x01\x02\xF7", "\xF0\x05\xF7"}));
  EXPECT_EQ(large.bytes_recorded, 4U);
  EXPECT_NE(small.flags & Header_Done, 0U);
}

TEST_F(Service_Test, A_Receiver_May_Close_Its_Input) {
  MIDI_Header header;
  header.buffer_length = 10;
  int calls = 0;
  const auto receive = [&](MIDI_Header&) {
    ++calls;
    EXPECT_EQ(service.In_Close(handle), Midi_Ok);
  };
  ASSERT_EQ(service.In_Open(handle, 0, receive), Midi_Ok);
  service.In_Prepare(handle, header);
  service.In_Add_Buffer(handle, header);
  service.In_Start(handle);
  second.opened["k"]("\xF0\x01\xF7\xF0\x02\xF7");
  EXPECT_TRUE(desktop.Run_Until([&] { return calls == 1; }));
  EXPECT_EQ(service.In_Start(handle), Midi_Invalid_Handle);
}

TEST(Short_Message, Is_As_Long_As_Its_Status_Says) {
  constexpr struct {
    unsigned status;
    std::size_t length;
  } Rows[] = {{0x00, 0}, {0x7F, 0}, {0x80, 3}, {0x9F, 3}, {0xA0, 3}, {0xBF, 3}, {0xC0, 2}, {0xDF, 2},
              {0xE0, 3}, {0xF1, 2}, {0xF2, 3}, {0xF3, 2}, {0xF6, 1}, {0xF8, 1}, {0xFF, 1}};
  for (const auto& row : Rows) {
    const std::string want = std::string{static_cast<char>(row.status), '\x01', '\x02'}.substr(0, row.length);
    EXPECT_EQ(Hex_Text(Midi::Short_Message(row.status | 0x55020100U).Bytes()), Hex_Text(want));
  }
}

}  // namespace
