#include <string>

#include "panel/editor.h"
#include "panel/editor_tables.h"
#include "panel/element_looks.h"
#include "windows/pictures.h"

namespace {

constexpr Picture Editor_Background{"editor-background"};
constexpr Picture Logo{"logo"};
constexpr Picture Badge{"badge"};
constexpr int Buttons_Top_px = 223;

void Assign_Sliders() {
  for (const Slider_Row& row : Editor_Sliders()) {
    Picture_Box& element = Editor.*row.element;
    Lay_Slider(element, row.left, row.range.bottom);
    Name_Element(element, row.tab, row.help, row.spoken);
  }
}

void Assign_Switches() {
  for (const Switch_Row& row : Editor_Switches()) {
    Picture_Box& element = Editor.*row.element;
    Lay_Switch(element, row.tag, row.left, row.range.bottom);
    Name_Element(element, row.tab, row.help, row.spoken);
  }
}

void Assign_Knobs() {
  for (const Knob_Row& row : Editor_Knobs()) {
    Picture_Box& body = Editor.*row.body;
    Picture_Box& dot = Editor.*row.dot;
    Lay_Knob(body, dot, row.tag, row.left, row.top);
    Name_Element(body, row.body_tab, row.help, row.spoken);
    Name_Element(dot, row.dot_tab, row.help, std::string(row.spoken) + " dot");
  }
}

void Assign_Button(Picture_Box& button, Picture_Box& symbol, Picture picture, int left, int tab,
                   std::string_view spoken) {
  Lay_Push_Button(button, symbol, picture, left, Buttons_Top_px);
  Name_Element(button, tab, 0, spoken);
  button.tool_tip = std::string(spoken);
}

void Assign_Picture(Picture_Box& element, Picture picture, std::string_view spoken) {
  element.picture = picture;
  Name_Element(element, -1, 0, spoken);
}

void Assign_Others() {
  Assign_Button(Editor.ED_Seq_Start, Editor.ED_Seq_Start_Pic, Start_Disabled, 188, 46, "Start sequencer");
  Assign_Button(Editor.ED_Seq_Stop, Editor.ED_Seq_Stop_Pic, Stop_Disabled, 261, 47, "Stop sequencer");
  Editor.Keys_Pic.picture = Buttons(Keyboard_Up);
  Name_Element(Editor.Keys_Pic, 50, 0, "Play a chord");
  Editor.Keys_Pic.role = Role::Button;
  Editor.Keys_Pic.Place(214, Buttons_Top_px, 43, 22);
  Editor.Keys_Pic.tool_tip = "Left button: play; right button: all notes off";
  Assign_Picture(Editor.Pic_MELVOR, Logo, "MELVOR");
  Editor.Pic_MELVOR.Place(181, 150, 110, 50);
  Assign_Picture(Editor.Pic_Badge, Badge, "JX-8P");
  Editor.Pic_Badge.Place(196, 200, 79, 14);

  Text_Box& name = Editor.Tone_Name;
  name.Place(105, 291, 121, 18);
  name.tab_index = 54;
  name.read_only = true;
  name.own_colors = true;
  name.fore_color = Cyan;
  name.back_color = Black;
  name.spoken_name = "Tone name";
  name.tool_tip = "Click to name the tone";
}

}  // namespace

void Pics_Assign() {
  Editor.Back_Pic.picture = Editor_Background;
  Editor.Back_Pic.spoken_name = "Tone panel";
  Editor.Back_Pic.Place(0, 0, Editor_Width_px, Editor_Height_px);
  Assign_Sliders();
  Assign_Switches();
  Assign_Knobs();
  Assign_Others();
}
