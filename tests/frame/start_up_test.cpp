// The frame: how the program starts and closes.
#include "frame/whole_program.h"
#include "windows/sequencer_window.h"

using Frame = Whole_Program;

struct Running : Whole_Program {
  Running() { EXPECT_TRUE(Start()); }
};

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

TEST_F(Frame, A_Density_That_No_Panel_Is_Drawn_For_Ends_The_Start_With_A_Box) {
  for (const int density : {0, 144, 1500}) {
    desktop.quit = false;
    desktop.pixels_per_inch = density;
    desktop.on_other_box = [] { return Answer::Ok; };
    EXPECT_FALSE(Start());
    EXPECT_TRUE(desktop.Last_Box().starts_with("Unsupported system font size: " + std::to_string(density)));
  }
}

TEST_F(Frame, Preload_Takes_The_Newest_Sequence_And_Says_Nothing_Without_One) {
  const std::string preload = std::string(Configured) + "Sequence Preload=1\n";
  root.Put("a.seq", "SEQ1" + Bytes_Of("3C 30 7F") + std::string(103, '\0'));
  ASSERT_TRUE(Start(preload + "[Recent Files]\nSequence1=C:\\A.SEQ\n"));
  EXPECT_EQ(Seq_Data[0], 127);
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  EXPECT_EQ(Active_Form(), &Editor);
  EXPECT_TRUE(service.sent.empty() && !service.Out_Is_Open());
  Unload(MELVOR);
  ASSERT_TRUE(Start(preload));
  EXPECT_EQ(Seq_Data[0], 0);
}

TEST_F(Frame, A_Sequence_That_Is_Refused_After_Its_Preview_Leaves_The_One_In_The_Window) {
  const std::string good = "SEQ1" + Bytes_Of("3C 30") + std::string(104, '\x7F');
  root.Put("good.seq", good);
  root.Put("high.seq", "SEQ1" + Bytes_Of("3C 78") + std::string(104, '\x3F'));
  ASSERT_TRUE(Start(std::string(Configured) + "[Recent Files]\nSequences=c:\\\nSequence1=C:\\GOOD.SEQ\n"));
  Choose(MELVOR.Menu_MIDI_Seq);
  Choose(MELVOR.Menu_File_Seq_1);
  const auto preview = [this] {
    Choose(MELVOR.Menu_File_Seq_Open);
    User_Selected(File_Dlg.FD_List_Files, 1);
    desktop.Click(File_Dlg.FD_List_Files);
    EXPECT_EQ(Seq_Data[0], Seq_Soft);
  };
  preview();
  desktop.Expect_Box(Answer::Ok, "Error 380: Invalid property value");
  desktop.Key(Key::Enter);
  Unload(File_Dlg);
  Choose(MELVOR.Menu_File_Seq_Save);
  EXPECT_EQ(root.Get("good.seq"), good);
  const auto shown = Sequencer.Seq_Matrix.painted();
  preview();
  desktop.Key(Key::Escape);
  EXPECT_NE(Sequencer.Seq_Matrix.painted(), shown) << "a preview that stays is seen";
}

TEST_F(Frame, A_Recent_Tone_Is_Saved_Under_Its_Own_Name) {
  const std::string tone = Bytes_Of("F0 41 35 00 21 20 01") + std::string(59, 'a') + "\xF7";
  for (const char* name : {"a.syx", "b.syx", "c.syx"}) root.Put(name, tone);
  ASSERT_TRUE(
      Start(std::string(Configured) + "[Recent Files]\nTone1=C:\\a.syx\nTone2=C:\\b.syx\nTone3=C:\\c.syx\n"));
  Choose(MELVOR.Menu_File_SYX_3);
  EXPECT_EQ(Tone_File, "C:\\C.SYX");
  Choose(MELVOR.Menu_File_SYX_2);
  EXPECT_EQ(Tone_File, "C:\\A.SYX");
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

TEST_F(Running, Closing_While_The_Sequencer_Plays_Silences_It_Before_Any_Prompt) {
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

TEST_F(Running, Closing_While_It_Waits_For_A_Tone_Keeps_Autosend_In_The_Settings) {
  Tone_Receive();
  EXPECT_EQ(Receive_On - Autosend, 1);
  Unload(MELVOR);
  EXPECT_NE(root.Get("MELVOR.INI").find("Autosend=1"), std::string::npos);
}

// The question comes again, from the closing that falls into the wait of the first one's Save As.
TEST_F(Frame, Closing_In_The_Wait_Of_A_Save_As_Ends_What_Waited) {
  for (Menu_Item* command : {&MELVOR.Menu_File_SYX_New, &MELVOR.Menu_File_SYX_Open, &MELVOR.Menu_File_Exit}) {
    ASSERT_TRUE(Start(std::string(Configured) + "[Main Window]\nLeft=70\n"));
    desktop.quit = false;
    Tone_Saved = Flag_False;
    desktop.Expect_Box(Answer::Yes, "Save actual TONE first?");
    desktop.At_Wait([this] {
      desktop.Expect_Box(Answer::No, "Save actual TONE first?");
      EXPECT_TRUE(File_Dlg.Loaded() && Unload(MELVOR));
    });
    service.Take_Hex();
    Choose(*command);
    EXPECT_FALSE(File_Dlg.Loaded() || service.Out_Is_Open());
    for (const std::string& sent : service.Take_Hex()) EXPECT_EQ(sent, "B0 7B 00");
    EXPECT_NE(root.Get("MELVOR.INI").find("Left=70"), std::string::npos);
  }
}

TEST_F(Running, Closing_Beside_A_Dialog_Leaves_It_And_Saves_By_One_Of_Its_Own) {
  Choose(MELVOR.Menu_MIDI_Seq);
  Choose(MELVOR.Menu_File_SYX_Open);
  Seq_Saved = Flag_Off;
  desktop.Expect_Box(Answer::Yes, "Save actual SEQUENCE first?");
  desktop.At_Wait([] {
    EXPECT_EQ(File_Dlg.FD_List_Files.pattern(), "*.SEQ");
    Unload(File_Dlg);
  });
  EXPECT_FALSE(Unload(MELVOR));
  EXPECT_TRUE(Active_Dlg.empty() && Editor.enabled());
}

TEST_F(Running, Where_The_Display_Goes_Notes_End_And_The_Settings_Are_Kept) {
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

TEST_F(Running, A_Signal_In_A_Box_Ends_The_Command_That_Asked) {
  Tone_Saved = Flag_False;
  desktop.on_other_box = [] {
    End_Without_Questions();
    return Answer::No;
  };
  Choose(MELVOR.Menu_File_SYX_New);
  EXPECT_EQ(service.Take_Hex().back(), "B0 7B 00") << "and no blank tone behind it";
}

TEST_F(Running, A_Signal_Ends_It_Without_A_Box_Where_The_Device_Has_Gone_And_During_The_Start) {
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
