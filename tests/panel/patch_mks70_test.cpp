#include "panel/patch_mks70.h"

#include "panel/editor_fixture.h"
#include "panel/patch.h"
#include "windows/patch_mks70_window.h"
#include "windows/patch_window.h"
#include "windows/pictures.h"

namespace {

auto& Panel = Patch_MKS70;

struct MKS70_Test : Editor_Fixture {
  MKS70_Test() {
    MKS70_Patch.bytes.fill(0);
    Patch_Wire();
    MKS70_Wire();
    Show(Panel);
  }
  ~MKS70_Test() override {
    Unload(Panel);
    Unload(Patch);
  }
  std::string Head() override { return "F0 41 36 00 21 30 01 "; }

  std::string Lists() { return Panel.Split_Point.Selected_Text() + " " + Panel.Tone_Number.Selected_Text(); }
};

TEST_F(MKS70_Test, Tones_Keep_Their_Own_Values_But_Only_B_Shows_Its_Split_Again) {
  User_Selected(Panel.Split_Point, 87);
  User_Selected(Panel.Tone_Number, 99);
  EXPECT_EQ(Lists(), "C8 100");
  desktop.Click(Panel.Tone_B_Pic);
  EXPECT_EQ(Panel.Tone_B.picture(), Button_Dn3D);
  EXPECT_EQ(Panel.Tone_A.picture(), Button_Up3D);
  EXPECT_EQ(Lists(), "A0 1");
  User_Selected(Panel.Split_Point, 39);
  User_Selected(Panel.Tone_Number, 7);
  desktop.Click(Panel.Tone_A);
  EXPECT_EQ(Lists(), "C4 100") << "still tone B's split point";
  EXPECT_EQ(Numbers({MKS70_Patch[MKS70_Split_A], MKS70_Patch[MKS70_Split_B]}), "108 60");
}

TEST_F(MKS70_Test, The_Detune_Goes_To_The_Tone_That_Is_Shown_And_Blinks_In_The_Other_Window) {
  for (const int key : {Key::Home, Key::Up, Key::Keypad_Minus}) Key_On(Panel.UDTune, key);
  EXPECT_EQ(Sent(), (Messages{Message(32, 127), Message(32, 127), Message(32, 126)})) << "no arrow keys";
  EXPECT_EQ(Panel.Patch_Name.text(), "49");
  desktop.Click(Panel.Tone_B);
  desktop.Press(Panel.UDTune_Knopf, Left_Button, 0, 0);
  desktop.Move(Panel.UDTune_Knopf, 64, 0);
  EXPECT_EQ(Sent(), (Messages{Message(41, 0), Message(41, 64)}));
  EXPECT_EQ(Place_Of(Panel.UDTune_Knopf), "10 5");
  Blink_Phase = 1;
  Ctl_Blink();
  EXPECT_EQ(Patch.UDTune_Knopf.picture(), Buttons(Knob_Dot + 1));
  EXPECT_EQ(Panel.UDTune_Knopf.picture(), Buttons(Knob_Dot));
  for (const int index : {1, 5, 7}) MKS70_SetValue(index, 64);
  EXPECT_EQ(Panel.Patch_Name.text(), "49");
  Autosend = 0;
  Tone_Loading = Flag_On;
  MKS70_SetValue(1, 127);
  EXPECT_EQ(Panel.Patch_Name.text(), "49") << "while a tone loads it is silent and shows nothing";
  EXPECT_EQ(Sent(), (Messages{Message(1, 64), Message(5, 64), Message(7, 64)}));
  MELVOR.Menu_Windows_SavePos.checked = true;
  User_Placed(Panel, 60, 75, Panel.width, Panel.height);
  desktop.Key(Key::Escape, 0, 27);
  MELVOR.Menu_Windows_SavePos.checked = false;
  EXPECT_FALSE(Panel.Loaded());
  EXPECT_EQ(Numbers({Patch_Left, Patch_Top}), "60 75");
}

}  // namespace
