#include "platform/timer.h"

#include "platform/runtime_error.h"
#include "support/scripted_desktop.h"

struct Timers : testing::Test {
  Timers() {
    timer.on_tick = [this] { ticks += std::to_string(desktop.Now_us() / 1000) + " "; };
    timer.enabled = true;
  }
  Scripted_Desktop desktop;
  Form form{Form_Role::Child, "Window"};
  Timer timer{form, "Timer", 100};
  std::string ticks;  // their times in ms
};

TEST_F(Timers, A_Timer_Keeps_To_Its_Schedule_Until_It_Is_Off) {
  desktop.Advance_ms(290);
  timer.enabled = false;
  timer.enabled = true;
  desktop.Advance_ms(140);
  timer.interval_ms = 250;
  desktop.Advance_ms(210);
  EXPECT_EQ(ticks, "100 200 390 640 ") << "a new interval counts from the last tick";
  timer.interval_ms = 0;
  desktop.Advance_ms(10000);
  EXPECT_EQ(ticks, "100 200 390 640 ");
}

TEST_F(Timers, Missed_Ticks_Are_Not_Made_Up_For_And_Do_Not_Push_The_Next) {
  {
    const Timers_Suspended box_is_open;
    desktop.Advance_ms(350);
  }
  desktop.Advance_ms(100);
  EXPECT_EQ(ticks, "350 400 ");
}

TEST_F(Timers, A_Timer_Does_Not_Tick_Inside_Itself_And_A_Failure_Is_Told) {
  timer.on_tick = [this] {
    ticks += "begin ";
    desktop.Advance_ms(100);
    ticks += "end ";
    throw Runtime_Error(Error_Overflow);
  };
  desktop.Expect_Box(Answer::Ok, "Error 6: Overflow");
  desktop.Advance_ms(100);
  EXPECT_EQ(ticks, "begin end ");
}
