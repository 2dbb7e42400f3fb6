#include <array>
#include <string>

#include "panel/element_looks.h"
#include "panel/patch.h"
#include "panel/patch_values.h"
#include "platform/table.h"
#include "windows/patch_window.h"

namespace {

constexpr Picture Patch_Background{"patch-background"};
constexpr int Lights_Top_px = 17;
constexpr int Light_Row_px = 15;
constexpr int First_Key_Mode_Tab = 4;
constexpr int Last_After_Touch_Tab = 13;

constexpr auto Key_Modes = Full_Table<std::string_view, Key_Mode_Values.size()>(
    {"poly 1", "unison 1", "solo 1", "poly 2", "unison 2", "solo 2"});
constexpr auto After_Touches =
    Full_Table<std::string_view, After_Touch_Values.size()>({"off", "vibrato", "brilliance", "volume"});
static_assert(std::tuple_size_v<decltype(Patch_Window::Key_Mode)> == Key_Modes.size() &&
              std::tuple_size_v<decltype(Patch_Window::After_Touch)> == After_Touches.size());

void Lay_Group_Item(Picture_Box& light, int left, int row, int tab, std::string_view group,
                    std::string_view item) {
  Lay_Light(light, left, Lights_Top_px + Light_Row_px * row);
  light.tag = "led";
  light.blinks = true;
  Name_Element(light, tab, 0, std::string(group) + std::string(item));
}

void Lay_Lights() {
  for (int item = 0; item < static_cast<int>(Key_Modes.size()); ++item) {
    const auto place = static_cast<std::size_t>(item);
    Lay_Group_Item(Patch.Key_Mode[place], 152, item, First_Key_Mode_Tab + item, "Key mode ",
                   Key_Modes[place]);
  }
  const int last = static_cast<int>(After_Touches.size()) - 1;
  for (int item = 0; item <= last; ++item) {
    const auto place = static_cast<std::size_t>(item);
    Lay_Group_Item(Patch.After_Touch[place], 222, last - item, Last_After_Touch_Tab - item, "After touch ",
                   After_Touches[place]);
  }
}

}  // namespace

void Patch_Layout() {
  Patch.picture = Patch_Background;
  Lay_Slider(Patch.Portamento_Time, 20, Patch_Slider_Bottom_px);
  Name_Element(Patch.Portamento_Time, 0, 0, "Portamento time");
  Lay_Switch(Patch.Portamento_Switch, "br", 20, Portamento_Off_Top_px);
  Name_Element(Patch.Portamento_Switch, 1, 0, "Portamento");
  Lay_Slider(Patch.Pitch_Bend_LFO, 86, Patch_Slider_Bottom_px);
  Name_Element(Patch.Pitch_Bend_LFO, 2, 0, "Bender LFO depth");
  Lay_Switch(Patch.Pitch_Bend_Range, "br", 117, Bend_Range_Bottom_px);
  Name_Element(Patch.Pitch_Bend_Range, 3, 0, "Bend range");
  Lay_Lights();
  Lay_Knob(Patch.UDTune, Patch.UDTune_Knopf, "kn2fp", 161, 133);
  Name_Element(Patch.UDTune, 14, 0, "Unison detune");
  Name_Element(Patch.UDTune_Knopf, 15, 0, "Unison detune dot");
}
