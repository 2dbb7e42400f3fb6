#include "midi/devices.h"
#include "midi/output.h"
#include "midi/setup.h"
#include "midi/state.h"
#include "platform/form.h"
#include "support/recording_service.h"
#include "support/scripted_desktop.h"

struct Midi : testing::Test {
  Midi() {
    MIDI_Enabled = 1;
    MIDI_Channel = 1;
    MIDI_Out_Device = 0;
    MIDI_Out_Handle = -1;
    Seq_Status = 0;
    Show(window);  // the close looks for a window
  }
  ~Midi() override { Unload(window); }
  Scripted_Desktop desktop;
  Recording_Service service;
  Form window{Form_Role::Child, "window"};
};

TEST_F(Midi, The_Output_Opens_At_The_First_Send_And_Stays_Open) {
  MIDI_SendNote(60, 90);
  MIDI_Send_Long("\xF0\x41\xF7");
  MIDI_Channel = 16;
  MIDI_Reset();
  Seq_SendAllNotesOff();
  Seq_SendNote(3, 4);
  MIDI_Put(Byte_String("\xC0", 1));
  EXPECT_EQ(service.calls["Out_Open"], 1);
  EXPECT_EQ(service.Take_Hex(), (Texts{"90 3C 5A", "F0 41 F7", "BF 7B 00", "BF 7B 00", "9F 03 04", "C0 00"}));
}

TEST_F(Midi, Disabled_It_Sends_Nothing_And_Keeps_The_Handle_But_The_Sequencers_Note_Looks_At_Nothing) {
  MIDI_Out_Open();
  MIDI_Enabled = 0;
  MIDI_SendNote(60, 1);
  MIDI_Send_Long("\xF0\xF7");
  MIDI_Reset();
  Seq_SendAllNotesOff();
  MIDI_Out_Close();
  Seq_SendNote(60, 127);  // a status of 0 goes nowhere
  EXPECT_TRUE(service.Take_Hex().empty());
  Seq_Status = Note_On_Status();
  Seq_SendNote(60, 127);
  EXPECT_EQ(service.Take_Hex(), Texts{"90 3C 7F"});
}

TEST_F(Midi, Close_Sends_All_Notes_Off_And_Asks_Again_While_The_Service_Plays) {
  MIDI_Out_Open();
  service.Fail_Next("Out_Close", Midi_Still_Playing, 3);
  MIDI_Out_Close();
  EXPECT_EQ(service.Take_Hex(), Texts{"B0 7B 00"});
  EXPECT_EQ(service.calls["Out_Close"], 4);
  EXPECT_FALSE(service.Out_Is_Open());
}

TEST_F(Midi, A_Failed_Open_Is_Told_And_Switches_MIDI_Off) {
  service.Fail_Next("Out_Open", Midi_Allocated, 3);
  for (void (*send)() :
       {+[] { MIDI_Send_Long("\xF0\xF7"); }, +[] { MIDI_SendNote(60, 1); }, Seq_SendAllNotesOff}) {
    MIDI_Enabled = 1;
    desktop.Expect_Box(Answer::Ok, "MIDI_Out_Open*: (4) Text of 4");
    send();
    EXPECT_EQ(MIDI_Enabled, 0);
  }
}

TEST_F(Midi, A_Short_Message_That_Fails_Closes_The_Output_And_Switches_MIDI_Off) {
  using Row = std::pair<void (*)(), const char*>;
  for (const auto& [send, name] :
       {Row{[] { MIDI_SendNote(60, 1); }, "MIDI_SendNote"}, Row{[] { Seq_SendNote(60, 1); }, "Seq_SendNote"},
        Row{Seq_SendAllNotesOff, "Seq_SendAllNotesOff"}}) {
    MIDI_Enabled = 1;
    MIDI_Out_Open();
    service.Fail_Next("Out_Short", 999);
    desktop.Expect_Box(Answer::Ok, name + std::string("*: (999) Unknown error"));
    send();
    EXPECT_EQ(service.Take_Hex(), Texts{"B0 7B 00"}) << "of the close";
    EXPECT_EQ(MIDI_Out_Handle + MIDI_Enabled, -1);
  }
  MIDI_Enabled = 1;
  MIDI_Out_Open();
  desktop.Post([] { MIDI_Out_Error(Midi_No_Device, "Another"); });  // closes while the close lets events run
  desktop.Expect_Box(Answer::Ok, "Another*: (68) Text of 68");
  MIDI_Out_Close();
  MIDI_Enabled = 1;
  MIDI_Out_Open();
  service.Fail_Next("Out_Short", Midi_No_Device, 99);
  for (int box = 0; box < 2; ++box) desktop.Expect_Box(Answer::Ok, "MIDI_Put*: (68) Text of 68");
  MIDI_Out_Close();
  EXPECT_EQ(MIDI_Out_Handle + MIDI_Enabled, -1);
}

TEST_F(Midi, The_Long_Path_Tells_Only_A_Failed_Prepare_And_Sends_All_The_Same) {
  service.Fail_Next("Out_Prepare", Midi_Invalid_Parameter);
  desktop.Expect_Box(Answer::Ok, "OutPreparerHeader\r\nText of 11");
  MIDI_Send_Long("\xF0\xF7");
  service.Fail_Next("Out_Long", Midi_Not_Ready);
  MIDI_Send_Long("\xF0\x01\xF7");
  EXPECT_EQ(service.calls["Out_Long"], 2);
  EXPECT_EQ(service.calls["Out_Unprepare"], 2);
}
