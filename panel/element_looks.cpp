#include "panel/element_looks.h"

#include <string>

#include "windows/pictures.h"

namespace {

constexpr int Cap_Size_px = 16;
constexpr int Light_Size_px = 14;
constexpr int Knob_Width_px = 28;
constexpr int Knob_Height_px = 26;
constexpr int Dot_Size_px = 4;
constexpr int Dot_Left_px = 12;
constexpr int Button_Size_px = 22;
constexpr int Symbol_Size_px = 14;
constexpr int Symbol_Left_px = 3;

}  // namespace

void Lay_Slider(Picture_Box& element, int left, int top) {
  element.picture = Buttons(Slider_Cap);
  element.tag = "bm";
  element.role = Role::Slider;
  element.blinks = true;
  element.Place(left, top, Cap_Size_px, Cap_Size_px);
}

void Lay_Switch(Picture_Box& element, std::string_view tag, int left, int top) {
  element.picture = Buttons(tag == "bl" ? Cap_Left_Lamp : Cap_Right_Lamp);
  element.tag = std::string(tag);
  element.role = Role::Switch;
  element.blinks = true;
  element.Place(left, top, Cap_Size_px, Cap_Size_px);
}

void Lay_Light(Picture_Box& light, int left, int top) {
  light.picture = LED(LED_Dark);
  light.role = Role::Choice_Light;
  light.Place(left, top, Light_Size_px, Light_Size_px);
}

void Lay_Knob(Picture_Box& body, Picture_Box& dot, std::string_view tag, int left, int top, int dot_top) {
  body.picture = Buttons(Knob_Body);
  body.tag = std::string(tag);
  body.role = Role::Knob;
  body.blinks = true;
  body.Place(left, top, Knob_Width_px, Knob_Height_px);
  dot.picture = Buttons(Knob_Dot);
  dot.tag = std::string(tag);
  dot.role = Role::Knob;
  dot.blinks = true;
  dot.Place(Dot_Left_px, dot_top, Dot_Size_px, Dot_Size_px);
}

void Lay_Push_Button(Picture_Box& button, Picture_Box& symbol, Picture picture, int left, int top) {
  button.picture = Button_Up3D;
  button.role = Role::Button;
  button.Place(left, top, Button_Size_px, Button_Size_px);
  symbol.picture = picture;
  symbol.mouse_through = true;
  symbol.Place(Symbol_Left_px, Symbol_Left_px, Symbol_Size_px, Symbol_Size_px);
}

void Name_Element(Picture_Box& element, int tab, int help, std::string_view spoken) {
  element.tab_index = tab;
  element.help_context = help;
  element.spoken_name = spoken;
}
