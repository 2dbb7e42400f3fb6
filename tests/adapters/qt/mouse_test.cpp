#include <QMouseEvent>
#include <QPushButton>

#include "adapters/qt/mouse_input.h"
#include "desk.h"

namespace {

TEST_F(Desk, A_Press_Catches_The_Mouse_In_The_Pixels_Of_Its_Control) {
  std::vector<Mouse_Event> seen;
  const auto record = [&](const Mouse_Event& event) { seen.push_back(event); };
  knob.on_mouse_down = knob.on_mouse_move = knob.on_mouse_up = record;
  lever.on_mouse_move = [&](const Mouse_Event&) { ADD_FAILURE() << "the lever was not pressed"; };
  knob.on_click = [&] { ADD_FAILURE() << "released outside"; };
  Show_Windows();
  QWidget& widget = Widget("Knob");
  Move(widget, {3, 4});
  seen.clear();
  Press(widget, {3, 4});
  Press(widget, {3, 4}, Qt::RightButton);
  Move(widget, {55, -20});
  Await([&] { return seen.size() == 3; });
  Release(widget, {55, -20}, Qt::RightButton);
  Release(widget, {55, -20});
  Move(widget, {3, 5});  // no handler waits for it: a move without a button is told too
  ASSERT_EQ(seen.size(), 6u);
  const int buttons[] = {Left_Button, Right_Button, Left_Button + Right_Button, Right_Button, Left_Button, 0};
  for (std::size_t place = 0; place < seen.size(); ++place)
    EXPECT_EQ(seen[place].button, buttons[place]) << place;
  EXPECT_FLOAT_EQ(seen[0].x, 3);
  EXPECT_FLOAT_EQ(seen[2].x, 55);
  EXPECT_FLOAT_EQ(seen[2].y, -20);
}

TEST_F(Desk, A_Control_That_Moves_Away_Under_A_Resting_Pointer_Is_Driven_To_It) {
  knob.on_mouse_move = [&](const Mouse_Event& event) {
    if (event.button != 0) knob.top = knob.top() + static_cast<int>(event.y / 2);
  };
  Show_Windows();
  QWidget& widget = Widget("Knob");
  QWidget& ground = Widget("PANEL");
  bool rested = false;
  Timer rest(panel, "Rest", 4 * Move_Interval_ms);
  rest.on_tick = [&] {
    rest.enabled = false;
    rested = true;
  };
  for (const int pointer : {20, 150}) {
    Press(widget, {8, 8});
    Move(ground, {108, pointer + 1});
    Move(ground, {108, pointer});
    Await([&] { return std::abs(knob.top() - pointer) <= 1; });
    Move(ground, {108, 90});
    Release(ground, {108, 90});
    const int released = knob.top();
    rested = false;
    rest.enabled = true;
    Await([&] { return rested; });
    EXPECT_EQ(knob.top(), released) << "it stops on its way";
  }
}

TEST_F(Desk, Held_Moves_Come_At_A_Bounded_Rate_And_The_Last_One_Always) {
  int told = 0;
  float last_x = 0;
  knob.on_mouse_move = [&](const Mouse_Event& event) {
    ++told;
    last_x = event.x;
  };
  Show_Windows();
  QWidget& widget = Widget("Knob");
  Press(widget, {0, 0});
  QElapsedTimer timer;
  timer.start();
  for (int x = 1; x <= 100; ++x) Move(widget, {x, 0});
  Await([&] { return last_x == 100; });
  EXPECT_LE(told, timer.elapsed() / 5 + 2);

  Move(widget, {150, 0});
  Release(widget, {150, 0});
  EXPECT_FLOAT_EQ(last_x, 150) << "a held-back move comes before the release";
}

TEST_F(Desk, A_Double_Click_Goes_To_Its_Handler_Else_Counts_As_A_Press) {
  knob.on_double_click = [&] { Note("double"); };
  for (Picture_Box* box : {&knob, &lever}) {
    box->on_mouse_down = [&](const Mouse_Event&) { Note("down"); };
    box->on_click = [&] { Note("click"); };
  }
  Show_Windows();
  for (const char* name : {"Knob", "Lever"}) {
    log.clear();
    Double_Click(Widget(name));
    const bool handled = std::string_view(name) == "Knob";
    const std::vector<std::string> want = handled
                                              ? std::vector<std::string>{"down", "click", "double"}
                                              : std::vector<std::string>{"down", "click", "down", "click"};
    EXPECT_EQ(log, want) << name;
  }
}

TEST_F(Desk, A_Press_In_A_Disabled_Form_Is_A_Click_On_The_Frame) {
  frame.on_click = [&] { Note("frame"); };
  Command_Button button(panel, "Button");
  button.Place(10, 10, 60, 24);
  button.tab_index = 2;
  Text_Box text(panel, "Text");
  text.Place(10, 100, 80, 20);
  text.tab_index = 3;
  for (Control* control : panel.controls) {
    control->on_click = [&] { Note("control"); };
    control->on_mouse_down = [&](const Mouse_Event&) { Note("control"); };
  }
  Show_Windows();
  panel.enabled = false;
  desktop.Run_Events(Event_Set::All);
  for (const char* name : {"Knob", "Button", "Text", "PANEL"}) {
    log.clear();
    Click(Widget(name));
    EXPECT_EQ(log, std::vector<std::string>{"frame"}) << name;
  }
  EXPECT_TRUE(Widget("Button").isEnabled()) << "a locked window looks as ever";
  panel.enabled = true;
  log.clear();
  Click(Widget("Button"));
  EXPECT_EQ(log, (std::vector<std::string>{"control", "control"}));
}

TEST_F(Desk, A_Press_That_A_Button_Does_Not_Want_Is_None_On_Its_Container) {
  Command_Button button(lever, "Button");
  button.Place(0, 0, 10, 10);
  lever.on_mouse_down = [&](const Mouse_Event&) { Note("container"); };
  button.on_mouse_down = [&](const Mouse_Event& event) { Note("button " + std::to_string(event.button)); };
  Show_Windows();
  Click(Widget("Button"), {5, 5}, Qt::RightButton);
  EXPECT_EQ(log, std::vector<std::string>{"button 2"});
}

TEST_F(Desk, A_Handler_May_Close_The_Window_Of_The_Pressed_Control) {
  knob.on_mouse_down = [&](const Mouse_Event&) {
    Unload(panel);
    desktop.Run_Events(Event_Set::Without_Input);
    Note("closed");
  };
  knob.on_mouse_up = [&](const Mouse_Event&) { Note("up"); };
  Show_Windows();
  QWidget& window = *Widget("Knob").window();
  const QPoint place = Widget("Knob").mapTo(&window, QPoint(5, 5));
  Press(window, place);
  Release(window, place);
  EXPECT_EQ(log, std::vector<std::string>{"closed"});
  EXPECT_FALSE(panel.Loaded());
}

}  // namespace
