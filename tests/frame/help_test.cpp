#include "frame/help.h"

#include "frame/whole_program.h"
#include "windows/focus_mark.h"
#include "windows/help_window.h"
#include "windows/pictures.h"

namespace {

struct Help_Test : Whole_Program {
  Help_Test() {
    Help_Demo = {};
    Help_LED_Sel = 0;
    Start();
    Set_Focus(Editor.VCF_Res);
  }
  static std::string Shown() { return Help.HName.caption(); }
  static std::string Lit() {
    std::string lights;
    for (const Picture_Box& light : Help.LED_SW) lights += light.picture() == LED(LED_Red) ? '1' : '0';
    return lights;
  }
};

TEST_F(Help_Test, The_Window_Holds_The_Program_And_Its_Examples_Blink) {
  Menu_Help_Howto_Click();
  EXPECT_EQ(Active_Dlg, "Help");
  EXPECT_FALSE(Editor.enabled() || MELVOR.Menu_File.enabled());
  EXPECT_TRUE(Help.Info.text().starts_with("Select a control element on the left "));
  desktop.Press(Help.Slider);
  EXPECT_EQ(Active_Ctl, &Help.Slider);
  desktop.Advance_ms(250);
  const Picture one = Help.Slider.picture();
  desktop.Advance_ms(250);
  EXPECT_NE(one, Help.Slider.picture());
  EXPECT_EQ(Editor.VCF_Res.picture(), Buttons(Slider_Cap));
  desktop.Post([] { User_Closes(Help); });  // the user is quick; this comes while it closes
  desktop.Key(Key::Escape);
  EXPECT_FALSE(Help.Loaded());
  EXPECT_EQ(Active_Dlg + std::to_string(Dlg_Nest), "0");
  EXPECT_EQ(Focused_Control(), &Editor.VCF_Res);
}

TEST_F(Help_Test, Each_Menu_Item_Opens_Its_Page_And_Each_Button_Turns_To_Its_Own) {
  struct Row {
    void (*menu)();
    Command_Button& button;
    Control& focus_after_button;
  };
  const std::array<Control*, 3> pages{&Help.Frame_Howto, &Help.Frame_Search, &Help.Frame_Credits};
  const std::array rows{Row{Menu_Help_Howto_Click, Help.Cmd_Howto, Help.Cmd_Howto},
                        Row{Menu_Help_Search_Click, Help.Cmd_Search, Help.Help_Keyword},
                        Row{Menu_Help_About_Click, Help.Cmd_About, Help.About}};
  const auto only_page = [&](std::size_t shown) {
    for (std::size_t page = 0; page < 3; ++page) EXPECT_EQ(pages[page]->visible(), page == shown);
  };
  for (std::size_t opened = 0; opened < 3; ++opened) {
    rows[opened].menu();
    only_page(opened);
    EXPECT_EQ(Dlg_Nest, 1);
    for (std::size_t turned = 0; turned < 3; ++turned) {
      Set_Focus(rows[turned].button);
      User_Clicked(rows[turned].button);
      only_page(turned);
      EXPECT_EQ(Focused_Control(), &rows[turned].focus_after_button);
    }
    Unload(Help);
  }
}

TEST_F(Help_Test, Examples_Follow_Keys_And_Mouse_And_Touch_No_Tone) {
  const auto tone = Tone;
  struct Row {
    Picture_Box& element;
    int key;
    std::string shown;
    int left, top;  // of the part that moves
  };
  Menu_Help_Howto_Click();
  EXPECT_EQ(Shown(), "Waiting for action...");
  for (const Row& row : std::initializer_list<Row>{
           {Help.Pos_Sw, Key::Home, "1", 13, 5},
           {Help.Pos_Sw, Key::Page_Down, "2", 13, 15},
           {Help.Slider, Key::Page_Up, "12", 62, 75},
           {Help.Slider, Key::Letter_A, "12", 62, 75},
           {Help.Switch, Key::Page_Down, "ON", 106, 5},
           {Help.Switch, Key::Keypad_Minus, "OFF", 106, 15},
           {Help.Tune, Key::Letter_A, "0", 12, 5},
           {Help.Tune_Knopf, Key::Page_Up, "6", 17, 8},
       }) {
    Set_Focus(row.element);
    desktop.Key(row.key);
    const Picture_Box& moved = &row.element == &Help.Tune ? Help.Tune_Knopf : row.element;
    EXPECT_EQ(Shown(), row.shown) << row.element.name << row.key;
    EXPECT_EQ(moved.left(), row.left) << row.element.name << row.key;
    EXPECT_EQ(moved.top(), row.top) << row.element.name << row.key;
  }
  desktop.Drag(Help.Slider, {-100});
  EXPECT_EQ(Shown(), "90");
  desktop.Drag(Help.Pos_Sw, {-20, -20});
  EXPECT_EQ(Shown(), "1");
  desktop.Press(Help.Tune);
  desktop.Move(Help.Tune, 20, 0);
  EXPECT_EQ(Shown(), "11");
  for (Picture_Box* example : {&Help.Slider, &Help.Pos_Sw, &Help.Tune}) desktop.Move(*example, 100, 60, 0);
  EXPECT_EQ(Shown(), "11") << "a move without a button";
  desktop.Click(Help.Switch);
  desktop.Advance_ms(999);
  EXPECT_EQ(Shown(), "ON");
  desktop.Advance_ms(1);
  EXPECT_EQ(Shown(), "Waiting...");
  desktop.Key(Key::Escape);
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_TRUE(service.Sent().empty());

  Menu_Help_Howto_Click();
  EXPECT_EQ(Help.Pos_Sw.top(), 5) << "what they held stays";
  EXPECT_EQ(Help.Switch.top(), 5);
  EXPECT_EQ(Help.Slider.top(), 85) << "but for slider and knob";
  desktop.Press(Help.Tune);
  EXPECT_EQ(Shown(), "0");
}

TEST_F(Help_Test, One_Light_Of_The_Row_Is_Lit) {
  Menu_Help_Howto_Click();
  desktop.Click(Help.LED_SW[2]);
  EXPECT_EQ(Shown() + Lit(), "C0010");
  for (const int key : {Key::Down, Key::Down, Key::Home}) desktop.Key(key);
  EXPECT_EQ(Shown() + Lit(), "D0001");
  desktop.Advance_ms(500);
  desktop.Press(Help.Slider);
  EXPECT_EQ(Lit(), "0001") << "at rest it stays lit";
  Set_Focus(Help.LED_SW[3]);
  for (int times = 0; times < 4; ++times) desktop.Key(Key::Up);
  EXPECT_EQ(Shown() + Lit(), "A1000");
}

TEST_F(Help_Test, Typing_Goes_To_The_First_Topic_At_Or_Behind_The_Text) {
  Menu_Help_Search_Click();
  EXPECT_EQ(Help.Help_KeyList.Count(), 23);
  struct Row {
    std::string typed, topic, description_begins;
  };
  for (const Row& row :
       {Row{"mi", "MIDI Autoplay", "MELVOR plays automatically a note"},
        Row{"midi sy", "MIDI System Exclusive (Sysex)", "Against the standard MIDI events"},
        Row{"Mouse", "Mouse", "Please press the 'How to use MELVOR' button for details."},
        Row{"zz", "using mouse, keyboard", "Please press the 'How to use MELVOR' button for details."},
        Row{"", "Editor", "This is the main window of MELVOR."}}) {
    desktop.Type(Help.Help_Keyword, row.typed);
    EXPECT_EQ(Help.Help_KeyList.Selected_Text(), row.topic) << row.typed;
    EXPECT_TRUE(Help.Help_Description.text().starts_with(row.description_begins)) << row.typed;
  }
}

TEST_F(Help_Test, The_About_Page_Tells_Why_Each_Name_Is_There) {
  Menu_Help_About_Click();
  EXPECT_EQ(Help.Credits.Count(), 11);
  EXPECT_TRUE(
      Help.About.text().starts_with("MELVOR is an interactive editor for the Roland JX-8P synthesizer"));
  EXPECT_TRUE(Help.About.text().ends_with("\r\n\r\n ° All MELVOR users\r\n"));
  User_Selected(Help.Credits, 6);  // behind the row that is not in use
  EXPECT_EQ(Help.Credits.Selected_Text() + Help.Credits_Why.caption(), "Qt Windows & Timers");
}

}  // namespace
