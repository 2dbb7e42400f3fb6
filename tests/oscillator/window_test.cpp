#include "oscillator/window.h"

#include "oscillator/curve.h"
#include "oscillator/menu_commands.h"
#include "oscillator/playback.h"
#include "support/program.h"

constexpr int Border = 1;  // of the field around its scale

// The program with an open oscillator window.
struct Oscillator_Test : Program {
  Oscillator_Test() {
    Osc_Wire();
    Osc_Open_Window();
  }

  // The starts of the played curve.
  std::vector<int> Played() {
    std::vector<int> levels;
    for (const Osc_Level& step : Osc_Out) levels.push_back(step.start);
    return levels;
  }

  void Pen(float x, float y, int buttons = Left_Button) {
    desktop.Move(Oscillator.Picture1, x + Border, y + Border, buttons);
  }
};

TEST_F(Oscillator_Test, Invert_Stays_On_For_The_Waves_That_Follow) {
  const auto expect_first = [&](Picture_Box& clicked, int level) {
    desktop.Click(clicked);
    EXPECT_EQ(Played()[0], level);
  };
  expect_first(Oscillator.Osc_Invert, 30);
  expect_first(Oscillator.Osc_Wave[6], 94);
  expect_first(Oscillator.Osc_Wave[8], 31);  // the kept curve turns over at each click
  desktop.Key(Key::Space);                   // clicks too
  EXPECT_EQ(Played()[0], 94);
  expect_first(Oscillator.Osc_Invert, 31);
  expect_first(Oscillator.Osc_Wave[8], 31);
}

TEST_F(Oscillator_Test, The_Pen_Takes_The_Step_Below_It) {
  for (int x = 0; x < 140; ++x) {
    desktop.Double_Click(Oscillator.Osc_Wave[0]);
    Pen(static_cast<float>(x), 10);
    std::vector<int> want(18, 63);
    const bool belongs_to_the_third = x >= 21 && x < 24;  // as the pen has it
    want[static_cast<std::size_t>(belongs_to_the_third ? 2 : std::min(x / 7, 17))] = 10;
    EXPECT_EQ(Played(), want) << x;
  }
  for (const auto& [y, level] : {std::pair{-40000, 0}, {900, 127}}) {
    Pen(0, static_cast<float>(y));
    EXPECT_EQ(Played()[0], level);
  }
}

TEST_F(Oscillator_Test, Other_Buttons_Read_The_Curve_Back_And_No_Button_Does_Nothing) {
  User_Scrolled(Oscillator.VScrollA, 32);
  const std::vector<int> shown = Played();
  Pen(30, 5, 0);
  Pen(30, 5, Right_Button);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{96, 96})) << "lines are flat, and so is what is read from them";
  EXPECT_EQ(Played(), shown);
  Pen(0, 0);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{-62, 96}));
}

TEST_F(Oscillator_Test, Opening_A_Curve_Asks_About_The_Tone) {
  for (const Answer answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
    Tone_Saved = Flag_False;
    desktop.Expect_Box(answer, "Save actual TONE first?");
    if (answer == Answer::Yes) desktop.Expect_Box(Answer::Ok, "OSC SaveAs");
    Menu_File_Osc_Open();
    EXPECT_EQ(File_Dlg.Loaded(), answer == Answer::No);
  }
  Unload(File_Dlg);
}

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
    User_Selected(Oscillator.Combo1, line);
    Osc_Out[0].start = 117;
    Osc_Step = 0;
    Osc_Tick();
  }
  EXPECT_EQ(Sent(), want);
  EXPECT_TRUE(Tone == tone && Patch_Rec == patch && Tone_Saved == Flag_True);
}

TEST_F(Oscillator_Test, The_Sweep_Plays_Eighteen_Steps_In_A_Loop) {
  desktop.Click(Oscillator.Osc_Wave[1]);  // levels 95, 91, ... 27: values 32, 36, ... 100
  User_Selected(Oscillator.Combo1, 17);
  desktop.Click(Oscillator.Osc_Start);
  desktop.Advance_ms(18 * 500);
  const Texts round = Sent();
  EXPECT_EQ(round[0] + ", " + round[17], "F0 41 36 00 21 20 01 22 20 F7, F0 41 36 00 21 20 01 22 64 F7");
  EXPECT_EQ(round[0], round.at(18));

  Autosend = 0;  // only notes are heard
  desktop.Advance_ms(500);
  EXPECT_TRUE(Sent().empty());
  User_Selected(Oscillator.Combo1, 26);  // takes effect with the next step
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
