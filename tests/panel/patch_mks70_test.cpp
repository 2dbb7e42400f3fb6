#include "panel/patch_mks70.h"

#include "panel/editor_fixture.h"
#include "windows/patch_mks70_window.h"

namespace {

auto& Panel = Patch_MKS70;

using MKS70_Test = Editor_Fixture;

TEST_F(MKS70_Test, What_Is_Changed_Goes_To_The_Tone_That_Is_Shown) {
  MKS70_Patch.bytes.fill(0);
  MKS70_Wire();
  Show(Panel);
  for (Picture_Box* tone : {&Panel.Tone_A, &Panel.Tone_B_Pic}) {
    desktop.Click(*tone);
    User_Selected(Panel.Split_Point, tone == &Panel.Tone_A ? 87 : 39);
    for (const int key : {Key::Home, Key::Keypad_Minus}) Key_On(Panel.UDTune, key);
  }
  const std::string head = "F0 41 36 00 21 30 01 ";
  EXPECT_EQ(Sent(), (Texts{head + "20 7F F7", head + "20 7E F7", head + "29 7F F7", head + "29 7E F7"}));
  EXPECT_EQ(Numbers({MKS70_Patch[MKS70_Split_A], MKS70_Patch[MKS70_Split_B]}), "108 60");
  desktop.Key(Key::Escape, 0, 27);
  EXPECT_FALSE(Panel.Loaded());
}

}  // namespace
