#include "panel/push_buttons.h"

#include "platform/convert.h"
#include "platform/form.h"
#include "platform/text.h"
#include "windows/pictures.h"

namespace {

struct Look {
  Picture picture;
  int symbol_left;
  int symbol_top;
};

constexpr Look Small_Up{Button_Up3D, 3, 3};
constexpr Look Small_Down{Button_Dn3D, 4, 4};
constexpr Look Wide_Up{Dlg2_Up, 6, 5};
constexpr Look Wide_Down{Dlg2_Dn, 7, 6};

// The symbol is the one control that lies on the button.
void Show_Look(Picture_Box& button, const Look& look) {
  button.picture = look.picture;
  for (Control* control : button.form.controls) {
    if (control->container != &button) continue;
    control->left = look.symbol_left;
    control->top = look.symbol_top;
  }
}

void Set_State(Picture_Box& light, int state) {
  light.picture = LED(state);
  light.tag = std::to_string(state);
}

}  // namespace

void Push_Down(Picture_Box& button) { Show_Look(button, Small_Down); }
void Push_Up(Picture_Box& button) { Show_Look(button, Small_Up); }
void Push_Down_Wide(Picture_Box& button) { Show_Look(button, Wide_Down); }
void Push_Up_Wide(Picture_Box& button) { Show_Look(button, Wide_Up); }

void Push_On_Mouse(Picture_Box& button) {
  button.on_mouse_down = [&button](const Mouse_Event&) { Push_Down(button); };
  button.on_mouse_up = [&button](const Mouse_Event&) { Push_Up(button); };
}

void Work_By_Space(Picture_Box& element) {
  element.on_key_down = [&element](Key_Event& key) {
    if (key.code != Key::Space || key.shift != 0 || !Enabled_In_Form(element)) return;
    key.code = 0;
    if (key.repeated) return;
    const Mouse_Event press{Left_Button, 0, 0, 0};
    if (element.on_mouse_down) element.on_mouse_down(press);
    if (element.on_mouse_up) element.on_mouse_up(press);
    if (element.on_click) element.on_click();
  };
}

void Check_Toggle(Picture_Box& light) {
  if (!light.enabled()) return;
  if (Check_Is_On(light)) {
    Check_Off(light);
  } else {
    Check_On(light);
  }
}

void Check_On(Picture_Box& light) {
  if (light.enabled()) Set_State(light, LED_Green);
}

void Check_Off(Picture_Box& light) {
  if (light.enabled()) Set_State(light, LED_Dark);
}

void Check_Disable(Picture_Box& light) { Radio_Disable(light); }

bool Check_Is_On(const Picture_Box& light) { return Leading_Number(light.tag()) != LED_Dark; }

void Radio_Select(std::span<Picture_Box* const> group, int index) {
  Picture_Box& chosen =
      *group[static_cast<std::size_t>(Checked_Index(index, static_cast<int>(group.size())))];
  if (!chosen.enabled()) return;
  for (Picture_Box* light : group) {
    if (light->enabled()) Set_State(*light, LED_Dark);
  }
  Set_State(chosen, LED_Red);
}

void Radio_Enable(Picture_Box& light) {
  light.picture = LED(Leading_Number(light.tag()));
  light.enabled = true;
}

void Radio_Disable(Picture_Box& light) {
  light.picture = LED(LED_Disabled);
  light.enabled = false;
}

void Radio_Disable_All(std::span<Picture_Box* const> group) {
  for (Picture_Box* light : group) Radio_Disable(*light);
}
