#include "core/tone_commands.h"

#include "core/settings.h"
#include "core/tone_files.h"
#include "platform/chance.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/modal.h"

namespace {

struct Tone_Commands : Program {
  Tone_Commands() {
    Tone_Undo = {};
    Patch_Undo = {};
    MELVOR.Menu_Edit_Undo.enabled = false;
    Show(Editor);
  }
  ~Tone_Commands() override {
    MIDI_In_Close();
    Receive_On = 0;
    MELVOR.MidiNotifyControl.on_change = nullptr;
    Receive_Changed = nullptr;
    Menus_Enable();
    Unload(Editor);
  }
};

TEST_F(Tone_Commands, New_Asks_About_A_Changed_Tone_And_Sends_The_Blank_One) {
  Autosend = 0;
  Tone[34] = 9;
  Tone_Saved = Flag_False;
  desktop.Expect_Box(Answer::No, "Save actual TONE first?");
  Tone_New();
  EXPECT_EQ(desktop.boxes[0].style, Box_Yes_No + Box_Question);
  EXPECT_EQ(Tone[34], 0);
  EXPECT_EQ(Tone_Loading, Flag_Off);
  EXPECT_EQ(Sent().size(), 1U) << "also with automatic sending off";
}

TEST_F(Tone_Commands, The_Prompt_Offers_What_Its_Command_Tells) {
  Tone_Saved = Flag_False;
  desktop.Expect_Box(Answer::Cancel);
  EXPECT_FALSE(Tone_May_Go(Box_Yes_No_Cancel));
  EXPECT_EQ(desktop.boxes[0].style, 35);
  EXPECT_EQ(Tone_Saved, Flag_False);
  desktop.Expect_Box(Answer::No);
  EXPECT_TRUE(Tone_May_Go(Box_Yes_No));
  EXPECT_TRUE(Tone_May_Go(Box_Yes_No)) << "and asks no more";
}

TEST_F(Tone_Commands, Random_Reaches_Every_Parameter_And_Keeps_Only_A_Changed_Tone) {
  Tone[34] = 5;
  Autosend = 0;
  Tone_Random();
  EXPECT_EQ(Tone_Name_Str, "RANDOM");
  EXPECT_TRUE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(Tone_Saved, Flag_False);
  EXPECT_EQ(Sent().size(), 1U);
  Undo_Restore();
  EXPECT_EQ(Tone, Byte_Record<Tone_Size>{}) << "a saved tone is not kept: the copies are still empty";
  Tone[34] = 77;
  Byte_Record<Tone_Size> highest;
  for (int run = 0; run < 200; ++run) {
    Tone_Saved = Flag_True;
    Tone_Random();
    EXPECT_EQ(Tone[10], 32);
    EXPECT_EQ(Patch_Rec[6], 64);
    for (int index = 11; index < Tone_Size; ++index) {
      EXPECT_LE(Tone[index], 126);
      highest[index] = std::max(highest[index], Tone[index]);
    }
  }
  for (int index = 11; index < Tone_Size; ++index) EXPECT_GT(highest[index], 64) << index;
}

TEST_F(Tone_Commands, Undo_Brings_A_Changed_Tone_Back_Once) {
  Tone[34] = 77;
  Patch_Rec[1] = 3;
  Tone_Saved = Flag_False;
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  Tone_Random();
  Sent();
  Undo_Restore();
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Patch_Rec, patch);
  EXPECT_EQ(Tone_Saved, Flag_False);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Tone_Commands, Quiet_Undo_Sends_Only_With_Autosend_And_Leaves_The_Menu) {
  Tone_Undo[34] = 12;
  Autosend = 0;
  Undo_Restore_Quiet();
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Tone[34], 12);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  Autosend = 1;
  Undo_Restore_Quiet();
  EXPECT_EQ(Sent().size(), 1U);
}

struct Receive : Tone_Commands {
  Receive() {
    MELVOR.MidiNotifyControl.on_change = MIDI_In_Poll;
    Receive_Changed = [this] { ++changes; };
  }
  static Byte_String Dump(std::size_t size) { return "\xF0" + Byte_String(size - 2, 'A') + "\xF7"; }
  int changes = 0;
};

TEST_F(Receive, A_Dump_Of_67_Bytes_Is_Shown_And_Ends_The_Wait) {
  Tone_Receive();
  EXPECT_EQ(Receive_On, 1);
  EXPECT_EQ(Autosend, 0);
  EXPECT_FALSE(MELVOR.Menu_File.enabled());
  EXPECT_TRUE(service.In_Is_Started());
  EXPECT_EQ(service.Free_Buffers(), 4);
  EXPECT_TRUE(service.Deliver(Dump(67)));
  EXPECT_EQ(Receive_On, 0);
  EXPECT_EQ(Autosend, 1);
  EXPECT_TRUE(MELVOR.Menu_File.enabled());
  EXPECT_FALSE(service.In_Is_Open());
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(Tone_Name_Str, "AAAAAAAAAA");
  EXPECT_EQ(Tone[58], 'A');
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_TRUE(Sent().empty()) << "what came is not echoed";
}

TEST_F(Receive, Other_Lengths_Change_Bytes_And_The_Wait_Goes_On) {
  struct Row {
    std::size_t size;
    int first;
    int last;
  };
  Tone_Receive_Toggle();
  for (const Row& row : {Row{7, 32, 0}, Row{8, 0xF7, 0}, Row{66, 'A', 0xF7}, Row{100, 'A', 'A'}}) {
    Tone_Clear();
    EXPECT_TRUE(service.Deliver(Dump(row.size)));
    EXPECT_EQ(Tone[0], row.first) << row.size;
    EXPECT_EQ(Tone[58], row.last) << row.size;
    EXPECT_EQ(Receive_On, 1);
    EXPECT_EQ(service.Free_Buffers(), 4) << "the buffer goes back";
  }
}

TEST_F(Receive, A_Failed_Open_Changes_Nothing_And_A_Vanished_Input_Closes) {
  service.Fail_Next(Midi_Operation::In_Open, Midi_Allocated);
  desktop.Expect_Box(Answer::Ok, "vbMidiInOpen: Text of 4");
  Tone_Receive_Toggle();
  EXPECT_EQ(Receive_On, 0);
  EXPECT_EQ(MIDI_In_Handle, -1);
  service.Fail_Next(Midi_Operation::In_Add_Buffer, Midi_No_Memory);
  desktop.Expect_Box(Answer::Ok, "vbMidiInAddBuffer: Text of 7");
  Tone_Receive_Toggle();
  EXPECT_EQ(Receive_On, 0);
  EXPECT_FALSE(service.In_Is_Open());
  Tone_Receive_Toggle();
  service.Fail_Next(Midi_Operation::In_Reset, Midi_Invalid_Handle);
  desktop.Expect_Box(Answer::Ok, "vbMidiInClose: Text of 5");
  Tone_Receive_Toggle();
  EXPECT_EQ(MIDI_In_Handle, -1);
  EXPECT_EQ(Receive_On, 0);
}

TEST_F(Receive, Both_Slots_Are_Taken_In_Order_And_The_Second_Switches_On_Again) {
  Tone_Receive_Toggle();
  MIDI_In_Slot1 = Dump(67);
  MIDI_In_Slot2 = Dump(67);
  MIDI_In_Poll();
  EXPECT_EQ(Receive_On, 1);
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(MIDI_In_Take2(), "");
}

}  // namespace
