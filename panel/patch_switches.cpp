#include "panel/patch_switches.h"

#include "core/records.h"
#include "core/sysex.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "panel/meanings.h"
#include "panel/patch.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"
#include "windows/patch_window.h"
#include "windows/state.h"

namespace {

constexpr int Band = 32;
constexpr int Placed_Part_Of_Band = 16;  // the cap follows a drag in the lower half of a band alone

// No index is 0 before the first drag, so that its first step is not sent.
Drag_Memory last_drag{0, -1};

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

// One step of the cap, and what it adds to the byte: Runtime_Error 6 if a drag has left a byte from which
// that cannot be done.
void Step(Picture_Box& element, int index, int rows, int added) {
  element.top = element.top() - rows * Switch_Row_px;
  Patch_Rec[index] = To_Byte(Patch_Rec[index] + added);
}

void Send(int index) {
  Patch_Param_Send(index);
  Tone_Saved = Flag_False;
}

void Bend_Range_Step(Direction direction) {
  Picture_Box& element = Patch.Pitch_Bend_Range;
  if (direction == Direction::Up && element.top > Bend_Range_Top_px) Step(element, Patch_Bend_Range, 1, Band);
  if (direction == Direction::Down && element.top < Bend_Range_Bottom_px) {
    Step(element, Patch_Bend_Range, -1, -Band);
  }
  Send(Patch_Bend_Range);
}

// By the row alone, whatever the direction.
void Portamento_Toggle() {
  Picture_Box& element = Patch.Portamento_Switch;
  const bool off = element.top > Portamento_On_Top_px;
  Step(element, Patch_Portamento_Switch, off ? 1 : -1, off ? Portamento_On : -Portamento_On);
  Send(Patch_Portamento_Switch);
}

void Bend_Range_Drag(float y) {
  const int value = Switch_Drag_Value(Patch_Rec[Patch_Bend_Range], y);
  Patch_Rec[Patch_Bend_Range] = To_Byte(value);
  if (value % Band < Placed_Part_Of_Band) Patch.Pitch_Bend_Range.top = Patch_Control_Top(Patch_Bend_Range);
  if (Drag_Step_Counts(last_drag, Patch_Bend_Range, value)) Patch_Param_Send(Patch_Bend_Range);
  Tone_Saved = Flag_False;
}

void Wire_Focus(Picture_Box& element) {
  element.on_got_focus = [&element] { Active_Ctl = &element; };
  element.on_lost_focus = Ctl_Deselect;
}

}  // namespace

void Patch_Switches_Wire() {
  Picture_Box& range = Patch.Pitch_Bend_Range;
  Wire_Focus(range);
  range.on_key_down = [](Key_Event& key) {
    const Direction direction = Direction_Of(key.code);
    if (direction != Direction::None) Bend_Range_Step(direction);
  };
  range.on_mouse_move = [](const Mouse_Event& event) {
    if (event.button != 0) Bend_Range_Drag(event.y);
  };
  Tell_Position(range, {"2 semitones", "3 semitones", "4 semitones", "7 semitones"},
                [] { return Patch_Rec[Patch_Bend_Range] / Band; });

  Picture_Box& portamento = Patch.Portamento_Switch;
  Wire_Focus(portamento);
  portamento.on_key_down = [](Key_Event& key) {
    if (Direction_Of(key.code) != Direction::None) Portamento_Toggle();
  };
  portamento.on_mouse_down = [](const Mouse_Event&) { Portamento_Toggle(); };
  Tell_Position(portamento, {"off", "on"}, [] { return Patch_Rec[Patch_Portamento_Switch] / Portamento_On; });
}
