#include "platform/timer.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/runtime_error.h"
#include "support/scripted_desktop.h"

namespace {

struct Timers : testing::Test {
  Scripted_Desktop desktop;
  Form form{Form_Role::Child, "Window"};
  Timer timer{form, "Timer", 100};
  std::vector<std::int64_t> ticks_ms;

  void SetUp() override {
    timer.on_tick = [this] { ticks_ms.push_back(desktop.Now_us() / 1000); };
  }
};

using Ticks = std::vector<std::int64_t>;

TEST_F(Timers, A_Timer_Keeps_To_Its_Schedule_And_Enabling_It_Again_Changes_Nothing) {
  timer.enabled = true;
  desktop.Advance_ms(150);
  timer.enabled = true;
  desktop.Advance_ms(150);
  EXPECT_EQ(ticks_ms, (Ticks{100, 200, 300}));
}

TEST_F(Timers, Off_And_On_Starts_The_Interval_Anew) {
  timer.enabled = true;
  desktop.Advance_ms(90);
  timer.enabled = false;
  timer.enabled = true;
  desktop.Advance_ms(99);
  EXPECT_EQ(ticks_ms, Ticks{});
  desktop.Advance_ms(1);
  EXPECT_EQ(ticks_ms, Ticks{190});
}

TEST_F(Timers, A_New_Interval_Counts_From_The_Last_Tick_And_Zero_Never_Ticks) {
  timer.enabled = true;
  desktop.Advance_ms(140);
  timer.interval_ms = 250;
  desktop.Advance_ms(210);
  EXPECT_EQ(ticks_ms, (Ticks{100, 350}));
  timer.interval_ms = 0;
  desktop.Advance_ms(10000);
  EXPECT_EQ(ticks_ms.size(), 2U);
  timer.interval_ms = 50;
  desktop.Advance_ms(50);
  EXPECT_EQ(ticks_ms.back(), 10400);
}

TEST_F(Timers, Missed_Ticks_Are_Not_Made_Up_For_And_Do_Not_Push_The_Next) {
  timer.enabled = true;
  {
    const Timers_Suspended box_is_open;
    desktop.Advance_ms(350);
    EXPECT_EQ(ticks_ms, Ticks{});
  }
  desktop.Advance_ms(100);
  EXPECT_EQ(ticks_ms, (Ticks{350, 400}));
}

TEST_F(Timers, A_Timer_Does_Not_Tick_Inside_Itself_But_Others_Do) {
  Timer other{form, "Other", 10};
  int others = 0;
  int depth = 0;
  int deepest = 0;
  other.on_tick = [&] { ++others; };
  timer.on_tick = [&] {
    deepest = std::max(deepest, ++depth);
    desktop.Advance_ms(100);
    Do_Events();
    --depth;
  };
  timer.enabled = true;
  desktop.Advance_ms(95);
  other.enabled = true;
  desktop.Advance_ms(5);
  EXPECT_EQ(deepest, 1);
  EXPECT_GE(others, 9);
}

TEST_F(Timers, A_Tick_That_Fails_Is_Told_And_The_Timer_Goes_On) {
  timer.on_tick = [this] {
    ticks_ms.push_back(0);
    throw Runtime_Error(Error_Overflow);
  };
  timer.enabled = true;
  desktop.Expect_Box(Answer::Ok, "Error 6: Overflow");
  desktop.Expect_Box(Answer::Ok, "Error 6: Overflow");
  desktop.Advance_ms(200);
  EXPECT_EQ(ticks_ms.size(), 2U);
}

}  // namespace
