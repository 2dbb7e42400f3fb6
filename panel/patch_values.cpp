#include "panel/patch_values.h"

#include <algorithm>
#include <span>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "panel/element_rules.h"
#include "panel/elements.h"
#include "platform/convert.h"
#include "windows/state.h"

namespace {

int Item_Of(std::span<const std::uint8_t> values, int value) {
  const auto found = std::ranges::find(values, value);
  return found == values.end() ? 0 : static_cast<int>(found - values.begin());
}

}  // namespace

void Patch_SetValue(int index, int value) {
  Patch_Rec[index] = To_Byte(value);
  if (Tone_Loading == Flag_Off) {
    if (index == Patch_Portamento_Time || index == Patch_Bend_LFO) Display_Value(Shown_99(value));
    if (index == Patch_Index_UDTune) Display_Value(Bipolar_50(value));
    Display_Hold();
  }
  Patch_Param_Send(index);
  Tone_Saved = Flag_False;
}

int Patch_Control_Top(int index) {
  const int value = Patch_Rec[index];
  switch (index) {
    case Patch_Bend_Range:
      return Switch_Top_At(Bend_Range_Top_px, std::min(value, Value_Limit));
    case Patch_Portamento_Switch:
      return value < Portamento_On ? Portamento_Off_Top_px : Portamento_On_Top_px;
    case Patch_Key_Mode:
      return Item_Of(Key_Mode_Values, value);
    case Patch_After_Touch:
      return Item_Of(After_Touch_Values, value);
    default:
      return Slider_Top_At(Patch_Slider_Bottom_px, value);
  }
}
