// The frame: how the program starts and closes.
#include "core/sysex.h"
#include "core/tone_commands.h"
#include "frame/whole_program.h"
#include "windows/sequencer_window.h"

namespace {

using Frame = Whole_Program;

TEST_F(Frame, A_Configured_Start_Shows_The_Editor_And_Sends_Nothing) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(Active_Form(), &Editor);
  EXPECT_EQ(Tone[13], 56);
  EXPECT_TRUE(Tone_Saved == Flag_True && Seq_Saved == Flag_On);
  EXPECT_TRUE(service.sent.empty());
  EXPECT_FALSE(service.Out_Is_Open());
}

TEST_F(Frame, Missing_Devices_Are_Told_One_By_One_And_Setup_Opens_Behind_The_Load) {
  desktop.Expect_Box(Answer::Ok, "MIDI output device not configured - starting MIDI setup.");
  desktop.Expect_Box(Answer::Ok, "MIDI input device (Gone) not available - starting MIDI setup.");
  ASSERT_TRUE(Start("[MIDI]\nInput=Gone\nChannel=-5\n"));
  EXPECT_TRUE(MIDI_Setup.visible());
  EXPECT_EQ(SysEx_IPR_Tone, "F0 41 36 4 21 20 01 ") << "the load went on behind the window";
}

TEST_F(Frame, Without_Any_Device_The_Program_Runs_On_Its_Own) {
  service.outputs = service.inputs = {};
  desktop.Expect_Box(Answer::Ok, "No MIDI output device installed. MIDI functions disabled");
  desktop.Expect_Box(Answer::Ok, "No MIDI input device installed. MIDI functions disabled");
  ASSERT_TRUE(Start());
  EXPECT_FALSE(MELVOR.Menu_MIDI.enabled());
  desktop.Key(Key::Home);
  EXPECT_EQ(Tone[11], 127);
}

TEST_F(Frame, Preload_Takes_The_Newest_Sequence_And_Says_Nothing_Without_One) {
  const std::string preload = std::string(Configured) + "Sequence Preload=1\n";
  root.Put("a.seq", "SEQ1" + Bytes_Of("3C 30 7F") + std::string(103, '\0'));
  ASSERT_TRUE(Start(preload + "[Recent Files]\nSequence1=C:\\A.SEQ\n"));
  EXPECT_EQ(Seq_Data[0], 127);
  Unload(MELVOR);
  ASSERT_TRUE(Start(preload));
  EXPECT_EQ(Seq_Data[0], 0);
}

TEST_F(Frame, Closing_Asks_For_Both_And_Only_What_Is_Settled_Lets_It_Go) {
  for (const auto& [tone, sequence, closes] : {std::tuple{Answer::Cancel, Answer::No, false},
                                               {Answer::No, Answer::Cancel, false},
                                               {Answer::No, Answer::No, true}}) {
    ASSERT_TRUE(Start());
    Choose(MELVOR.Menu_MIDI_Seq);
    Tone_Saved = Flag_False;
    Seq_Saved = Flag_Off;
    desktop.Expect_Box(tone, "Save actual TONE first?");
    desktop.Expect_Box(sequence, "Save actual SEQUENCE first?");
    EXPECT_EQ(Unload(MELVOR), closes);
    EXPECT_FALSE(Sequencer.Loaded());
  }
  EXPECT_TRUE(desktop.quit);
}

TEST_F(Frame, Closing_While_The_Sequencer_Plays_Silences_It_Before_Any_Prompt) {
  ASSERT_TRUE(Start());
  const Picture raised = Editor.ED_Seq_Start.picture;
  Play();
  EXPECT_NE(Editor.ED_Seq_Start.picture(), raised);
  service.Take_Hex();
  desktop.Expect_Box(Answer::Cancel, "Save actual SEQUENCE first?");
  EXPECT_FALSE(Unload(MELVOR));
  desktop.Advance_ms(1000);
  EXPECT_EQ(service.Take_Hex(), std::vector<std::string>{"B0 7B 00"});
  EXPECT_EQ(Editor.ED_Seq_Start.picture(), raised);
}

TEST_F(Frame, Closing_While_It_Waits_For_A_Tone_Keeps_Autosend_In_The_Settings) {
  ASSERT_TRUE(Start());
  Tone_Receive();
  EXPECT_EQ(Receive_On - Autosend, 1);
  Unload(MELVOR);
  EXPECT_NE(root.Get("MELVOR.INI").find("Autosend=1"), std::string::npos);
}

TEST_F(Frame, Where_The_Display_Goes_Notes_End_And_The_Settings_Are_Kept) {
  ASSERT_TRUE(Start());
  Play();
  Tone_Receive();
  service.Take_Hex();
  service.Fail_Next("Out_Close", Midi_Still_Playing, 3);
  End_Without_Desktop();
  EXPECT_EQ(service.Take_Hex(), std::vector<std::string>{"B0 7B 00"});
  EXPECT_FALSE(service.Out_Is_Open());
  EXPECT_NE(root.Get("MELVOR.INI").find("Autosend=1"), std::string::npos);
  End_Without_Questions();
  root.Put("MELVOR.INI", Configured);
  End_Without_Desktop();
  EXPECT_EQ(root.Get("MELVOR.INI"), Configured) << "after the end";
}

TEST_F(Frame, A_Signal_Ends_It_Without_A_Box_Where_The_Device_Has_Gone_And_During_The_Start) {
  ASSERT_TRUE(Start());
  service.Fail_Next("Out_Open", 68, 99);
  End_Without_Questions();
  EXPECT_FALSE(MELVOR.Loaded());

  desktop.quit = false;
  desktop.on_other_box = [] {
    End_Without_Questions();
    End_Without_Desktop();
    return Answer::Ok;
  };
  const std::string settings = "[MIDI]\nOutput=Gone\nInput=Gone\n[Recent Files]\nTone1=C:\\A.SYX\n";
  Start(settings);
  EXPECT_TRUE(desktop.quit);
  EXPECT_EQ(desktop.boxes.size(), 1U);
  EXPECT_EQ(root.Get("MELVOR.INI"), settings);
}

}  // namespace
