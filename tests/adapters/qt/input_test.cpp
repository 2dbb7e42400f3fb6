// Mouse and keys, as they reach the program.
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include "adapters/qt/keys.h"
#include "adapters/qt/mouse_input.h"
#include "desk.h"

namespace {

TEST_F(Desk, A_Control_That_Moves_Away_Under_A_Resting_Pointer_Is_Driven_To_It) {
  knob.on_mouse_move = [&](const Mouse_Event& event) {
    if (event.button != 0) knob.top = knob.top() + static_cast<int>(event.y / 2);
  };
  Timer rest(panel, "Rest", 4 * Move_Interval_ms);
  rest.on_tick = [&] { Note("rested"); };
  Show_Windows();
  QWidget& ground = Widget("PANEL");
  Press(Widget("Knob"), {8, 8});
  for (const int height : {151, 150}) Move(ground, {108, height});
  Await([&] { return std::abs(knob.top() - 150) <= 1; });
  Move(ground, {108, 90});
  Release(ground, {108, 90});
  const int released = knob.top();
  rest.enabled = true;
  Await([&] { return !log.empty(); });
  EXPECT_EQ(knob.top(), released) << "it stops on its way";
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
  const std::int64_t start_us = desktop.Now_us();
  for (int x = 1; x <= 100; ++x) Move(widget, {x, 0});
  Await([&] { return last_x == 100; });
  EXPECT_LE(told, (desktop.Now_us() - start_us) / 5000 + 2);
  Move(widget, {150, 0});
  Release(widget, {150, 0});
  EXPECT_FLOAT_EQ(last_x, 150) << "a held-back move comes before the release";
}

TEST_F(Desk, A_Press_That_A_Button_Does_Not_Want_Is_None_On_Its_Container) {
  Command_Button button(lever, "Button");
  button.Place(0, 0, 10, 10);
  lever.on_mouse_down = [&](const Mouse_Event&) { Note("container"); };
  button.on_mouse_down = [&](const Mouse_Event& event) { Note("button " + std::to_string(event.button)); };
  Show_Windows();
  Press(Widget("Button"), {5, 5}, Qt::RightButton);
  EXPECT_EQ(log, Texts{"button 2"});
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
  EXPECT_EQ(log, Texts{"closed"});
  EXPECT_FALSE(panel.Loaded());
}

TEST(Keys, Codes_Shift_States_And_Characters) {
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    int code, shift, character;
  } rows[] = {
      {Qt::Key_PageUp, {}, "", 33, 0, 0},
      {Qt::Key_Down, Qt::KeypadModifier, "", 40, 0, 0},
      {Qt::Key_0, {}, "0", 48, 0, '0'},
      {Qt::Key_9, Qt::KeypadModifier, "9", 105, 0, '9'},
      {Qt::Key_Plus, Qt::KeypadModifier, "+", 107, 0, '+'},
      {Qt::Key_Plus, Qt::ShiftModifier, "+", 187, Shift_Key, '+'},
      {Qt::Key_A, {}, "a", 65, 0, 'a'},
      {Qt::Key_Z, Qt::ControlModifier, "\x1a", 90, Ctrl_Key, 26},
      {Qt::Key_F, Qt::AltModifier, "f", 70, Alt_Key, 0},
      {Qt::Key_F12, {}, "", 123, 0, 0},
      {Qt::Key_Backtab, Qt::ShiftModifier, "", 9, Shift_Key, 9},
      {Qt::Key_Enter, Qt::KeypadModifier, "\r", 13, 0, 13},
      {Qt::Key_Escape, {}, "\x1b", 27, 0, 27},
      {Qt::Key_Backspace, {}, "\b", 8, 0, 8},
      {Qt::Key_Delete, {}, "\x7f", 46, 0, 0},
      {Qt::Key_Adiaeresis, {}, "ä", Other_Key, 0, 0xe4},
  };
  for (const auto& row : rows) {
    const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, QString::fromUtf8(row.text));
    EXPECT_EQ(Key_Of(event).code, row.code) << std::hex << row.key;
    EXPECT_EQ(Key_Of(event).shift, row.shift) << std::hex << row.key;
    EXPECT_EQ(Character_Of(event), row.character) << std::hex << row.key;
  }
}

TEST_F(Desk, A_Key_That_Is_Taken_Does_Not_Reach_The_Text_Field) {
  text.on_key_down = [](Key_Event& key) {
    if (key.code == Key::Letter_A) key.code = 0;
  };
  text.on_key_press = [](int& character) {
    if (character == 'b') character = 0;
  };
  text.on_change = [&] { Note(text.text()); };
  menu_new.on_click = [&] { Note("new"); };
  Show_Windows();
  Press(Widget("Text"), {5, 5});
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_B, Qt::Key_C}) Type(key);
  Type(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(log, (Texts{"c", "new"}));
  EXPECT_EQ(text.selection_start(), 1);
}

TEST_F(Desk, What_The_Program_Sets_Comes_Back_As_No_Users_Action) {
  Scroll_Bar bar(panel, "Bar");
  bar.Place(0, 0, 16, 150);
  bar.orientation = Orientation::Vertical;
  bar.largest_on_top = true;
  bar.tab_index = 3;
  bar.on_change = [&] {
    Note("bar " + std::to_string(bar.value()));
    if (bar.value() > 50) bar.value = 50;  // the program has the last word
  };
  List_Box list(panel, "List");
  list.Place(20, 60, 60, 100);
  list.tab_index = 4;
  list.on_click = [&] { Note("list " + std::to_string(list.index())); };
  text.on_change = [&] { Note("text"); };
  Show_Windows();
  bar.value = 50;
  text.text = std::string("set");
  for (const char* item : {"one", "two", "three"}) list.Add_Item(item);
  list.index = 1;
  desktop.Run_Events(Event_Set::All);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(dynamic_cast<QLineEdit&>(Widget("Text")).text(), "set");
  Set_Focus(bar);
  Type(Qt::Key_Up);
  EXPECT_EQ(dynamic_cast<QScrollBar&>(Widget("Bar")).value(), 50);
  Type(Qt::Key_Down);
  Set_Focus(list);
  Type(Qt::Key_Down);
  EXPECT_EQ(log, (Texts{"bar 51", "bar 49", "list 2"}));
}

}  // namespace
