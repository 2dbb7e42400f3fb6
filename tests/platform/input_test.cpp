#include "platform/input.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/runtime_error.h"
#include "support/scripted_desktop.h"

namespace {

struct Frame_Window : Form {
  Frame_Window() : Form(Form_Role::Frame, "frame") {
    on_click = [this] { ++clicks; };
  }
  Menu_Item file{*this, "file", "&File"};
  Menu_Item close{file, "close", "&Close", "Ctrl+C"};
  Menu_Item help{file, "help", "&Help", "F1"};
  int clicks = 0;
};

struct Dialog : Form {
  Dialog() : Form(Form_Role::Child, "dialog") {
    label.caption = "&Name";
    label.tab_index = 0;
    name.tab_index = 1;
    list.tab_index = 2;
    ok.tab_index = 3;
    cancel.tab_index = 4;
    ok.caption = "&OK";
    ok.is_default = true;
    cancel.is_cancel = true;
    ok.on_click = [this] { pressed += "ok "; };
    cancel.on_click = [this] { pressed += "cancel "; };
    list.on_click = [this] { ++selections; };
    for (const char* item : {"one", "two"}) list.Add_Item(item);
  }
  Label label{*this, "label"};
  Text_Box name{*this, "name"};
  Combo_Box list{*this, "list"};
  Command_Button ok{*this, "ok"};
  Command_Button cancel{*this, "cancel"};
  Picture_Box button{*this, "button"};
  Picture_Box symbol{button, "symbol"};
  std::string pressed;
  int selections = 0;
};

struct Input : testing::Test {
  Scripted_Desktop desktop;
  Frame_Window frame;
  Dialog dialog;

  void SetUp() override {
    Show(frame);
    Show(dialog);
  }
};

TEST_F(Input, What_Nobody_Takes_Does_Its_Ordinary_Work) {
  EXPECT_EQ(Focused_Control(), &dialog.name);
  EXPECT_TRUE(desktop.Key(Key::Tab));
  EXPECT_EQ(Focused_Control(), &dialog.list);
  EXPECT_TRUE(desktop.Key(Key::Tab, Shift_Key));
  EXPECT_TRUE(desktop.Key(Key::Tab, Shift_Key));
  EXPECT_EQ(Focused_Control(), &dialog.cancel) << "around the end";
  EXPECT_TRUE(desktop.Key(Key::Enter)) << "a button that has the focus";
  Set_Focus(dialog.name);
  desktop.Key(Key::Enter);
  desktop.Key(Key::Escape);
  desktop.Key('O', Alt_Key);
  EXPECT_EQ(dialog.pressed, "cancel ok cancel ok ");
  desktop.Key('N', Alt_Key);
  EXPECT_EQ(Focused_Control(), &dialog.name) << "a label's key goes to what follows it";
  EXPECT_FALSE(desktop.Key('N', 0, 'n')) << "a text field must see it";
}

TEST_F(Input, Handlers_See_A_Key_From_The_Form_Inwards_And_Can_Take_It) {
  std::string seen;
  dialog.key_preview = true;
  dialog.on_key_down = [&](Key_Event& key) {
    seen += "form ";
    if (key.code == Key::Up) key.code = 0;
  };
  dialog.name.on_key_down = [&](Key_Event&) { seen += "control "; };
  dialog.name.on_key_press = [&](int& character) {
    seen += "press ";
    character = 0;
  };
  EXPECT_TRUE(desktop.Key(Key::Up));
  EXPECT_TRUE(desktop.Key('X', 0, 'x'));
  EXPECT_EQ(seen, "form form control press ");
}

TEST_F(Input, Shortcuts_Act_Only_While_Their_Whole_Branch_Can_Be_Chosen) {
  int closed = 0;
  frame.close.on_click = [&] { ++closed; };
  desktop.Key('C', Ctrl_Key);
  frame.file.enabled = false;
  EXPECT_FALSE(desktop.Key('C', Ctrl_Key)) << "left to the text field";
  frame.file.enabled = true;
  frame.close.visible = false;
  desktop.Key('C', Ctrl_Key);
  desktop.Key('C', Ctrl_Key | Shift_Key);
  EXPECT_EQ(closed, 1);
}

TEST_F(Input, A_Press_On_A_Disabled_Window_Is_A_Click_On_The_Frame) {
  int presses = 0;
  dialog.button.on_mouse_down = [&](const Mouse_Event&) { ++presses; };
  dialog.enabled = false;
  desktop.Press(dialog.button);
  Form_Pressed(dialog);
  dialog.enabled = true;
  dialog.button.enabled = false;
  desktop.Press(dialog.button);
  EXPECT_EQ(presses, 0);
  EXPECT_EQ(frame.clicks, 2);
}

TEST_F(Input, The_Mouse_Goes_Through_A_Symbol_To_The_Button_Under_It) {
  std::string seen;
  dialog.symbol.left = 3;
  dialog.symbol.top = 2;
  dialog.symbol.mouse_through = true;
  dialog.button.on_mouse_down = [&](const Mouse_Event& event) {
    seen +=
        "down " + std::to_string(static_cast<int>(event.x)) + "," + std::to_string(static_cast<int>(event.y));
  };
  dialog.button.on_click = [&] { seen += " click"; };
  desktop.Press(dialog.symbol, Left_Button, 1, 1);
  desktop.Release(dialog.symbol, Left_Button, 1, 1);
  EXPECT_EQ(seen, "down 4,3 click");
}

TEST_F(Input, Clicks_And_Double_Clicks) {
  int downs = 0;
  int clicks = 0;
  dialog.button.on_mouse_down = [&](const Mouse_Event&) { ++downs; };
  dialog.button.on_click = [&] { ++clicks; };
  desktop.Double_Click(dialog.button);
  EXPECT_EQ(downs, 2) << "without a handler of its own the second press is a plain one";
  desktop.Click(dialog.button, Right_Button);
  EXPECT_EQ(clicks, 1) << "only the left button clicks";
  int doubles = 0;
  dialog.button.on_double_click = [&] { ++doubles; };
  desktop.Double_Click(dialog.button);
  EXPECT_EQ(doubles, 1);
  EXPECT_EQ(downs, 4);
}

TEST_F(Input, Lists_Run_Their_Handler_At_Every_Selection_And_Refuse_A_Bad_One) {
  dialog.list.Select(1);
  dialog.list.Select(1);
  EXPECT_EQ(dialog.selections, 2);
  EXPECT_THROW(dialog.list.Select(2), Runtime_Error);
  EXPECT_EQ(dialog.list.Selected_Text(), "two");
  desktop.Expect_Box(Answer::Ok, "Error 380: Invalid property value");
  User_Selected(dialog.list, 7);
  EXPECT_EQ(dialog.selections, 2);
}

}  // namespace
