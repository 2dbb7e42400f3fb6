#include "core/tone_files.h"

#include <numeric>

#include "core/recent.h"
#include "core/settings.h"
#include "core/tone_commands.h"
#include "support/program.h"
#include "support/temporary_root.h"
#include "windows/file_dlg_window.h"
#include "windows/modal.h"

namespace {

// A tone message whose 59 values all are value, and a patch message whose values run from value on.
std::string Tone_Message(char value) {
  return Bytes_Of("F0 41 35 00 21 20 01") + std::string(59, value) + "\xF7";
}
std::string Patch_Message(char value) {
  std::string message = Bytes_Of("F0 41 36 00 21 30 01");
  for (char index = 0; index < 7; ++index) message += std::string{index, static_cast<char>(value + index)};
  return message + "\xF7";
}

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

TEST_F(Tone_Files, A_Saved_File_Is_89_Bytes_For_Any_Instrument_And_Comes_Back_The_Same) {
  std::iota(Tone.bytes.begin(), Tone.bytes.end(), std::uint8_t{1});
  std::iota(Patch_Rec.bytes.begin(), Patch_Rec.bytes.begin() + 7, std::uint8_t{60});
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  Synthesizer = "MKS-70";
  MIDI_Channel = 5;
  Tone_File = "C:\\b.syx";
  Tone_Saved = Flag_False;
  MELVOR.Menu_Edit_Undo.enabled = true;
  root.Put("b.syx", std::string(100, 'x'));
  Tone_Save();
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_FALSE(MELVOR.Menu_Edit_Undo.enabled());
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 4 24 20 01 ") << "messages are the instrument's again";
  const std::string file = root.Get("b.syx");
  EXPECT_EQ(Hex_Text(file.substr(0, 9)), "F0 41 35 04 21 20 01 01 02");
  EXPECT_EQ(Hex_Text(file.substr(66, 23)),
            "F7 F0 41 36 04 21 30 01 00 3C 01 3D 02 3E 03 3F 04 40 05 41 06 42 F7");
  EXPECT_EQ(file.substr(89), std::string(11, 'x')) << "the tail of a longer file";
  EXPECT_EQ(root.Get("b.syx~"), std::string(100, 'x'));
  Tone_Clear();
  Recent_Tones = {};
  int shown = 0;
  Patch_Shown = [&] { ++shown; };
  Patch_Open = Flag_On;
  Tone_Load("C:\\b.syx", Load_Mode::Soundcheck);
  EXPECT_EQ(shown, 0) << "a preview leaves the open patch window alone";
  Tone_Load("C:\\b.syx", Load_Mode::Open);
  EXPECT_EQ(shown, 1);
  Patch_Shown = nullptr;
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Patch_Rec, patch);
  EXPECT_EQ(Tone_File + Recent_Tones[0] + MELVOR.caption(), "C:\\b.syxC:\\b.syxMELVOR - C:\\B.SYX");
  EXPECT_TRUE(MELVOR.Menu_File_SYX_Save.enabled());
}

TEST_F(Tone_Files, What_A_File_Holds_Decides_What_Is_Taken) {
  struct Row {
    const char* name;
    std::string bytes;
    int tone;
    int patch;
    const char* box;
  };
  const std::string whole = Tone_Message(40) + Patch_Message(50);
  for (const Row& row :
       {Row{"tone behind noise: its patch is ignored", "noise" + whole, 40, 0, ""},
        Row{"a foreign message hides the tone", Bytes_Of("F0 43 00 09 20 00 F7") + whole, 32, 0,
            "Wrong MIDI system exclusive data!"},
        Row{"beyond the reader's reach", std::string(40000, 'x') + whole, 32, 0, "Error 6: Overflow"}}) {
    Tone_Clear();
    const bool found = row.tone == 40;
    if (!found) desktop.Expect_Box(Answer::Ok, row.box);
    Load(row.bytes);
    EXPECT_EQ(Tone_Found == Flag_On, found) << row.name;
    EXPECT_EQ(FD_Done == Flag_On, found) << row.name;
    EXPECT_EQ(Tone_Loading == Flag_On, !found) << row.name;
    EXPECT_EQ(Tone[0], row.tone) << row.name;
    EXPECT_EQ(Patch_Rec[0], row.patch) << row.name;
    FD_Done = Flag_Off;
  }
  desktop.Expect_Box(Answer::Ok, "File not found: C:\\gone.syx");
  Tone_Load("C:\\gone.syx", Load_Mode::Open);
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
  using Row = std::pair<const char*, const char*>;
  for (const auto& [path, box] :
       {Row{"C:\\directory.syx", "Error 75: Path/File access error"},
        Row{"C:\\no\\such.syx", "Error 76: Path not found"}, Row{"C:\\a*b.syx", "Wrong filename!"}}) {
    Tone_File = path;
    desktop.Expect_Box(Answer::Ok, box);
    Tone_Save();
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Tone_Files, Existence_Looks_At_Files_And_Forgives_One_Backslash) {
  root.Put("a.syx", "");
  root.Make("dir");
  for (const char* there : {"C:\\a.syx\\", "c:\\A.SYX", ""})
    EXPECT_EQ(File_Exists(there), Flag_True) << there;
  for (const char* none : {"C:\\dir", "C:\\b.syx"}) EXPECT_EQ(File_Exists(none), Flag_False) << none;
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

TEST_F(Save_As, A_Command_That_Asks_Goes_On_Behind_A_Save_Only) {
  Tone_Saved = Flag_False;
  desktop.Expect_Box(Answer::Yes, "Save actual TONE first?");
  Choose_At_Wait("");
  desktop.Expect_Box(Answer::Cancel, "File exists:  Overwrite?");
  EXPECT_FALSE(Tone_May_Go(Box_Yes_No_Cancel));
  EXPECT_EQ(desktop.boxes[0].style, Box_Yes_No_Cancel + Box_Question);
  desktop.Expect_Box(Answer::Yes, "Save actual TONE first?");
  Choose_At_Wait("C:\\new.syx");
  EXPECT_TRUE(Tone_May_Go(Box_Yes_No_Cancel));
  EXPECT_TRUE(Tone_May_Go(Box_Yes_No_Cancel)) << "and asks no more";
}

TEST_F(Save_As, A_Dialog_That_Does_Not_Open_Is_Told) {
  using Row = std::pair<int, const char*>;
  for (const auto& [number, box] : {Row{Error_Device_Unavailable, "SaveAs Error 68 : Device unavailable"},
                                    Row{Error_Bad_File_Name, "Wrong filename!"},
                                    Row{Error_File_Not_Found, ""}, Row{Error_Cancelled, ""}}) {
    File_Dlg.on_load = [number = number] { throw Runtime_Error(number); };
    if (*box != '\0') desktop.Expect_Box(Answer::Ok, box);
    Tone_SaveAs();
    File_Dlg.on_unload = nullptr;
    Unload(File_Dlg);
  }
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
  EXPECT_EQ(root.Get("a.syx~")[7 + 34], 99) << "the edited sound";
  EXPECT_EQ(root.Get("a.syx~2")[7 + 34], 40) << "the sound before";
}

}  // namespace
