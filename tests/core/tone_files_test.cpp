#include "core/tone_files.h"
#include "core/file_places.h"
#include "core/tone_save.h"
#include "core/undo.h"

#include <numeric>

#include "core/save_as.h"
#include "support/program.h"

namespace {

// A tone message whose 59 values all are value.
std::string Tone_Message(char value) {
  return Bytes_Of("F0 41 35 00 21 20 01") + std::string(59, value) + "\xF7";
}

const std::string Patch_Message =
    Bytes_Of("F0 41 36 00 21 30 01 00 01 01 01 02 01 03 01 04 01 05 01 06 01 F7");

// The dialog notes its name at its load, and is gone when the user has chosen.
struct Tone_Files : Program {
  Tone_Files() {
    Autosend = 0;
    Dir_Tones = "C:\\";
    Show(MELVOR);
    File_Dlg.on_load = [] { Dlg_Enter(File_Dlg, "File_Dlg"); };
    File_Dlg.on_unload = Dlg_Leave;
  }
  ~Tone_Files() override {
    File_Dlg.on_load = nullptr;
    File_Dlg.on_unload = nullptr;
  }

  void Load(const std::string& bytes, Load_Mode mode = Load_Mode::Open) {
    root.Put("a.syx", bytes);
    Tone_Load("C:\\a.syx", mode);
  }
  void Choose_At_Wait(const std::string& path) {
    desktop.At_Wait([path] {
      EXPECT_EQ(Dlg_Kind, "SaveAs_SYX");
      Tone_File = path;
      Unload(File_Dlg);
    });
  }
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
  const std::string before = Tone_Message(1) + Patch_Message + std::string(11, 'x');
  root.Put("b.syx", before);
  EXPECT_TRUE(Tone_Save());
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 4 24 20 01 ") << "messages are the instrument's again";
  const std::string file = root.Get("b.syx");
  EXPECT_EQ(Hex_Text(file.substr(0, 9)), "F0 41 35 04 21 20 01 01 02");
  EXPECT_EQ(Hex_Text(file.substr(66, 23)),
            "F7 F0 41 36 04 21 30 01 00 3C 01 3D 02 3E 03 3F 04 40 05 41 06 42 F7");
  EXPECT_EQ(file.substr(89), std::string(11, 'x')) << "the tail of a longer file";
  EXPECT_EQ(root.Get("b.syx~"), before);
  Tone_Clear();
  Tone_Load("C:\\b.syx", Load_Mode::Open);
  EXPECT_TRUE(Tone == tone && Patch_Rec == patch);
  EXPECT_EQ(Tone_File + Recent_Tones[0] + MELVOR.caption(), "C:\\b.syxC:\\b.syxMELVOR - C:\\B.SYX");
}

TEST_F(Tone_Files, What_A_File_Holds_Decides_What_Is_Taken_And_Asked) {
  const std::string tone = Tone_Message(40), both = tone + Tone_Message(41);
  using Row = std::tuple<std::string, Load_Mode, std::string, int>;
  for (const auto& [file, mode, box, first] :
       {Row{Bytes_Of("F0 43 00 09 20 00 F7") + tone, Load_Mode::Open, "Wrong MIDI system exclusive data!",
            ' '},
        {std::string(40000, 'x') + tone, Load_Mode::Open, "Error 6: Overflow", ' '},
        {"noise" + tone, Load_Mode::Open, "", 40},
        {both, Load_Mode::Open, "File contains another TONE. Save old TONE first?", 41},
        {both, Load_Mode::Soundcheck, "File contains another TONE. Load it?", 40}}) {
    Tone_Clear();
    if (!box.empty()) desktop.Expect_Box(Answer::No, box);
    Load(file, mode);
    EXPECT_EQ(Tone[0], first) << box;
  }
  desktop.Expect_Box(Answer::Ok, "File not found: C:\\gone.syx");
  Tone_Load("C:\\gone.syx", Load_Mode::Open);
}

TEST_F(Tone_Files, A_Save_Asks_Before_It_Writes_Over_What_Is_Not_Its_Own) {
  const std::string next =
      "File contains another TONE: C:\\a.syx\rSave writes over \"((((((((((\". Save anyway?";
  const std::string other =
      "File contains other data after its first 67 bytes: C:\\a.syx\rSave writes over 22 bytes of it. Save "
      "anyway?";
  const std::string tone = Tone_Message(1), short_patch = Bytes_Of("F0 41 36 00 21 30 01 00 05 F7");
  Tone_File = "C:\\a.syx";
  for (const auto& [name, file, question] :
       {std::tuple{"a bank", tone + Tone_Message(40) + Tone_Message(41), next},
        {"a tone after a shorter patch", tone + short_patch + Tone_Message(40), next},
        {"another patch", tone + Bytes_Of("F0 41 36 00 24") + Patch_Message.substr(5) + "x", other},
        {"a patch with a status byte in it",
         tone + Patch_Message.substr(0, 10) + "\xF7" + std::string(20, 'x'), other},
        {"another kind of file", std::string(90, 'x'), other},
        {"the same, no longer than a tone", std::string(89, 'x'), std::string()},
        {"a tone with its patch before another", tone + Patch_Message + Tone_Message(40), std::string()}}) {
    SCOPED_TRACE(name);
    root.Put("a.syx", file);
    if (!question.empty()) {
      desktop.Expect_Box(Answer::No, question);
      EXPECT_FALSE(Tone_Save());
      EXPECT_EQ(root.Get("a.syx"), file);
      desktop.Expect_Box(Answer::Yes);
    }
    EXPECT_TRUE(Tone_Save());
    EXPECT_EQ(root.Get("a.syx~"), file);
  }
}

TEST_F(Tone_Files, A_Save_That_Fails_Is_Told_And_Stays_Unsaved) {
  Tone_Saved = Flag_False;
  for (const auto& [path, box] :
       {std::pair{"C:\\no\\such.syx", "Error 76: Path not found"}, {"C:\\a*b.syx", "Wrong filename!"}}) {
    Tone_File = path;
    desktop.Expect_Box(Answer::Ok, box);
    Tone_Save();
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Tone_Files, Save_As_Asks_About_A_File_That_The_Dialog_Has_Not_Written) {
  root.Put("old.syx", Tone_Message(40));
  Tone[11] = 127;
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    Choose_At_Wait("C:\\old.syx");
    desktop.Expect_Box(answer, "File exists: C:\\old.syx Overwrite?");
  }
  Tone_SaveAs();
  EXPECT_EQ(root.Get("old.syx"), Tone_Message(40));
  EXPECT_EQ(Tone_File, "") << "Save must not overwrite what was declined";
  Choose_At_Wait("C:\\old.syx");
  desktop.Expect_Box(Answer::Yes);
  Tone_SaveAs();
  EXPECT_EQ(root.Get("old.syx")[18], 127);
  EXPECT_EQ(MELVOR.caption(), "MELVOR - OLD.SYX");
}

TEST_F(Tone_Files, A_Dialog_That_Does_Not_Open_Is_Told) {
  desktop.Expect_Box(Answer::Ok, "SaveAs Error 68 : Device unavailable");
  desktop.Expect_Box(Answer::Ok, "Wrong filename!");
  desktop.Expect_Box(Answer::Cancel, "File exists:  Overwrite?");  // what is missing ends its own step alone
  for (const int number :
       {Error_Device_Unavailable, Error_Bad_File_Name, Error_Cancelled, Error_File_Not_Found}) {
    File_Dlg.on_load = [number] { throw Runtime_Error(number); };
    Tone_SaveAs();
    File_Dlg.on_unload = nullptr;
    Unload(File_Dlg);
  }
}

// What the confirm of the dialog does: it saves, and the undo copy comes into the editor.
TEST_F(Tone_Files, Undo_Brings_Back_What_Save_As_Saved_With_Its_File) {
  Load(Tone_Message(40) + Patch_Message);
  Tone_Param_Set(34, 99);
  Tone_Undo.bytes.fill(7);
  for (const Answer answer : {Answer::Yes, Answer::Cancel}) {
    desktop.At_Wait([] {
      Tone_File = "c:\\new.syx";
      EXPECT_TRUE(Tone_Save());
      Save_As_Written();
      Unload(File_Dlg);
    });
    desktop.Expect_Box(answer, "File exists: c:\\new.syx Overwrite?");
    Tone_SaveAs();
    EXPECT_EQ(Tone[34], 7) << "the undo copy";
    EXPECT_EQ(root.Get("new.syx")[7 + 34], 99) << "and not the undo copy";
    Tone_Clear();
    Undo_Restore();
    Title_Mark();
    EXPECT_EQ(Tone[34], 99);
    EXPECT_EQ(Tone_File + MELVOR.caption(), "c:\\new.syxMELVOR - NEW.SYX");
    EXPECT_TRUE(MELVOR.Menu_File_SYX_Save.enabled() && !MELVOR.modified() && Tone_Saved == Flag_True);
    Tone_Undo.bytes.fill(7);
  }
}

}  // namespace
