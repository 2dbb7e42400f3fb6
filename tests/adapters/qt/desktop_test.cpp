// The order of events, message boxes, child windows and pictures.
#include <QFocusFrame>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <thread>

#include "desk.h"
#include "platform/runtime_error.h"

namespace {

TEST(Start, Where_The_Toolkit_Gives_Up_The_Program_Ends_With_A_Word_Of_Its_Own) {
  EXPECT_EXIT((Prepare_Toolkit(), qFatal("no platform")), testing::ExitedWithCode(1), "MELVOR: no display");
}

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
    At_Box([&](QWidget& widget) {
      auto& box = dynamic_cast<QMessageBox&>(widget);
      EXPECT_EQ(box.text(), QStringLiteral("<b>one</b>\ntwo\n\nthree"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      box.button(row.pressed)->click();
    });
    EXPECT_EQ(Message_Box("<b>one</b>\rtwo\r\n\nthree", row.style), row.answer) << row.style;
    At_Box([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Message_Box("?", row.style), row.escaped) << row.style;
  }
}

TEST_F(Desk, The_User_Moves_And_Closes_By_The_Title_Bar) {
  panel.on_query_unload = [&](bool& cancel) {
    Note("query");
    cancel = log.size() < 2;
  };
  Show_Windows();
  QWidget& title = *Widget("PANEL").parentWidget();
  Press(title, {100, 8});
  Move(*title.window(), title.mapTo(title.window(), QPoint(110, 15)));
  Release(title, {100, 8});
  EXPECT_EQ(std::pair(panel.left(), panel.top()), std::pair(40 * 15, 27 * 15));
  title.close();
  EXPECT_TRUE(panel.Loaded() && title.isVisible());
  title.close();
  EXPECT_EQ(log, (Texts{"query", "query"}));
  EXPECT_FALSE(panel.Loaded());
}

TEST_F(Desk, A_Bar_With_The_Largest_On_Top_Leaves_Its_Ends_By_Its_Arrows_And_Finds_Them_By_Keys) {
  Scroll_Bar bar(panel, "Bar");
  bar.Place(0, 0, 16, 150);
  bar.orientation = Orientation::Vertical;
  bar.largest_on_top = true;
  bar.maximum = 99;
  bar.tab_index = 3;
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
  Set_Focus(bar);
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) Type(key);
  EXPECT_EQ(log, (Texts{"1", "98", "99", "0"}));
}

TEST_F(Desk, A_Frame_Marks_The_Focus_Where_Nothing_Blinks) {
  const auto frames = [] {
    QList<QFocusFrame*> shown = Desk::Widget("PANEL").findChildren<QFocusFrame*>();
    shown.removeIf([](const QFocusFrame* frame) { return frame->isHidden(); });
    return shown;
  };
  knob.blinks = true;
  Show_Windows();
  Set_Focus(knob);
  EXPECT_TRUE(frames().isEmpty());
  Set_Focus(lever);
  ASSERT_EQ(frames().size(), 1);
  EXPECT_TRUE(frames()[0]->geometry().contains(Widget("Lever").geometry()));
}

TEST_F(Desk, No_Line_Falls_Between_The_Pixels_Of_A_Scaled_Screen) {
  constexpr int count = 8;
  std::vector<std::unique_ptr<Line>> lines;
  for (int place = 0; place < count; ++place) {
    lines.push_back(std::make_unique<Line>(panel, "Line"));
    lines.back()->Set(10 + 7 * place, 10, 10 + 7 * place, 30);
    lines.back()->color = {0, 255, 0};
  }
  Show_Windows();
  QWidget& body = Widget("PANEL");
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    QImage seen(body.size() * ratio, QImage::Format_RGB32);
    seen.setDevicePixelRatio(ratio);
    body.render(&seen);
    int seen_lines = 0;
    const auto green = [&](int x) {
      return seen.pixelColor(x, static_cast<int>(20 * ratio)) == QColor(0, 255, 0);
    };
    for (int x = 1; x < seen.width(); ++x) seen_lines += green(x) && !green(x - 1);
    EXPECT_EQ(seen_lines, count) << ratio;
  }
}

}  // namespace
