#include "core/tone_files.h"

#include <numeric>

#include "core/recent.h"
#include "core/settings.h"
#include "core/tone_commands.h"
#include "platform/runtime_error.h"
#include "support/program.h"
#include "support/temporary_root.h"
#include "windows/file_dlg_window.h"
#include "windows/modal.h"

namespace {

// A tone message whose 59 values all are value, and a patch message whose values run from value on.
std::string Tone_Message(char value, char channel = 0) {
  return std::string("\xF0\x41\x35", 3) + channel + "\x21\x20\x01" + std::string(59, value) + "\xF7";
}
std::string Patch_Message(char value) {
  std::string message("\xF0\x41\x36\x00\x21\x30\x01", 7);
  for (char index = 0; index < 7; ++index) message += std::string{index, static_cast<char>(value + index)};
  return message + "\xF7";
}
const std::string Foreign("\xF0\x43\x00\x09\x20\x00\xF7", 7);

struct Tone_Files : Program {
  Tone_Files() {
    Autosend = 0;
    Recent_Tones = {};
    Tone_Found = Flag_Off;
    FD_Done = Flag_Off;
    Patch_Open = Flag_Off;
    Dir_Tones = "C:\\";
  }

  void Load(const std::string& bytes, Load_Mode mode = Load_Mode::Open) {
    root.Put("a.syx", bytes);
    Tone_Load("C:\\a.syx", mode);
  }

  Temporary_Root root;
};

TEST_F(Tone_Files, A_Saved_File_Is_89_Bytes_And_Comes_Back_The_Same) {
  std::iota(Tone.bytes.begin(), Tone.bytes.end(), std::uint8_t{1});
  std::iota(Patch_Rec.bytes.begin(), Patch_Rec.bytes.begin() + 7, std::uint8_t{60});
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  MIDI_Channel = 5;
  Tone_File = "C:\\b.syx";
  Tone_Saved = Flag_False;
  MELVOR.Menu_Edit_Undo.enabled = true;
  Tone_Save();
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(Recent_Tones[0], "C:\\b.syx");
  const std::string file = root.Get("b.syx");
  EXPECT_EQ(file.size(), 89U);
  EXPECT_EQ(Hex_Text(file.substr(0, 9)), "F0 41 35 04 21 20 01 01 02");
  EXPECT_EQ(Hex_Text(file.substr(66, 12)), "F7 F0 41 36 04 21 30 01 00 3C 01 3D");
  Tone_Clear();
  Tone_Load("C:\\b.syx", Load_Mode::Open);
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Patch_Rec, patch);
  Tone_Save();
  EXPECT_EQ(root.Get("b.syx"), file);
}

TEST_F(Tone_Files, What_A_File_Holds_Decides_What_Is_Taken) {
  struct Row {
    const char* name;
    std::string bytes;
    bool found;
    int tone;
    int patch;
  };
  const std::string whole = Tone_Message(40) + Patch_Message(50);
  for (const Row& row :
       {Row{"tone and patch", whole, true, 40, 50}, Row{"another channel", Tone_Message(41, 9), true, 41, 0},
        Row{"tone behind noise: its patch is ignored", "noise" + whole, true, 40, 0},
        Row{"a foreign message hides the tone", Foreign + whole, false, 32, 0},
        Row{"patch alone", Patch_Message(50), false, 32, 0},
        Row{"MKS-70 head", std::string("\xF0\x41\x35\x00\x24\x20\x01", 7) + std::string(60, 5), false, 32, 0},
        Row{"a head cut short", whole.substr(0, 6), false, 32, 0}, Row{"an empty file", "", false, 32, 0}}) {
    Tone_Clear();
    if (!row.found) desktop.Expect_Box(Answer::Ok, "Wrong MIDI system exclusive data!");
    Load(row.bytes);
    EXPECT_EQ(Tone_Found == Flag_On, row.found) << row.name;
    EXPECT_EQ(FD_Done == Flag_On, row.found) << row.name;
    EXPECT_EQ(Tone[0], row.tone) << row.name;
    EXPECT_EQ(Patch_Rec[0], row.patch) << row.name;
    FD_Done = Flag_Off;
  }
  EXPECT_EQ(Tone_Loading, Flag_On) << "a file without a tone leaves the loading on";
}

TEST_F(Tone_Files, An_Opened_File_Becomes_The_Current_One_And_A_Preview_Does_Not) {
  Load(Tone_Message(40), Load_Mode::Soundcheck);
  EXPECT_EQ(Tone_File, "");
  EXPECT_EQ(Tone_Loading, Flag_On);
  EXPECT_EQ(FD_Done, Flag_Off);
  Load(Tone_Message(41));
  EXPECT_EQ(Tone_File, "C:\\a.syx");
  EXPECT_EQ(MELVOR.caption(), "MELVOR - C:\\A.SYX");
  EXPECT_TRUE(MELVOR.Menu_File_SYX_Save.enabled());
  EXPECT_EQ(Recent_Tones[0], "C:\\a.syx");
  EXPECT_EQ(Tone_Loading, Flag_Off);
}

TEST_F(Tone_Files, With_Autosend_A_Dump_Goes_Out_Behind_Each_Message) {
  Autosend = 1;
  Load(Tone_Message(40) + Patch_Message(50));
  EXPECT_EQ(Sent().size(), 2U);
}

TEST_F(Tone_Files, Broken_And_Missing_Files_Leave_The_Tone_As_It_Was) {
  const auto before = Tone;
  desktop.Expect_Box(Answer::Ok, "Error 62: Input past end of file");
  Load(Tone_Message(40).substr(0, 60));
  desktop.Expect_Box(Answer::Ok, "Error 6: Overflow");
  Load(std::string(40000, 'x') + Tone_Message(40));
  desktop.Expect_Box(Answer::Ok, "File not found: C:\\gone.syx");
  Tone_Load("C:\\gone.syx", Load_Mode::Open);
  EXPECT_EQ(Tone, before);
}

TEST_F(Tone_Files, Every_Truncation_Has_A_Sound_Outcome) {
  const std::string whole = Tone_Message(40) + Patch_Message(50);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    Tone_Clear();
    // Short of the tone's 59 values nothing is taken; the patch is taken whole or not at all.
    const bool tone = length >= 66;
    const bool patch = length >= 88;
    if (!tone || (length >= 74 && !patch)) desktop.Expect_Box(Answer::Ok);
    Load(whole.substr(0, length));
    EXPECT_EQ(Tone[58], tone ? 40 : 0) << length;
    EXPECT_EQ(Patch_Rec[0], patch ? 50 : 0) << length;
  }
}

TEST_F(Tone_Files, A_Further_Tone_Is_Asked_About_In_The_Words_Of_The_Mode) {
  const std::string two = Tone_Message(40) + Tone_Message(41);
  desktop.Expect_Box(Answer::No, "File contains another TONE. Save old TONE first?");
  Load(two);
  EXPECT_EQ(Tone[0], 41);
  desktop.Expect_Box(Answer::No, "File contains another TONE. Load it?");
  Load(two, Load_Mode::Soundcheck);
  EXPECT_EQ(Tone[0], 40);
  desktop.Expect_Box(Answer::Yes, "File contains another TONE. Load it?");
  Load(two, Load_Mode::Soundcheck);
  EXPECT_EQ(Tone[0], 41);
}

TEST_F(Tone_Files, A_Save_That_Fails_Is_Told_And_Stays_Unsaved) {
  root.Make("directory.syx");
  Tone_Saved = Flag_False;
  struct Row {
    const char* path;
    const char* box;
  };
  for (const Row& row :
       {Row{"C:\\directory.syx", "Error 75: Path/File access error"},
        Row{"C:\\no\\such.syx", "Error 76: Path not found"}, Row{"C:\\a*b.syx", "Wrong filename!"}}) {
    Tone_File = row.path;
    desktop.Expect_Box(Answer::Ok, row.box);
    Tone_Save();
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Tone_Files, A_Longer_Files_Tail_And_What_Was_Replaced_Both_Survive) {
  root.Put("a.syx", std::string(100, 'x'));
  Tone_File = "C:\\a.syx";
  Tone_Save();
  EXPECT_EQ(root.Get("a.syx").size(), 100U);
  EXPECT_EQ(root.Get("a.syx").substr(89), std::string(11, 'x'));
  EXPECT_EQ(root.Get("a.syx~"), std::string(100, 'x'));
}

TEST_F(Tone_Files, Existence_Looks_At_Files_And_Forgives_One_Backslash) {
  root.Put("a.syx", "");
  root.Make("dir");
  EXPECT_EQ(File_Exists("C:\\a.syx\\"), Flag_True);
  EXPECT_EQ(File_Exists("c:\\A.SYX"), Flag_True);
  EXPECT_EQ(File_Exists(""), Flag_True);
  EXPECT_EQ(File_Exists("C:\\dir"), Flag_False);
  EXPECT_EQ(File_Exists("C:\\b.syx"), Flag_False);
  EXPECT_EQ(File_Error, Error_File_Not_Found);
}

// The dialog as Save As sees it: it notes its name at its load, and is gone when the user has chosen.
struct Save_As : Tone_Files {
  Save_As() {
    Show(MELVOR);
    File_Dlg.on_load = [] { Dlg_Enter(File_Dlg, "File_Dlg"); };
    File_Dlg.on_unload = Dlg_Leave;
  }
  ~Save_As() override {
    File_Dlg.on_load = nullptr;
    File_Dlg.on_unload = nullptr;
    Unload(MELVOR);
  }
  void Choose_At_Wait(const std::string& path) {
    desktop.At_Wait([path] {
      EXPECT_EQ(Dlg_Kind, "SaveAs_SYX");
      Tone_File = path;
      Unload(File_Dlg);
    });
  }
};

TEST_F(Save_As, Writes_A_New_Name_And_Asks_About_An_Old_One) {
  Choose_At_Wait("C:\\new.syx");
  Tone_SaveAs();
  EXPECT_EQ(root.Get("new.syx").size(), 89U);
  EXPECT_EQ(MELVOR.caption(), "MELVOR - NEW.SYX");
  Tone[11] = 127;
  Choose_At_Wait("C:\\new.syx");
  desktop.Expect_Box(Answer::No, "File exists: C:\\new.syx Overwrite?");
  Choose_At_Wait("C:\\new.syx");
  desktop.Expect_Box(Answer::Cancel, "File exists: C:\\new.syx Overwrite?");
  Tone_SaveAs();
  EXPECT_EQ(root.Get("new.syx")[18], 0);
  Choose_At_Wait("C:\\new.syx");
  desktop.Expect_Box(Answer::Yes);
  Tone_SaveAs();
  EXPECT_EQ(root.Get("new.syx")[18], 127);
}

// What the confirm of the dialog does: it saves, then puts the undo copies into the editor.
TEST_F(Save_As, An_Edited_Sound_Saved_Over_An_Old_Name_Is_Still_On_Disk) {
  root.Put("a.syx", Tone_Message(40) + Patch_Message(50));
  Tone_Load("C:\\a.syx", Load_Mode::Open);
  Tone_Param_Set(34, 99);
  desktop.At_Wait([] {
    Tone_File = "c:\\a.syx";
    Tone_Save();
    Undo_Restore_Quiet();
    Unload(File_Dlg);
  });
  desktop.Expect_Box(Answer::Yes, "File exists: c:\\a.syx Overwrite?");
  Tone_SaveAs();
  Tone_Save();
  const auto cutoff = [this](const char* name) { return static_cast<int>(root.Get(name)[7 + 34]); };
  EXPECT_EQ(cutoff("a.syx~"), 99) << "the edited sound";
  EXPECT_EQ(cutoff("a.syx~2"), 40) << "the sound before";
}

}  // namespace
