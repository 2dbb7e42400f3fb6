#include "panel/patch_mks70.h"

#include "panel/patch.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/patch_mks70_window.h"
#include "windows/patch_window.h"
#include "windows/pictures.h"

namespace {

using Texts = std::vector<std::string>;
auto& Panel = Patch_MKS70;

struct MKS70_Test : Program {
  MKS70_Test() {
    MKS70_Patch.bytes.fill(0);
    Tone_Select.clear();
    Patch_Wire();
    MKS70_Wire();
    Show(Panel);
  }
  ~MKS70_Test() override {
    Unload(Panel);
    Unload(Patch);
    Active_Ctl = nullptr;
  }
};

TEST_F(MKS70_Test, The_Load_Fills_The_Lists_And_Shows_Tone_A) {
  EXPECT_EQ(Panel.Patch_Name.text(), "TEST PATCH MKS-70");
  ASSERT_EQ(Panel.Tone_Number.Count(), 100);
  EXPECT_EQ(Panel.Tone_Number.Item(99), "100");
  ASSERT_EQ(Panel.Split_Point.Count(), 88);
  for (const auto& [entry, name] :
       {std::pair{0, "A0"}, {2, "B0"}, {3, "C1"}, {39, "C4"}, {86, "B7"}, {87, "C8"}}) {
    EXPECT_EQ(Panel.Split_Point.Item(entry), name);
  }
  EXPECT_EQ(Tone_Select, "A");
  EXPECT_EQ(MKS70_Patch[MKS70_Split_B], 21);
  EXPECT_EQ(Panel.Tone_A.picture(), Button_Dn3D);
  EXPECT_EQ(Panel.Tone_A_Pic.top(), 4);
  EXPECT_EQ(Panel.Tone_B_Pic.left(), 3);
  EXPECT_EQ(Panel.UDTune_Knopf.top(), 5);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Patch_Open, Flag_Off);
}

TEST_F(MKS70_Test, Tones_Keep_Their_Own_Values_But_Only_B_Shows_Its_Split_Again) {
  User_Selected(Panel.Split_Point, 87);
  User_Selected(Panel.Tone_Number, 7);
  EXPECT_EQ(MKS70_Patch[MKS70_Split_A], 108);
  desktop.Click(Panel.Tone_B_Pic);
  EXPECT_EQ(Panel.Tone_B.picture(), Button_Dn3D);
  EXPECT_EQ(Panel.Tone_A.picture(), Button_Up3D);
  EXPECT_EQ(MKS70_Patch[MKS70_Tone_A], 7);
  EXPECT_EQ(Panel.Split_Point.index(), 0);
  EXPECT_EQ(Panel.Tone_Number.index(), 0);
  User_Selected(Panel.Split_Point, 30);
  User_Selected(Panel.Tone_Number, 99);
  EXPECT_EQ(MKS70_Patch[MKS70_Split_B], 51);
  desktop.Click(Panel.Tone_A);
  EXPECT_EQ(MKS70_Patch[MKS70_Tone_B], 99);
  EXPECT_EQ(Panel.Tone_Number.index(), 7);
  EXPECT_EQ(Panel.Split_Point.index(), 30) << "still tone B's";
  EXPECT_EQ(MKS70_Patch[MKS70_Split_A], 108);
}

TEST_F(MKS70_Test, The_Detune_Goes_To_The_Tone_That_Is_Shown) {
  Editor.Tone_Name.Set_Text("BRASS");
  Set_Focus(Panel.UDTune);
  desktop.Key(Key::Home);
  EXPECT_EQ(Sent(), Texts{"F0 41 36 00 21 30 01 20 7F F7"});
  EXPECT_EQ(Panel.Patch_Name.text(), "50");
  EXPECT_EQ(Editor.Tone_Name.text(), "BRASS");
  EXPECT_EQ(Panel.UDTune_Knopf.left(), 12);  // 50 times 32 degrees: at 250
  EXPECT_EQ(Panel.UDTune_Knopf.top(), 15);
  desktop.Key(Key::Up);
  desktop.Key(Key::Keypad_Minus);
  EXPECT_EQ(Sent(), (Texts{"F0 41 36 00 21 30 01 20 7F F7", "F0 41 36 00 21 30 01 20 7E F7"}))
      << "no arrow keys";
  desktop.Click(Panel.Tone_B);
  desktop.Press(Panel.UDTune_Knopf, Left_Button, 0, 0);
  desktop.Move(Panel.UDTune_Knopf, 64, 0);
  EXPECT_EQ(Sent(), (Texts{"F0 41 36 00 21 30 01 29 00 F7", "F0 41 36 00 21 30 01 29 40 F7"}));
  EXPECT_EQ(Panel.UDTune_Knopf.left(), 10);
  EXPECT_EQ(Panel.UDTune_Knopf.top(), 5);
  EXPECT_EQ(MKS70_Patch[MKS70_Detune_A], 126);
  EXPECT_EQ(Tone_Saved, Flag_False);
}

TEST_F(MKS70_Test, Its_Knob_Blinks_In_The_Other_Window) {
  Set_Focus(Panel.UDTune);
  EXPECT_EQ(Active_Ctl, &Panel.UDTune_Knopf);
  Blink_Phase = 1;
  Ctl_Blink();
  EXPECT_TRUE(Patch.Loaded());
  EXPECT_EQ(Patch.UDTune_Knopf.picture(), Buttons(Knob_Dot + 1));
  EXPECT_EQ(Panel.UDTune_Knopf.picture(), Buttons(Knob_Dot));
}

TEST_F(MKS70_Test, What_Has_No_Behaviour_Does_Nothing) {
  const auto before = MKS70_Patch;
  for (Picture_Box* element : {&Panel.Key_Mode[0], &Panel.Total_Volume, &Panel.Hold, &Panel.UL_Balance}) {
    desktop.Click(*element);
    desktop.Drag(*element, {-20});
    EXPECT_NE(Focused_Control(), element);
  }
  EXPECT_EQ(MKS70_Patch, before);
  EXPECT_TRUE(Sent().empty());
  MELVOR.Menu_Windows_SavePos.checked = true;
  User_Placed(Panel, 60, 75, Panel.width, Panel.height);
  desktop.Key(Key::Escape, 0, 27);
  MELVOR.Menu_Windows_SavePos.checked = false;
  EXPECT_FALSE(Panel.Loaded());
  EXPECT_EQ(Patch_Left, 60);
  EXPECT_EQ(Patch_Top, 75);
}

}  // namespace
