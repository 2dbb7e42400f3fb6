#include "panel/patch_mks70.h"

#include <array>

#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "panel/element_rules.h"
#include "panel/patch_knob.h"
#include "panel/push_buttons.h"
#include "platform/convert.h"
#include "platform/desktop.h"
#include "windows/frame_window.h"
#include "windows/patch_mks70_window.h"
#include "windows/state.h"

Byte_Record<65> MKS70_Patch;
std::string MKS70_Patch_Name;
std::string Tone_Select;

namespace {

constexpr int Lowest_Note = 21;  // A0, the first entry of Split_Point
constexpr int Tone_Numbers = 100;
constexpr int Octaves = 7;
constexpr std::array<std::string_view, 12> Note_Names{"C",  "C#", "D",  "D#", "E",  "F",
                                                      "F#", "G",  "G#", "A",  "A#", "B"};
constexpr Knob_Circle Detune_Circle{10, 10, 3};

int Detune_Index() { return Tone_Select == "A" ? MKS70_Detune_A : MKS70_Detune_B; }
int Detune() { return MKS70_Patch[Detune_Index()]; }
void Set_Detune(int value) { MKS70_SetValue(Detune_Index(), value); }
// A key whirls the dot: it turns by the parameter's index for each unit.
Knob_Circle Key_Circle() { return {Detune_Circle.left, Detune_Circle.top, Detune_Index()}; }

void Show_Detune() { Dot_Place(Patch_MKS70.UDTune_Knopf, Detune_Circle, Bipolar_50(Detune())); }

std::uint8_t Split_Note() { return To_Byte(Patch_MKS70.Split_Point.index() + Lowest_Note); }
std::uint8_t Tone_Entry() { return To_Byte(Patch_MKS70.Tone_Number.index()); }

void Show_Value(const std::string& text) {
  Patch_MKS70.Patch_Name.Set_Text(text);
  Display_Hold();
}

void Fill_Lists() {
  Combo_Box& tones = Patch_MKS70.Tone_Number;
  tones.Clear();
  for (int number = 1; number <= Tone_Numbers; ++number) tones.Add_Item(std::to_string(number));
  Combo_Box& notes = Patch_MKS70.Split_Point;
  notes.Clear();
  for (const char* lowest : {"A0", "A#0", "B0"}) notes.Add_Item(lowest);
  for (int octave = 1; octave <= Octaves; ++octave) {
    for (const std::string_view name : Note_Names) notes.Add_Item(std::string(name) + std::to_string(octave));
  }
  notes.Add_Item("C8");
  tones.Select(0);
  notes.Select(0);
}

void Tone_A_Click() {
  Push_Down(Patch_MKS70.Tone_A);
  Push_Up(Patch_MKS70.Tone_B);
  Tone_A_Select();
}

void Tone_B_Click() {
  Push_Down(Patch_MKS70.Tone_B);
  Push_Up(Patch_MKS70.Tone_A);
  Tone_B_Select();
}

void MKS70_Load() {
  Patch_MKS70.width = Patch_MKS70_Width_px * Twips_Per_Pixel();
  Patch_MKS70.height = Patch_MKS70_Height_px * Twips_Per_Pixel();
  MKS70_Patch_Name = "TEST PATCH MKS-70";
  Patch_MKS70.Patch_Name.Set_Text(MKS70_Patch_Name);
  Fill_Lists();
  Tone_A_Click();
  MKS70_Layout();
}

void MKS70_Unload() {
  if (!MELVOR.Menu_Windows_SavePos.checked()) return;
  Patch_Left = Patch_MKS70.left;
  Patch_Top = Patch_MKS70.top;
}

}  // namespace

// The two are not mirror images: only B shows its split point again.
void Tone_A_Select() {
  MKS70_Patch[MKS70_Split_B] = Split_Note();
  MKS70_Patch[MKS70_Tone_B] = Tone_Entry();
  Tone_Select = "A";
  Patch_MKS70.Tone_Number.Select(MKS70_Patch[MKS70_Tone_A]);
  Show_Detune();
}

void Tone_B_Select() {
  Tone_Select = "B";
  MKS70_Patch[MKS70_Split_A] = Split_Note();
  MKS70_Patch[MKS70_Tone_A] = Tone_Entry();
  Patch_MKS70.Split_Point.Select(MKS70_Patch[MKS70_Split_B] - Lowest_Note);
  Patch_MKS70.Tone_Number.Select(MKS70_Patch[MKS70_Tone_B]);
  Show_Detune();
}

void MKS70_SetValue(int index, int value) {
  MKS70_Patch[index] = To_Byte(value);
  if (Tone_Loading == Flag_Off) {
    if (index == 1 || index == 5) Show_Value(std::to_string(Shown_99(value)));
    if (index == MKS70_Detune_A || index == MKS70_Detune_B) Show_Value(std::to_string(Bipolar_50(value)));
  }
  MKS70_SendParam(index);
  Tone_Saved = Flag_False;
}

void MKS70_SendParam(int index) {
  const int value = MKS70_Patch[index];
  if (Autosend != 1 || MIDI_Enabled != 1) return;
  SysEx_Param_Send("F0 41 36 " + SysEx_Unit() + " 21 30 01 ", index, value);
}

void MKS70_Wire() {
  const Patch_Knob knob{Patch_MKS70.UDTune, Patch_MKS70.UDTune_Knopf, Detune, Set_Detune, Detune_Circle};
  Wire_Patch_Knob(knob, Patch_MKS70.UDTune, Fine_Dot_Key, Key_Circle);
  Wire_Patch_Knob(knob, Patch_MKS70.UDTune_Knopf, Fine_Dot_Key, Key_Circle);
  Patch_MKS70.Tone_A.on_click = Tone_A_Click;
  Patch_MKS70.Tone_B.on_click = Tone_B_Click;
  Patch_MKS70.Split_Point.on_click = [] {
    MKS70_Patch[Tone_Select == "A" ? MKS70_Split_A : MKS70_Split_B] = Split_Note();
  };
  Patch_MKS70.on_load = MKS70_Load;
  Patch_MKS70.on_unload = MKS70_Unload;
  Close_On_Escape(Patch_MKS70);
}
