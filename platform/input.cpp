#include "platform/input.h"

#include <algorithm>

#include "platform/dispatch.h"
#include "platform/text.h"

namespace {

void Run(const std::function<void()>& handler) {
  if (handler) Dispatch(handler);
}

template <class Event>
void Run(const std::function<void(Event&)>& handler, Event& event) {
  if (handler) Dispatch([&] { handler(event); });
}

void Run(const std::function<void(const Mouse_Event&)>& handler, const Mouse_Event& event) {
  if (handler) Dispatch([&] { handler(event); });
}

// The text of a shortcut as the menus write it: "Ctrl+N", "F1"; empty for a key that cannot be one.
std::string Shortcut_Of(const Key_Event& key) {
  const bool letter = key.code >= Key::Letter_A && key.code <= Key::Letter_A + 25;
  if (letter && key.shift == Ctrl_Key) return std::string("Ctrl+") + static_cast<char>(key.code);
  if (key.code >= Key::F1 && key.code < Key::F1 + 12 && key.shift == 0) {
    return "F" + std::to_string(key.code - Key::F1 + 1);
  }
  return {};
}

Menu_Item* Find_Shortcut(const std::vector<Menu_Item*>& items, std::string_view shortcut) {
  for (Menu_Item* item : items) {
    if (item->shortcut == shortcut) return item;
    if (Menu_Item* found = Find_Shortcut(item->items, shortcut)) return found;
  }
  return nullptr;
}

bool Run_Shortcut(const Form& form, const Key_Event& key) {
  const std::string shortcut = Shortcut_Of(key);
  if (shortcut.empty() || form.role == Form_Role::Independent || Frame_Form() == nullptr) return false;
  Menu_Item* item = Find_Shortcut(Frame_Form()->menus, shortcut);
  if (item == nullptr || !Can_Choose(*item)) return false;
  if (!key.repeated) Choose(*item);  // a held Ctrl+R would push the sound out of the one level of undo
  return true;
}

// The keys by which a frame's children are changed and closed. A window that the program has locked is passed
// over; a dialog that lies behind one that stays usable is reached by them alone.
bool Run_Window_Key(Form& form, const Key_Event& key) {
  if ((key.shift & ~Shift_Key) != Ctrl_Key || form.role == Form_Role::Independent) return false;
  if (key.code == Key::Tab || key.code == Key::F6) {
    Form* next = Next_Child(form, (key.shift & Shift_Key) != 0);
    if (next == nullptr) return true;
    Dispatch([next] { Bring_To_Front(*next); });
    User_Activated(*next);
    return true;
  }
  if (key.code != Key::F4 || key.shift != Ctrl_Key || form.role != Form_Role::Child ||
      form.border == Border::None)
    return false;
  if (!key.repeated) User_Closes(form);
  return true;
}

bool Opens_Menu(const Form& form, const Key_Event& key) {
  return form.role != Form_Role::Independent && Menu_Opened_By(key) != nullptr;
}

std::string_view Caption_Of(const Control& control) {
  switch (control.kind) {
    case Kind::Label:
      return static_cast<const Label&>(control).caption();
    case Kind::Command_Button:
      return static_cast<const Command_Button&>(control).caption();
    case Kind::Check_Box:
      return static_cast<const Check_Box&>(control).caption();
    default:
      return {};
  }
}

bool Run_Access_Key(Form& form, const Key_Event& key) {
  if (key.shift != Alt_Key) return false;
  for (Control* control : form.controls) {
    if (Access_Key(Caption_Of(*control)) != key.code) continue;
    if (!Shown_In_Form(*control) || !Enabled_In_Form(*control)) continue;
    if (control->kind == Kind::Label) {
      Dispatch([&] { Set_Focus(Next_In_Tab_Order(*control, false)); });
    } else {
      Dispatch([&] { Set_Focus(*control); });
      if (control->kind == Kind::Command_Button) User_Clicked(static_cast<Command_Button&>(*control));
      if (control->kind == Kind::Check_Box) {
        auto& box = static_cast<Check_Box&>(*control);
        User_Checked(box, !box.value());
      }
    }
    return true;
  }
  return false;
}

bool Click_Button(Form& form, bool Command_Button::*which) {
  for (Control* control : form.controls) {
    if (control->kind != Kind::Command_Button) continue;
    auto& button = static_cast<Command_Button&>(*control);
    if (!(button.*which) || !Shown_In_Form(button) || !Enabled_In_Form(button)) continue;
    User_Clicked(button);
    return true;
  }
  return false;
}

struct Mouse_Target {
  Control& control;
  Mouse_Event event;
};

// The control that the mouse works, with the place in its own pixels.
Mouse_Target Target(Control& pressed, Mouse_Event event) {
  Control* control = &pressed;
  while (control->mouse_through && control->container != nullptr) {
    event.x += static_cast<float>(control->left());
    event.y += static_cast<float>(control->top());
    control = control->container;
  }
  return {*control, event};
}

// More keys than any way from one end of a scale to the other needs.
constexpr int Most_Keys = 128;
// One key may leave the number as it was, where two bytes show the same one; the next changes it, or none
// does.
constexpr int Most_Idle_Keys = 2;

bool Can_Work(const Control& control) {
  return control.form.Loaded() && control.form.enabled() && Shown_In_Form(control) &&
         Enabled_In_Form(control);
}

// The arrow keys do nothing on some knobs.
int Step_Key(const Picture_Box& element, bool upwards) {
  if (element.role == Role::Knob) return upwards ? Key::Keypad_Plus : Key::Keypad_Minus;
  return upwards ? Key::Up : Key::Down;
}

void Press_Key(Picture_Box& element, int key_code) {
  User_Focused(element);
  Key_Down(element.form, &element, {key_code, 0}, 0);
}

bool Ordinary_Work(Form& form, Control* control, const Key_Event& key) {
  const bool plain = (key.shift & ~Shift_Key) == 0;
  if (key.code == Key::Tab && plain && control != nullptr) {
    Dispatch([&] { Set_Focus(Next_In_Tab_Order(*control, (key.shift & Shift_Key) != 0)); });
    return true;
  }
  if (key.code == Key::Enter && plain) {
    if (control != nullptr && control->kind == Kind::Command_Button) {
      User_Clicked(static_cast<Command_Button&>(*control));
      return true;
    }
    return Click_Button(form, &Command_Button::is_default);
  }
  if (key.code == Key::Escape && plain) return Click_Button(form, &Command_Button::is_cancel);
  return Run_Access_Key(form, key);
}

}  // namespace

bool Key_Down(Form& form, Control* control, Key_Event key, int character) {
  if (!form.enabled()) return true;
  if (Is_Modifier(key.code)) return false;
  if (Run_Shortcut(form, key) || Run_Window_Key(form, key)) return true;
  const bool form_first = form.key_preview || control == nullptr;
  if (form_first) Run(form.on_key_down, key);
  if (key.code != 0 && control != nullptr && !Opens_Menu(form, key)) Run(control->on_key_down, key);
  if (key.code == 0 || !form.Loaded()) return true;
  if (character != 0) {
    if (form_first) Run(form.on_key_press, character);
    if (character != 0 && control != nullptr) Run(control->on_key_press, character);
    if (character == 0 || !form.Loaded()) return true;
  }
  return Ordinary_Work(form, control, key);
}

void Mouse_Down(Control& pressed, const Mouse_Event& pressed_event) {
  auto [control, event] = Target(pressed, pressed_event);
  if (!control.form.enabled()) {
    if (Frame_Form() != nullptr) Run(Frame_Form()->on_click);
    return;
  }
  if (!Enabled_In_Form(control)) return;
  Dispatch([&target = control] {
    Activate(target.form);
    Set_Focus(target);
  });
  Run(control.on_mouse_down, event);
}

void Mouse_Move(Control& pressed, const Mouse_Event& pressed_event) {
  auto [control, event] = Target(pressed, pressed_event);
  if (control.form.enabled() && Enabled_In_Form(control)) Run(control.on_mouse_move, event);
}

void Mouse_Up(Control& pressed, const Mouse_Event& pressed_event, bool inside) {
  auto [control, event] = Target(pressed, pressed_event);
  if (!control.form.enabled() || !Enabled_In_Form(control)) return;
  Run(control.on_mouse_up, event);
  if (inside && event.button == Left_Button && control.form.Loaded()) Run(control.on_click);
}

void Mouse_Double(Control& pressed, const Mouse_Event& pressed_event) {
  auto [control, event] = Target(pressed, pressed_event);
  if (!control.on_double_click) return Mouse_Down(control, event);
  if (control.form.enabled() && Enabled_In_Form(control)) Run(control.on_double_click);
}

void Form_Pressed(Form& form) {
  if (!form.enabled()) {
    if (Frame_Form() != nullptr) Run(Frame_Form()->on_click);
    return;
  }
  Dispatch([&] {
    if (form.role != Form_Role::Frame) Activate(form);
  });
  Run(form.on_click);
}

void User_Clicked(Command_Button& button) {
  if (button.form.enabled() && Enabled_In_Form(button)) Run(button.on_click);
}

void User_Checked(Check_Box& box, bool value) {
  Dispatch([&] { box.Set_Value(value); });
}

void User_Selected(List_Control& list, int index) {
  Dispatch([&] { list.Select(index); });
}

void User_Scrolled(Scroll_Bar& bar, int value) {
  Dispatch([&] { bar.Set_Value(value); });
}

void User_Typed(Text_Box& box, std::string_view text, int selection_start, int selection_length) {
  Dispatch([&] {
    box.Set_Text(text);
    box.selection_start = selection_start;
    box.selection_length = selection_length;
  });
}

void User_Stepped(Picture_Box& element, bool upwards) {
  if (Can_Work(element)) Press_Key(element, Step_Key(element, upwards));
}

// The ends have keys of their own, which reach the last byte too. The way ends where the keys pass the value,
// since not every number can be reached, and where they change it no more.
void User_Turned(Picture_Box& element, int value) {
  const Scale& scale = element.scale;
  if (scale.lowest == scale.highest || !Can_Work(element)) return;
  const int wanted = std::clamp(value, scale.lowest, scale.highest);
  const bool upwards = wanted > scale.value();
  const auto away = [&] { return upwards ? wanted - scale.value() : scale.value() - wanted; };
  if (away() > 0 && wanted == scale.highest) Press_Key(element, Key::Home);
  if (away() > 0 && wanted == scale.lowest) Press_Key(element, Key::End);
  int idle = 0;
  for (int keys = 0; keys < Most_Keys && idle < Most_Idle_Keys && Can_Work(element) && away() > 0; ++keys) {
    const int before = scale.value();
    if (away() >= scale.page) {
      Press_Key(element, upwards ? Key::Page_Up : Key::Page_Down);
    } else {
      Press_Key(element, Step_Key(element, upwards));
    }
    idle = scale.value() == before ? idle + 1 : 0;
  }
}

void User_Pressed(Control& control, const Mouse_Event& place) {
  if (!Can_Work(control)) return;
  Mouse_Down(control, place);
  if (control.form.Loaded()) Mouse_Up(control, place, true);
}

void User_Focused(Control& control) {
  if (Focused_Control() != &control) Dispatch([&] { Set_Focus(control); });
}

void User_Activated(Form& form) {
  Dispatch([&] { Activate(form); });
}

void User_Closes(Form& form) {
  if (form.role == Form_Role::Child && !form.enabled()) return;
  Dispatch([&] { Unload(form); });
}

void User_Placed(Form& form, int left, int top, int width, int height) {
  form.left = left;
  form.top = top;
  form.width = width;
  form.height = height;
}
