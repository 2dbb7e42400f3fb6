#include "core/tone_params.h"

#include <algorithm>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_origin.h"
#include "platform/desktop.h"
#include "platform/text.h"
#include "windows/editor_window.h"
#include "windows/frame_window.h"
#include "windows/state.h"

std::function<void()> Tone_Shown;
std::function<void()> Patch_Shown;

namespace {

constexpr std::uint8_t Blank = 32;
constexpr int Highest_Character = 127;
constexpr std::uint8_t Tune_Centre = 56;
constexpr std::uint8_t Fine_Tune_Centre = 64;

// Whether the byte is not the first one of its UTF-8 character.
bool Continues_Character(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

// One character a byte, whatever the bytes would make together.
std::string Name_Of_Bytes() {
  std::string name;
  for (int index = 0; index < Tone_Name_Length; ++index) {
    const std::uint8_t byte = Tone[index];
    if (byte <= Highest_Character) {
      name += static_cast<char>(byte);
    } else {
      name += {static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
    }
  }
  return name;
}

void Show_Value(int index, int value) {
  if (index == Index_DCO1_Tune || index == Index_DCO2_Tune) {
    Display_Value(Semitone_12(value));
  } else if (index == Index_DCO2_FTune) {
    Display_Value(Bipolar_50(value));
  } else if (Is_Slider(index)) {
    Display_Value(Shown_99(value));
  } else {
    Display_Hold();
  }
}

}  // namespace

void Display_Value(int value) {
  Editor.Tone_Name.Set_Text(std::to_string(value));
  Display_Hold();
}

void Display_Hold() {
  MELVOR.Timer_Display.enabled = false;
  MELVOR.Timer_Display.enabled = true;
}

void Tone_Clear() {
  Tone_Title.clear();
  Tone_File.clear();
  Tone_Saved = Flag_True;
  MELVOR.Menu_File_SYX_Save.enabled = false;
  MELVOR.caption = "MELVOR";
  Application_Title = "MELVOR";
  Tone.bytes.fill(0);
  std::fill_n(Tone.bytes.begin(), Tone_Name_Length, Blank);
  Tone[Index_DCO1_Tune] = Tune_Centre;
  Tone[Index_DCO2_Tune] = Tune_Centre;
  Tone[Index_DCO2_FTune] = Fine_Tune_Centre;
  Patch_Rec.bytes.fill(0);
  Patch_Rec[Patch_Index_UDTune] = Fine_Tune_Centre;
  Origin_Sound_Kept();
}

void Tone_Param_Set(int index, int value) {
  Tone[index] = To_Byte(value);
  if (Tone_Loading == Flag_Off) Show_Value(index, value);
  Tone_Param_Send(index);
  Tone_Saved = Flag_False;
}

void Tone_Show() {
  Tone_Name_Str = Upper(Trim(Name_Of_Bytes()));
  Editor.Tone_Name.Set_Text(Tone_Name_Str);
  if (Tone_Shown) Tone_Shown();
}

void Patch_Show() {
  if (Patch_Shown) Patch_Shown();
}

void Tone_Name_Store() {
  std::string stored;
  for (const char character : Tone_Name_Str) {
    const auto byte = static_cast<std::uint8_t>(character);
    if (Continues_Character(byte)) continue;
    stored += byte < Blank || byte > Highest_Character ? static_cast<char>(Blank) : character;
  }
  int index = 0;
  for (const char character : stored) Tone[index++] = static_cast<std::uint8_t>(character);
  Tone_Name_Str = stored;
  for (; index <= Tone_First_Parameter; ++index) Tone[index] = Blank;
}
