// The order of events, message boxes and child windows.
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
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
  EXPECT_EQ(log, Texts{"tick"});
  desktop.Run_Events(Event_Set::All);
  EXPECT_EQ(log, (Texts{"tick", "press", "key 38", "lever"}));
}

TEST_F(Desk, Posts_Come_From_Any_Thread_In_Order_One_Event_Each) {
  Show_Windows();
  std::thread([&] {
    desktop.Post([&] {
      Note("first");
      throw Runtime_Error(Error_Overflow);
    });
    desktop.Post([&] { Note("second"); });
  }).join();
  At_Box([&](QWidget& box) {
    Note(dynamic_cast<QMessageBox&>(box).text().toStdString());
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Await([&] { return log.size() == 3; });
  EXPECT_EQ(log, (Texts{"first", "Error 6: Overflow", "second"}));
}

TEST_F(Desk, While_A_Box_Is_Open_Nothing_Of_The_Program_Runs) {
  Timer timer(panel, "Timer", 1, true);
  timer.on_tick = [&] { Note("tick"); };
  Show_Windows();
  Await([&] { return !log.empty(); });
  At_Box([&](QWidget& box) {
    log.clear();
    desktop.Post([&] { Note("post"); });
    // The toolkit's own time goes on.
    QTimer::singleShot(20, [&] { QTest::keyClick(&box, Qt::Key_Escape); });
  });
  EXPECT_EQ(Message_Box("Busy"), Answer::Ok);
  EXPECT_TRUE(log.empty());
  Await([&] { return std::ranges::count(log, "post") == 1 && std::ranges::count(log, "tick") > 0; });
}

TEST_F(Desk, Boxes_Answer_And_Escape_By_Their_Style) {
  const struct {
    int style;
    QMessageBox::StandardButton pressed;
    Answer answer, escaped;
  } rows[] = {
      {Box_Ok, QMessageBox::Ok, Answer::Ok, Answer::Ok},
      {Box_Yes_No_Cancel | Box_Question, QMessageBox::No, Answer::No, Answer::Cancel},
      {Box_Yes_No | Box_Stop, QMessageBox::Yes, Answer::Yes, Answer::No},
      {Box_Retry_Cancel, QMessageBox::Retry, Answer::Retry, Answer::Cancel},
  };
  Show_Windows();
  for (const auto& row : rows) {
    At_Box([&](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(row.pressed)->click(); });
    EXPECT_EQ(Message_Box("?", row.style), row.answer) << row.style;
    At_Box([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Message_Box("?", row.style), row.escaped) << row.style;
  }
}

TEST_F(Desk, A_Window_May_Refuse_To_Close) {
  panel.on_query_unload = [&](bool& cancel) {
    Note("query");
    cancel = log.size() < 2;
  };
  Show_Windows();
  QWidget& title = *Widget("PANEL").parentWidget();
  title.close();
  EXPECT_TRUE(panel.Loaded() && title.isVisible());
  title.close();
  EXPECT_EQ(log, (Texts{"query", "query"}));
  EXPECT_FALSE(panel.Loaded());
}

}  // namespace
