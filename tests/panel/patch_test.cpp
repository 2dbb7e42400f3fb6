#include "panel/patch.h"

#include <set>

#include "panel/editor_fixture.h"
#include "panel/patch_lights.h"
#include "panel/patch_mks70.h"
#include "windows/patch_mks70_window.h"
#include "windows/patch_window.h"

struct Patch_Test : Editor_Fixture {
  Patch_Test() {
    Key_Mode_Sel = 0;
    After_Touch_Sel = 0;
    Patch_Wire();
    Menu_Tone_Patch();
  }

  std::uint8_t& Byte(int index) override { return Patch_Rec[index]; }
  std::string Head() override { return "F0 41 36 00 21 30 01 "; }

  // The items of a group that are lit.
  template <std::size_t count>
  std::string Lit(const std::array<Picture_Box, count>& group) {
    std::string lit;
    for (std::size_t item = 0; item < count; ++item) {
      if (group[item].picture() == LED(LED_Red)) lit += std::to_string(item);
    }
    return lit;
  }
};

TEST_F(Patch_Test, Only_The_JX8P_Has_A_Patch_Window) {
  Unload(Patch);
  Synthesizer = "MKS-70";
  desktop.Expect_Box(Answer::Ok, "Sorry, patch settings not available yet.");
  Menu_Tone_Patch();
  EXPECT_FALSE(Patch.Loaded());
  Synthesizer = "JX-8P";
  Menu_Tone_Patch();
  EXPECT_EQ(Active_Ctl, &Patch.Portamento_Time);
  EXPECT_TRUE(Sent().empty()) << "showing sends nothing";
}

TEST_F(Patch_Test, Keys_Move_Each_Kind_By_Its_Own_Rule) {
  Picture_Box& time = Patch.Portamento_Time;
  Picture_Box& range = Patch.Pitch_Bend_Range;
  Picture_Box& portamento = Patch.Portamento_Switch;
  Picture_Box& knob = Patch.UDTune;
  Picture_Box& dot = Patch.UDTune_Knopf;
  Expect_Keys({{time, 1, 64, Key::Page_Up, 74, "20 62", "57"},
               {time, 1, 120, Key::Page_Up, 127, "20 28", "99"},
               {range, 0, 0, Key::Up, 32, "117 48", ""},
               {portamento, 2, 0, Key::Down, 64, "20 133", ""},
               {portamento, 2, 64, Key::Page_Up, 0, "20 143", ""},
               {knob, 6, 64, Key::Page_Up, 74, "14 5", "8"},
               {dot, 6, 64, Key::Page_Down, 54, "7 8", "-7"},  // on a circle of its own
               {dot, 6, 64, Key::Up, 64, "10 7", "0"}});       // no arrow keys
  for (const int key : {Key::End, Key::Keypad_Plus, Key::Space}) {
    Key_On(range, key);
    Key_On(portamento, key);
  }
  for (const int key : {Key::Ctrl, Key::Tab}) {
    for (Picture_Box* element : {&time, &portamento, &knob, &dot}) Key_On(*element, key);
  }
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Test, The_Mouse_Moves_Each_Kind_By_Its_Own_Rule) {
  Picture_Box& depth = Patch.Pitch_Bend_LFO;
  Picture_Box& range = Patch.Pitch_Bend_Range;
  Have(5, 10);
  for (Picture_Box* element : {&depth, &range, &Patch.UDTune, &Patch.Portamento_Switch})
    desktop.Press(*element);
  EXPECT_EQ(Sent(), (Texts{Message(5, 10), Message(6, 64), Message(2, 64)}));
  Expect_Drags({{depth, 5, 4, -20.5F, 30, true, "86 90"},
                {depth, 5, 4, 200, 0, true, "86 108"},
                {Patch.UDTune, 6, 10, 4, 74, true, "14 5"},  // counts from the left edge
                {Patch.UDTune_Knopf, 6, 500, 4, 127, true, "15 14"},
                {range, 0, 4, -33, 33, false, "117 48"},  // the first drag of a run
                {range, 0, 4, -33, 66, true, "117 38"},
                {range, 0, 4, 46, 20, true, "117 38"},  // the cap stays where it was
                {range, 0, 4, 200, 0, true, "117 58"}});
  desktop.Press(Editor.DCO2_Range);
  desktop.Move(Editor.DCO2_Range, 0, -90);
  Sent();
  Expect_Drags({{range, 0, 4, -90, 90, false, "117 58"}});  // after a switch of another window
}

TEST_F(Patch_Test, Lights_Are_Chosen_By_Click_And_Key) {
  std::size_t item = 0;
  for (const int value : {0, 1, 2, 4, 5, 6}) {
    desktop.Click(Patch.Key_Mode[item]);
    EXPECT_EQ(Sent(), Texts{Message(3, value)});
    EXPECT_EQ(Lit(Patch.Key_Mode), std::to_string(item++));
  }
  for (const int key : {Key::Down, Key::Page_Up}) desktop.Key(key);
  EXPECT_EQ(Sent(), (Texts{Message(3, 6), Message(3, 5)})) << "the last item again";
  Set_Focus(Patch.After_Touch[0]);
  for (const int key : {Key::Up, Key::Up, Key::Page_Up, Key::Up, Key::Down}) desktop.Key(key);
  EXPECT_EQ(Sent(), (Texts{Message(4, 1), Message(4, 2), Message(4, 4), Message(4, 4), Message(4, 2)}));
  for (int step = 0; step < 4; ++step) desktop.Key(Key::Page_Down);
  EXPECT_EQ(Sent().back(), Message(4, 0));
  EXPECT_EQ(Lit(Patch.After_Touch) + Lit(Patch.Key_Mode), "04") << "the other group keeps its light";
}

TEST_F(Patch_Test, A_Group_Shows_One_Light_Though_A_Tone_Has_Lit_Another_Than_The_Chosen_One) {
  desktop.Click(Patch.After_Touch[1]);
  desktop.Click(Patch.Key_Mode[1]);
  for (Picture_Box* focused : {&Patch.Key_Mode[1], &Patch.After_Touch[1], &Patch.UDTune}) {
    EXPECT_EQ(Focused_Control(), focused);
    Have(3, 6);
    Have(4, 4);
    std::set<std::string> seen;
    for (int phase = 0; phase < 2; ++phase) {
      desktop.Advance_ms(250);
      seen.insert(Lit(Patch.Key_Mode) + " " + Lit(Patch.After_Touch));
    }
    const char* dark = focused == &Patch.UDTune ? "5 3" : focused == &Patch.Key_Mode[1] ? " 3" : "5 ";
    EXPECT_EQ(seen, (std::set<std::string>{"5 3", dark})) << focused->name;
    desktop.Key(Key::Tab);
  }
  Sent();
  Set_Focus(Patch.Key_Mode[1]);
  desktop.Key(Key::Down);
  EXPECT_EQ(Sent(), Texts{Message(3, 2)}) << "from the item that was chosen";
}

TEST_F(Patch_Test, Tab_Walks_The_Groups_Forward_Even_With_Shift) {
  desktop.Click(Patch.Key_Mode[2]);
  desktop.Click(Patch.After_Touch[1]);
  for (const int shift : {0, Shift_Key}) {
    Set_Focus(Patch.Key_Mode[5]);
    desktop.Key(Key::Tab, shift);
    EXPECT_EQ(Focused_Control(), &Patch.After_Touch[1]);
    desktop.Key(Key::Tab, shift);
    EXPECT_EQ(Focused_Control(), &Patch.UDTune);
  }
}

TEST_F(Editor_Fixture, On_The_MKS70_What_Is_Changed_Goes_To_The_Tone_That_Is_Shown) {
  auto& panel = Patch_MKS70;
  MKS70_Patch.bytes.fill(0);
  MKS70_Wire();
  Show(panel);
  for (Picture_Box* tone : {&panel.Tone_A, &panel.Tone_B_Pic}) {
    desktop.Click(*tone);
    User_Selected(panel.Split_Point, tone == &panel.Tone_A ? 87 : 39);
    for (const int key : {Key::Home, Key::Ctrl, Key::Tab, Key::Keypad_Minus}) Key_On(panel.UDTune, key);
  }
  const std::string head = "F0 41 36 00 21 30 01 ";
  EXPECT_EQ(Sent(), (Texts{head + "20 7F F7", head + "20 7E F7", head + "29 7F F7", head + "29 7E F7"}));
  EXPECT_EQ(Numbers({MKS70_Patch[MKS70_Split_A], MKS70_Patch[MKS70_Split_B]}), "108 60");
  desktop.Key(Key::Escape, 0, 27);
  EXPECT_FALSE(panel.Loaded());
}
