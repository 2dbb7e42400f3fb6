#include "core/settings.h"

#include "core/recent.h"
#include "platform/profile_file.h"
#include "support/program.h"
#include "support/temporary_root.h"

namespace {

struct Settings : Program {
  Settings() {
    INI_File = "C:\\MELVOR.INI";
    Recent_Tones = {};
    Recent_Seqs = {};
  }
  ~Settings() override { INI_File.clear(); }
  void Ini(const std::string& text) { root.Put("MELVOR.INI", text); }

  Temporary_Root root;
};

TEST_F(Settings, Without_A_File_And_From_Noise_The_Defaults_Stand) {
  for (const bool noise : {false, true}) {
    if (noise) {
      Ini("[Main Window]\nLeft=abc\nTop=99999999999\nWidth=-5\nHeight=1\nState=7\n"
          "[MIDI]\nAutosend=yes\nSoundcheck=maybe\nSoundcheck Note=23\nSoundcheck Velocity=128\n"
          "[Recent Files]\nTones=Q:\\nowhere\n");
    }
    Settings_Load();
    EXPECT_EQ(MELVOR.left() + MELVOR.top(), 0);
    EXPECT_EQ(MELVOR.width(), 541 * 15);
    EXPECT_EQ(MELVOR.height(), 508 * 15);
    EXPECT_EQ(MELVOR.state(), Window_State::Normal);
    EXPECT_EQ(Synthesizer, "JX-8P");
    EXPECT_EQ(Autoplay, 1);
    EXPECT_EQ(Autosend, noise ? 0 : 1);
    EXPECT_EQ(Soundcheck, noise ? 1 : 0) << "any text but 0";
    EXPECT_EQ(Soundcheck_Note, 24);
    EXPECT_EQ(Soundcheck_Velocity, 80);
    EXPECT_FALSE(MELVOR.Menu_MIDI_Seq_Load.checked());
  }
}

TEST_F(Settings, What_Is_Written_Reads_Back_And_Writes_The_Same_Bytes) {
  root.Make("Tones");
  root.Put("Tones/one.syx", "x");
  Ini("; by hand\r\n[Main Window]\r\nLeft=12\r\n[Other]\r\nKeep=me\r\n[Windows]\r\nSave Positions=1\r\n"
      "Patch Left=-4\r\n[MIDI]\r\nAutosend=0\r\nSoundcheck Note=48\r\nSequence Preload=1\r\n"
      "[Recent Files]\r\nTones=C:\\TONES\r\nTone2=c:\\tones\\one.syx\r\n");
  Settings_Load();
  EXPECT_EQ(MELVOR.left(), 180);
  EXPECT_EQ(Patch_Left, -60);
  EXPECT_EQ(Dir_Tones, "c:\\tones\\");
  EXPECT_EQ(Recent_Tones[1], "C:\\TONES\\ONE.SYX");
  Settings_Save();
  const std::string first = root.Get("MELVOR.INI");
  for (const char* kept : {"; by hand\r\n", "Keep=me", "Control Channel=[Not used]"}) {
    EXPECT_NE(first.find(kept), std::string::npos) << kept;
  }
  Settings_Load();
  Settings_Save();
  EXPECT_EQ(root.Get("MELVOR.INI"), first);
}

TEST_F(Settings, A_Maximised_Frame_Keeps_Its_Last_Normal_Size_And_Positions_Only_Return_If_Wanted) {
  Ini("[Main Window]\nWidth=600\n[Windows]\nSequencer Left=20\n");
  Settings_Load();
  EXPECT_EQ(Seq_Left, 0);
  MELVOR.state = Window_State::Maximized;
  MELVOR.width = 20000;
  Settings_Save();
  EXPECT_EQ(INI_Read("Main Window", "Width", "") + " " + INI_Read("Main Window", "State", ""), "600 2");
  MELVOR.state = Window_State::Normal;
}

TEST_F(Settings, Recent_Lists_Keep_Their_Holes_And_Move_What_Is_Used_Again) {
  for (const char* name : {"a", "b", "c", "d"}) root.Put(name, "");
  Recent_Tones = {"C:\\A", "C:\\gone", "C:\\C", ""};
  struct Row {
    const char* added;
    Recent_List want;
  };
  for (const Row& row :
       {Row{"", {"C:\\A", "", "C:\\C", ""}}, Row{"c:\\c", {"c:\\c", "C:\\A", "", ""}},
        Row{"C:\\B", {"C:\\B", "c:\\c", "C:\\A", ""}}, Row{"c:\\b", {"C:\\B", "c:\\c", "C:\\A", ""}},
        Row{" C:\\D ", {"C:\\D", "C:\\B", "c:\\c", "C:\\A"}},
        Row{"C:\\A", {"C:\\A", "C:\\D", "C:\\B", "c:\\c"}}}) {
    Recent_Tone_Add(row.added);
    EXPECT_EQ(Recent_Tones, row.want) << row.added;
  }
  Recent_Tones[1].clear();
  Recent_Tone_Add("");
  EXPECT_FALSE(MELVOR.Menu_File_SYX_2.visible());
  EXPECT_EQ(MELVOR.Menu_File_SYX_3.caption(), "&3 C:\\B");
  Recent_Tones = {};
  Recent_Tone_Add("");
  EXPECT_FALSE(MELVOR.Menu_File_SYX_1.visible());
  EXPECT_FALSE(MELVOR.Menu_File_SYX_Trenn_1.visible());
}

}  // namespace
