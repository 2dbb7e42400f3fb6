#include "core/tone_commands.h"

#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/modal.h"

namespace {

struct Tone_Commands : Program {
  Tone_Commands() {
    Tone_Undo = {};
    Patch_Undo = {};
    MELVOR.Menu_Edit_Undo.enabled = false;
    MELVOR.MidiNotifyControl.on_change = MIDI_In_Poll;
    Receive_Changed = [this] { ++changes; };
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
  static Byte_String Dump(std::size_t size) { return "\xF0" + Byte_String(size - 2, 'A') + "\xF7"; }
  int changes = 0;  // of the wait for a tone
};

TEST_F(Tone_Commands, A_Changed_Tone_Is_Asked_About_And_Cancel_Ends_The_Command) {
  Autosend = 0;
  Tone[34] = 9;
  Tone_Saved = Flag_False;
  for (const auto command : {Tone_New, Tone_Receive}) {
    desktop.Expect_Box(Answer::Cancel, "Save actual TONE first?");
    command();
    EXPECT_EQ(desktop.boxes.back().style, Box_Yes_No + Box_Question);
    EXPECT_EQ(Tone[34], 9);
    EXPECT_EQ(Tone_Saved, Flag_False);
    EXPECT_FALSE(service.In_Is_Open());
  }
  desktop.Expect_Box(Answer::No, "Save actual TONE first?");
  Tone_New();
  EXPECT_EQ(Tone[34], 0);
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_EQ(Tone_Loading, Flag_Off);
  EXPECT_EQ(Sent().size(), 1U) << "also with automatic sending off";
}

TEST_F(Tone_Commands, Random_Reaches_Every_Parameter_And_Undo_Brings_A_Changed_Tone_Back) {
  Tone[34] = 77;
  Patch_Rec[1] = 3;
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  Tone_Saved = Flag_False;
  Byte_Record<Tone_Size> highest;
  for (int run = 0; run < 200; ++run) {
    Tone_Random();
    for (int index = 11; index < Tone_Size; ++index) highest[index] = std::max(highest[index], Tone[index]);
    Tone_Saved = Flag_True;  // and so the next run keeps nothing
  }
  for (int index = 11; index < Tone_Size; ++index)
    EXPECT_TRUE(highest[index] > 64 && highest[index] < 127) << index;
  EXPECT_EQ(Tone_Name_Str, "RANDOM");
  EXPECT_EQ(Tone[10], 32);
  EXPECT_EQ(Patch_Rec[6], 64);
  EXPECT_EQ(Sent().size(), 200U);
  EXPECT_TRUE(MELVOR.Menu_Edit_Undo.enabled());
  Undo_Restore();
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Patch_Rec, patch);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Tone_Commands, A_Received_Dump_Of_67_Bytes_Is_Shown_And_Ends_The_Wait) {
  Tone_Receive();
  EXPECT_EQ(Receive_On, 1);
  EXPECT_EQ(Autosend, 0);
  EXPECT_FALSE(MELVOR.Menu_File.enabled());
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

TEST_F(Tone_Commands, Other_Lengths_Change_Bytes_And_The_Wait_Goes_On) {
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

TEST_F(Tone_Commands, A_Failed_Open_Changes_Nothing_And_A_Vanished_Input_Closes) {
  struct Row {
    Midi_Operation operation;
    int code;
    const char* box;
  };
  for (const Row& row :
       {Row{Midi_Operation::In_Open, Midi_Allocated, "vbMidiInOpen: Text of 4"},
        Row{Midi_Operation::In_Prepare, 999, "vbMidiInPrepareHeader: Unknown error"},
        Row{Midi_Operation::In_Add_Buffer, Midi_No_Memory, "vbMidiInAddBuffer: Text of 7"}}) {
    service.Fail_Next(row.operation, row.code);
    desktop.Expect_Box(Answer::Ok, row.box);
    Tone_Receive_Toggle();
    EXPECT_EQ(Receive_On, 0);
    EXPECT_FALSE(service.In_Is_Open());
  }
  Tone_Receive_Toggle();
  service.Fail_Next(Midi_Operation::In_Reset, Midi_Invalid_Handle);
  desktop.Expect_Box(Answer::Ok, "vbMidiInClose: Text of 5");
  Tone_Receive_Toggle();
  EXPECT_EQ(MIDI_In_Handle, -1);
  EXPECT_EQ(Receive_On, 0);
}

// The first ends the wait and the second begins it again.
TEST_F(Tone_Commands, Two_Messages_Wait_In_Order_And_A_Third_Is_Dropped) {
  Tone_Receive_Toggle();
  MELVOR.MidiNotifyControl.on_change = nullptr;
  EXPECT_TRUE(service.Deliver({})) << "a buffer that comes back empty is no message";
  for (const std::size_t size : {67U, 67U, 8U}) EXPECT_TRUE(service.Deliver(Dump(size)));
  MIDI_In_Poll();
  EXPECT_EQ(Receive_On, 1);
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(Tone[0], 'A');
}

}  // namespace
