#include "filebrowser/filebrowser_fixture.h"

using Preview_Test = Filebrowser_Test;

TEST_F(Preview_Test, The_Note_Comes_With_The_Tick_And_All_Notes_Off_With_The_Next_File) {
  Open("Open_SYX");
  desktop.At_Wait([&] {
    EXPECT_EQ(Heard(), "B0 7B 00, dump A, dump A");
    desktop.Advance_ms(999);
    EXPECT_EQ(Heard(), "");
  });
  Press_File("a.syx");
  EXPECT_EQ(Heard(), "90 30 50");
  User_Selected(File_Dlg.FD_SYX_SoundCheck_Note_List, 0);
  User_Selected(File_Dlg.FD_SYX_SoundCheck_Velocity_List, 127);
  Press_File("B.SYX");
  EXPECT_EQ(Heard(), "B0 7B 00, dump B, dump B, 90 18 7F");
  Unload(File_Dlg);
  EXPECT_EQ(Heard(), "B0 7B 00");
  EXPECT_EQ(Tone[0], 'B') << "the preview stays";
}

TEST_F(Preview_Test, A_Preview_That_Is_Overtaken_Stays_Silent) {
  Open("Open_SYX");
  desktop.At_Wait([&] { Press_File("B.SYX"); });
  Press_File("a.syx");
  EXPECT_EQ(Heard(), "B0 7B 00, dump A, dump A, B0 7B 00, dump B, dump B, 90 30 50")
      << "one note for two clicks";
}

TEST_F(Preview_Test, The_Switches_Say_What_Is_Heard) {
  // Autosend, Autoplay, Soundcheck and MIDI as digits; what is heard; whether the sequence runs.
  for (const auto& [switches, heard, runs] : {std::tuple{"0101", "90 30 50", false},
                                              {"1001", "B0 7B 00, dump A, dump A", false},
                                              {"0111", "", true},
                                              {"1100", "", false}}) {
    Fresh_Memory();
    Seq_Loaded = Flag_On;
    Autosend = switches[0] == '1';
    Autoplay = switches[1] == '1';
    Soundcheck = switches[2] == '1';
    MIDI_Enabled = switches[3] == '1';
    Open("Open_SYX");
    Press_File("a.syx");
    EXPECT_EQ(Heard(), heard);
    EXPECT_EQ(Tone[0], 'A');
    EXPECT_EQ(MELVOR.Seq_Tmr.enabled(), runs);
    EXPECT_EQ(File_Dlg.FD_SYX_Button_Start.picture() == Button_Dn3D, runs);
    desktop.Click(File_Dlg.FD_SYX_Button_Stop_Pic);
    EXPECT_FALSE(MELVOR.Seq_Tmr.enabled());
    Unload(File_Dlg);
  }
}

TEST_F(Preview_Test, A_Clicked_Sequence_Is_Drawn_And_Plays_From_Its_Start) {
  Open("Open_SEQ");
  Press_File("p.seq");
  EXPECT_EQ(File_Dlg.FD_SEQ_Preview.painted().size(), 104U);
  EXPECT_EQ(Seq_Status, 0x90) << "nothing else has set it";
  desktop.Advance_ms(125 * 3);
  EXPECT_EQ(Seq_Step, 3);
  Press_File("p.seq");
  EXPECT_EQ(Seq_Step, 0);
  desktop.Click(File_Dlg.FD_SEQ_CB_Autoplay_Label);
  desktop.Click(File_Dlg.FD_SEQ_Button_Stop);
  Press_File("p.seq");
  EXPECT_FALSE(MELVOR.Seq_Tmr.enabled()) << "autoplay is off";
  desktop.Click(File_Dlg.FD_SEQ_Button_Start);
  EXPECT_TRUE(MELVOR.Seq_Tmr.enabled());
  service.Fail_Next("Out_Short", 68);
  desktop.Expect_Box(Answer::Ok);
  desktop.Advance_ms(125);
  EXPECT_FALSE(MELVOR.Seq_Tmr.enabled());
  EXPECT_EQ(File_Dlg.FD_SEQ_Button_Start.picture(), Button_Up3D);
}
