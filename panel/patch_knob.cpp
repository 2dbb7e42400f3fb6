#include "panel/patch_knob.h"

#include "core/records.h"
#include "panel/element_rules.h"
#include "panel/meanings.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"

namespace {

void Turn(const Patch_Knob& knob, int value, const Knob_Circle& circle) {
  Dot_Place(knob.dot, circle, Bipolar_50(value));
  knob.set(value);
}

}  // namespace

void Wire_Patch_Knob(const Patch_Knob& knob, Picture_Box& element, int (*key_value)(int value, int key_code),
                     Knob_Circle (*key_circle)()) {
  Mark_On_Focus(element, knob.dot);
  On_Key(element, [=](int key_code) { Turn(knob, key_value(knob.value(), key_code), key_circle()); });
  element.on_mouse_down = [knob](const Mouse_Event&) { knob.set(knob.value()); };
  element.on_mouse_move = [knob](const Mouse_Event& event) {
    if (event.button == 0) return;
    const int moved = Knob_Drag_Value(knob.value(), Fine_Drag_Units(event.x));
    Turn(knob, Clamp(moved, 0, Value_Limit), knob.drag_circle);
  };
  Tell_Bipolar(element, knob.value);
}
