// Mouse and keys, as they reach the program.
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QToolTip>
#include <tuple>

#include "adapters/qt/keys.h"
#include "adapters/qt/mouse_input.h"
#include "desk.h"

TEST_F(Desk, A_Control_That_Moves_Away_Under_A_Resting_Pointer_Is_Driven_To_It) {
  knob.on_mouse_move = [&](const Mouse_Event& event) {
    if (event.button != 0) knob.top = knob.top() + static_cast<int>(event.y / 2);
  };
  Show_Windows();
  Press(Widget("Knob"), {8, 8});
  for (const int height : {151, 150}) Move(Widget("PANEL"), {108, height});
  Await([&] { return std::abs(knob.top() - 150) <= 1; });
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
  EXPECT_LE(told, (desktop.Now_us() - start_us) / 5000 + 2);
  Release(widget, {100, 0});
  EXPECT_FLOAT_EQ(last_x, 100) << "a held-back move comes before the release";
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
  using Modifiers = Qt::KeyboardModifiers;
  for (const auto& [key, modifiers, text, code, shift, character] :
       {std::tuple{Qt::Key_PageUp, Modifiers(), "", 33, 0, 0},
        {Qt::Key_0, {}, "0", 48, 0, '0'},
        {Qt::Key_9, Qt::KeypadModifier, "9", 105, 0, '9'},
        {Qt::Key_Plus, Qt::KeypadModifier, "+", 107, 0, '+'},
        {Qt::Key_Z, Qt::ControlModifier, "\x1a", 90, Ctrl_Key, 26},
        {Qt::Key_F, Qt::AltModifier, "f", 70, Alt_Key, 0},
        {Qt::Key_Backtab, Qt::ShiftModifier, "", 9, Shift_Key, 9},
        {Qt::Key_Enter, Qt::KeypadModifier, "\r", 13, 0, 13},
        {Qt::Key_Delete, {}, "\x7f", 46, 0, 0},
        {Qt::Key_AltGr, {}, "", 18, 0, 0},
        {Qt::Key_Super_L, {}, "", 91, 0, 0},
        {Qt::Key_Adiaeresis, {}, "ä", Other_Key, 0, 0xe4}}) {
    const QKeyEvent event(QEvent::KeyPress, key, modifiers, QString::fromUtf8(text));
    EXPECT_EQ(std::tuple(Key_Of(event).code, Key_Of(event).shift, Character_Of(event)),
              std::tuple(code, shift, character))
        << std::hex << key;
    EXPECT_FALSE(Key_Of(event).repeated);
  }
  EXPECT_TRUE(Key_Of(QKeyEvent(QEvent::KeyPress, Qt::Key_Space, {}, " ", true)).repeated);
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
  dynamic_cast<QLineEdit&>(Widget("Text")).setText("pasted\n");  // as an assistive program does, too
  EXPECT_EQ(text.text(), "pasted");
}

TEST_F(Desk, A_Key_That_Is_Released_And_Pressed_In_One_Moment_Is_Held) {
  knob.on_key_down = [&](const Key_Event& key) { Note(key.repeated ? "held" : "pressed"); };
  Show_Windows();
  Set_Focus(knob);
  const std::pair<QEvent::Type, int> keys[] = {{QEvent::KeyPress, 5},
                                               {QEvent::KeyRelease, 9},
                                               {QEvent::KeyPress, 9},
                                               {QEvent::KeyRelease, 12},
                                               {QEvent::KeyPress, 20}};
  for (const auto& [type, time_ms] : keys) {
    QKeyEvent event(type, Qt::Key_Space, {}, " ");
    event.setTimestamp(static_cast<quint64>(time_ms));
    QApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  EXPECT_EQ(log, (Texts{"pressed", "held", "pressed"}));
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
  text.on_change = [&] { Note("text"); };
  Show_Windows();
  bar.value = 50;
  text.text = std::string("set");
  desktop.Run_Events(Event_Set::All);
  EXPECT_TRUE(log.empty());
  Set_Focus(bar);
  Type(Qt::Key_Up);
  EXPECT_EQ(dynamic_cast<QScrollBar&>(Widget("Bar")).value(), 50);
  Type(Qt::Key_Down);
  EXPECT_EQ(log, (Texts{"bar 51", "bar 49"}));
}

TEST_F(Desk, Lists_And_Bars_Have_The_Keys_That_A_Hand_Expects) {
  Combo_Box list(panel, "List");
  list.Place(0, 0, 90, 20);
  list.tab_index = 3;
  List_Box rows(panel, "Rows");
  rows.Place(0, 150, 90, 60);
  Scroll_Bar bar(panel, "Bar");
  bar.Place(0, 40, 150, 16);
  bar.tab_index = 4;
  bar.value = 50;
  Show_Windows();
  for (const char* item : {"C", "C+", "D"}) list.Add_Item(item);
  list.Select(0);
  Set_Focus(list);
  Type(Qt::Key_D, Qt::AltModifier);
  EXPECT_EQ(list.index(), 0) << "an access key looks for no entry";
  Type(Qt::Key_D);
  EXPECT_EQ(list.index(), 2);
  for (const char* name : {"short.syx", "a name that the list has to cut.syx"}) rows.Add_Item(name);
  desktop.Run_Events(Event_Set::All);
  auto& view = dynamic_cast<QListWidget&>(Widget("Rows"));
  for (const auto& [row, tip] : {std::pair{0, false}, {1, true}}) {
    const QPoint place = view.visualItemRect(view.item(row)).center();
    QHelpEvent asked(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &asked);
    EXPECT_EQ(QToolTip::text().contains(view.item(row)->text().left(9)), tip);
  }
  Set_Focus(bar);
  for (const auto& [key, value] :
       {std::pair{Qt::Key_Right, 51}, {Qt::Key_Left, 50}, {Qt::Key_Up, 51}, {Qt::Key_Down, 50}}) {
    Type(key);
    EXPECT_EQ(bar.value(), value);
  }
}
