#include "platform/controls.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

Control::Control(Form& owner_form, Kind control_kind, std::string_view control_name)
    : Component(control_name), form(owner_form), container(nullptr), kind(control_kind) {
  form.controls.push_back(this);
}

Control::Control(Control& owner_container, Kind control_kind, std::string_view control_name)
    : Component(control_name), form(owner_container.form), container(&owner_container), kind(control_kind) {
  form.controls.push_back(this);
}

bool Blinks(const Control& control) {
  return control.kind == Kind::Picture_Box && static_cast<const Picture_Box&>(control).blinks;
}

void Control::Place(int left_px, int top_px, int width_px, int height_px) {
  left = left_px;
  top = top_px;
  width = width_px;
  height = height_px;
}

void Label::Set_Caption(std::string_view text) {
  caption = std::string(text);
  if (on_change) on_change();
}

void Text_Box::Set_Text(std::string_view new_text) {
  const std::string_view cut = max_length > 0 ? First_Characters(new_text, max_length) : new_text;
  if (text() == cut) return;
  text = std::string(cut);
  selection_start = 0;
  selection_length = 0;
  if (on_change) on_change();
}

void Text_Box::Select_All() {
  selection_start = 0;
  selection_length = Character_Count(text());
}

void Check_Box::Set_Value(bool new_value) {
  if (value() == new_value) return;
  value = new_value;
  if (on_click) on_click();
}

void List_Control::Clear() {
  items = std::vector<std::string>();
  index = -1;
}

void List_Control::Add_Item(std::string item) {
  std::vector<std::string> entries = items();
  const auto place = sorted ? std::upper_bound(entries.begin(), entries.end(), item,
                                               [](const std::string& one, const std::string& other) {
                                                 return Upper(one) < Upper(other);
                                               })
                            : entries.end();
  entries.insert(place, std::move(item));
  items = std::move(entries);
}

void List_Control::Select(int new_index) {
  if (new_index < -1 || new_index >= Count()) throw Runtime_Error(Error_Bad_Property_Value);
  index = new_index;
  if (on_click) on_click();
}

std::string List_Control::Selected_Text() const { return index() < 0 ? std::string() : Item(index()); }

const std::string& List_Control::Item(int item_index) const {
  if (item_index < 0 || item_index >= Count()) throw Runtime_Error(Error_Bad_Property_Value);
  return items()[static_cast<std::size_t>(item_index)];
}

void Scroll_Bar::Set_Value(int new_value) {
  if (new_value < minimum() || new_value > maximum()) throw Runtime_Error(Error_Bad_Property_Value);
  if (value() == new_value) return;
  value = new_value;
  if (on_change) on_change();
}

void Canvas::Clear() { painted = std::vector<Painted_Picture>(); }

void Canvas::Paint(Picture new_picture, int left_px, int top_px) {
  const Painted_Picture stroke{new_picture, left_px, top_px};
  const auto same_place = [&](const Painted_Picture& one) {
    return one.left_px == left_px && one.top_px == top_px;
  };
  std::vector<Painted_Picture> strokes = painted();
  const auto old = std::find_if(strokes.begin(), strokes.end(), same_place);
  if (old != strokes.end()) {
    *old = stroke;
  } else {
    strokes.push_back(stroke);
  }
  painted = std::move(strokes);
}

void Line::Set(int from_x, int from_y, int to_x, int to_y) {
  x1 = from_x;
  y1 = from_y;
  x2 = to_x;
  y2 = to_y;
}

std::string Spoken_Value(const Control& control) {
  if (control.spoken_value) return control.spoken_value();
  if (control.kind != Kind::Picture_Box) return {};
  const auto& is_on = static_cast<const Picture_Box&>(control).is_on;
  if (!is_on) return {};
  return is_on() ? "on" : "off";
}

bool Shown_In_Form(const Control& control) {
  for (const Control* part = &control; part != nullptr; part = part->container) {
    if (!part->visible()) return false;
  }
  return true;
}

bool Enabled_In_Form(const Control& control) {
  for (const Control* part = &control; part != nullptr; part = part->container) {
    if (!part->enabled()) return false;
  }
  return true;
}

bool Can_Take_Focus(const Control& control) {
  const bool display_only =
      control.kind == Kind::Label || control.kind == Kind::Line || control.kind == Kind::Frame_Box;
  return !display_only && control.tab_index >= 0 && Shown_In_Form(control) && Enabled_In_Form(control);
}
