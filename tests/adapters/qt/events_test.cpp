#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <thread>

#include "desk.h"
#include "platform/runtime_error.h"

namespace {

TEST_F(Desk, Input_Waits_In_Order_While_A_Handler_Lets_Only_Timers_Run) {
  knob.on_mouse_down = [&](const Mouse_Event&) { Note("press"); };
  knob.on_key_down = [&](Key_Event& key) { Note("key " + std::to_string(key.code)); };
  lever.on_mouse_down = [&](const Mouse_Event&) { Note("lever"); };
  Timer timer(panel, "Timer", 1);
  timer.on_tick = [&] {
    timer.enabled = false;
    QTest::mouseClick(&Widget("Knob"), Qt::LeftButton);
    QTest::keyClick(&Widget("Knob"), Qt::Key_Up);
    QTest::mouseClick(&Widget("Lever"), Qt::LeftButton);
    Note("tick");
  };
  Show_Windows();
  timer.enabled = true;
  while (log.empty()) desktop.Run_Events(Event_Set::Without_Input);
  desktop.Run_Events(Event_Set::Without_Input);
  EXPECT_EQ(log, std::vector<std::string>{"tick"});
  desktop.Run_Events(Event_Set::All);
  EXPECT_EQ(log, (std::vector<std::string>{"tick", "press", "key 38", "lever"}));
}

TEST_F(Desk, Posts_Come_From_Any_Thread_In_Order_One_Event_Each) {
  Show_Windows();
  std::thread other([&] {
    desktop.Post([&] {
      Note("first");
      throw Runtime_Error(Error_Overflow);
    });
    desktop.Post([&] { Note("second"); });
  });
  other.join();
  At_Box([&](QWidget& box) {
    Note(dynamic_cast<QMessageBox&>(box).text().toStdString());
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Await([&] { return log.size() == 3; });
  EXPECT_EQ(log, (std::vector<std::string>{"first", "Error 6: Overflow", "second"}));
}

TEST_F(Desk, While_A_Box_Is_Open_Nothing_Of_The_Program_Runs) {
  Timer timer(panel, "Timer", 1, true);
  int ticks = 0;
  timer.on_tick = [&] { ++ticks; };
  Show_Windows();
  Await([&] { return ticks > 0; });
  int turns = 0;
  int ticks_before = 0;
  QTimer pulse;  // the toolkit's own time goes on
  QObject::connect(&pulse, &QTimer::timeout, &pulse, [&] {
    if (++turns == 10) QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  At_Box([&](QWidget&) {
    ticks_before = ticks;
    desktop.Post([&] { Note("post"); });
    pulse.start(1);
  });
  EXPECT_EQ(Message_Box("Busy"), Answer::Ok);
  pulse.stop();
  EXPECT_EQ(ticks, ticks_before);
  EXPECT_TRUE(log.empty());
  Await([&] { return !log.empty() && ticks > ticks_before; });
}

TEST_F(Desk, Boxes_Answer_And_Escape_By_Their_Style) {
  struct Row {
    int style;
    QMessageBox::StandardButton pressed;
    Answer answer, escaped;
    QMessageBox::Icon icon;
  };
  const Row rows[] = {
      {Box_Ok, QMessageBox::Ok, Answer::Ok, Answer::Ok, QMessageBox::NoIcon},
      {Box_Yes_No_Cancel | Box_Question, QMessageBox::No, Answer::No, Answer::Cancel, QMessageBox::Question},
      {Box_Yes_No | Box_Stop, QMessageBox::Yes, Answer::Yes, Answer::No, QMessageBox::Critical},
      {Box_Retry_Cancel | Box_Exclamation, QMessageBox::Retry, Answer::Retry, Answer::Cancel,
       QMessageBox::Warning},
  };
  Show_Windows();
  for (const Row& row : rows) {
    At_Box([&](QWidget& widget) {
      auto& box = dynamic_cast<QMessageBox&>(widget);
      EXPECT_EQ(box.text(), QStringLiteral("<b>one</b>\ntwo\n\nthree"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), row.icon);
      box.button(row.pressed)->click();
    });
    EXPECT_EQ(Message_Box("<b>one</b>\rtwo\r\n\nthree", row.style), row.answer) << row.style;
    At_Box([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Message_Box("?", row.style), row.escaped) << row.style;
  }
}

TEST_F(Desk, Quit_Ends_An_Open_Box_And_Every_Wait) {
  Show_Windows();
  At_Box([&](QWidget&) { desktop.Quit(); });
  EXPECT_EQ(Message_Box("Save?", Box_Yes_No), Answer::No);
  desktop.Wait_Events();  // returns: nothing will come any more
  EXPECT_EQ(Message_Box("Save?", Box_Yes_No_Cancel), Answer::Cancel);
  EXPECT_EQ(desktop.Run(), 0);
}

TEST_F(Desk, A_View_Is_Brought_Up_To_Date_Once_At_The_End_Of_The_Event) {
  struct Moves : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Move ? 1 : 0;
      return false;
    }
    int count = 0;
  };
  knob.on_mouse_down = [&](const Mouse_Event&) {
    for (int left = 0; left < 10; ++left) knob.left = left;
    knob.visible = false;
    knob.visible = true;
    Note(std::to_string(Widget("Knob").x()));
  };
  Show_Windows();
  Moves moves;
  Widget("Knob").installEventFilter(&moves);
  Press(Widget("Knob"), {2, 2});
  EXPECT_EQ(log, std::vector<std::string>{"100"});
  EXPECT_EQ(Widget("Knob").x(), 9);
  EXPECT_EQ(moves.count, 1);
}

TEST_F(Desk, What_The_Program_Sets_Comes_Back_As_No_Users_Action) {
  Scroll_Bar bar(panel, "Bar");
  bar.Place(0, 0, 16, 150);
  bar.orientation = Orientation::Vertical;
  bar.largest_on_top = true;
  bar.tab_index = 2;
  bar.on_change = [&] {
    Note("bar " + std::to_string(bar.value()));
    if (bar.value() > 50) bar.value = 50;  // the program has the last word
  };
  List_Box list(panel, "List");
  list.Place(20, 60, 60, 100);
  list.tab_index = 3;
  list.on_click = [&] { Note("list " + std::to_string(list.index())); };
  Text_Box text(panel, "Text");
  text.Place(20, 0, 60, 20);
  text.on_change = [&] { Note("text"); };
  Show_Windows();
  bar.value = 50;
  text.text = std::string("set");
  for (const char* item : {"one", "two", "three"}) list.Add_Item(item);
  list.index = 1;
  desktop.Run_Events(Event_Set::All);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(Widget_Of<QLineEdit>("Text").text(), "set");
  Set_Focus(bar);
  Type(Qt::Key_Up);
  EXPECT_EQ(Widget_Of<QScrollBar>("Bar").value(), 50);
  Type(Qt::Key_Down);
  Set_Focus(list);
  Type(Qt::Key_Down);
  EXPECT_EQ(log, (std::vector<std::string>{"bar 51", "bar 49", "list 2"}));
}

TEST_F(Desk, A_Bar_With_The_Largest_On_Top_Leaves_Its_Ends_By_Its_Arrows) {
  Scroll_Bar bar(panel, "Bar");
  bar.Place(0, 0, 16, 150);
  bar.orientation = Orientation::Vertical;
  bar.largest_on_top = true;
  bar.maximum = 99;
  bar.on_change = [&] { Note(std::to_string(bar.value())); };
  Show_Windows();
  QWidget& widget = Widget("Bar");
  const QPoint upper(8, 4), lower(8, widget.height() - 4);
  for (const auto& [start, place] : {std::pair(0, upper), std::pair(99, lower), std::pair(0, lower)}) {
    bar.value = start;
    desktop.Run_Events(Event_Set::All);
    Press(widget, place);
    Release(widget, place);
  }
  EXPECT_EQ(log, (std::vector<std::string>{"1", "98"}));
}

}  // namespace
