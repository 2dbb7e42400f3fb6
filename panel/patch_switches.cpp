#include "panel/patch_switches.h"

#include "core/records.h"
#include "core/sysex.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "panel/meanings.h"
#include "panel/patch_values.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"
#include "windows/patch_window.h"
#include "windows/state.h"

namespace {

constexpr int Band = 32;
constexpr int Placed_Part_Of_Band = 16;  // the cap follows a drag in the lower half of a band alone

enum class Direction { None, Up, Down };

Direction Direction_Of(int key_code) {
  switch (key_code) {
    case Key::Page_Up:
    case Key::Up:
      return Direction::Up;
    case Key::Page_Down:
    case Key::Down:
      return Direction::Down;
    default:
      return Direction::None;
  }
}

struct Patch_Switch {
  Picture_Box& element;
  int index;
  int top;     // of the highest position
  int bottom;  // of the lowest
  int step;    // of the byte, from one position to the next
};

const Patch_Switch Bend_Range{Patch.Pitch_Bend_Range, Patch_Bend_Range, Bend_Range_Top_px,
                              Bend_Range_Bottom_px, Band};
const Patch_Switch Portamento{Patch.Portamento_Switch, Patch_Portamento_Switch, Portamento_On_Top_px,
                              Portamento_Off_Top_px, Portamento_On};

// Runtime_Error 6 if a drag has left a byte from which the step cannot be done.
void Move(const Patch_Switch& lever, int steps) {
  lever.element.top = lever.element.top() - steps * Switch_Row_px;
  Patch_Rec[lever.index] = To_Byte(Patch_Rec[lever.index] + steps * lever.step);
}

void Patch_Switch_Step(const Patch_Switch& lever, Direction direction) {
  if (direction == Direction::Up && lever.element.top > lever.top) Move(lever, 1);
  if (direction == Direction::Down && lever.element.top < lever.bottom) Move(lever, -1);
  Patch_Param_Send(lever.index);
  Tone_Saved = Flag_False;
}

// By the row alone, whatever the key.
void Portamento_Toggle() {
  const bool off = Portamento.element.top > Portamento.top;
  Patch_Switch_Step(Portamento, off ? Direction::Up : Direction::Down);
}

void Patch_Switch_Place(int value) {
  if (value % Band < Placed_Part_Of_Band) Bend_Range.element.top = Patch_Control_Top(Patch_Bend_Range);
}

void Patch_Switch_Drag(float y) {
  const int value = Switch_Drag_Value(Patch_Rec[Patch_Bend_Range], y);
  Patch_Rec[Patch_Bend_Range] = To_Byte(value);
  Patch_Switch_Place(value);
  if (Drag_Step_Counts(Patch_Bend_Range, value)) Patch_Param_Send(Patch_Bend_Range);
  Tone_Saved = Flag_False;
}

}  // namespace

void Patch_Switches_Wire() {
  Picture_Box& range = Patch.Pitch_Bend_Range;
  Mark_On_Focus(range, range);
  range.on_key_down = [](Key_Event& key) {
    const Direction direction = Direction_Of(key.code);
    if (direction != Direction::None) Patch_Switch_Step(Bend_Range, direction);
  };
  range.on_mouse_move = [](const Mouse_Event& event) {
    if (event.button != 0) Patch_Switch_Drag(event.y);
  };
  Tell_Position(range, {"2 semitones", "3 semitones", "4 semitones", "7 semitones"},
                [] { return Patch_Rec[Patch_Bend_Range] / Band; });

  Picture_Box& portamento = Patch.Portamento_Switch;
  Mark_On_Focus(portamento, portamento);
  portamento.on_key_down = [](Key_Event& key) {
    if (Direction_Of(key.code) != Direction::None) Portamento_Toggle();
  };
  portamento.on_mouse_down = [](const Mouse_Event&) { Portamento_Toggle(); };
  Tell_Position(portamento, {"off", "on"}, [] { return Patch_Rec[Patch_Portamento_Switch] / Portamento_On; });
}
