#include "filebrowser/filebrowser_fixture.h"
#include "windows/pictures.h"

namespace {

struct Preview_Test : Filebrowser_Test {
  Picture_Box& Item(std::size_t item) { return File_Dlg.FD_SYX_OB_Soundcheck[item]; }
};

TEST_F(Preview_Test, The_Note_Comes_With_The_Tick_And_All_Notes_Off_With_The_Next_File) {
  Open("Open_SYX");
  desktop.At_Wait([&] {
    EXPECT_EQ(Heard(), "B0 7B 00, dump A, dump A");
    desktop.Advance_ms(999);
    EXPECT_EQ(Heard(), "");
  });
  Press_File("a.syx");
  EXPECT_EQ(Heard(), "90 30 50");
  EXPECT_EQ(Text() + " " + FD_Selected, "a.syx a.syx");
  Press_File("B.SYX");
  EXPECT_EQ(Heard(), "B0 7B 00, dump B, dump B, 90 30 50");
  Unload(File_Dlg);
  EXPECT_EQ(Heard(), "B0 7B 00");
  EXPECT_EQ(Tone[0], 'B') << "the preview stays";
  EXPECT_FALSE(MELVOR.Timer_Display.enabled());
}

TEST_F(Preview_Test, A_Preview_That_Is_Overtaken_Stays_Silent) {
  Open("Open_SYX");
  desktop.At_Wait([&] { Press_File("B.SYX"); });
  Press_File("a.syx");
  EXPECT_EQ(Heard(), "B0 7B 00, dump A, dump A, B0 7B 00, dump B, dump B, 90 30 50")
      << "one note for two clicks";
  desktop.At_Wait([&] { desktop.Key(Key::Escape); });
  Press_File("a.syx");
  EXPECT_EQ(Heard(), "B0 7B 00, dump A, dump A, B0 7B 00") << "closed while it waits";
}

TEST_F(Preview_Test, The_Switches_Say_What_Is_Heard) {
  const struct {
    std::uint8_t autosend, autoplay, soundcheck;
    const char* heard;
    bool runs;
  } rows[] = {{0, 1, 0, "90 30 50", false},
              {1, 0, 0, "B0 7B 00, dump A, dump A", false},
              {0, 1, 1, "", true},
              {0, 0, 1, "", false}};
  for (const auto& row : rows) {
    Fresh_Memory();
    Seq_Loaded = Flag_On;
    Autosend = row.autosend;
    Autoplay = row.autoplay;
    Soundcheck = row.soundcheck;
    Open("Open_SYX");
    Press_File("a.syx");
    EXPECT_EQ(Heard(), row.heard);
    EXPECT_EQ(MELVOR.Seq_Tmr.enabled(), row.runs);
    EXPECT_EQ(File_Dlg.FD_SYX_Button_Start.picture() == Button_Dn3D, row.runs);
    desktop.Click(File_Dlg.FD_SYX_Button_Stop_Pic);
    EXPECT_FALSE(MELVOR.Seq_Tmr.enabled());
    EXPECT_EQ(File_Dlg.FD_SYX_Button_Start.picture(), Button_Up3D);
    Unload(File_Dlg);
  }
}

TEST_F(Preview_Test, A_Clicked_Sequence_Is_Drawn_And_Plays_From_Its_Start) {
  Open("Open_SEQ");
  Press_File("p.seq");
  EXPECT_EQ(File_Dlg.FD_SEQ_Preview.painted().size(), 104U);
  desktop.Advance_ms(125 * 3);
  EXPECT_EQ(Seq_Step, 3);
  Press_File("p.seq");
  EXPECT_EQ(Seq_Step, 0);
  desktop.Click(File_Dlg.FD_SEQ_CB_Autoplay);
  desktop.Click(File_Dlg.FD_SEQ_Button_Stop);
  Press_File("p.seq");
  EXPECT_FALSE(MELVOR.Seq_Tmr.enabled()) << "autoplay is off";
  desktop.Click(File_Dlg.FD_SEQ_Button_Start);
  EXPECT_TRUE(MELVOR.Seq_Tmr.enabled());
  EXPECT_EQ(File_Dlg.FD_SEQ_Button_Start.picture(), Button_Dn3D);
}

TEST_F(Preview_Test, Without_MIDI_Files_Load_Silently_And_The_Switches_Are_Grey) {
  MIDI_Enabled = 0;
  Open("Open_SYX");
  for (const char letter : {'P', 'S', 'C'}) desktop.Key(letter, Alt_Key);
  EXPECT_EQ(Autoplay + Autosend, 0);
  for (const Control* control : std::initializer_list<Control*>{
           &File_Dlg.FD_SYX_CB_Autoplay, &File_Dlg.FD_SYX_CB_Autosend, &Item(0), &Item(1),
           &File_Dlg.FD_SYX_SoundCheck_Note_List, &File_Dlg.FD_SYX_SoundCheck_Velocity_List}) {
    EXPECT_FALSE(control->enabled()) << control->name;
  }
  Press_File("a.syx");
  EXPECT_EQ(Tone[0], 'A');
  desktop.Click(File_Dlg.FD_SYX_Button_Start);
  EXPECT_EQ(File_Dlg.FD_SYX_Button_Start.picture(), Button_Up3D);
  EXPECT_EQ(Heard(), "");
}

TEST_F(Preview_Test, The_Panel_Shows_The_Settings_And_Changes_Them) {
  const auto shown = [&] {
    return std::string(Item(0).picture().name) + " " + std::string(Item(1).picture().name) + " " +
           File_Dlg.FD_SYX_SoundCheck_Note_List.Selected_Text() + " " +
           File_Dlg.FD_SYX_SoundCheck_Velocity_List.Selected_Text();
  };
  Soundcheck_Note = 72;
  Open("Open_SYX");
  EXPECT_EQ(shown(), "led-1 led-5 C4 80") << "there is no sequence";
  desktop.Click(File_Dlg.FD_SYX_CB_Autoplay);
  EXPECT_EQ(shown(), "led-5 led-5 C4 80");
  Seq_Saved = Flag_Off;
  desktop.Click(File_Dlg.FD_SYX_CB_Autoplay_Label);
  desktop.Click(Item(1));
  User_Selected(File_Dlg.FD_SYX_SoundCheck_Note_List, 0);
  User_Selected(File_Dlg.FD_SYX_SoundCheck_Velocity_List, 127);
  Unload(File_Dlg);
  EXPECT_EQ(Soundcheck * 1000 + Soundcheck_Velocity, 1127);
  EXPECT_EQ(Soundcheck_Note, 24);
  Open("Open_SYX");
  EXPECT_EQ(shown(), "led-0 led-1 C0 127");
}

}  // namespace
