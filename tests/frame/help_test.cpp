#include "frame/help.h"

#include "panel/editor.h"
#include "platform/text.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/help_window.h"
#include "windows/modal.h"
#include "windows/pictures.h"

namespace {

// The Editor stands, with a slider selected, and the display timer ends as the frame lets it end.
struct Help_Test : Program {
  Help_Test() {
    Editor_Wire();
    Help_Wire();
    Help_Demo = {};
    Help_LED_Sel = 0;
    MELVOR.on_load = nullptr;
    MELVOR.on_query_unload = nullptr;
    MELVOR.on_unload = nullptr;
    MELVOR.Timer_Display.on_tick = [] {
      MELVOR.Timer_Display.enabled = false;
      if (Active_Dlg == "Help") Help_Show_Waiting();
    };
    Show(MELVOR);
    Show(Editor);
    Set_Focus(Editor.VCF_Res);
    Sent();
  }
  ~Help_Test() override { Unload(MELVOR); }

  std::string Shown() { return Help.HName.caption(); }
  std::string Listed() { return Help.Help_KeyList.Selected_Text(); }
};

TEST_F(Help_Test, The_Window_Holds_The_Program_And_Its_Examples_Blink) {
  Menu_Help_Howto_Click();
  EXPECT_EQ(Active_Dlg, "Help");
  EXPECT_FALSE(Editor.enabled());
  EXPECT_FALSE(MELVOR.Menu_File.enabled());
  EXPECT_EQ(Help.left(), 375);
  EXPECT_EQ(Help.top(), 375);
  EXPECT_EQ(First_Characters(Help.Info.text(), 37), "Select a control element on the left ");

  desktop.Press(Help.Slider);
  EXPECT_EQ(Active_Ctl, &Help.Slider);
  desktop.Advance_ms(250);
  const Picture one = Help.Slider.picture();
  desktop.Advance_ms(250);
  EXPECT_NE(one, Help.Slider.picture());
  EXPECT_EQ(Editor.VCF_Res.picture(), Buttons(Slider_Cap));

  desktop.Key(Key::Escape);
  EXPECT_FALSE(Help.Loaded());
  EXPECT_EQ(Active_Dlg, "");
  EXPECT_EQ(Dlg_Nest, 0);
  EXPECT_TRUE(Editor.enabled());
  EXPECT_EQ(Focused_Control(), &Editor.VCF_Res);
}

TEST_F(Help_Test, Each_Menu_Item_Opens_Its_Page_And_Each_Button_Turns_To_Its_Own) {
  struct Row {
    void (*menu)();
    Command_Button& button;
    Control& focus_after_button;
    int page;
  };
  const std::array<Control*, 3> pages{&Help.Frame_Howto, &Help.Frame_Search, &Help.Frame_Credits};
  const std::array rows{Row{Menu_Help_Howto_Click, Help.Cmd_Howto, Help.Cmd_Howto, 0},
                        Row{Menu_Help_Search_Click, Help.Cmd_Search, Help.Help_Keyword, 1},
                        Row{Menu_Help_About_Click, Help.Cmd_About, Help.About, 2}};
  for (const Row& row : rows) {
    row.menu();
    const auto only_page = [&](int shown) {
      for (int page = 0; page < 3; ++page)
        EXPECT_EQ(pages[static_cast<std::size_t>(page)]->visible(), page == shown);
    };
    only_page(row.page);
    EXPECT_EQ(Dlg_Nest, 1);
    if (row.page == 1) {
      EXPECT_EQ(Focused_Control(), &Help.Help_Keyword);
    }
    for (const Row& turn : rows) {
      Set_Focus(turn.button);
      User_Clicked(turn.button);
      only_page(turn.page);
      EXPECT_EQ(Focused_Control(), &turn.focus_after_button);
    }
    Unload(Help);
  }
}

TEST_F(Help_Test, Examples_Follow_The_Keys_And_Show_What_They_Hold) {
  struct Row {
    Picture_Box& element;
    std::vector<int> keys;
    std::string shown;
    int left, top;  // of the part that moves
  };
  Menu_Help_Howto_Click();
  EXPECT_EQ(Shown(), "Waiting for action...");
  for (const Row& row : std::initializer_list<Row>{
           {Help.Pos_Sw, {Key::Home}, "1", 13, 5},
           {Help.Pos_Sw, {Key::Page_Down}, "2", 13, 15},
           {Help.Pos_Sw, {Key::Down, Key::Down}, "4", 13, 35},
           {Help.Pos_Sw, {Key::End, Key::Keypad_Plus}, "3", 13, 25},
           {Help.Slider, {Key::Page_Up}, "12", 62, 75},
           {Help.Slider, {Key::Home, Key::Down}, "98", 62, 6},
           {Help.Slider, {Key::End}, "0", 62, 85},
           {Help.Slider, {Key::Left, Key::Letter_A}, "0", 62, 85},
           {Help.Switch, {Key::Page_Down}, "ON", 106, 5},
           {Help.Switch, {Key::Left, Key::Keypad_Minus}, "OFF", 106, 15},
           {Help.Tune, {Key::Letter_A}, "0", 12, 5},
           {Help.Tune, {Key::Page_Up}, "6", 17, 8},
           {Help.Tune, {Key::Home}, "12", 15, 14},
           {Help.Tune_Knopf, {Key::Digit_0, Key::Left}, "-1", 11, 5},
           {Help.Tune, {Key::Page_Down, Key::Page_Down}, "-12", 9, 14},
       }) {
    Set_Focus(row.element);
    for (const int key : row.keys) desktop.Key(key);
    Picture_Box& moved = &row.element == &Help.Tune ? Help.Tune_Knopf : row.element;
    EXPECT_EQ(Shown(), row.shown) << row.element.name << row.keys.front();
    EXPECT_EQ(moved.left(), row.left) << row.element.name << row.keys.front();
    EXPECT_EQ(moved.top(), row.top) << row.element.name << row.keys.front();
  }
}

TEST_F(Help_Test, Examples_Follow_The_Mouse) {
  Menu_Help_Howto_Click();
  desktop.Drag(Help.Slider, {-100});
  EXPECT_EQ(Shown(), "77");
  desktop.Drag(Help.Pos_Sw, {-20, -20});
  EXPECT_EQ(Shown(), "3");
  EXPECT_EQ(Help.Pos_Sw.top(), 25);
  desktop.Press(Help.Tune);
  EXPECT_EQ(Shown(), "0");
  desktop.Move(Help.Tune, 20, 0);  // the first move counts from the left edge
  EXPECT_EQ(Shown(), "5");
  desktop.Move(Help.Tune, 8, 0);
  EXPECT_EQ(Shown(), "2");
  desktop.Move(Help.Tune, 100, 0, 0);
  EXPECT_EQ(Shown(), "2") << "a move without a button";
  desktop.Click(Help.Switch);
  EXPECT_EQ(Shown(), "ON");
  desktop.Advance_ms(999);
  EXPECT_EQ(Shown(), "ON");
  desktop.Advance_ms(1);
  EXPECT_EQ(Shown(), "Waiting...");
}

TEST_F(Help_Test, One_Light_Of_The_Row_Is_Lit) {
  Menu_Help_Howto_Click();
  const auto lit = [] {
    std::string lights;
    for (const Picture_Box& light : Help.LED_SW) lights += light.picture() == LED(LED_Red) ? '1' : '0';
    return lights;
  };
  desktop.Click(Help.LED_SW[2]);
  EXPECT_EQ(Shown(), "C");
  EXPECT_EQ(lit(), "0010");
  for (const int key : {Key::Down, Key::Down, Key::Home}) desktop.Key(key);
  EXPECT_EQ(Shown(), "D");
  EXPECT_EQ(lit(), "0001");
  desktop.Advance_ms(500);
  desktop.Key(Key::Tab);
  desktop.Press(Help.Slider);
  EXPECT_EQ(lit(), "0001") << "at rest it stays lit";
  Set_Focus(Help.LED_SW[3]);
  for (int times = 0; times < 4; ++times) desktop.Key(Key::Up);
  EXPECT_EQ(Shown(), "A");
  EXPECT_EQ(lit(), "1000");
}

TEST_F(Help_Test, Examples_Keep_What_They_Held_But_Tune_And_Slider_And_Touch_No_Tone) {
  const auto tone = Tone;
  Menu_Help_Howto_Click();
  for (Picture_Box* example : {&Help.Pos_Sw, &Help.Slider, &Help.Switch, &Help.Tune}) {
    Set_Focus(*example);
    desktop.Key(Key::Home);
  }
  desktop.Click(Help.LED_SW[1]);
  const int switch_top = Help.Switch.top();
  desktop.Key(Key::Escape);
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_TRUE(Sent().empty());

  Menu_Help_Howto_Click();
  EXPECT_EQ(Shown(), "Waiting for action...");
  EXPECT_EQ(Help.Pos_Sw.top(), 5);
  EXPECT_EQ(Help.Switch.top(), switch_top);
  EXPECT_EQ(Help.LED_SW[1].picture(), LED(LED_Red));
  EXPECT_EQ(Help.Slider.top(), 85);
  desktop.Press(Help.Tune);
  EXPECT_EQ(Shown(), "0");
}

TEST_F(Help_Test, Typing_Goes_To_The_First_Topic_At_Or_Behind_The_Text) {
  Menu_Help_Search_Click();
  EXPECT_EQ(Help.Help_KeyList.Count(), 23);
  EXPECT_EQ(Listed(), "Editor") << "an empty keyword";
  struct Row {
    std::string typed, topic, description_begins;
  };
  for (const Row& row : std::initializer_list<Row>{
           {"mi", "MIDI Autoplay", "MELVOR plays automatically a note"},
           {"MIDI S", "MIDI setup",
            "Select the MIDI output where your JX-8P is connected, it's MIDI channel"},
           {"midi sy", "MIDI System Exclusive (Sysex)", "Against the standard MIDI events"},
           {"Mouse", "Mouse", "Please press the 'How to use MELVOR' button for details."},
           {"seq", "Sequencer", "In this window, you can edit basic sequences"},
           {"zz", "using mouse, keyboard", "Please press the 'How to use MELVOR' button for details."},
           {"", "Editor", "This is the main window of MELVOR."},
       }) {
    desktop.Type(Help.Help_Keyword, row.typed);
    EXPECT_EQ(Listed(), row.topic) << row.typed;
    EXPECT_EQ(Help.Help_Description.text().substr(0, row.description_begins.size()), row.description_begins);
  }
  User_Selected(Help.Help_KeyList, 22);
  EXPECT_EQ(Help.Help_Keyword.text(), "") << "a chosen topic is not typed";
}

TEST_F(Help_Test, The_About_Page_Tells_Why_Each_Name_Is_There) {
  Menu_Help_About_Click();
  EXPECT_EQ(Help.Credits.Count(), 11);
  EXPECT_TRUE(Help.About.text().starts_with(
      "MELVOR is an interactive editor for the Roland JX-8P synthesizer based on the design of the Roland "
      "Programmer "
      "PG-800. \r\n\r\nMELVOR has additional features:\r\n° TONE and PATCH parameters\r\n"));
  EXPECT_TRUE(Help.About.text().ends_with("\r\n\r\n ° All MELVOR users\r\n"));
  User_Selected(Help.Credits, 3);
  EXPECT_EQ(Help.Credits_Why.caption(), " Beta-Test & Preview idea");
  User_Selected(Help.Credits, 6);  // behind the row that is not in use
  EXPECT_EQ(Help.Credits.Selected_Text(), "Qt");
  EXPECT_EQ(Help.Credits_Why.caption(), " Windows & Timers");
}

}  // namespace
