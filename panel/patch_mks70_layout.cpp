#include <array>
#include <string>

#include "panel/element_looks.h"
#include "panel/patch_mks70.h"
#include "windows/patch_mks70_window.h"

namespace {

using M = Patch_MKS70_Window;

constexpr Picture Background{"mks70-background"};
constexpr Picture Letter_A{"tone-a"};
constexpr Picture Letter_B{"tone-b"};
constexpr int No_Tab = -1;
constexpr int Light_Row_px = 15;
constexpr int Dot_Top_px = 5;
constexpr int Buttons_Top_px = 277;

struct Element_Row {
  Picture_Box M::*element;
  int left;
  int top;
  std::string_view spoken;
};

constexpr std::array Slider_Rows{
    Element_Row{&M::Portamento, 165, 236, "Portamento time"},
    Element_Row{&M::Chase_Level, 8, 235, "Chase level"},
    Element_Row{&M::Chase_Time, 47, 235, "Chase time"},
    Element_Row{&M::LFO_Mod_Depth, 211, 397, "LFO modulation depth"},
    Element_Row{&M::Total_Volume, 276, 236, "Total volume"},
    Element_Row{&M::AFT_Vibrato, 143, 103, "After touch vibrato"},
    Element_Row{&M::AFT_Brilliance, 182, 103, "After touch brilliance"},
    Element_Row{&M::AFT_Volume, 221, 103, "After touch volume"},
};

constexpr std::array Switch_Rows{
    Element_Row{&M::Bend_range, 221, 196, "Bend range"},
    Element_Row{&M::Portamento_Sw, 84, 393, "Portamento"},
    Element_Row{&M::Bender, 128, 393, "Bender"},
    Element_Row{&M::Hold, 169, 393, "Hold"},
    Element_Row{&M::Chase_Play, 85, 235, "Chase playback"},
};

struct Knob_Row {
  Picture_Box M::*body;
  Picture_Box M::*dot;
  int left;
  int top;
  int tab;  // of the body; its dot follows
  std::string_view spoken;
};

constexpr std::array Knob_Rows{
    Knob_Row{&M::UL_Balance, &M::UL_Balance_Knopf, 76, 29, No_Tab, "Balance"},
    Knob_Row{&M::Dual_Detune, &M::Dual_Detune_Knopf, 76, 91, No_Tab, "Dual detune"},
    Knob_Row{&M::Chromatic_Shift, &M::Chromatic_Shift_Knopf, 111, 335, No_Tab, "Chromatic shift"},
    Knob_Row{&M::UDTune, &M::UDTune_Knopf, 165, 335, 4, "Unison detune"},
};

template <std::size_t count>
void Lay_Group(std::array<Picture_Box, count>& lights, int left, int top, int row_px,
               std::string_view spoken) {
  for (Picture_Box& light : lights) {
    Lay_Light(light, left, top);
    light.tag = "led";
    light.blinks = true;
    Name_Element(light, No_Tab, 0, spoken);
    top += row_px;
  }
}

void Lay_Elements() {
  for (const Element_Row& row : Slider_Rows) {
    Lay_Slider(Patch_MKS70.*row.element, row.left, row.top);
    Name_Element(Patch_MKS70.*row.element, No_Tab, 0, row.spoken);
  }
  for (const Element_Row& row : Switch_Rows) {
    Lay_Switch(Patch_MKS70.*row.element, "br", row.left, row.top);
    Name_Element(Patch_MKS70.*row.element, No_Tab, 0, row.spoken);
  }
  for (const Knob_Row& row : Knob_Rows) {
    Picture_Box& dot = Patch_MKS70.*row.dot;
    Lay_Knob(Patch_MKS70.*row.body, dot, "kn2fp", row.left, row.top, Dot_Top_px);
    Name_Element(Patch_MKS70.*row.body, row.tab, 0, row.spoken);
    Name_Element(dot, row.tab == No_Tab ? No_Tab : row.tab + 1, 0, std::string(row.spoken) + " dot");
  }
}

// The pressed button stays pressed: only its place is given, its look is the load's.
void Lay_Tone_Button(Picture_Box& button, Picture_Box& symbol, Picture picture, int left, int tab,
                     std::string_view spoken) {
  const Picture look = button.picture;
  const int symbol_place = symbol.left;
  Lay_Push_Button(button, symbol, picture, left, Buttons_Top_px);
  Name_Element(button, tab, 0, spoken);
  button.picture = look;
  symbol.left = symbol_place;
  symbol.top = symbol_place;
}

void Lay_Name() {
  Text_Box& name = Patch_MKS70.Patch_Name;
  name.Place(117, 278, 210, 16);
  name.read_only = true;
  name.own_colors = true;
  name.fore_color = Green;
  name.back_color = Black;
  name.spoken_name = "Patch name";
}

void Lay_List(Combo_Box& list, int top, int tab, std::string_view spoken) {
  list.Place(16, top, 64, 21);
  list.tab_index = tab;
  list.spoken_name = spoken;
}

}  // namespace

void MKS70_Layout() {
  Patch_MKS70.picture = Background;
  Lay_Group(Patch_MKS70.Key_Mode, 8, 23, Light_Row_px, "Key mode");
  Lay_Group(Patch_MKS70.Chase_Mode, 86, 189, -Light_Row_px, "Chase mode");
  Lay_Group(Patch_MKS70.Key_Assign, 255, 322, Light_Row_px, "Key assign");
  Lay_Elements();
  Lay_Tone_Button(Patch_MKS70.Tone_A, Patch_MKS70.Tone_A_Pic, Letter_A, 6, 0, "Tone A");
  Lay_Tone_Button(Patch_MKS70.Tone_B, Patch_MKS70.Tone_B_Pic, Letter_B, 35, 1, "Tone B");
  Lay_Name();
  Lay_List(Patch_MKS70.Tone_Number, 331, 2, "Tone number");
  Lay_List(Patch_MKS70.Split_Point, 383, 3, "Split point");
}
