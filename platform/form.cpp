#include "platform/form.h"

#include <algorithm>

#include "platform/controls.h"
#include "platform/timer.h"

// The loaded forms and the active one.
struct Form_Stack {
  // Never destroyed: where the toolkit ends the process, forms that are loaded still leave them.
  static inline std::vector<Form*>& children = *new std::vector<Form*>;
  static inline std::vector<Form*>& others = *new std::vector<Form*>;
  static inline Form* active = nullptr;

  static std::vector<Form*>& List_Of(const Form& form) {
    return form.role == Form_Role::Child ? children : others;
  }

  static void Set_Loaded(Form& form) {
    form.loaded_ = true;
    form.Keep_Design();
    for (Control* control : form.controls) control->Keep_Design();
    for (Timer* timer : form.timers) timer->Keep_Design();
    List_Of(form).push_back(&form);
    for (Timer* timer : form.timers) timer->Changed();
  }

  static void Set_Unloaded(Form& form) {
    The_Desktop().Form_Unloaded(form);
    std::erase(List_Of(form), &form);
    form.Restore_Design();
    for (Control* control : form.controls) control->Restore_Design();
    for (Timer* timer : form.timers) {
      timer->Restore_Design();
      timer->Stop();
    }
    form.visible = false;
    form.focus = nullptr;
    form.loaded_ = false;
  }

  static void Leave_Active() {
    if (active == nullptr) return;
    Form& left = *active;
    if (left.focus != nullptr && left.focus->on_lost_focus) left.focus->on_lost_focus();
    active = nullptr;
    if (left.on_deactivate) left.on_deactivate();
  }
};

namespace {

Control* First_In_Tab_Order(const Form& form) {
  Control* first = nullptr;
  for (Control* control : form.controls) {
    if (!Can_Take_Focus(*control)) continue;
    if (first == nullptr || control->tab_index < first->tab_index) first = control;
  }
  return first;
}

bool Can_Be_Active(const Form& form) { return form.Loaded() && form.visible() && form.enabled(); }

void Enter_Form(Form& form, Control* control) {
  Form_Stack::Leave_Active();
  Form_Stack::active = &form;
  form.focus = control;
  if (form.on_activate) form.on_activate();
  if (Form_Stack::active != &form || form.focus != control) return;  // the handler went elsewhere
  The_Desktop().Show_Focus(form, control);
  if (control != nullptr && control->on_got_focus) control->on_got_focus();
}

// Tells the desktop that a form is ready when its load ends, by a failure too.
struct Ready_When_Left {
  ~Ready_When_Left() {
    if (form.role != Form_Role::Frame && form.Loaded()) The_Desktop().Form_Loaded(form);
  }
  Form& form;
};

bool Refuses_Unload(Form& form) {
  bool cancel = false;
  if (form.on_query_unload) form.on_query_unload(cancel);
  return cancel;
}

// Holds a form that closes out of the user's reach: what its handlers let run must not work it, nor close it
// once more. One that stays open after all is as before.
struct Out_Of_Reach {
  explicit Out_Of_Reach(Form& closing) : form(closing), was_enabled(closing.enabled) { form.enabled = false; }
  ~Out_Of_Reach() {
    if (form.Loaded()) form.enabled = was_enabled;
  }
  Form& form;
  const bool was_enabled;
};

void Close(Form& form) {
  const Out_Of_Reach closing{form};
  if (Form_Stack::active == &form) Form_Stack::Leave_Active();
  if (form.on_unload) form.on_unload();
  const bool was_frame = form.role == Form_Role::Frame;
  Form_Stack::Set_Unloaded(form);
  if (!was_frame && Form_Stack::active == nullptr) {
    for (Form* other : std::vector<Form*>(Form_Stack::children.rbegin(), Form_Stack::children.rend())) {
      if (Can_Be_Active(*other)) return Activate(*other);
    }
  }
}

bool Close_Frame(Form& frame) {
  if (Refuses_Unload(frame)) return false;
  const std::vector<Form*> children = Form_Stack::children;
  for (Form* child : children) {
    if (child->Loaded() && Refuses_Unload(*child)) return false;
  }
  if (!frame.Loaded()) return true;  // closed once more, while a query let events run
  const std::vector<Form*> others = Form_Stack::others;
  for (Form* other : others) {
    if (other != &frame) Close(*other);  // a prompt that is open: whoever waits for it goes on
  }
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    if ((*child)->Loaded()) Close(**child);
  }
  Close(frame);
  The_Desktop().Quit();
  return true;
}

}  // namespace

Form::Form(Form_Role form_role, std::string_view form_name) : Component(form_name), role(form_role) {}

Form::~Form() {
  if (loaded_) std::erase(Form_Stack::List_Of(*this), this);
  if (Form_Stack::active == this) Form_Stack::active = nullptr;
}

void Load(Form& form) {
  if (form.Loaded()) return;
  Form_Stack::Set_Loaded(form);
  // The frame's view must stand first, since its load shows children; any other is built of what its load has
  // set.
  if (form.role == Form_Role::Frame) The_Desktop().Form_Loaded(form);
  const Ready_When_Left ready{form};
  if (form.on_load) form.on_load();
}

void Show(Form& form) {
  try {
    Load(form);
  } catch (...) {
    form.visible = true;
    throw;
  }
  if (!form.Loaded()) return;  // its load closed it again
  form.visible = true;
  Bring_To_Front(form);
  if (form.role != Form_Role::Frame) Activate(form);
}

bool Unload(Form& form) {
  if (!form.Loaded()) return true;
  if (form.role == Form_Role::Frame) return Close_Frame(form);
  const Out_Of_Reach closing{form};
  if (Refuses_Unload(form)) return false;
  if (form.Loaded()) Close(form);
  return true;
}

void Close_On_Escape(Form& form) {
  form.on_key_down = [&form](Key_Event& key) {
    if (key.code != Key::Escape) return;
    key.code = 0;
    Unload(form);
  };
}

void Bring_To_Front(Form& form) {
  Load(form);
  if (!form.bottom) The_Desktop().Bring_To_Front(form);
}

Form* Frame_Form() {
  const auto frame = std::ranges::find(Form_Stack::others, Form_Role::Frame, &Form::role);
  return frame == Form_Stack::others.end() ? nullptr : *frame;
}

Form* Active_Form() { return Form_Stack::active; }

void Activate(Form& form) {
  if (!Can_Be_Active(form) || Form_Stack::active == &form) return;
  const bool keeps = form.focus != nullptr && Can_Take_Focus(*form.focus);
  Enter_Form(form, keeps ? form.focus : First_In_Tab_Order(form));
}

void Set_Focus(Control& control) {
  Form& form = control.form;
  if (!Can_Be_Active(form) || !Can_Take_Focus(control)) return;
  if (Form_Stack::active != &form) return Enter_Form(form, &control);
  if (form.focus == &control) return The_Desktop().Show_Focus(form, &control);
  Control* left = form.focus;
  form.focus = &control;
  if (left != nullptr && left->on_lost_focus) left->on_lost_focus();
  if (Form_Stack::active != &form || form.focus != &control) return;  // the handler went elsewhere
  The_Desktop().Show_Focus(form, &control);
  if (control.on_got_focus) control.on_got_focus();
}

Form* Next_Child(const Form& form, bool backwards) {
  std::vector<Form*> order = Form_Stack::children;
  if (backwards) std::ranges::reverse(order);
  const auto here = std::ranges::find(order, &form);
  if (here != order.end()) std::rotate(order.begin(), here + 1, order.end());
  const auto next = std::ranges::find_if(order, [](const Form* child) { return Can_Be_Active(*child); });
  return next == order.end() ? nullptr : *next;
}

Control& Next_In_Tab_Order(Control& control, bool backwards) {
  Control* next = nullptr;
  Control* around = nullptr;
  const auto before = [backwards](const Control& one, const Control& other) {
    return backwards ? one.tab_index > other.tab_index : one.tab_index < other.tab_index;
  };
  for (Control* candidate : control.form.controls) {
    if (!Can_Take_Focus(*candidate)) continue;
    if (before(control, *candidate) && (next == nullptr || before(*candidate, *next))) next = candidate;
    if (around == nullptr || before(*candidate, *around)) around = candidate;
  }
  if (next != nullptr) return *next;
  return around != nullptr ? *around : control;
}

Control* Focused_Control() { return Form_Stack::active == nullptr ? nullptr : Form_Stack::active->focus; }

int Open_Windows() {
  const auto shown = [](const Form* form) { return form->visible(); };
  return static_cast<int>(std::ranges::count_if(Form_Stack::children, shown) +
                          std::ranges::count_if(Form_Stack::others, shown));
}

const std::vector<Form*>& Loaded_Children() { return Form_Stack::children; }
