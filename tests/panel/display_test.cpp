// The Editor's display: the name that it shows, and the font that it shows it in.
#include "panel/display_font.h"
#include "panel/editor_fixture.h"
#include "panel/input_box.h"
#include "panel/tone_name.h"
#include "platform/directories.h"
#include "platform/drives.h"
#include "platform/text.h"
#include "windows/input_dlg_window.h"
#include "windows/tname_window.h"

struct Display_Test : Editor_Fixture {
  Display_Test() {
    Tone_Name_Wire();
    Input_Box_Wire();
    Tone_Show();
    Directories_Set("C:\\.config\\melvor", "/data/melvor");
    Font_Loaded = Flag_False;
    Editor.Tone_Name.font_face = std::string();
  }
};

TEST_F(Display_Test, Cancel_Changes_Nothing_And_No_Entry_Opens_By_Tab_Or_Beside_A_Modal_Window) {
  Set_Focus(Editor.Tone_Name);
  desktop.Key(Key::Letter_A, 0, 'a');
  desktop.Type(TName.Tone_Name, "NO");
  desktop.Key(Key::Escape, 0, 27);
  EXPECT_FALSE(TName.Loaded());
  EXPECT_EQ(Tone_Name_Str, "");
  EXPECT_TRUE(Sent().empty());
  Active_Dlg = "Help";
  desktop.Click(Editor.Tone_Name);
  Active_Dlg.clear();
  desktop.Key(Key::Tab, 0, Key::Tab);
  EXPECT_FALSE(TName.Loaded());
}

TEST_F(Display_Test, The_Prompt_Waits_For_Its_Answer) {
  Show(MELVOR);
  using Row = std::pair<std::function<void()>, const char*>;
  for (const auto& [answer, result] :
       {Row{[&] { desktop.Key(Key::Enter, 0, 13); }, "second"}, Row{[] { User_Closes(Input_Dlg); }, ""},
        Row{[] { Unload(MELVOR); }, ""}}) {  // the end of the program ends the wait
    desktop.At_Wait([this, &answer = answer] {
      EXPECT_EQ(Plain_Caption(Input_Dlg.Input_Msg.caption()), "One\rtwo\rR&D");
      desktop.Type(Input_Dlg.Input_Textbox, "second");
      answer();
    });
    EXPECT_EQ(Input_Box("One\rtwo\rR&D", "New folder", "first"), result);
  }
}

TEST_F(Display_Test, It_Gets_The_Font_And_Gives_It_Back_Once_Or_Keeps_Its_Face) {
  Drives_Set({{'Z', "/"}});
  desktop.fonts_load = false;
  desktop.Expect_Box(Answer::Ok,
                     "Error: Could not load font Z:\\data\\melvor\\MELVOR.FNT\nUsing default font.");
  Pics_Build_Segments();
  EXPECT_EQ(Editor.Tone_Name.font_face(), "");
  desktop.fonts_load = true;
  Pics_Build_Segments();
  EXPECT_EQ(desktop.fonts, Texts{"/data/melvor/MELVOR.FNT"});
  EXPECT_EQ(Editor.Tone_Name.font_face(), "MELVOR");
  desktop.remove_font_error = 5;
  desktop.Expect_Box(Answer::Ok, "Error 5");
  Pics_Release_Font();
  EXPECT_TRUE(desktop.fonts.empty());
  Pics_Release_Font();
}
