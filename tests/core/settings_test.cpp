#include "core/settings.h"
#include "core/file_places.h"

#include "support/program.h"

struct Settings : Program {
  Settings() { INI_File = "C:\\MELVOR.INI"; }
};

TEST_F(Settings, Without_A_File_And_From_Noise_The_Defaults_Stand) {
  for (const bool noise : {false, true}) {
    if (noise) {
      root.Put("MELVOR.INI",
               "[Main Window]\nLeft=abc\nTop=99999999999\nWidth=-5\nHeight=1\n"
               "[MIDI]\nAutosend=yes\nSoundcheck Note=23\nSoundcheck Velocity=128\n"
               "[Recent Files]\nTones=Q:\\nowhere\n");
    }
    Settings_Load();
    EXPECT_EQ((std::vector<int>{MELVOR.left(), MELVOR.top(), MELVOR.width(), MELVOR.height(), Autosend,
                                Soundcheck_Note, Soundcheck_Velocity}),
              (std::vector<int>{0, 0, 541 * 15, 508 * 15, noise ? 0 : 1, 24, 80}));
  }
}

TEST_F(Settings, The_Recent_List_Forgets_What_Is_Gone_And_Moves_What_Is_Used_Again) {
  for (const char* name : {"a", "c", "d"}) root.Put(name, "");
  Recent_Tones = {"C:\\A", "C:\\gone", "C:\\C", ""};
  Recent_Tone_Add("c:\\c");
  EXPECT_EQ(Recent_Tones, (Recent_List{"c:\\c", "C:\\A", "", ""}));
  Recent_Tone_Add("C:\\D");
  EXPECT_EQ(Recent_Tones, (Recent_List{"C:\\D", "c:\\c", "C:\\A", ""}));
}

TEST_F(Settings, What_Is_Written_Reads_Back_And_Writes_The_Same_Bytes) {
  root.Make("Tones");
  root.Put("Tones/one.syx", "");
  root.Put(
      "MELVOR.INI",
      "; by hand\r\n[Main Window]\r\nLeft=2500\r\n[Other]\r\nKeep=me\r\n[Windows]\r\nSave Positions=1\r\n"
      "Patch Left=-4\r\n[MIDI]\r\nAutosend=0\r\n[Recent Files]\r\nTones=C:\\TONES\r\n"
      "Tone2=c:\\tones\\one.syx\r\n");
  Settings_Load();
  EXPECT_EQ(MELVOR.left(), 37500);
  EXPECT_EQ(Patch_Left, -60);
  EXPECT_EQ(Dir_Tones + Recent_Tones[1], "c:\\tones\\C:\\TONES\\ONE.SYX");
  MELVOR.state = Window_State::Maximized;
  Settings_Save();
  const std::string first = root.Get("MELVOR.INI");
  for (const char* kept : {"; by hand\r\n", "Keep=me", "Control Channel=[Not used]"})
    EXPECT_NE(first.find(kept), std::string::npos) << kept;
  EXPECT_EQ(first.find("Width"), std::string::npos) << "a maximised frame keeps its last normal size";
  Settings_Load();
  Settings_Save();
  EXPECT_EQ(root.Get("MELVOR.INI"), first);
}

TEST_F(Settings, A_Failed_Write_Is_Told_But_Not_In_A_Box) {
  root.Make("MELVOR.INI");
  testing::internal::CaptureStderr();
  Settings_Save();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "MELVOR: the settings were not written to C:\\MELVOR.INI: Path/File access error\n");
}
