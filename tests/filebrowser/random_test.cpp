#include <map>
#include <random>

#include "filebrowser/filebrowser_fixture.h"
#include "platform/text.h"

namespace {

// A user without a plan in a folder of good and broken files. What may be written over or deleted begins with
// an "r"; only the user gives such names.
struct Random_Test : Filebrowser_Test {
  Random_Test() {
    const std::string tone = Tone_Bytes('T');
    root.Put("work/empty.syx", "");
    root.Put("work/cut.syx", tone.substr(0, 40));
    root.Put("work/two.syx", tone + tone);
    root.Put("work/foreign.syx", std::string(9000, '\xF0') + tone);
    root.Put("work/long name, with 'odd' signs & \u00fc\u00f6;.syx", tone);
    root.Put("work/tempo 0.seq", "SEQ1" + Bytes_Of("00 FF") + std::string(104, '\xFF'));
    root.Put("work/high.seq", "seq9" + Bytes_Of("FF FE") + std::string(300, '\x3F'));
    for (const std::string& name : root.Names("work"))
      if (name != "sub") originals[name] = root.Get("work/" + name);
    root.Put("work/\xFF\xFE.syx", tone);
    root.Put("work/sub/deep.syx", tone);
    root.Make("work/folder.syx");
    root.Link("nowhere", "work/broken.syx");
    desktop.on_other_box = [this](const Shown_Box& box) { return Reply(box.text); };
  }

  int Any(int count) { return static_cast<int>(chance() % static_cast<unsigned>(count)); }
  template <class List>
  auto& One_Of(List& list) {
    return list[static_cast<std::size_t>(Any(static_cast<int>(list.size())))];
  }

  Answer Reply(const std::string& box) {
    const bool deletes = box.starts_with("Delete");
    const bool ours = deletes ? Text().starts_with("r") || FD_Selected_Kind == Selected_Kind::Dir
                              : box.find("\\r") != std::string::npos;
    const bool destroys = deletes || box.starts_with("File exists");
    if ((destroys && !ours) || box.find("Save old") != std::string::npos) return Answer::No;
    return Any(2) == 0 ? Answer::Yes : Answer::No;
  }
  void Act_On(Control& control) {
    const Control& new_folder = File_Dlg.FD_Button_Newdir;  // its prompt would come again and again
    if (&control == &new_folder || control.container == &new_folder) return;
    auto* list = dynamic_cast<List_Control*>(&control);
    if (list != nullptr && list->Count() > 0) User_Selected(*list, Any(list->Count()));
    if (!Shown_In_Form(control) || !Is_Open()) return;
    Any(4) == 0 ? desktop.Double_Click(control) : desktop.Click(control);
  }
  void Act() {
    // clang-format off
    static const std::vector<std::string> names{"r1", "r2.syx", "A.SYX", "p.seq", "sub\\", "sub\\r3", "none\\r4",
                                                "x|y", "*.seq", "", "folder.syx", "r5\u00e4", "C:\\work"};
    // clang-format on
    const int chosen = Any(8);
    if (chosen < 2) return Act_On(File_Dlg.FD_List_Files);
    if (chosen == 2) return Enter(One_Of(names));
    if (chosen == 3) return desktop.Advance_ms(Any(600));
    if (chosen == 4 && Focused_Control() != &File_Dlg.FD_Button_Newdir)
      desktop.Key(Any(5) == 0 ? Key::Space : 'A' + Any(26), Any(2) * Alt_Key);
    if (chosen > 4) Act_On(*One_Of(File_Dlg.controls));
  }
  // Now and then a further action falls into the wait before a note.
  void Interrupt() {
    if (interrupts || Any(4) != 0) return;
    interrupts = true;
    desktop.At_Wait([this] {
      interrupts = false;
      if (!Is_Open()) return;
      Any(3) == 0 ? User_Closes(File_Dlg) : Act_On(File_Dlg.FD_List_Files);
    });
  }

  std::mt19937 chance{8};
  std::map<std::string, std::string> originals;
  bool interrupts = false;
};

TEST_F(Random_Test, Any_Actions_Leave_Program_And_Files_Whole) {
  std::vector<std::string> kinds{"Open_SYX", "Open_SEQ", "Open_OSC", "Open_ALL", "SaveAs_SYX", "SaveAs_SEQ"};
  int openings = 0;
  for (int action = 0; action < 10'000; ++action) {
    if (!Is_Open()) {
      ++openings;
      if (Any(3) == 0) Dir_Tones = Dir_Sequences = "c:\\work";
      Autoplay = static_cast<std::uint8_t>(Any(2));
      Open(One_Of(kinds));
    }
    Interrupt();
    Act();
    ASSERT_EQ(Is_Open(), Active_Dlg == "File_Dlg") << action;
    ASSERT_EQ(Is_Open(), FD_Open == Flag_True) << action;
    ASSERT_EQ(Dlg_Nest, Is_Open() ? 1 : 0) << action;
    service.Take_Sent();
  }
  EXPECT_GT(openings, 100);
  for (const auto& [name, bytes] : originals) ASSERT_EQ(root.Get("work/" + name), bytes) << name;
  MELVOR.Seq_Tmr.enabled = false;
  const auto hear = [&] {
    Unload(File_Dlg);
    Fresh_Memory();
    Open("Open_SYX");
    Press_File("a.syx");
    return Heard();
  };
  while (interrupts) hear();
  EXPECT_EQ(hear(), "B0 7B 00, dump A, dump A, 90 30 50");
}

}  // namespace
