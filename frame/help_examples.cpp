#include "frame/help_examples.h"

#include <string>
#include <string_view>

#include "core/tone_params.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "panel/meanings.h"
#include "platform/convert.h"
#include "windows/focus_mark.h"
#include "windows/help_window.h"
#include "windows/pictures.h"

Byte_Record<Help_Demo_Size> Help_Demo;
int Help_LED_Sel = 0;

namespace {

constexpr int Half = 64;
constexpr int Cap_Size_px = 18;
constexpr int Light_Size_px = 14;
constexpr int Light_Row_px = 15;
constexpr int Pos_Sw_Top = 5;       // at the highest value
constexpr int Slider_Bottom = 85;   // at the lowest value
constexpr int Switch_Off_Top = 15;  // a row above: on
constexpr Picture Howto_Background{"help-howto-background"};
constexpr Picture Logo{"logo"};
constexpr Picture Badge{"badge"};

constexpr std::string_view Slider_Info =
    "Click and hold down a mouse button, move up or down.\n"
    "Keyboard: cursor up/down, page up/down, home/end, +/-";
constexpr std::string_view Pos_Sw_Info =
    "Click and hold down a mouse button, move up or down.\n"
    "Keyboard: up/down, page up/down, home/end, +/-";
constexpr std::string_view Tune_Info =
    "Click and hold down a mouse button and move left or right.\n"
    "Keyboard: left/right, page up/down, home/end, +/-";
constexpr std::string_view Switch_Info =
    "Click to change. Applies to:\n"
    " Editor: VCA Mode, Portamento Switch\n"
    " Patch: After Touch, Key Mode\n"
    "Keyboard: cursor up/down, page up/down, home/end, +/-";

std::string Shown(int index) {
  const int value = Help_Demo[index];
  switch (index) {
    case Demo_Pos_Sw:
      return std::to_string((Value_Limit - value) / 32 + 1);
    case Demo_Tune:
      return std::to_string(Semitone_12(value));
    case Demo_Slider:
      return std::to_string(Shown_99(value));
    case Demo_Switch:
      return value < Half ? "OFF" : "ON";
    default:
      return {static_cast<char>('A' + value)};
  }
}

Picture_Box& Light(int item) { return Help.LED_SW[static_cast<std::size_t>(item)]; }

void Show_Lights() {
  for (int item = 0; item < Help_Lights; ++item) {
    Light(item).picture = LED(item == Help_LED_Sel ? LED_Red : LED_Dark);
  }
}

// Whatever was selected before comes to rest, whichever window it stands in.
void Select(Picture_Box& mark, std::string_view info) {
  Ctl_Select(&mark);
  Help.Info.Set_Text(info);
}

void Wire_Focus(Picture_Box& element, Picture_Box& mark, std::string_view info) {
  element.on_got_focus = [&mark, info] { Select(mark, info); };
  element.on_lost_focus = Ctl_Deselect;
}

void Place_Pos_Sw() { Help.Pos_Sw.top = Switch_Top_At(Pos_Sw_Top, Help_Demo[Demo_Pos_Sw]); }
void Place_Slider() { Help.Slider.top = Slider_Top_At(Slider_Bottom, Help_Demo[Demo_Slider]); }
void Place_Switch() {
  Help.Switch.top = Help_Demo[Demo_Switch] < Half ? Switch_Off_Top : Switch_Off_Top - Switch_Row_px;
}

void Wire_Pos_Sw() {
  Picture_Box& element = Help.Pos_Sw;
  Wire_Focus(element, element, Pos_Sw_Info);
  element.on_key_down = [](Key_Event& key) {
    if (const auto value = Switch_Key_Value(Help_Demo[Demo_Pos_Sw], key.code, false)) {
      Help_Demo_Store(Demo_Pos_Sw, *value);
    }
    Place_Pos_Sw();
  };
  element.on_mouse_move = [](const Mouse_Event& event) {
    if (event.button == 0) return;
    Help_Demo_Store(Demo_Pos_Sw, Switch_Drag_Value(Help_Demo[Demo_Pos_Sw], event.y));
    Place_Pos_Sw();
  };
}

void Wire_Slider() {
  Picture_Box& element = Help.Slider;
  Wire_Focus(element, element, Slider_Info);
  element.on_key_down = [](Key_Event& key) {
    if (const auto value = Slider_Key_Value(Help_Demo[Demo_Slider], key.code, Page_Of_Slider)) {
      Help_Demo_Store(Demo_Slider, *value);
    }
    Place_Slider();
  };
  element.on_mouse_down = [](const Mouse_Event&) { Help_Demo_Store(Demo_Slider, Help_Demo[Demo_Slider]); };
  element.on_mouse_move = [](const Mouse_Event& event) {
    if (event.button == 0) return;
    Help_Demo_Store(Demo_Slider, Slider_Drag_Value(Help_Demo[Demo_Slider], event.y));
    Place_Slider();
  };
}

void Tune_Set(int semitones) {
  Dot_Place(Help.Tune_Knopf, Tune_Circle, semitones);
  Help_Demo_Store(Demo_Tune, Semitone_Value(semitones));
}

void Wire_Tune() {
  for (Picture_Box* element : {&Help.Tune, &Help.Tune_Knopf}) {
    Wire_Focus(*element, Help.Tune_Knopf, Tune_Info);
    On_Key(*element,
           [](int key_code) { Tune_Set(Tune_Knob_Key(Semitone_12(Help_Demo[Demo_Tune]), key_code)); });
    element->on_mouse_down = [](const Mouse_Event&) { Help_Demo_Store(Demo_Tune, Help_Demo[Demo_Tune]); };
    element->on_mouse_move = [](const Mouse_Event& event) {
      if (event.button == 0) return;
      const int moved = Knob_Drag_Value(Semitone_12(Help_Demo[Demo_Tune]), Tune_Drag_Units(event.x));
      Tune_Set(Clamp(moved, -Tune_Knob_Limit, Tune_Knob_Limit));
    };
  }
}

void Switch_Toggle() {
  const int value = Help_Demo[Demo_Switch];
  Help_Demo_Store(Demo_Switch, value < Half ? value + Half : value - Half);
  Place_Switch();
}

void Wire_Switch() {
  Wire_Focus(Help.Switch, Help.Switch, Switch_Info);
  Help.Switch.on_key_down = [](Key_Event& key) {
    if (Is_Toggle_Key(key.code)) Switch_Toggle();
  };
  Help.Switch.on_mouse_down = [](const Mouse_Event&) { Switch_Toggle(); };
}

void Light_Click(int item) {
  Help_LED_Sel = item;
  Ctl_Select(&Light(item));
  Show_Lights();
  Help_Demo_Store(Demo_Light, item);
}

void Light_Key(const Key_Event& key) {
  if (key.code == Key::Up) Light_Click(Clamp(Help_LED_Sel - 1, 0, Help_Lights - 1));
  if (key.code == Key::Down) Light_Click(Clamp(Help_LED_Sel + 1, 0, Help_Lights - 1));
}

// The lit light is the selected one, whichever of the row has the focus; at rest it stays lit.
void Wire_Light(int item) {
  Picture_Box& light = Light(item);
  light.on_got_focus = [] { Select(Light(Help_LED_Sel), Switch_Info); };
  light.on_lost_focus = Ctl_Deselect;
  light.on_key_down = [](Key_Event& key) { Light_Key(key); };
  light.on_click = [item] { Light_Click(item); };
  light.is_on = [item] { return item == Help_LED_Sel; };
}

struct Example_Row {
  Picture_Box& element;
  std::string_view tag;
  Picture picture;
  Role role;
  int tab;
  std::string_view spoken;
};

void Assign(const Example_Row& row) {
  row.element.tag = std::string(row.tag);
  row.element.picture = row.picture;
  row.element.role = row.role;
  row.element.blinks = true;
  row.element.tab_index = row.tab;
  row.element.spoken_name = row.spoken;
}

}  // namespace

void Help_Layout() {
  Help.Pic_Howto_Bk.picture = Howto_Background;
  Help.Pic_MELVOR.picture = Logo;
  Help.Pic_Badge.picture = Badge;
  for (const Example_Row& row : {
           Example_Row{Help.Pos_Sw, "br", Buttons(Cap_Right_Lamp), Role::Switch, 8,
                       "Example position switch"},
           Example_Row{Help.Slider, "bm", Buttons(Slider_Cap), Role::Slider, 9, "Example slider"},
           Example_Row{Help.Switch, "br", Buttons(Cap_Right_Lamp), Role::Switch, 10, "Example switch"},
           Example_Row{Help.LED_SW[0], "led", LED(LED_Dark), Role::Choice_Light, 11, "Example light A"},
           Example_Row{Help.LED_SW[1], "led", LED(LED_Dark), Role::Choice_Light, 12, "Example light B"},
           Example_Row{Help.LED_SW[2], "led", LED(LED_Dark), Role::Choice_Light, 13, "Example light C"},
           Example_Row{Help.LED_SW[3], "led", LED(LED_Dark), Role::Choice_Light, 14, "Example light D"},
           Example_Row{Help.Tune, "knh", Buttons(Knob_Body), Role::Knob, 15, "Example knob"},
           Example_Row{Help.Tune_Knopf, "knh", Buttons(Knob_Dot), Role::Knob, 16, "Example knob dot"},
       }) {
    Assign(row);
  }
  Help.Pos_Sw.Place(13, 35, Cap_Size_px, Cap_Size_px);
  Help.Slider.Place(62, Slider_Bottom, Cap_Size_px, Cap_Size_px);
  Help.Switch.Place(106, Switch_Off_Top, Cap_Size_px, Cap_Size_px);
  Help.Tune.Place(8, 68, 28, 26);
  Help.Tune_Knopf.Place(12, 6, 4, 4);
  for (int item = 0; item < Help_Lights; ++item) {
    Light(item).Place(108, 40 + Light_Row_px * item, Light_Size_px, Light_Size_px);
  }
  Place_Pos_Sw();
  Place_Switch();
  Show_Lights();
}

void Help_Demo_Store(int index, int value) {
  Help_Demo[index] = To_Byte(value);
  Help.HName.caption = Shown(index);
  Display_Hold();
}

void Help_Show_Waiting() { Help.HName.caption = "Waiting..."; }

void Help_Examples_Wire() {
  Wire_Pos_Sw();
  Wire_Slider();
  Wire_Tune();
  Wire_Switch();
  for (int item = 0; item < Help_Lights; ++item) Wire_Light(item);
  Tell_Position(Help.Pos_Sw, {"position 4", "position 3", "position 2", "position 1"},
                [] { return Help_Demo[Demo_Pos_Sw] / 32; });
  Tell_99(Help.Slider, Page_Of_Slider, [] { return int{Help_Demo[Demo_Slider]}; });
  Tell_Position(Help.Switch, {"off", "on"}, [] { return Help_Demo[Demo_Switch] / Half; });
  for (Picture_Box* knob : {&Help.Tune, &Help.Tune_Knopf}) {
    Tell_Semitones(*knob, [] { return int{Help_Demo[Demo_Tune]}; });
  }
}
