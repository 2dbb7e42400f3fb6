// The order of events, and message boxes.
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <thread>

#include "desk.h"
#include "platform/runtime_error.h"

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

TEST_F(Desk, A_Window_Beyond_The_Edges_Comes_Into_Sight) {
  for (const int left_px : {900, -900}) {
    panel.left = left_px * 15;
    frame.left = 9000 * 15;
    Show_Windows();
    QWidget& body = Widget("Knob");
    const QWidget& window = *body.window();
    const QPoint seen = body.mapTo(&window, QPoint());
    EXPECT_TRUE(window.rect().contains(seen)) << seen.x();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(window.pos()));
    Unload(panel);
  }
}

TEST_F(Desk, Title_Bars_Are_Dark_And_A_Text_Field_Has_One_Focus_Frame) {
  constexpr QPoint in_bar(60, 4);
  constexpr QPoint on_edge(0, 10);
  Form other{Form_Role::Child, "OTHER"};
  for (auto* side : {&other.left, &other.width, &other.height}) *side = 100 * 15;
  Show_Windows();
  QWidget& window = *Widget("PANEL").parentWidget();
  const QColor active = window.grab().toImage().pixelColor(in_bar);
  const QColor at_rest = Widget("Text").grab().toImage().pixelColor(on_edge);
  Press(Widget("Text"), {20, 10});
  Await([&] { return Widget("Text").hasFocus(); });
  EXPECT_EQ(Widget("Text").grab().toImage().pixelColor(on_edge), at_rest);
  Show(other);
  const QColor inactive = window.grab().toImage().pixelColor(in_bar);
  EXPECT_LT(active.lightness(), 96);
  EXPECT_LT(inactive.lightness(), 96);
  EXPECT_NE(active, inactive);
  Unload(other);
}

TEST_F(Desk, The_Display_Shows_All_Segments_For_What_Its_Font_Lacks_And_Nothing_Shifts) {
  ASSERT_TRUE(desktop.Add_Font(QT_TEST_FONT));
  text.Place(10, 100, 121, 18);
  text.read_only = true;
  text.own_colors = true;
  text.font_face = std::string("MELVOR");
  text.fore_color = White;
  text.back_color = Black;
  Show_Windows();
  QWidget& display = Widget("Text");
  const auto look = [&](std::string_view shown) {
    text.Set_Text(shown);
    desktop.Run_Events(Event_Set::All);
    return display.grab().toImage();
  };
  const QImage unknown = look("A\xEF\xBF\xBDZ");
  for (const char* name : {"A\xC3\xA9Z", "A\xC2\xADZ", "A\xF0\x9F\x98\x80Z", "A\x01Z", "A\xCC\x81Z"}) {
    EXPECT_EQ(look(name), unknown) << name;
  }
  for (const char* name : {"A8Z", "A*Z", "AMZ", "AXZ", "AIZ"}) {
    const QImage known = look(name);
    for (int y = 0; y < known.height(); ++y) {
      for (int x = 0; x < known.width(); ++x) {
        ASSERT_GE(qGray(unknown.pixel(x, y)), qGray(known.pixel(x, y))) << name << " " << x << " " << y;
      }
    }
  }
}

TEST_F(Desk, Boxes_Answer_And_Escape_By_Their_Style) {
  Show_Windows();
  for (const auto& [style, pressed, answer, escaped] :
       {std::tuple{Box_Ok, QMessageBox::Ok, Answer::Ok, Answer::Ok},
        {Box_Yes_No_Cancel | Box_Question, QMessageBox::No, Answer::No, Answer::Cancel},
        {Box_Yes_No | Box_Question, QMessageBox::No, Answer::No, Answer::Yes},
        {Box_Retry_Cancel, QMessageBox::Retry, Answer::Retry, Answer::Cancel}}) {
    At_Box([pressed = pressed](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(pressed)->click(); });
    EXPECT_EQ(Message_Box("?", style), answer) << style;
    At_Box([](QWidget& box) {
      QTest::keyClick(&box, Qt::Key_Escape);
      if (box.isVisible() && !box.close()) QTest::keyClick(&box, Qt::Key_Return);  // Yes or No must be said
    });
    EXPECT_EQ(Message_Box("?", style), escaped) << style;
  }
  for (const auto& [style, answer] : {std::pair{Box_Yes_No_Cancel, Answer::Cancel},
                                      {Box_Yes_No, Answer::No},
                                      {Box_Retry_Cancel, Answer::Retry}}) {
    At_Box([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(Message_Box("Overwrite?", style + Box_Stop), answer) << style;
  }
}
