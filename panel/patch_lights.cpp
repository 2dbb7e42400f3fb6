#include "panel/patch_lights.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "panel/patch_values.h"
#include "platform/convert.h"
#include "platform/form.h"
#include "windows/focus_mark.h"
#include "windows/patch_window.h"
#include "windows/pictures.h"

int Key_Mode_Sel = 0;
int After_Touch_Sel = 0;

namespace {

struct Light_Group {
  int index;  // in Patch_Rec
  std::span<Picture_Box> items;
  std::span<const std::uint8_t> values;  // of the items
  int& selection;
  int up;      // what the upward keys add to the selection
  int lowest;  // that a key can ask for
};

// Key mode has no lower bound: a step below item 0 overflows.
const std::array Groups{
    Light_Group{Patch_Key_Mode, Patch.Key_Mode, Key_Mode_Values, Key_Mode_Sel, -1, -1},
    Light_Group{Patch_After_Touch, Patch.After_Touch, After_Touch_Values, After_Touch_Sel, 1, 0},
};
const Light_Group& Key_Mode_Group = Groups[0];
const Light_Group& After_Touch_Group = Groups[1];

Picture_Box& Selected(const Light_Group& group) {
  return group.items[static_cast<std::size_t>(group.selection)];
}

Picture_Box& Lit(const Light_Group& group) {
  return group.items[static_cast<std::size_t>(Patch_Control_Top(group.index))];
}

bool Is_Selected(const Light_Group& group) {
  return std::ranges::any_of(group.items, [](const Picture_Box& light) { return &light == Active_Ctl; });
}

void Light(const Light_Group& group, Picture_Box& item) {
  for (Picture_Box& light : group.items) light.picture = LED(LED_Dark);
  item.picture = LED(LED_Red);
}

// The mark goes along: beside the light it would be a second one.
void Show_Group(const Light_Group& group) {
  if (Is_Selected(group)) Ctl_Select(&Lit(group));
  Light(group, Lit(group));
}

void Choose_Item(const Light_Group& group, int item) {
  group.selection = item;
  Ctl_Select(&Selected(group));
  Light(group, Selected(group));
  Patch_SetValue(group.index, group.values[static_cast<std::size_t>(item)]);
}

void Step(const Light_Group& group, int added) {
  const int last = static_cast<int>(group.items.size()) - 1;
  Choose_Item(group, To_Byte(Clamp(group.selection + added, group.lowest, last)));
}

void Go_To(Key_Event& key, Picture_Box& element) {
  key.code = 0;
  Ctl_Deselect();
  Set_Focus(element);
}

// The key that goes back is told by a code that consists of the shift state and the digit 9, so that the code
// of Tab itself goes forward, with Shift too.
bool Is_Back_Tab(const Key_Event& key) { return key.code == key.shift * 10 + Key::Tab; }

void Group_Key(const Light_Group& group, Key_Event& key) {
  const bool key_mode = group.index == Patch_Key_Mode;
  if (key.code == Key::Up || key.code == Key::Page_Up) {
    Step(group, group.up);
  } else if (key.code == Key::Down || key.code == Key::Page_Down) {
    Step(group, -group.up);
  } else if (key.code == Key::Tab) {
    Go_To(key, key_mode ? Selected(After_Touch_Group) : Patch.UDTune);
  } else if (Is_Back_Tab(key)) {
    Go_To(key, key_mode ? Patch.Pitch_Bend_Range : Selected(Key_Mode_Group));
  }
}

void Wire_Item(const Light_Group& group, int item) {
  Picture_Box& light = group.items[static_cast<std::size_t>(item)];
  light.on_got_focus = [&group] { Ctl_Select(&Lit(group)); };
  light.on_lost_focus = Ctl_Deselect;
  light.on_click = [&group, item] { Choose_Item(group, item); };
  light.on_key_down = [&group](Key_Event& key) { Group_Key(group, key); };
  light.is_on = [&group, item] { return Patch_Control_Top(group.index) == item; };
}

}  // namespace

void Patch_Lights_Wire() {
  for (const Light_Group& group : Groups) {
    for (int item = 0; item < static_cast<int>(group.items.size()); ++item) Wire_Item(group, item);
  }
}

void Patch_Lights_Show() {
  for (const Light_Group& group : Groups) Show_Group(group);
}
