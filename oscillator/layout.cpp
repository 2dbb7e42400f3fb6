#include <string>

#include "oscillator/curve.h"
#include "oscillator/targets.h"
#include "oscillator/window.h"
#include "panel/element_looks.h"
#include "platform/table.h"
#include "windows/pictures.h"

namespace {

using O = Oscillator_Window;

constexpr Picture Oscillator_Background{"oscillator-background"};
constexpr int Buttons_Top_px = 138;
constexpr int Bar_Top_px = 22;
constexpr int Bar_Width_px = 15;
constexpr int Bar_Height_px = 100;
constexpr int Value_Height_px = 13;

struct Bar_Row {
  Scroll_Bar O::*bar;
  Label O::*value;
  int left;
  int value_left;
  int tab;
  std::string_view spoken;
  std::string_view tip;
};

constexpr std::array Bar_Rows{
    Bar_Row{&O::VScrollDelta, &O::Label3, 9, 7, 0, "Offset", "Offset: moves the curve up and down"},
    Bar_Row{&O::VScrollA, &O::Label4, 37, 35, 1, "Amplitude", "Amplitude: the height of the curve"},
    Bar_Row{&O::Osc_Time, &O::Label1, 66, 63, 2, "Step time in milliseconds",
            "Time of one step, in milliseconds"},
};

constexpr int Target_Tab = 3;
constexpr int Invert_Tab = 4;
constexpr int First_Wave_Tab = 5;
constexpr int Start_Tab = 15;
constexpr int Stop_Tab = 16;

constexpr auto Wave_Names = Full_Table<std::string_view, Osc_Waves>(
    {"Double ramp", "Single ramp", "Square", "Triangle", "Sine", "Rectified sine", "Single pulse",
     "Alternating", "Kept curve", "Random"});

void Place_Value(Label& label, int left, int top, int width) {
  label.Place(left, top, width, Value_Height_px);
  label.alignment = Alignment::Center;
  label.own_colors = true;
  label.fore_color = Cyan;
  label.back_color = Black;
}

void Lay_Bars() {
  for (const Bar_Row& row : Bar_Rows) {
    Scroll_Bar& bar = Oscillator.*row.bar;
    bar.Place(row.left, Bar_Top_px, Bar_Width_px, Bar_Height_px);
    bar.tab_index = row.tab;
    bar.spoken_name = row.spoken;
    bar.tool_tip = std::string(row.tip);
    Place_Value(Oscillator.*row.value, row.value_left, 128, 19);
  }
  Place_Value(Oscillator.Label2, 306, 5, 22);
}

// What has a symbol or no lettering at all tells its name under a resting pointer.
void Name_With_Tip(Picture_Box& element, int tab, std::string_view name) {
  Name_Element(element, tab, 0, name);
  element.tool_tip = std::string(name);
}

void Lay_Lights() {
  Lay_Light(Oscillator.Osc_Invert, 234, 52);
  Oscillator.Osc_Invert.role = Role::Check_Light;
  Name_Element(Oscillator.Osc_Invert, Invert_Tab, 0, "Invert");
  Oscillator.Osc_Invert.tool_tip = "Turns the curve upside down";
  for (int wave = 0; wave < Osc_Waves; ++wave) {
    const auto place = static_cast<std::size_t>(wave);
    Lay_Light(Oscillator.Osc_Wave[place], wave % 2 == 0 ? 234 : 311, 74 + 16 * (wave / 2));
    Name_With_Tip(Oscillator.Osc_Wave[place], First_Wave_Tab + wave, Wave_Names[place]);
  }
}

void Lay_Buttons() {
  Lay_Push_Button(Oscillator.Osc_Start, Oscillator.Osc_Start_Pic, Start_Enabled, 133, Buttons_Top_px);
  Name_With_Tip(Oscillator.Osc_Start, Start_Tab, "Start oscillator");
  Lay_Push_Button(Oscillator.Osc_Stop, Oscillator.Osc_Stop_Pic, Stop_Enabled, 163, Buttons_Top_px);
  Name_With_Tip(Oscillator.Osc_Stop, Stop_Tab, "Stop oscillator");
}

void Color_Lines() {
  for (Line& line : Oscillator.VLine) line.color = Grey;
  for (Line* line : {&Oscillator.HLine, &Oscillator.ZLine1, &Oscillator.ZLine2}) line->color = Grey;
  for (Line& line : Oscillator.Line1) line.color = Cyan;
  Oscillator.TimeLine.color = Green;
}

}  // namespace

void Osc_Layout() {
  Oscillator.picture = Oscillator_Background;
  Oscillator.Picture1.Place(98, 5, 130, 130);
  Oscillator.Picture1.spoken_name = "Curve";
  Oscillator.Picture1.tool_tip = "Draw with the left button held";
  Color_Lines();
  Lay_Bars();
  Lay_Lights();
  Lay_Buttons();
  Oscillator.Combo1.Place(233, 25, 147, 21);
  Oscillator.Combo1.tab_index = Target_Tab;
  Oscillator.Combo1.spoken_name = "Target";
  Oscillator.Combo1.tool_tip = "The parameter that the curve moves";
  Oscillator.Combo1.Clear();
  for (const Osc_Target& target : Osc_Targets()) Oscillator.Combo1.Add_Item(std::string(target.text));
}
