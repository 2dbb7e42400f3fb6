#include "oscillator/playback.h"

#include "oscillator/oscillator_fixture.h"

namespace {

TEST_F(Oscillator_Test, Each_Target_Gets_Its_Own_Message) {
  Texts want;
  for (const char* parameter : {"0E", "0F", "14", "15", "16", "2F", "30", "31", "32", "34", "35", "36",
                                "37", "2E", "1C", "1D", "1E", "22", "23", "24", "25", "26", "29"}) {
    want.push_back("F0 41 36 00 21 20 01 " + std::string(parameter) + " 0A F7");
  }
  want.insert(want.end(), {"F0 41 36 00 21 20 01 1D 75 F7", "F0 41 36 00 21 30 01 01 0A F7",
                           "F0 41 36 00 21 30 01 05 0A F7", "90 0A 7F"});
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  for (int line = 0; line < Oscillator.Combo1.Count(); ++line) {
    Choose_Target(line);
    Osc_Out[0].start = 117;
    Osc_Step = 0;
    Osc_Tick();
  }
  EXPECT_EQ(Sent(), want);
  EXPECT_TRUE(Tone == tone && Patch_Rec == patch && Tone_Saved == Flag_True);
}

TEST_F(Oscillator_Test, The_Sweep_Plays_Eighteen_Steps_In_A_Loop) {
  desktop.Click(Oscillator.Osc_Wave[1]);  // levels 95, 91, ... 27: values 32, 36, ... 100
  Choose_Target(17);
  desktop.Click(Oscillator.Osc_Start);
  EXPECT_EQ(Sent(), Texts{"F0 41 36 00 21 20 01 22 20 F7"});
  desktop.Advance_ms(499);
  EXPECT_TRUE(Sent().empty());
  desktop.Advance_ms(1);
  EXPECT_EQ(Sent(), Texts{"F0 41 36 00 21 20 01 22 24 F7"});
  desktop.Advance_ms(16 * 500);
  EXPECT_EQ(Sent().back(), "F0 41 36 00 21 20 01 22 64 F7");
  desktop.Advance_ms(500);
  EXPECT_EQ(Sent(), Texts{"F0 41 36 00 21 20 01 22 20 F7"});

  Autosend = 0;  // only notes are heard
  desktop.Advance_ms(500);
  EXPECT_TRUE(Sent().empty());
  Choose_Target(26);  // takes effect with the next step
  desktop.Advance_ms(500);
  desktop.Click(Oscillator.Osc_Start);  // starts over
  EXPECT_EQ(Sent(), (Texts{"90 28 7F", "90 20 7F"}));
  desktop.Click(Oscillator.Osc_Stop);
  desktop.Advance_ms(2000);
  EXPECT_TRUE(Sent().empty()) << "no note ends, and none begins";
}

TEST_F(Oscillator_Test, Time_Zero_Rests_And_Closing_The_Window_Ends_The_Sweep) {
  Set_Focus(Oscillator.Osc_Start);
  desktop.Key(Key::Space);
  EXPECT_EQ(Sent().size(), 1U);
  User_Scrolled(Oscillator.Osc_Time, 0);
  desktop.Advance_ms(5000);
  EXPECT_TRUE(Sent().empty());
  User_Scrolled(Oscillator.Osc_Time, 1);
  desktop.Advance_ms(10);
  EXPECT_EQ(Sent().size(), 10u) << "a new time goes on";
  Unload(Oscillator);
  Osc_Open_Window();
  desktop.Advance_ms(5000);
  EXPECT_TRUE(Sent().empty()) << "a new window does not run";
}

}  // namespace
