// Windows: how they load, change and go, and what the user's keys and mouse do in them.
#include "platform/form.h"

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
};

struct Forms : testing::Test {
  Forms() {
    Show(frame);
    Show(one);
    story.clear();
  }
  Scripted_Desktop desktop;
  Frame_Window frame;
  Dialog one{"one"};
  Dialog two{"two"};
};

TEST_F(Forms, Windows_Load_Change_And_Go_In_Order_And_Back_To_Their_Design) {
  two.text.left = 7;
  two.on_unload = [&] {
    story += "two unload, ";
    User_Clicked(two.ok);  // what it lets run does not reach it any more
  };
  Set_Focus(one.ok);
  Show(two);
  Show(one);
  EXPECT_EQ(
      Story(),
      "lost text, got ok, two load, lost ok, two activate, got text, lost text, one activate, got ok, ");
  two.text.left = 99;
  two.refuses = true;
  EXPECT_FALSE(Unload(frame));
  EXPECT_EQ(Story(), "frame query, one query, two query, ") << "everybody before anything closes";
  two.refuses = false;
  EXPECT_TRUE(Unload(two));
  EXPECT_EQ(Story(), "two query, two unload, ");
  EXPECT_EQ(two.text.left(), 7);
  EXPECT_TRUE(Unload(frame));
  EXPECT_EQ(Story(), "frame query, one query, lost ok, one unload, frame unload, ");
  EXPECT_TRUE(desktop.quit);
}

TEST_F(Forms, A_Frame_That_Is_Closed_Again_By_What_Its_Query_Lets_Run_Goes_Once) {
  frame.on_query_unload = [this, inner = false](bool&) mutable {
    if (!std::exchange(inner, true)) Unload(frame);
  };
  EXPECT_TRUE(Unload(frame));
  EXPECT_EQ(Story(), "one query, lost text, one unload, frame unload, ");
}

TEST_F(Forms, Keys_That_Nobody_Takes_Do_Their_Ordinary_Work) {
  // Alt+N goes past the label.
  const std::tuple<int, int, const char*> keys[] = {{Key::Enter, 0, "ok click, "},
                                                    {Key::Tab, 0, "lost text, got ok, "},
                                                    {Key::Tab, Shift_Key, "lost ok, got text, "},
                                                    {'O', Alt_Key, "lost text, got ok, ok click, "},
                                                    {'N', Alt_Key, "lost ok, got text, "},
                                                    {Key::Escape, 0, "cancel click, "},
                                                    {'C', Ctrl_Key, "close, "}};
  for (const auto& [code, shift, told] : keys) {
    EXPECT_TRUE(desktop.Key(code, shift));
    EXPECT_EQ(Story(), told);
  }
  EXPECT_FALSE(desktop.Key('N', 0, 'n')) << "a text field must see it";
  frame.file.enabled = false;
  EXPECT_FALSE(desktop.Key('C', Ctrl_Key)) << "what the branch cannot choose is left to the text field";
}

TEST_F(Forms, Keys_Change_And_Close_The_Windows_That_Are_Not_Locked) {
  Dialog locked{"locked"};
  Show(locked);
  Show(two);
  locked.enabled = false;
  const std::tuple<int, int, Form*> keys[] = {
      {Key::Tab, Ctrl_Key, &one}, {Key::Tab, Ctrl_Key, &two}, {Key::Tab, Ctrl_Key | Shift_Key, &one},
      {Key::F6, Ctrl_Key, &two},  {Key::F4, Ctrl_Key, &one},  {Key::F6, Ctrl_Key, &one}};
  for (const auto& [code, shift, active] : keys) {
    EXPECT_TRUE(desktop.Key(code, shift));
    EXPECT_EQ(Active_Form(), active);
  }
  EXPECT_FALSE(two.Loaded());
  one.border = Border::None;
  EXPECT_FALSE(desktop.Key(Key::F4, Ctrl_Key)) << "a window without a title bar has no close box either";
  EXPECT_TRUE(one.Loaded());
}

}  // namespace
