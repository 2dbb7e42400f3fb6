#include <array>

#include "filebrowser/filebrowser_fixture.h"

namespace {

enum class Act { Ok, Enter, Double, Press };

struct Actions_Test : Filebrowser_Test {
  void Run(Act act, const std::string& name) {
    if (act == Act::Double) return Double_Click_File(name);
    if (act == Act::Press) return Press_File(name);
    if (act == Act::Enter) return Enter(name);
    desktop.Type(File_Dlg.FD_FileName, name);
    desktop.Click(File_Dlg.FD_Button_Ok_Pic);
  }
  // Whether the dialog stays, the letter of the tone, its file, a cell of the sequence, its file.
  std::string State() {
    return std::string(Is_Open() ? "open, " : "") + static_cast<char>(Tone[0]) + ", " + Tone_File + ", " +
           std::to_string(Seq_Data[103]) + ", " + Seq_File;
  }
};

TEST_F(Actions_Test, Each_Kind_Does_Its_Own_With_Each_Action) {
  struct Row {
    std::string kind;
    std::vector<Act> acts;
    std::string name;  // of the file clicked, or typed
    std::string state;
    std::string heard;  // with what closing the dialog sends
  };
  const std::string same = "open, M, old tone, 5, old sequence";
  const std::string off = "B0 7B 00";  // All Notes Off
  const std::string shown = off + ", dump A, dump A, ";
  const std::vector<Act> confirm{Act::Ok, Act::Enter};
  const std::vector<Row> rows{
      {"Open_SYX", confirm, "A", "A, C:\\work\\A.syx, 5, old sequence", "dump A, dump A, " + off},
      {"Open_SYX", confirm, "bad.syx", same, off},
      {"Open_SYX",
       {Act::Double},
       "a.syx",
       "A, C:\\work\\a.syx, 5, old sequence",
       shown + "dump A, dump A, " + off},
      {"Open_SYX", {Act::Press}, "a.syx", "open, A, old tone, 5, old sequence", shown + "90 30 50, " + off},
      {"Open_SEQ", confirm, "p", "M, old tone, 127, C:\\work\\p.seq", off},
      {"Open_SEQ", {Act::Double}, "p.seq", "M, old tone, 127, C:\\work\\p.seq", off},
      {"Open_SEQ", {Act::Press}, "p.seq", "open, M, old tone, 127, old sequence", off},
      {"Open_OSC", {Act::Ok, Act::Double, Act::Press}, "x.osc", same, off},
      {"SaveAs_SYX", confirm, "New", "U, c:\\work\\new.syx, 5, old sequence", "dump U, " + off},
      {"SaveAs_SYX", {Act::Double}, "B.SYX", "U, c:\\work\\b.syx, 5, old sequence", off},
      {"SaveAs_SYX", {Act::Press}, "a.syx", same, off},
      {"SaveAs_SEQ", confirm, "New", "M, old tone, 5, c:\\work\\new.seq", off},
      {"SaveAs_SEQ", {Act::Double, Act::Press}, "p.seq", same, off},
  };
  for (const Row& row : rows) {
    for (const Act act : row.acts) {
      SCOPED_TRACE(row.kind + " " + row.name + " " + std::to_string(static_cast<int>(act)));
      Fresh_Memory();
      Open(row.kind);
      if (row.name == "bad.syx") desktop.Expect_Box(Answer::Ok, "Wrong MIDI system exclusive data!");
      const auto before = root.Names("work");
      Run(act, row.name);
      EXPECT_EQ(State(), row.state);
      Unload(File_Dlg);
      EXPECT_EQ(Heard(), row.heard);
      const bool is_new = std::filesystem::remove(root.host / "work/new.syx") ||
                          std::filesystem::remove(root.host / "work/new.seq");
      EXPECT_EQ(is_new, row.name == "New");
      EXPECT_EQ(root.Names("work"), before);
    }
  }
}

TEST_F(Actions_Test, What_Cannot_Be_Done_Is_Told_And_The_Dialog_Stays) {
  const std::vector<std::array<std::string, 3>> rows{
      {"Open_SYX", "zzz", "File not found : zzz.syx"},
      {"Open_SEQ", "none\\p.seq", "Path not found : none\\p.seq"},
      {"SaveAs_SEQ", "*.seq", "Bad file name or number : *.seq"},
      {"SaveAs_SYX", "none\\t", "Error 76: Path not found"},
  };
  Tone_Saved = Flag_False;
  for (const auto& [kind, typed, box] : rows) {
    Open(kind);
    desktop.Expect_Box(Answer::Ok, box);
    Enter(typed);
    EXPECT_TRUE(Is_Open()) << typed;
    Unload(File_Dlg);
  }
}

TEST_F(Actions_Test, An_Existing_File_Is_Only_Overwritten_With_Consent) {
  for (const std::string kind : {"SaveAs_SYX", "SaveAs_SEQ"}) {
    SCOPED_TRACE(kind);
    const bool tone = kind == "SaveAs_SYX";
    const std::string file = tone ? "a.syx" : "p.seq";
    const std::string old_content = root.Get("work/" + file);
    Fresh_Memory();
    Tone_Saved = Flag_False;
    Open(kind);
    desktop.Expect_Box(Answer::No, "File exists: c:\\work\\" + file + " Overwrite?");
    Enter(file);
    EXPECT_EQ(root.Get("work/" + file), old_content);
    desktop.Expect_Box(Answer::Yes);
    Enter(file);
    EXPECT_EQ(root.Get("work/" + file)[8], tone ? 'U' : '\5');
    EXPECT_EQ(root.Get("work/" + file + "~"), old_content);
    EXPECT_EQ(Is_Open(), !tone) << "the unsaved tone keeps the dialog open, though the sequence is written";
    Unload(File_Dlg);
  }
}

}  // namespace
