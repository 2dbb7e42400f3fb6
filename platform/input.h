// The user's events on their way into the program. A desktop calls these, one call an event; each runs the
// handlers of windows and controls, catches what they raise (dispatch.h), and does the ordinary work of a key
// that nobody took. User-interface thread only.
#pragma once

#include "platform/controls.h"
#include "platform/events.h"
#include "platform/form.h"
#include "platform/menu.h"

// A key went down in the form while the control (nullptr: none) has the focus. character is what it types, 0
// for none. In order: menu shortcuts and the keys that change and close windows (Ctrl+Tab, Ctrl+F6, Ctrl+F4),
// the form if it sees keys first, the control, the key press, the ordinary work (Tab, default and cancel
// button, access key). A modifier alone reaches nobody, a key that opens a menu no control. Returns true if
// the key has been used up: a text field must not see it.
bool Key_Down(Form& form, Control* control, Key_Event key, int character);

// A button went down on the control. A disabled form takes it as a click on the frame; else the form becomes
// the active one, a control that takes the focus gets it, and the control sees the press.
void Mouse_Down(Control& control, const Mouse_Event& event);
void Mouse_Move(Control& control, const Mouse_Event& event);
// The button went up; inside says whether that was over the control, which makes it a click.
void Mouse_Up(Control& control, const Mouse_Event& event, bool inside);
// The second press of a double click. A control without a handler for it takes it as a plain press.
void Mouse_Double(Control& control, const Mouse_Event& event);
// A press on the form itself, beside all controls.
void Form_Pressed(Form& form);

// The user worked a control: as if its value had been set there.
void User_Clicked(Command_Button& button);
void User_Checked(Check_Box& box, bool value);
void User_Selected(List_Control& list, int index);
void User_Scrolled(Scroll_Bar& bar, int value);
void User_Typed(Text_Box& box, std::string_view text, int selection_start, int selection_length);

// The user moves a slider, switch or knob by other means than mouse and keys: it gets the focus and the keys
// that lead there. Nothing happens to one that cannot be worked now.
void User_Stepped(Picture_Box& element, bool upwards);
void User_Turned(Picture_Box& element, int value);  // of its scale; a value beyond it counts as its end
// The same for a button or light, and any place on a picture: a press and a release of that mouse button.
void User_Pressed(Control& control, const Mouse_Event& place);

// The user moved into a control or a form by the toolkit's own means (click into a text field, choice of a
// window).
void User_Focused(Control& control);
void User_Activated(Form& form);

// The user closes the form by its close box.
void User_Closes(Form& form);
// The user moved or sized the form; in twips.
void User_Placed(Form& form, int left, int top, int width, int height);
