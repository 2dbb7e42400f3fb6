#include <array>

#include "filebrowser/filebrowser_fixture.h"
#include "platform/text.h"

namespace {

enum class Act { Ok, Enter, Double, Press };
constexpr const char* Off = "B0 7B 00";  // All Notes Off
constexpr const char* Preview_Note = "B0 7B 00, dump A, dump A, 90 30 50";

struct Row {
  std::string kind;
  std::vector<Act> acts;
  std::string name;  // of the file clicked, or typed
  bool stays;
  char tone;  // letter of the tone in memory
  std::string tone_file;
  int cell;  // of the sequence in memory
  std::string seq_file;
  std::string heard;       // with what closing the dialog sends
  std::string new_file{};  // below "work"
  std::string content{};
};

const std::string Old_Tone = "old tone";
const std::string Old_Seq = "old sequence";

struct Actions_Test : Filebrowser_Test {
  void Run(Act act, const std::string& name) {
    switch (act) {
      case Act::Ok:
        desktop.Type(File_Dlg.FD_FileName, name);
        return desktop.Click(File_Dlg.FD_Button_Ok_Pic);
      case Act::Enter:
        return Enter(name);
      case Act::Double:
        return Double_Click_File(name);
      case Act::Press:
        return Press_File(name);
    }
  }
};

TEST_F(Actions_Test, Each_Kind_Does_Its_Own_With_Each_Action) {
  const std::string saved_tone =
      Bytes_Of("F0 41 35 00 21 20 01") + std::string(59, 'M') +
      Bytes_Of("F7 F0 41 36 00 21 30 01 00 03 01 03 02 03 03 03 04 03 05 03 06 03 F7");
  const std::string saved_seq = "SEQ1" + Bytes_Of("1E 30") + std::string(104, '\5');
  const std::vector<Act> confirm{Act::Ok, Act::Enter};
  const std::vector<Act> by_double{Act::Double};
  const std::vector<Act> by_press{Act::Press};
  const std::vector<Row> rows{
      {"Open_SYX", confirm, "A", false, 'A', "C:\\work\\A.syx", 5, Old_Seq, "dump A, dump A, B0 7B 00"},
      {"Open_SYX", confirm, "bad.syx", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"Open_SYX", by_double, "a.syx", false, 'A', "C:\\work\\a.syx", 5, Old_Seq,
       "B0 7B 00, dump A, dump A, dump A, dump A, B0 7B 00"},
      {"Open_SYX", by_press, "a.syx", true, 'A', Old_Tone, 5, Old_Seq,
       std::string(Preview_Note) + ", B0 7B 00"},
      {"Open_SYX", by_press, "bad.syx", true, 'M', Old_Tone, 5, Old_Seq, "B0 7B 00, B0 7B 00"},
      {"Open_SEQ", confirm, "p", false, 'M', Old_Tone, 127, "C:\\work\\p.seq", Off},
      {"Open_SEQ", by_double, "p.seq", false, 'M', Old_Tone, 127, "C:\\work\\p.seq", Off},
      {"Open_SEQ", by_press, "p.seq", true, 'M', Old_Tone, 127, Old_Seq, Off},
      {"Open_OSC", confirm, "x", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"Open_OSC", {Act::Double, Act::Press}, "x.osc", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"SaveAs_SYX", confirm, "New", false, 'U', "c:\\work\\new.syx", 5, Old_Seq, "dump U, B0 7B 00",
       "new.syx", saved_tone},
      {"SaveAs_SYX", by_double, "B.SYX", false, 'U', "c:\\work\\b.syx", 5, Old_Seq, Off},
      {"SaveAs_SYX", by_press, "a.syx", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"SaveAs_SYX", confirm, "*.SYX", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"SaveAs_SEQ", confirm, "New", false, 'M', Old_Tone, 5, "c:\\work\\new.seq", Off, "new.seq", saved_seq},
      {"SaveAs_SEQ", confirm, "*.syx", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"SaveAs_SEQ", {Act::Double, Act::Press}, "p.seq", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"SaveAs_OSC", {Act::Ok, Act::Double, Act::Press}, "x.osc", true, 'M', Old_Tone, 5, Old_Seq, Off},
      {"Open_ALL", {Act::Enter, Act::Double, Act::Press}, "a.syx", true, 'M', Old_Tone, 5, Old_Seq, Off},
  };
  for (const Row& row : rows) {
    for (const Act act : row.acts) {
      SCOPED_TRACE(row.kind + " " + row.name + " " + std::to_string(static_cast<int>(act)));
      Fresh_Memory();
      Seq_Base_Note = 48;
      Open(row.kind);
      if (row.kind == "Open_ALL") File_Dlg.FD_List_Dirs.Set_Path("C:\\work");
      const bool refused = row.name == "bad.syx" && act != Act::Press;
      if (refused) desktop.Expect_Box(Answer::Ok, "Wrong MIDI system exclusive data!");
      const auto before = root.Names("work");
      Run(act, row.name);
      EXPECT_EQ(Is_Open(), row.stays);
      Unload(File_Dlg);
      EXPECT_EQ(Tone[0], row.tone);
      EXPECT_EQ(Tone_File, row.tone_file);
      EXPECT_EQ(Seq_Data[103], row.cell);
      EXPECT_EQ(Seq_File, row.seq_file);
      EXPECT_EQ(Heard(), row.heard);
      auto wanted = before;
      if (!row.new_file.empty()) wanted.insert(row.new_file);
      EXPECT_EQ(root.Names("work"), wanted);
      if (!row.new_file.empty()) {
        EXPECT_EQ(root.Get("work/" + row.new_file), row.content);
        std::filesystem::remove(root.host / "work" / row.new_file);
      }
      MELVOR.Seq_Tmr.enabled = false;
      EXPECT_EQ(Dlg_Nest, 0);
    }
  }
}

TEST_F(Actions_Test, A_Bare_Name_Gets_The_Extension) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"abcdef", "abcdef.syx"},
      {"abc.def", "abc.def"},
      {"a.defgh", "a.defgh.syx"},
      {"sub\\", "sub\\"},
      {"a.", "a."},
      {"\u00e4\u00f6.\u00fcx", "\u00e4\u00f6.\u00fcx"},
      {"", ".syx"}};
  Open("Open_SYX");
  desktop.on_other_box = [](const Shown_Box&) { return Answer::Ok; };
  for (const auto& [typed, wanted] : rows) {
    Enter(typed);
    EXPECT_EQ(Text(), wanted);
    EXPECT_EQ(File_Dlg.FD_FileName.selection_length(), Character_Count(wanted));
  }
  EXPECT_EQ(File_Dlg.FD_List_Files.path(), "C:\\work\\sub");
  EXPECT_EQ(File_Dlg.FD_List_Dirs.path(), "C:\\work") << "only the other kinds lead it along";
}

TEST_F(Actions_Test, What_Cannot_Be_Done_Is_Told_And_The_Dialog_Stays) {
  const std::vector<std::array<std::string, 3>> rows{
      {"Open_SYX", "zzz", "File not found : zzz.syx"},
      {"Open_SEQ", "none\\p.seq", "Path not found : none\\p.seq"},
      {"Open_OSC", "a|b", "Bad file name or number : a|b.osc"},
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
  EXPECT_EQ(desktop.boxes[0].style, Box_Exclamation);
}

TEST_F(Actions_Test, An_Existing_File_Is_Only_Overwritten_With_Consent) {
  for (const std::string kind : {"SaveAs_SYX", "SaveAs_SEQ"}) {
    SCOPED_TRACE(kind);
    const bool tone = kind == "SaveAs_SYX";
    const std::string file = tone ? "work/a.syx" : "work/p.seq";
    const std::string typed = tone ? "A" : "p";
    const std::string question =
        "File exists: c:\\" + std::string(tone ? "work\\a.syx" : "work\\p.seq") + " Overwrite?";
    const std::string old_content = root.Get(file);
    Fresh_Memory();
    Tone_Saved = Flag_False;
    Open(kind);
    desktop.Expect_Box(Answer::No, question);
    Enter(typed);
    EXPECT_EQ(root.Get(file), old_content);
    EXPECT_EQ(Tone[0], tone ? 'U' : 'M') << "the tone's undo copy comes back with or without a save";
    desktop.Expect_Box(Answer::Yes, question);
    Enter(typed);
    EXPECT_NE(root.Get(file), old_content);
    EXPECT_EQ(root.Get(file + "~"), old_content);
    EXPECT_EQ(Is_Open(), !tone) << "the unsaved tone keeps the dialog open, though the sequence is written";
    EXPECT_EQ(desktop.boxes.back().title, "Write TONE file");
    EXPECT_EQ(desktop.boxes.back().style, Box_Yes_No + Box_Stop);
    Unload(File_Dlg);
  }
}

// The reader offers a Save As in the middle of a load, and that uses the very dialog that runs the load.
TEST_F(Actions_Test, A_Save_As_Within_A_Load_Leaves_The_Dialog_Closed) {
  root.Put("work/two.syx", Tone_Bytes('C') + Tone_Bytes('D'));
  Open("Open_SYX");
  desktop.Expect_Box(Answer::Yes, "File contains another TONE. Save old TONE first?");
  desktop.Expect_Box(Answer::Cancel, "File exists: c:\\work\\c.syx Overwrite?");
  desktop.At_Wait([&] { Enter("c"); });
  Enter("two");
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Dlg_Nest, 0);
  EXPECT_EQ(root.Get("work/c.syx").substr(7, 1), "C");
  EXPECT_EQ(Tone[0], 'D');
  Open("Open_SYX");
  EXPECT_EQ(Text(), "");
}

}  // namespace
