#include "panel/patch.h"

#include "panel/editor.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/patch_window.h"
#include "windows/pictures.h"

namespace {

using Texts = std::vector<std::string>;

// The message that sets one parameter of the patch.
std::string Message(const std::string& index_and_value) {
  return "F0 41 36 00 21 30 01 " + index_and_value + " F7";
}

struct Patch_Test : Program {
  Patch_Test() {
    Key_Mode_Sel = 0;
    After_Touch_Sel = 0;
    Editor_Wire();
    Patch_Wire();
    Menu_Tone_Patch();
  }
  ~Patch_Test() override {
    Unload(Patch);
    Active_Ctl = nullptr;
  }

  // The items of a group that are lit.
  template <std::size_t count>
  std::vector<int> Lit(const std::array<Picture_Box, count>& group) {
    std::vector<int> lit;
    for (std::size_t item = 0; item < count; ++item) {
      if (group[item].picture() == LED(LED_Red)) lit.push_back(static_cast<int>(item));
    }
    return lit;
  }
};

TEST_F(Patch_Test, Only_The_JX8P_Has_A_Patch_Window) {
  Unload(Patch);
  Synthesizer = "MKS-70";
  desktop.Expect_Box(Answer::Ok, "Sorry, patch settings not available yet.");
  Menu_Tone_Patch();
  EXPECT_EQ(desktop.boxes.back().style, Box_Exclamation);
  EXPECT_EQ(Patch_Open, Flag_Off);
  EXPECT_FALSE(Patch.Loaded());

  Synthesizer = "JX-8P";
  Patch_Left = 300;
  Patch_Top = 450;
  Menu_Tone_Patch();
  EXPECT_EQ(Patch_Open, Flag_On);
  EXPECT_EQ(Patch.left(), 300);
  EXPECT_EQ(Patch.top(), 450);
  EXPECT_EQ(Active_Ctl, &Patch.Portamento_Time);
  EXPECT_TRUE(Sent().empty()) << "showing sends nothing";
  User_Placed(Patch, 30, 45, Patch.width, Patch.height);
  desktop.Key(Key::Escape, 0, 27);
  EXPECT_EQ(Patch_Open, Flag_Off);
  EXPECT_FALSE(Patch.Loaded());
  EXPECT_EQ(Patch_Left, 300) << "places are not kept unless the menu says so";
}

TEST_F(Patch_Test, Slider_Keys) {
  struct Row {
    int before, key, after, top;
    std::string message, shown;
  };
  // clang-format off
  const std::vector<Row> rows{
      {64, Key::Page_Up, 74, 62, "01 4A", "57"}, {120, Key::Page_Up, 127, 28, "01 7F", "99"},
      {9, Key::Page_Down, 0, 108, "01 00", "0"}, {64, Key::End, 0, 108, "01 00", "0"},
      {64, Key::Home, 127, 28, "01 7F", "99"}, {63, Key::Up, 64, 68, "01 40", "49"},
      {125, Key::Keypad_Plus, 126, 29, "01 7E", "98"}, {64, Key::Down, 63, 69, "01 3F", "49"},
      {0, Key::Keypad_Minus, 0, 108, "01 00", "0"}, {64, Key::Left, 64, 68, "01 40", "49"},
      {64, Key::Letter_A, 64, 68, "01 40", "49"},
  };
  // clang-format on
  for (const Row& row : rows) {
    Patch_Rec[Patch_Portamento_Time] = static_cast<std::uint8_t>(row.before);
    Tone_Saved = Flag_True;
    Set_Focus(Patch.Portamento_Time);
    desktop.Key(row.key);
    EXPECT_EQ(Patch_Rec[Patch_Portamento_Time], row.after) << row.before << " key " << row.key;
    EXPECT_EQ(Patch.Portamento_Time.top(), row.top) << row.before << " key " << row.key;
    EXPECT_EQ(Sent(), Texts{Message(row.message)});
    EXPECT_EQ(Editor.Tone_Name.text(), row.shown);
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Patch_Test, A_Slider_Follows_The_Mouse_And_A_Press_Sends_Again) {
  Patch_Rec[Patch_Bend_LFO] = 10;
  desktop.Press(Patch.Pitch_Bend_LFO);
  EXPECT_EQ(Sent(), Texts{Message("05 0A")});
  desktop.Move(Patch.Pitch_Bend_LFO, 4, -20.5F);
  desktop.Move(Patch.Pitch_Bend_LFO, 4, 0);
  desktop.Move(Patch.Pitch_Bend_LFO, 4, 200);
  desktop.Move(Patch.Pitch_Bend_LFO, 4, -50, 0);
  EXPECT_EQ(Sent(), (Texts{Message("05 1E"), Message("05 1E"), Message("05 00")}));
  EXPECT_EQ(Patch.Pitch_Bend_LFO.top(), 108);
}

TEST_F(Patch_Test, Without_Autosend_The_Patch_Changes_Silently) {
  Autosend = 0;
  Tone_Loading = Flag_On;
  Editor.Tone_Name.Set_Text("BRASS");
  Set_Focus(Patch.Portamento_Time);
  desktop.Key(Key::Home);
  desktop.Click(Patch.After_Touch[3]);
  EXPECT_EQ(Patch_Rec[Patch_Portamento_Time], 127);
  EXPECT_EQ(Patch_Rec[Patch_After_Touch], 4);
  EXPECT_EQ(Tone_Saved, Flag_False);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Editor.Tone_Name.text(), "BRASS");
}

TEST_F(Patch_Test, Bend_Range_Steps_By_Its_Row) {
  Set_Focus(Patch.Pitch_Bend_Range);
  struct Row {
    int key, after, top;
    Texts messages;
  };
  // clang-format off
  const std::vector<Row> rows{
      {Key::Up, 32, 48, {Message("00 20")}}, {Key::Page_Up, 64, 38, {Message("00 40")}},
      {Key::Up, 96, 28, {Message("00 60")}}, {Key::Up, 96, 28, {Message("00 60")}},
      {Key::Home, 96, 28, {}}, {Key::Page_Down, 64, 38, {Message("00 40")}},
      {Key::Down, 32, 48, {Message("00 20")}},
  };
  // clang-format on
  for (const Row& row : rows) {
    desktop.Key(row.key);
    EXPECT_EQ(Patch_Rec[Patch_Bend_Range], row.after);
    EXPECT_EQ(Patch.Pitch_Bend_Range.top(), row.top);
    EXPECT_EQ(Sent(), row.messages);
  }
  desktop.Press(Patch.Pitch_Bend_Range);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Test, A_Bend_Range_Drag_Lags_And_Sends_Large_Steps_Only) {
  struct Row {
    float y;
    int after, top;
    Texts messages;
  };
  for (const Row& row : std::vector<Row>{{-33, 33, 48, {}},  // the first drag of a run
                                         {-20, 53, 48, {Message("00 35")}},
                                         {-4, 57, 48, {}},
                                         {-4, 61, 48, {}},
                                         {-5, 66, 38, {Message("00 42")}},
                                         {46, 20, 38, {Message("00 14")}},  // the cap stays where it was
                                         {-0.5F, 20, 38, {}},
                                         {-200, 127, 38, {Message("00 7F")}},
                                         {200, 0, 58, {Message("00 00")}},
                                         {-20, 20, 58, {Message("00 14")}}}) {
    desktop.Move(Patch.Pitch_Bend_Range, 4, row.y);
    EXPECT_EQ(Patch_Rec[Patch_Bend_Range], row.after) << row.y;
    EXPECT_EQ(Patch.Pitch_Bend_Range.top(), row.top) << row.y;
    EXPECT_EQ(Sent(), row.messages) << row.y;
  }
  EXPECT_EQ(Tone_Saved, Flag_False);
}

TEST_F(Patch_Test, A_Bend_Range_Step_Out_Of_The_Byte_Fails_As_Overflow) {
  Set_Focus(Patch.Pitch_Bend_Range);
  for (const auto& [byte, top, key] : {std::tuple{20, 28, Key::Down}, std::tuple{224, 58, Key::Up}}) {
    Patch_Rec[Patch_Bend_Range] = static_cast<std::uint8_t>(byte);
    Patch.Pitch_Bend_Range.top = top;
    desktop.Expect_Box(Answer::Ok);
    desktop.Key(key);
    EXPECT_NE(desktop.Last_Box().find("6"), std::string::npos) << desktop.Last_Box();
    EXPECT_EQ(Patch_Rec[Patch_Bend_Range], byte);
    EXPECT_TRUE(Sent().empty());
  }
}

TEST_F(Patch_Test, Portamento_Is_Thrown_By_Keys_And_Presses) {
  Set_Focus(Patch.Portamento_Switch);
  int value = 0;
  const auto expect_thrown = [&](const std::string& message) {
    value = 64 - value;
    EXPECT_EQ(Patch_Rec[Patch_Portamento_Switch], value);
    EXPECT_EQ(Patch.Portamento_Switch.top(), value == 0 ? 143 : 133);
    EXPECT_EQ(Sent(), Texts{Message(message)});
  };
  desktop.Key(Key::Down);
  expect_thrown("02 40");
  desktop.Key(Key::Page_Up);
  expect_thrown("02 00");
  desktop.Press(Patch.Portamento_Switch);
  expect_thrown("02 40");
  for (const int key : {Key::End, Key::Home, Key::Keypad_Plus, Key::Space}) desktop.Key(key);
  desktop.Move(Patch.Portamento_Switch, 4, 30);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Test, Lights_Are_Chosen_By_Click_And_Key) {
  const std::array<std::string, 6> key_modes{"03 00", "03 01", "03 02", "03 04", "03 05", "03 06"};
  for (std::size_t item = 0; item < key_modes.size(); ++item) {
    desktop.Click(Patch.Key_Mode[item]);
    EXPECT_EQ(Sent(), Texts{Message(key_modes[item])});
    EXPECT_EQ(Lit(Patch.Key_Mode), std::vector<int>{static_cast<int>(item)});
    EXPECT_EQ(Active_Ctl, &Patch.Key_Mode[item]);
  }
  desktop.Key(Key::Down);
  EXPECT_EQ(Sent(), Texts{Message("03 06")}) << "the last item again";
  desktop.Key(Key::Page_Up);
  EXPECT_EQ(Sent(), Texts{Message("03 05")});
  EXPECT_EQ(Lit(Patch.Key_Mode), std::vector<int>{4});

  const std::array<std::string, 4> after_touches{"04 00", "04 01", "04 02", "04 04"};
  Set_Focus(Patch.After_Touch[0]);
  for (std::size_t item = 1; item < 5; ++item) {
    desktop.Key(Key::Up);
    EXPECT_EQ(Sent(), Texts{Message(after_touches[std::min<std::size_t>(item, 3)])});
  }
  EXPECT_EQ(Lit(Patch.After_Touch), std::vector<int>{3});
  EXPECT_EQ(Lit(Patch.Key_Mode), std::vector<int>{4}) << "the other group keeps its light";
  for (int step = 0; step < 4; ++step) desktop.Key(Key::Page_Down);
  EXPECT_EQ(Sent().back(), Message("04 00"));

  Key_Mode_Sel = 0;
  Set_Focus(Patch.Key_Mode[0]);
  desktop.Expect_Box(Answer::Ok);
  desktop.Key(Key::Up);
  EXPECT_NE(desktop.Last_Box().find("6"), std::string::npos) << "overflow: " << desktop.Last_Box();
  EXPECT_EQ(Key_Mode_Sel, 0);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Test, Tab_Walks_The_Groups_Forward_Even_With_Shift) {
  desktop.Click(Patch.Key_Mode[2]);
  desktop.Click(Patch.After_Touch[1]);
  struct Row {
    Control& from;
    int code, shift;
    Control& to;
  };
  for (const Row& row : {Row{Patch.Key_Mode[5], Key::Tab, 0, Patch.After_Touch[1]},
                         Row{Patch.Key_Mode[5], Key::Tab, Shift_Key, Patch.After_Touch[1]},
                         Row{Patch.Key_Mode[5], 19, Shift_Key, Patch.Pitch_Bend_Range},
                         Row{Patch.After_Touch[0], Key::Tab, Shift_Key, Patch.UDTune},
                         Row{Patch.After_Touch[0], 19, Shift_Key, Patch.Key_Mode[2]},
                         Row{Patch.After_Touch[0], 19, 0, Patch.After_Touch[0]},
                         Row{Patch.Pitch_Bend_Range, Key::Tab, 0, Patch.Key_Mode[0]}}) {
    Set_Focus(row.from);
    desktop.Key(row.code, row.shift);
    EXPECT_EQ(Focused_Control(), &row.to) << row.from.name << " to " << row.to.name;
  }
  EXPECT_EQ(Active_Ctl, &Patch.Key_Mode[2]) << "focus on a group selects its chosen item";
}

TEST_F(Patch_Test, A_Shown_Tone_Lights_Without_Choosing) {
  desktop.Click(Patch.Key_Mode[1]);
  Patch_Rec[Patch_Key_Mode] = 5;
  Patch_Rec[Patch_After_Touch] = 3;
  Patch_Rec[Patch_Bend_Range] = 95;
  Patch_Rec[Patch_Portamento_Switch] = 64;
  Patch_Rec[Patch_Index_UDTune] = 0;
  Sent();
  Patch_Show();
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Lit(Patch.Key_Mode), std::vector<int>{4});
  EXPECT_EQ(Lit(Patch.After_Touch), std::vector<int>{0}) << "3 belongs to no item";
  EXPECT_EQ(Patch.Pitch_Bend_Range.top(), 38);
  EXPECT_EQ(Patch.Portamento_Switch.top(), 133);
  EXPECT_EQ(Patch.UDTune_Knopf.left(), 9);  // 150 degrees to the left of upright
  EXPECT_EQ(Patch.UDTune_Knopf.top(), 14);
  Set_Focus(Patch.Key_Mode[0]);
  desktop.Key(Key::Down);
  EXPECT_EQ(Patch_Rec[Patch_Key_Mode], 2) << "steps from the item chosen last";
}

TEST_F(Patch_Test, Keys_On_The_Detune_Knob_And_On_Its_Dot_Differ) {
  struct Row {
    int before, key, on_body, on_dot;
  };
  // clang-format off
  const std::vector<Row> rows{
      {64, Key::Page_Up, 74, 74}, {64, Key::Page_Down, 54, 54}, {64, Key::End, 0, 0},
      {64, Key::Home, 127, 127}, {64, Key::Up, 65, 64}, {64, Key::Right, 65, 64},
      {64, Key::Keypad_Plus, 65, 65}, {64, Key::Down, 63, 64}, {64, Key::Left, 63, 64},
      {0, Key::Keypad_Minus, 0, 0}, {10, Key::Digit_0, 63, 63}, {10, Key::Keypad_0, 63, 63},
  };
  // clang-format on
  for (const Row& row : rows) {
    for (const bool dot : {false, true}) {
      Patch_Rec[Patch_Index_UDTune] = static_cast<std::uint8_t>(row.before);
      Set_Focus(dot ? Patch.UDTune_Knopf : Patch.UDTune);
      desktop.Key(row.key);
      EXPECT_EQ(Patch_Rec[Patch_Index_UDTune], dot ? row.on_dot : row.on_body)
          << row.key << (dot ? " dot" : " body");
      EXPECT_EQ(Sent().size(), 1u);
      EXPECT_EQ(Active_Ctl, &Patch.UDTune_Knopf);
    }
  }
  Set_Focus(Patch.UDTune);
  desktop.Key(Key::Home);
  EXPECT_EQ(Patch.UDTune_Knopf.left(), 15);  // 150 degrees to the right
  EXPECT_EQ(Patch.UDTune_Knopf.top(), 14);
  EXPECT_EQ(Editor.Tone_Name.text(), "50");
  Set_Focus(Patch.UDTune_Knopf);
  desktop.Key(Key::Home);  // 300 degrees about another centre
  EXPECT_EQ(Patch.UDTune_Knopf.left(), 6);
  EXPECT_EQ(Patch.UDTune_Knopf.top(), 10);
}

TEST_F(Patch_Test, The_Detune_Knob_Turns_By_The_Pixel) {
  desktop.Press(Patch.UDTune, Left_Button, 10, 4);
  EXPECT_EQ(Sent(), Texts{Message("06 40")});
  for (const float x : {10.0F, 12.0F, 12.0F, 7.0F}) desktop.Move(Patch.UDTune, x, 4);
  EXPECT_EQ(Sent(), (Texts{Message("06 4A"), Message("06 4C"), Message("06 4C"), Message("06 47")}))
      << "the first move jumps by the distance from the left edge";
  desktop.Move(Patch.UDTune, 90, 4, 0);
  EXPECT_TRUE(Sent().empty());
  desktop.Move(Patch.UDTune_Knopf, 500, 4);
  EXPECT_EQ(Sent(), Texts{Message("06 7F")});
}

TEST_F(Patch_Test, The_Selected_Element_Blinks_And_Rests) {
  desktop.Click(Patch.Key_Mode[3]);
  Blink_Phase = 0;
  Ctl_Blink();
  EXPECT_EQ(Patch.Key_Mode[3].picture(), LED(LED_Dark));
  Ctl_Deselect();
  EXPECT_EQ(Lit(Patch.Key_Mode), std::vector<int>{3});
  Set_Focus(Patch.UDTune);
  Blink_Phase = 1;
  Ctl_Blink();
  EXPECT_EQ(Patch.UDTune_Knopf.picture(), Buttons(Knob_Dot + 1));
  Set_Focus(Patch.Portamento_Time);
  EXPECT_EQ(Patch.UDTune_Knopf.picture(), Buttons(Knob_Dot));
}

}  // namespace
