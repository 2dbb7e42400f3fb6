#include "frame/help.h"

#include "frame/whole_program.h"
#include "windows/help_window.h"

namespace {

using Help_Test = Whole_Program;

TEST_F(Help_Test, Pages_Turn_And_The_Window_Holds_The_Program_Until_It_Closes) {
  Start();
  Set_Focus(Editor.VCF_Res);
  struct Row {
    void (*menu)();
    Command_Button& button;
    Control& page;
  };
  for (const Row& row :
       std::initializer_list<Row>{{Menu_Help_Howto_Click, Help.Cmd_Search, Help.Frame_Search},
                                  {Menu_Help_Search_Click, Help.Cmd_About, Help.Frame_Credits},
                                  {Menu_Help_About_Click, Help.Cmd_Howto, Help.Frame_Howto}}) {
    row.menu();
    EXPECT_FALSE(row.page.visible() || Editor.enabled() || MELVOR.Menu_File.enabled());
    User_Clicked(row.button);
    EXPECT_TRUE(row.page.visible());
    desktop.Key(Key::Escape);
    EXPECT_FALSE(Help.Loaded());
    EXPECT_EQ(Focused_Control(), &Editor.VCF_Res);
  }
}

TEST_F(Help_Test, Examples_Follow_Keys_And_Mouse_And_Touch_No_Tone) {
  Start();
  Help_Demo = {};
  const auto tone = Tone;
  Menu_Help_Howto_Click();
  struct Row {
    Picture_Box& element;
    int key;
    const char *by_key, *by_drag;
  };
  for (const Row& row : std::initializer_list<Row>{{Help.Pos_Sw, Key::Page_Up, "3", "1"},
                                                   {Help.Slider, Key::Page_Up, "12", "90"},
                                                   {Help.Tune, Key::Page_Up, "6", "7"},
                                                   {Help.Switch, Key::Page_Down, "ON", "OFF"},
                                                   {Help.LED_SW[0], Key::Down, "B", "A"}}) {
    Set_Focus(row.element);
    desktop.Key(row.key);
    EXPECT_EQ(Help.HName.caption(), row.by_key);
    desktop.Drag(row.element, {-100});
    EXPECT_EQ(Help.HName.caption(), row.by_drag);
  }
  EXPECT_EQ(Tone, tone);
  EXPECT_TRUE(service.Sent().empty());
}

TEST_F(Help_Test, Typing_Goes_To_The_First_Topic_At_Or_Behind_The_Text) {
  Start();
  Menu_Help_Search_Click();
  for (const auto& [typed, topic] :
       {std::pair{"mi", "MIDI Autoplay"}, {"zz", "using mouse, keyboard"}, {"", "Editor"}}) {
    desktop.Type(Help.Help_Keyword, typed);
    EXPECT_EQ(Help.Help_KeyList.Selected_Text(), topic) << typed;
  }
  EXPECT_TRUE(Help.Help_Description.text().starts_with("This is the main window of MELVOR."));
}

}  // namespace
