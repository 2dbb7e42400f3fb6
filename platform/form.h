// Forms: the windows as a whole, and the order in which they load, show, change and go.
// User-interface thread only.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/events.h"
#include "platform/picture.h"
#include "platform/property.h"

struct Control;
struct Menu_Item;
struct Timer;

enum class Form_Role {
  Frame,        // the one that holds the others; its closing ends the program
  Child,        // a window inside the frame
  Independent,  // a window of its own that locks all others while it is shown
};

enum class Border {
  None,     // fixed at the frame's top left corner
  Fixed,    // title bar, fixed size
  Sizable,  // the frame's
};

enum class Window_State { Normal = 0, Minimized = 1, Maximized = 2 };

struct Form : Component {
  Form(Form_Role form_role, std::string_view form_name);
  ~Form() override;

  const Form_Role role;
  Border border = Border::Fixed;
  bool bottom = false;       // stays below all other children
  bool key_preview = false;  // sees keys before its controls

  Property<std::string> caption{*this};
  Property<bool> modified{*this, false};  // the title bears the desktop's mark of a changed document
  // Place in twips: of the screen for the frame and an independent window, else of the frame's inside. The
  // size is that of the inside of the window, without title bar and borders, but for the frame, whose size is
  // the whole.
  Property<int> left{*this, 0}, top{*this, 0}, width{*this, 0}, height{*this, 0};
  Property<bool> visible{*this, false};
  Property<bool> enabled{*this, true};
  Property<Window_State> state{*this, Window_State::Normal};
  Property<Pointer_Shape> pointer{*this, Pointer_Shape::Default};
  Property<Picture> picture{*this};  // background, from the top left corner
  Property<Color> back_color{*this, Color{212, 208, 200}};
  Property<bool> own_colors{*this, false};  // false: the desktop's background

  std::vector<Control*> controls;  // in the order of their construction: later ones lie over earlier ones
  std::vector<Timer*> timers;
  std::vector<Menu_Item*> menus;  // top-level items, for the frame

  std::function<void()> on_load, on_unload, on_activate, on_deactivate, on_click;
  // Sets cancel to true to keep the form open.
  std::function<void(bool& cancel)> on_query_unload;
  std::function<void(Key_Event&)> on_key_down;  // with key_preview, or when no control has the focus
  std::function<void(int&)> on_key_press;

  Control* focus = nullptr;  // the control that has the focus when the form is active

  bool Loaded() const { return loaded_; }

 private:
  friend struct Form_Stack;
  bool loaded_ = false;
};

// Runs on_load if the form is not loaded yet. What it raises passes on to the caller; the form counts as
// loaded.
void Load(Form& form);

// Loads the form, shows it, brings it to the front and activates it. Returns at once, for an independent form
// too (whoever must wait for it does so). A form whose load raised is shown before the error passes on, so
// that it can be closed.
void Show(Form& form);

// Closes the form: query, then unload, then its controls are back at their design values. For the frame: the
// frame's query, the children's queries, the unloads of independent forms, of the children and of the frame.
// False if a query refused: then nothing was closed. True at once if the form is not loaded. A form that
// closes takes no more of the user's events, whatever its handlers let run.
bool Unload(Form& form);

// Fills on_key_down: Escape, wherever it is typed in the form, closes it. REQUIRES: key_preview.
void Close_On_Escape(Form& form);

// Puts the form in front of the other children; loads it if need be.
void Bring_To_Front(Form& form);

// The loaded frame, nullptr before it loads.
Form* Frame_Form();

// The active form, nullptr for none.
Form* Active_Form();

// Makes the form the active one, with its own control getting the focus (the first in tab order at first).
// In order: lost focus, deactivate, activate, got focus. Does nothing for a form that is hidden or disabled,
// or active already.
void Activate(Form& form);

// Gives the control the focus, activating its form first. Does nothing if the control or its form cannot take
// it.
void Set_Focus(Control& control);

// The next or previous child, in the order of loading and around the end, that can be the active one. nullptr
// if there is none.
Form* Next_Child(const Form& form, bool backwards);

// The next or previous control in tab order of the control's form, around the end. The control itself if
// alone.
Control& Next_In_Tab_Order(Control& control, bool backwards);

// The control that has the focus now, nullptr for none.
Control* Focused_Control();

// How many forms are visible.
int Open_Windows();

// The loaded child forms, in the order of their loading.
const std::vector<Form*>& Loaded_Children();
