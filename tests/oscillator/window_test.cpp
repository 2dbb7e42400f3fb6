#include "oscillator/menu_commands.h"
#include "oscillator/oscillator_fixture.h"
#include "windows/file_dlg_window.h"
#include "windows/pictures.h"

namespace {

constexpr int Border = 1;  // of the field around its scale

// Which light of the waves shows what; the others are dark.
void Expect_Lights(int wave, int light) {
  for (int other = 0; other < Osc_Waves; ++other) {
    const Picture_Box& box = Oscillator.Osc_Wave[static_cast<std::size_t>(other)];
    EXPECT_EQ(box.picture(), LED(other == wave ? light : LED_Dark)) << other;
    EXPECT_EQ(box.spoken_value(), other == wave ? "on" : "off") << other;
  }
}

// A line's ends in the scale of the field.
std::vector<int> Ends(const Line& line) {
  return {line.x1 - Border, line.y1 - Border, line.x2 - Border, line.y2 - Border};
}

struct Window_Test : Oscillator_Test {
  void Pen(float x, float y, int buttons = Left_Button) {
    desktop.Move(Oscillator.Picture1, x + Border, y + Border, buttons);
  }
  Line& Step_Line(int step) { return Oscillator.Line1[static_cast<std::size_t>(step)]; }
};

TEST_F(Window_Test, A_Fresh_Window_Shows_The_Double_Ramp) {
  for (int opening = 0; opening < 2; ++opening) {
    EXPECT_EQ(Played(),
              (std::vector<int>{95, 88, 81, 74, 67, 60, 53, 46, 39, 95, 88, 81, 74, 67, 60, 53, 46, 39}));
    EXPECT_EQ(
        Oscillator.Label1.caption() + " " + Oscillator.Label3.caption() + " " + Oscillator.Label4.caption(),
        "500 0 64");
    EXPECT_EQ(Oscillator.Combo1.Selected_Text(), "DCO1 LFO Mod Depth");
    EXPECT_EQ(Oscillator.Osc_Invert.picture(), LED(LED_Dark));
    Expect_Lights(0, LED_Green);
    EXPECT_EQ(Ends(Oscillator.HLine), (std::vector<int>{0, 63, 127, 63}));
    EXPECT_EQ(Ends(Oscillator.VLine[16]), (std::vector<int>{119, 0, 119, 127}));
    desktop.Click(Oscillator.Osc_Invert);
    User_Scrolled(Oscillator.VScrollA, 20);
    User_Scrolled(Oscillator.VScrollDelta, -64);
    User_Scrolled(Oscillator.Osc_Time, 999);
    Choose_Target(26);
    EXPECT_EQ(Ends(Oscillator.HLine), (std::vector<int>{0, 127, 127, 127}));
    User_Closes(Oscillator);
    Osc_Open_Window();
  }
}

TEST_F(Window_Test, Steps_Are_Flat_And_Only_Jumps_Are_Joined) {
  desktop.Click(Oscillator.Osc_Wave[2]);
  EXPECT_EQ(Ends(Step_Line(8)), (std::vector<int>{56, 95, 63, 95}));
  EXPECT_EQ(Ends(Step_Line(18 + 9)), (std::vector<int>{63, 31, 63, 95}));
  EXPECT_EQ(Ends(Step_Line(18 + 8)), (std::vector<int>{130, 8, 137, 8})) << "out of sight";
  desktop.Double_Click(Oscillator.Osc_Wave[4]);
  EXPECT_EQ(Played(), std::vector<int>(18, 63));
  EXPECT_EQ(Ends(Step_Line(18 + 9)), (std::vector<int>{130, 9, 137, 9}));
}

TEST_F(Window_Test, Invert_Stays_On_For_The_Waves_That_Follow) {
  const auto first_after = [&](Picture_Box& clicked) {
    desktop.Click(clicked);
    return Played()[0];
  };
  EXPECT_EQ(first_after(Oscillator.Osc_Invert), 30);
  EXPECT_EQ(Oscillator.Osc_Invert.picture(), LED(LED_Yellow));
  EXPECT_EQ(first_after(Oscillator.Osc_Wave[6]), 94);
  EXPECT_EQ(first_after(Oscillator.Osc_Wave[8]), 31) << "the kept curve turns over at each click";
  desktop.Key(Key::Space);
  EXPECT_EQ(Played()[0], 94) << "the space bar clicks too";
  EXPECT_EQ(first_after(Oscillator.Osc_Invert), 31);
  EXPECT_EQ(Oscillator.Osc_Invert.picture(), LED(LED_Dark));
  EXPECT_EQ(first_after(Oscillator.Osc_Wave[8]), 31);
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
  const std::vector<int> before = Played();
  Pen(-1, 10);
  Pen(-40000, 10);
  EXPECT_EQ(Played(), before);
  for (const auto& [y, level, shown] : {std::tuple{-40000, 0, "127"}, {10, 10, "117"}, {900, 127, "0"}}) {
    Pen(0, static_cast<float>(y));
    EXPECT_EQ(Played()[0], level);
    EXPECT_EQ(Oscillator.Label2.caption(), shown);
  }
}

TEST_F(Window_Test, Other_Buttons_Read_The_Curve_Back_And_No_Button_Does_Nothing) {
  User_Scrolled(Oscillator.VScrollA, 32);
  const std::vector<int> shown = Played();
  Pen(30, 5, 0);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{96, 89}));
  Pen(30, 5, Right_Button);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{96, 96})) << "lines are flat, and so is what is read from them";
  EXPECT_EQ(Played(), shown);
  Pen(0, 0);
  EXPECT_EQ(Osc_Raw[0], (Osc_Level{-62, 96}));
  User_Scrolled(Oscillator.VScrollA, 0);
  Pen(0, 127);
  EXPECT_EQ(Played(), std::vector<int>(18, 63)) << "at amplitude 0 the pen is dead";
}

TEST_F(Window_Test, Any_Release_Marks_The_Curve_As_Kept) {
  desktop.Click(Oscillator.Osc_Wave[3]);
  desktop.Press(Oscillator.Picture1);
  Expect_Lights(3, LED_Green);
  desktop.Release(Oscillator.Picture1);
  Expect_Lights(8, LED_Blue);
}

TEST_F(Window_Test, Start_Stays_Down_Until_Stop_Is_Released) {
  Set_Focus(Oscillator.Osc_Start);
  desktop.Key(Key::Letter_A);
  EXPECT_TRUE(Sent().empty());
  desktop.Key(Key::Space);
  EXPECT_EQ(Sent().size(), 1U) << "the space bar starts too";
  desktop.Press(Oscillator.Osc_Stop);
  EXPECT_EQ(Oscillator.Osc_Start.picture(), Button_Dn3D);
  EXPECT_EQ(Oscillator.Osc_Stop_Pic.left(), 4) << "a symbol goes along with its button";
  desktop.Release(Oscillator.Osc_Stop);
  EXPECT_EQ(Oscillator.Osc_Start.picture(), Button_Up3D);
}

TEST_F(Window_Test, The_File_Branch_Asks_About_The_Tone) {
  for (const auto& [answer, kind] :
       {std::pair{Answer::Cancel, ""}, {Answer::Yes, ""}, {Answer::No, "Open_OSC"}}) {
    Tone_Saved = Flag_False;
    Dlg_Kind.clear();
    desktop.Expect_Box(answer, "Save actual TONE first?");
    if (answer == Answer::Yes) desktop.Expect_Box(Answer::Ok, "OSC SaveAs");
    Menu_File_Osc_Open();
    EXPECT_EQ(Dlg_Kind, kind);
    EXPECT_EQ(Tone_Saved, answer == Answer::No ? Flag_True : Flag_False);
    Unload(File_Dlg);
  }
}

}  // namespace
