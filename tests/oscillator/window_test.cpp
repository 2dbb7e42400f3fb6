#include "oscillator/menu_commands.h"
#include "oscillator/oscillator_fixture.h"
#include "windows/file_dlg_window.h"

namespace {

constexpr int Border = 1;  // of the field around its scale

struct Window_Test : Oscillator_Test {
  void Pen(float x, float y, int buttons = Left_Button) {
    desktop.Move(Oscillator.Picture1, x + Border, y + Border, buttons);
  }
};

TEST_F(Window_Test, Invert_Stays_On_For_The_Waves_That_Follow) {
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

TEST_F(Window_Test, The_Pen_Takes_The_Step_Below_It) {
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

TEST_F(Window_Test, Other_Buttons_Read_The_Curve_Back_And_No_Button_Does_Nothing) {
  User_Scrolled(Oscillator.VScrollA, 32);
  const std::vector<int> shown = Played();
  Pen(30, 5, 0);
  Pen(30, 5, Right_Button);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{96, 96})) << "lines are flat, and so is what is read from them";
  EXPECT_EQ(Played(), shown);
  Pen(0, 0);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{-62, 96}));
}

TEST_F(Window_Test, Opening_A_Curve_Asks_About_The_Tone) {
  for (const Answer answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
    Tone_Saved = Flag_False;
    desktop.Expect_Box(answer, "Save actual TONE first?");
    if (answer == Answer::Yes) desktop.Expect_Box(Answer::Ok, "OSC SaveAs");
    Menu_File_Osc_Open();
    EXPECT_EQ(File_Dlg.Loaded(), answer == Answer::No);
  }
  Unload(File_Dlg);
}

}  // namespace
