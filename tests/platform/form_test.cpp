#include "platform/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/runtime_error.h"
#include "platform/timer.h"
#include "support/scripted_desktop.h"

namespace {

std::vector<std::string> story;

void Tell(const std::string& event) { story.push_back(event); }

struct Window : Form {
  Window(Form_Role form_role, std::string_view form_name) : Form(form_role, form_name) {
    const std::string id(form_name);
    on_load = [id] { Tell(id + " load"); };
    on_unload = [id] { Tell(id + " unload"); };
    on_query_unload = [this, id](bool& cancel) {
      Tell(id + " query");
      cancel = refuses;
    };
    on_activate = [id] { Tell(id + " activate"); };
    on_deactivate = [id] { Tell(id + " deactivate"); };
    int tab = 0;
    for (Picture_Box* control : {&first, &second}) {
      const std::string control_id = id + "." + std::string(control->name);
      control->tab_index = tab++;
      control->on_got_focus = [control_id] { Tell(control_id + " got"); };
      control->on_lost_focus = [control_id] { Tell(control_id + " lost"); };
    }
  }

  bool refuses = false;
  Picture_Box first{*this, "first"};
  Picture_Box second{*this, "second"};
  Timer timer{*this, "timer", 10};
};

struct Forms : testing::Test {
  Scripted_Desktop desktop;
  Window frame{Form_Role::Frame, "frame"};
  Window one{Form_Role::Child, "one"};
  Window two{Form_Role::Child, "two"};

  void SetUp() override {
    Show(frame);
    story.clear();
  }

  static std::vector<std::string> Story() { return std::exchange(story, {}); }
};

using Lines = std::vector<std::string>;

TEST_F(Forms, Showing_Loads_Once_And_Changes_The_Window_In_Order) {
  Show(one);
  EXPECT_EQ(Story(), (Lines{"one load", "one activate", "one.first got"}));
  Set_Focus(one.second);
  EXPECT_EQ(Story(), (Lines{"one.first lost", "one.second got"}));
  Show(two);
  EXPECT_EQ(Story(),
            (Lines{"two load", "one.second lost", "one deactivate", "two activate", "two.first got"}));
  Show(one);
  EXPECT_EQ(Story(), (Lines{"two.first lost", "two deactivate", "one activate", "one.second got"}));
  EXPECT_EQ(Open_Windows(), 3);
}

TEST_F(Forms, Unloading_Asks_Then_Puts_Everything_Back_To_Its_Design) {
  Show(two);
  one.first.left = 7;
  Show(one);
  one.first.left = 99;
  one.first.enabled = false;
  one.timer.enabled = true;
  one.timer.interval_ms = 500;
  Story();
  one.refuses = true;
  EXPECT_FALSE(Unload(one));
  EXPECT_TRUE(one.Loaded());
  EXPECT_EQ(Story(), Lines{"one query"});
  one.refuses = false;
  EXPECT_TRUE(Unload(one));
  EXPECT_EQ(Story(), (Lines{"one query", "one.first lost", "one deactivate", "one unload", "two activate",
                            "two.first got"}));
  EXPECT_EQ(one.first.left(), 7);
  EXPECT_TRUE(one.first.enabled());
  EXPECT_FALSE(one.timer.enabled());
  EXPECT_EQ(one.timer.interval_ms(), 10);
  EXPECT_TRUE(Unload(one));
  EXPECT_EQ(Story(), Lines{});
}

TEST_F(Forms, A_Timer_That_Runs_From_The_Start_Runs_From_Each_Load) {
  Form clocked(Form_Role::Child, "clocked");
  Timer timer(clocked, "timer", 10, true);
  int ticks = 0;
  timer.on_tick = [&] { ++ticks; };
  for (const int wanted : {2, 4}) {
    Show(clocked);
    desktop.Advance_ms(20);
    Unload(clocked);
    desktop.Advance_ms(20);
    EXPECT_EQ(ticks, wanted);
  }
}

TEST_F(Forms, Closing_The_Frame_Asks_Everybody_Before_Anything_Closes) {
  Show(one);
  Show(two);
  Window prompt{Form_Role::Independent, "prompt"};
  Show(prompt);
  Story();
  one.refuses = true;
  EXPECT_FALSE(Unload(frame));
  EXPECT_EQ(Story(), (Lines{"frame query", "one query"}));
  EXPECT_TRUE(two.Loaded());
  one.refuses = false;
  EXPECT_TRUE(Unload(frame));
  const Lines told = Story();
  const Lines queries(told.begin(), told.begin() + 3);
  EXPECT_EQ(queries, (Lines{"frame query", "one query", "two query"}));
  EXPECT_EQ(told.back(), "frame unload");
  EXPECT_TRUE(desktop.quit);
  EXPECT_EQ(Open_Windows(), 0);
}

TEST_F(Forms, A_Window_Whose_Load_Fails_Is_Shown_So_That_It_Can_Be_Closed) {
  one.on_load = [] { throw Runtime_Error(Error_Bad_Property_Value); };
  EXPECT_THROW(Show(one), Runtime_Error);
  EXPECT_TRUE(one.visible());
  EXPECT_TRUE(Unload(one));
}

TEST_F(Forms, Disabled_And_Hidden_Things_Take_No_Focus) {
  Show(one);
  Story();
  Show(two);
  one.enabled = false;
  Story();
  Set_Focus(one.second);
  EXPECT_EQ(Story(), Lines{});
  two.second.visible = false;
  Set_Focus(two.second);
  EXPECT_EQ(Story(), Lines{});
  EXPECT_EQ(&Next_In_Tab_Order(two.first, false), &two.first);
}

TEST_F(Forms, A_Change_Is_Told_Once_Until_It_Is_Shown) {
  Show(one);
  desktop.Take_Changes();
  one.first.left = 5;
  one.first.top = 6;
  one.second.left = 0;
  EXPECT_EQ(desktop.changed, std::set<Component*>{&one.first});
}

}  // namespace
