#include "panel/tone_name.h"

#include "panel/input_box.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/input_dlg_window.h"
#include "windows/modal.h"
#include "windows/tname_window.h"

namespace {

using Texts = std::vector<std::string>;

struct Tone_Name_Test : Program {
  Tone_Name_Test() {
    Tone_Name_Wire();
    Input_Box_Wire();
    Editor.Tone_Name.tab_index = 54;
    Show(Editor);
    Tone_Show();
  }
  ~Tone_Name_Test() override {
    Unload(TName);
    Unload(Editor);
    Active_Ctl = nullptr;
  }
};

TEST_F(Tone_Name_Test, A_Name_Goes_Up_In_Case_And_Out_In_One_Message) {
  desktop.Click(Editor.Tone_Name);
  ASSERT_TRUE(TName.Loaded());
  EXPECT_EQ(Active_Dlg, "TName");
  EXPECT_EQ(TName.left(), 150 * 15);
  desktop.Type(TName.Tone_Name, "soft Pad");
  desktop.Key(Key::Enter, 0, 13);
  EXPECT_FALSE(TName.Loaded());
  EXPECT_EQ(Active_Dlg, "");
  EXPECT_EQ(Tone_Name_Str, "SOFT PAD");
  EXPECT_EQ(Editor.Tone_Name.text(), "SOFT PAD");
  EXPECT_EQ(Sent(),
            Texts{"F0 41 36 00 21 20 01 00 53 01 4F 02 46 03 54 04 20 05 50 06 41 07 44 08 20 09 20 0F"});
  EXPECT_EQ(Tone_Saved, Flag_True);
}

TEST_F(Tone_Name_Test, Ten_Characters_And_No_Odd_Bytes) {
  Set_Focus(Editor.Tone_Name);
  desktop.Key(Key::Letter_A, 0, 'a');
  ASSERT_TRUE(TName.Loaded());
  desktop.Type(TName.Tone_Name, "0123456789x");
  EXPECT_EQ(TName.Tone_Name.text(), "0123456789");
  desktop.Type(TName.Tone_Name, "caf\xC3\xA9");
  User_Clicked(TName.Cmd_OK);
  EXPECT_EQ(Sent(),
            Texts{"F0 41 36 00 21 20 01 00 43 01 41 02 46 03 20 04 20 05 20 06 20 07 20 08 20 09 20 0F"});
}

TEST_F(Tone_Name_Test, Cancel_And_Silence_Leave_The_Instrument_Alone) {
  Tone_Name_Open();
  EXPECT_EQ(TName.Tone_Name.text(), "");
  desktop.Type(TName.Tone_Name, "NO");
  desktop.Key(Key::Escape, 0, 27);
  EXPECT_FALSE(TName.Loaded());
  EXPECT_EQ(Tone_Name_Str, "");
  Autosend = 0;
  Tone_Name_Open();
  desktop.Type(TName.Tone_Name, "YES");
  User_Clicked(TName.Cmd_OK);
  EXPECT_EQ(Tone_Name_Str, "YES");
  EXPECT_EQ(Tone[0], 'Y');
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Tone_Name_Test, No_Entry_While_Another_Window_Is_Modal) {
  Active_Dlg = "Help";
  desktop.Click(Editor.Tone_Name);
  desktop.Key(Key::Letter_A, 0, 'a');
  Tone_Name_Open();
  EXPECT_FALSE(TName.Loaded());
  Active_Dlg.clear();
  desktop.Key(Key::Tab, 0, Key::Tab);
  EXPECT_FALSE(TName.Loaded()) << "Tab moves on";
}

TEST_F(Tone_Name_Test, The_Prompt_Waits_For_Its_Answer) {
  desktop.At_Wait([&] {
    EXPECT_EQ(Input_Dlg.caption(), "New folder");
    EXPECT_EQ(Input_Dlg.Input_Msg.caption(), "Name:");
    EXPECT_EQ(Input_Dlg.Input_Textbox.text(), "first");
    EXPECT_EQ(Input_Dlg.Input_Textbox.selection_length(), 5);
    desktop.Type(Input_Dlg.Input_Textbox, "second");
  });
  desktop.At_Wait([&] { desktop.Key(Key::Enter, 0, 13); });
  EXPECT_EQ(Input_Box("Name:", "New folder", "first"), "second");
  desktop.At_Wait([&] { desktop.Key(Key::Escape, 0, 27); });
  EXPECT_EQ(Input_Box("Name:", "New folder", "first"), "");
  desktop.At_Wait([&] { User_Closes(Input_Dlg); });
  EXPECT_EQ(Input_Box("Name:", "New folder", "first"), "");
  Show(MELVOR);
  desktop.At_Wait([&] { Unload(MELVOR); });
  EXPECT_EQ(Input_Box("Name:", "New folder", "first"), "") << "the end of the program ends the wait";
  EXPECT_FALSE(Input_Dlg.Loaded());
}

}  // namespace
