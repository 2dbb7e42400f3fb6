#include "core/tone_commands.h"

#include "core/undo.h"
#include "support/program.h"

struct Tone_Commands : Program {
  Tone_Commands() {
    MIDI_In_Arrived = MIDI_In_Poll;
    Show(Editor);
  }
  ~Tone_Commands() override {
    MIDI_In_Close();
    MIDI_In_Arrived = nullptr;
    Menus_Enable();
  }
  static Byte_String Dump(std::size_t size) { return "\xF0" + Byte_String(size - 2, 'A') + "\xF7"; }
};

TEST_F(Tone_Commands, A_Changed_Tone_Is_Asked_About_And_Cancel_Ends_The_Command) {
  Autosend = 0;
  Tone[34] = 9;
  Tone_Saved = Flag_False;
  for (const auto command : {Tone_New, Tone_Receive}) {
    desktop.Expect_Box(Answer::Cancel, "Save actual TONE first?");
    command();
    EXPECT_TRUE(Tone[34] == 9 && Tone_Saved == Flag_False && !service.In_Is_Open());
  }
  desktop.Expect_Box(Answer::No, "Save actual TONE first?");
  Tone_New();
  EXPECT_EQ(Tone[34] + Tone_Loading, Flag_Off);
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_EQ(Sent().size(), 1U) << "also with automatic sending off";
}

TEST_F(Tone_Commands, Random_Keeps_A_Changed_Tone_For_Undo) {
  Tone[34] = 77;
  Patch_Rec[1] = 3;
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  Tone_Saved = Flag_False;
  Tone_Random();
  EXPECT_NE(Tone, tone);
  EXPECT_EQ(Tone_Name_Str, "RANDOM");
  Tone_Saved = Flag_True;
  Tone_Random();  // keeps nothing
  Undo_Restore();
  EXPECT_TRUE(Tone == tone && Patch_Rec == patch);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(Sent().size(), 3U);
}

TEST_F(Tone_Commands, Only_A_Dump_Of_67_Bytes_Ends_The_Wait) {
  Tone_Receive();
  EXPECT_EQ(Autosend, 0);
  EXPECT_FALSE(MELVOR.Menu_File.enabled());
  for (const auto& [size, last] : {std::pair{7U, 0}, {66U, 0xF7}, {100U, 0x41}}) {
    Tone_Clear();
    EXPECT_TRUE(service.Deliver(Dump(size)));
    EXPECT_EQ(Tone[58], last) << size;
    EXPECT_EQ(Receive_On, 1);
    EXPECT_EQ(service.buffers.size(), 4U) << "the buffer goes back";
  }
  EXPECT_TRUE(service.Deliver(Dump(67)));
  EXPECT_EQ(Tone_Name_Str, "AAAAAAAAAA");
  EXPECT_EQ(Autosend - Receive_On, 1);
  EXPECT_TRUE(MELVOR.Menu_File.enabled() && !service.In_Is_Open());
  EXPECT_TRUE(Sent().empty()) << "what came is not echoed";
}

TEST_F(Tone_Commands, A_Failed_Open_Changes_Nothing_And_A_Vanished_Input_Closes) {
  for (const auto& [operation, told] : {std::pair{"In_Open", "vbMidiInOpen"},
                                        {"In_Prepare", "vbMidiInPrepareHeader"},
                                        {"In_Add_Buffer", "vbMidiInAddBuffer"},
                                        {"In_Start", "vbMidiInOpen"}}) {
    service.Fail_Next(operation, Midi_Allocated);
    desktop.Expect_Box(Answer::Ok, told + std::string(": Text of 4"));
    Tone_Receive_Toggle();
    EXPECT_FALSE(Receive_On == 1 || service.In_Is_Open());
  }
  Tone_Receive_Toggle();
  service.Fail_Next("In_Reset", Midi_Invalid_Handle);
  desktop.Expect_Box(Answer::Ok, "vbMidiInClose: Text of 5");
  Tone_Receive_Toggle();
  EXPECT_EQ(MIDI_In_Handle + Receive_On, -1);
}

TEST_F(Tone_Commands, Two_Messages_Wait_In_Order_And_A_Third_Is_Dropped) {
  Tone_Receive_Toggle();
  MIDI_In_Arrived = nullptr;
  for (const std::size_t size : {66U, 67U, 8U}) EXPECT_TRUE(service.Deliver(Dump(size)));
  MIDI_In_Poll();
  EXPECT_EQ(Receive_On, 0);
  EXPECT_EQ(Tone[0], 'A');
}
