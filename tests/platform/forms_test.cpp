// Windows: how they load, change and go, and what the user's keys and mouse do in them.
#include "platform/form.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "support/scripted_desktop.h"

namespace {

std::string story;  // what happened since it was read last

std::string Story() { return std::exchange(story, {}); }
std::function<void()> Told(const std::string& event) {
  return [event] { story += event + ", "; };
}

struct Frame_Window : Form {
  Frame_Window() : Form(Form_Role::Frame, "frame") {
    on_query_unload = [](bool&) { story += "frame query, "; };
    on_unload = Told("frame unload");
    on_click = Told("frame click");
    close.on_click = Told("close");
  }
  Menu_Item file{*this, "file", "&File"};
  Menu_Item close{file, "close", "&Close", "Ctrl+C"};
};

struct Dialog : Form {
  explicit Dialog(const std::string& id) : Form(Form_Role::Child, "dialog") {
    on_load = Told(id + " load");
    on_unload = Told(id + " unload");
    on_activate = Told(id + " activate");
    on_deactivate = Told(id + " deactivate");
    on_query_unload = [this, id](bool& cancels) {
      story += id + " query, ";
      cancels = refuses;
    };
    int tab = 0;
    for (Control* control : std::initializer_list<Control*>{&label, &text, &ok, &cancel}) {
      control->tab_index = tab++;
      control->on_got_focus = Told("got " + std::string(control->name));
      control->on_lost_focus = Told("lost " + std::string(control->name));
      control->on_click = Told(std::string(control->name) + " click");
    }
    label.caption = "&Name";
    ok.caption = "&OK";
    ok.is_default = true;
    cancel.is_cancel = true;
  }

  bool refuses = false;
  Label label{*this, "label"};
  Text_Box text{*this, "text"};
  Command_Button ok{*this, "ok"};
  Command_Button cancel{*this, "cancel"};
  Picture_Box button{*this, "button"};
  Picture_Box symbol{button, "symbol"};
};

struct Forms : testing::Test {
  Forms() {
    story.clear();
    Show(frame);
    Show(one);
    EXPECT_EQ(Story(), "one load, one activate, got text, ");
  }
  Scripted_Desktop desktop;
  Frame_Window frame;
  Dialog one{"one"};
  Dialog two{"two"};
};

TEST_F(Forms, Showing_Loads_Once_And_Changes_The_Window_In_Order) {
  Set_Focus(one.ok);
  EXPECT_EQ(Story(), "lost text, got ok, ");
  Show(two);
  EXPECT_EQ(Story(), "two load, lost ok, one deactivate, two activate, got text, ");
  Show(one);
  EXPECT_EQ(Story(), "lost text, two deactivate, one activate, got ok, ");
  EXPECT_EQ(Open_Windows(), 3);
  two.enabled = false;
  one.text.visible = false;
  Set_Focus(two.ok);
  Set_Focus(one.text);
  EXPECT_EQ(Story(), "") << "disabled and hidden things take no focus";
  EXPECT_EQ(&Next_In_Tab_Order(one.cancel, false), &one.ok);
}

TEST_F(Forms, Unloading_Asks_Then_Puts_Everything_Back_To_Its_Design) {
  two.text.left = 7;
  Show(two);
  two.text.left = 99;
  two.text.enabled = false;
  two.refuses = true;
  Story();
  EXPECT_FALSE(Unload(two));
  EXPECT_TRUE(two.Loaded());
  EXPECT_EQ(Story(), "two query, ");
  two.refuses = false;
  EXPECT_TRUE(Unload(two));
  EXPECT_EQ(Story(), "two query, lost text, two deactivate, two unload, one activate, got text, ");
  EXPECT_EQ(two.text.left(), 7);
  EXPECT_TRUE(two.text.enabled());
  EXPECT_TRUE(Unload(two));
  EXPECT_EQ(Story(), "");
}

TEST_F(Forms, Closing_The_Frame_Asks_Everybody_Before_Anything_Closes) {
  Show(two);
  two.refuses = true;
  Story();
  EXPECT_FALSE(Unload(frame));
  EXPECT_EQ(Story(), "frame query, one query, two query, ");
  two.refuses = false;
  EXPECT_TRUE(Unload(frame));
  EXPECT_EQ(
      Story(),
      "frame query, one query, two query, lost text, two deactivate, two unload, one activate, got text, "
      "lost text, one deactivate, one unload, frame unload, ");
  EXPECT_TRUE(desktop.quit);
  EXPECT_EQ(Open_Windows(), 0);
}

TEST_F(Forms, A_Window_Whose_Load_Fails_Is_Shown_So_That_It_Can_Be_Closed) {
  two.on_load = [] { throw Runtime_Error(Error_Bad_Property_Value); };
  EXPECT_THROW(Show(two), Runtime_Error);
  EXPECT_TRUE(two.visible());
  EXPECT_TRUE(Unload(two));
}

TEST_F(Forms, Keys_That_Nobody_Takes_Do_Their_Ordinary_Work) {
  struct Row {
    int code, shift;
    std::string told;
  };
  const Row rows[] = {{Key::Enter, 0, "ok click, "},
                      {Key::Tab, 0, "lost text, got ok, "},
                      {Key::Tab, Shift_Key, "lost ok, got text, "},
                      {Key::Tab, Shift_Key, "lost text, got cancel, "},
                      {Key::Enter, 0, "cancel click, "},  // the button that has the focus
                      {'O', Alt_Key, "lost cancel, got ok, ok click, "},
                      {'N', Alt_Key, "lost ok, got text, "},  // a label's key goes to what follows it
                      {Key::Escape, 0, "cancel click, "}};
  for (const Row& row : rows) {
    EXPECT_TRUE(desktop.Key(row.code, row.shift));
    EXPECT_EQ(Story(), row.told);
  }
  EXPECT_FALSE(desktop.Key('N', 0, 'n')) << "a text field must see it";
}

TEST_F(Forms, Handlers_See_A_Key_From_The_Form_Inwards_And_Can_Take_It) {
  one.key_preview = true;
  one.on_key_down = [](Key_Event& key) {
    story += "form, ";
    if (key.code == Key::Up) key.code = 0;
  };
  one.text.on_key_down = [](Key_Event&) { story += "control, "; };
  one.text.on_key_press = [](int& character) {
    story += "press, ";
    character = 0;
  };
  EXPECT_TRUE(desktop.Key(Key::Up));
  EXPECT_TRUE(desktop.Key('X', 0, 'x'));
  EXPECT_EQ(Story(), "form, form, control, press, ");
}

TEST_F(Forms, Shortcuts_Act_Only_While_Their_Whole_Branch_Can_Be_Chosen) {
  desktop.Key('C', Ctrl_Key);
  frame.file.enabled = false;
  EXPECT_FALSE(desktop.Key('C', Ctrl_Key)) << "left to the text field";
  frame.file.enabled = true;
  frame.close.visible = false;
  desktop.Key('C', Ctrl_Key);
  EXPECT_EQ(Story(), "close, ");
}

TEST_F(Forms, A_Press_Goes_Through_A_Symbol_But_Not_To_What_Is_Disabled) {
  one.symbol.left = 3;
  one.symbol.mouse_through = true;
  one.button.on_click = Told("click");
  one.button.on_mouse_down = [](const Mouse_Event& event) {
    story += "down " + std::to_string(static_cast<int>(event.x)) + ", ";
  };
  desktop.Click(one.symbol, Right_Button);
  desktop.Double_Click(one.symbol);
  EXPECT_EQ(Story(), "down 7, down 7, click, down 7, ") << "the second press counts, if it is not handled";
  one.button.enabled = false;
  desktop.Press(one.symbol);
  EXPECT_EQ(Story(), "");
  one.enabled = false;
  desktop.Press(one.symbol);
  EXPECT_EQ(Story(), "frame click, ");
}

}  // namespace
