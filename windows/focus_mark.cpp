#include "windows/focus_mark.h"

#include <algorithm>
#include <array>

#include "platform/form.h"
#include "platform/text.h"
#include "windows/editor_window.h"
#include "windows/help_window.h"
#include "windows/patch_window.h"
#include "windows/pictures.h"

Picture_Box* Active_Ctl = nullptr;
Picture_Box* Saved_Ctl = nullptr;
int Blink_Phase = 0;
int Help_Context = 0;
int Knob_Last_X = 0;

namespace {

using Store = Picture (*)(int index);

struct Mark_Row {
  std::string_view tag;
  Store store;
  int rest;           // place of the picture at rest; the blink shows rest + phase
  Picture_Box* mark;  // the element that shows the mark; nullptr: the selected one
};

constexpr std::string_view Light_Tag = "led";
constexpr std::string_view Caret_Tag = "cur";

const std::array Mark_Rows{
    Mark_Row{"bm", Buttons, Slider_Cap, nullptr},
    Mark_Row{"bl", Buttons, Cap_Left_Lamp, nullptr},
    Mark_Row{"br", Buttons, Cap_Right_Lamp, nullptr},
    Mark_Row{"kn1", Buttons, Knob_Dot, &Editor.DCO1_Tune_Knopf},
    Mark_Row{"kn2", Buttons, Knob_Dot, &Editor.DCO2_Tune_Knopf},
    Mark_Row{"kn2f", Buttons, Knob_Dot, &Editor.DCO2_FTune_Knopf},
    Mark_Row{"kn2fp", Buttons, Knob_Dot, &Patch.UDTune_Knopf},
    Mark_Row{"knh", Buttons, Knob_Dot, &Help.Tune_Knopf},
    Mark_Row{Light_Tag, LED, LED_Dark, nullptr},
};

const Mark_Row* Row_Of(std::string_view tag) {
  const auto row = std::ranges::find(Mark_Rows, tag, &Mark_Row::tag);
  return row == Mark_Rows.end() ? nullptr : &*row;
}

void Show_Mark(const Mark_Row& row, int phase) {
  Picture_Box& element = row.mark == nullptr ? *Active_Ctl : *row.mark;
  if (row.mark == &Patch.UDTune_Knopf) Load(Patch);  // the knob of another window bears the same tag
  element.picture = row.store(row.rest + phase);
}

// The line on a caret's picture takes turns between two colours.
void Show_Caret(const Picture_Box& caret, int phase) {
  for (Control* control : caret.form.controls) {
    if (control->container != &caret || control->kind != Kind::Line) continue;
    static_cast<Line*>(control)->color = phase == 0 ? Black : Cyan;
  }
}

bool Is_Lit(const Picture_Box& light) { return light.is_on && light.is_on(); }

// Elsewhere the frame around the focused control shows where the focus is.
bool Focused_Blinks() {
  const Control* focused = Focused_Control();
  return focused != nullptr && Blinks(*focused);
}

}  // namespace

void Ctl_Blink() {
  if (Active_Ctl == nullptr) return;
  Help_Context = Active_Ctl->help_context;
  if (!Focused_Blinks()) return;
  const std::string tag = Active_Ctl->tag();
  if (tag == Caret_Tag) Show_Caret(*Active_Ctl, Blink_Phase);
  if (const Mark_Row* row = Row_Of(tag)) Show_Mark(*row, Blink_Phase);
}

void Ctl_Deselect() {
  Knob_Last_X = 0;
  if (Active_Ctl == nullptr) return;
  const Mark_Row* row = Row_Of(Lower(Active_Ctl->tag()));
  if (row == nullptr) return;
  Show_Mark(*row, row->tag == Light_Tag && Is_Lit(*Active_Ctl) ? LED_Red - LED_Dark : 0);
}

void Ctl_Select(Picture_Box* element) {
  Ctl_Deselect();
  Active_Ctl = element;
}

void Mark_On_Focus(Picture_Box& element, Picture_Box& mark) {
  element.on_got_focus = [&mark] { Ctl_Select(&mark); };
  element.on_lost_focus = Ctl_Deselect;
}
