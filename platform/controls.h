// The control kinds that windows are made of, as plain data.
// The program reads and writes properties and fills event slots; a desktop shows the properties and hands the
// user's events in through input.h. All places and sizes are whole pixels of the container.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/events.h"
#include "platform/picture.h"
#include "platform/property.h"

struct Form;

enum class Kind {
  Picture_Box,
  Label,
  Text_Box,
  Command_Button,
  Check_Box,
  Combo_Box,
  List_Box,
  Drive_List,
  Dir_List,
  File_List,
  Scroll_Bar,
  Canvas,
  Line,
  Frame_Box,
};

// What a screen reader calls a Picture_Box that can be worked. A check light is on or off by itself; of a row
// of choice lights one is on.
enum class Role { Picture, Slider, Switch, Knob, Button, Check_Light, Choice_Light };

// The value of a slider, switch or knob as a number, in the units that the panel shows.
struct Scale {
  int lowest = 0;
  int highest = 0;  // as lowest: the element has no number
  int page = 1;     // the page keys move it by no more than this
  std::function<int()> value;
};

struct Control : Component {
  Control(Form& owner_form, Kind control_kind, std::string_view control_name);
  Control(Control& owner_container, Kind control_kind, std::string_view control_name);

  // Places it; a shorthand for tables and layouts.
  void Place(int left_px, int top_px, int width_px, int height_px);

  Form& form;
  Control* const container;  // nullptr: the form itself
  const Kind kind;

  Property<int> left{*this, 0}, top{*this, 0}, width{*this, 0}, height{*this, 0};
  Property<bool> visible{*this, true}, enabled{*this, true};
  Property<std::string> tag{*this};
  Property<std::string> tool_tip{*this};

  // Place in the order of Tab; -1: takes no focus. A label never does: its access key goes on.
  int tab_index = -1;
  int help_context = 0;                       // 0: none
  bool mouse_through = false;                 // presses on it count as presses on its container
  std::string spoken_name;                    // in plain words, "VCF cutoff frequency"
  std::function<std::string()> spoken_value;  // its value with its meaning; may be empty

  std::function<void()> on_got_focus, on_lost_focus, on_click, on_double_click;
  std::function<void(Key_Event&)> on_key_down;
  std::function<void(int&)> on_key_press;  // the character; a handler takes it by setting it to 0
  std::function<void(const Mouse_Event&)> on_mouse_down, on_mouse_move, on_mouse_up;
};

// A picture, or the background of other controls that lie on it.
struct Picture_Box final : Control {
  template <class Owner>
  Picture_Box(Owner& owner, std::string_view control_name)
      : Control(owner, Kind::Picture_Box, control_name) {}

  Property<Picture> picture{*this};
  Role role = Role::Picture;
  bool blinks = false;          // its picture tells that it has the focus; the others get a frame
  Scale scale;                  // of a slider, switch or knob
  std::function<bool()> is_on;  // of a light
};

// Whether the control shows by itself that it has the focus.
bool Blinks(const Control& control);

enum class Alignment { Left, Center };

struct Label final : Control {
  template <class Owner>
  Label(Owner& owner, std::string_view control_name) : Control(owner, Kind::Label, control_name) {}

  // "&" marks the key that, with Alt, goes to the next control in tab order; "&&" is a plain "&".
  Property<std::string> caption{*this};
  Property<Alignment> alignment{*this, Alignment::Left};
  Property<Color> fore_color{*this, Black};
  Property<Color> back_color{*this, White};
  Property<bool> own_colors{*this, false};  // false: the desktop's colours
  Property<bool> wraps{*this, false};
  std::function<void()> on_change;  // the caption has changed, by Set_Caption

  // Sets the caption and raises the change, also when the text is the same.
  void Set_Caption(std::string_view text);
};

struct Text_Box final : Control {
  template <class Owner>
  Text_Box(Owner& owner, std::string_view control_name) : Control(owner, Kind::Text_Box, control_name) {}

  // Sets the text; the change handler runs if it differs. A text beyond max_length is cut.
  void Set_Text(std::string_view new_text);
  void Select_All();

  Property<std::string> text{*this};  // read it; write it through Set_Text where a change handler matters
  Property<int> selection_start{*this, 0};  // in characters
  Property<int> selection_length{*this, 0};
  Property<std::string> font_face{*this};  // empty: the desktop's
  Property<Color> fore_color{*this, Black};
  Property<Color> back_color{*this, White};
  Property<bool> own_colors{*this, false};
  int max_length = 0;      // in characters; 0: no limit
  bool read_only = false;  // a display: the user cannot type into it
  bool multi_line = false;
  std::function<void()> on_change;
};

struct Command_Button final : Control {
  template <class Owner>
  Command_Button(Owner& owner, std::string_view control_name)
      : Control(owner, Kind::Command_Button, control_name) {}

  Property<std::string> caption{*this};
  bool is_default = false;  // Enter clicks it
  bool is_cancel = false;   // Escape clicks it
};

struct Check_Box final : Control {
  template <class Owner>
  Check_Box(Owner& owner, std::string_view control_name) : Control(owner, Kind::Check_Box, control_name) {}

  // The click handler runs if the value differs.
  void Set_Value(bool new_value);

  Property<std::string> caption{*this};
  Property<bool> value{*this, false};
};

// A row of entries with at most one selected. Base of the lists.
struct List_Control : Control {
  using Control::Control;

  void Clear();  // no entries, nothing selected; runs no handler
  void Add_Item(std::string item);
  int Count() const { return static_cast<int>(items().size()); }

  // Selects an entry and runs the click handler, also when the entry is selected already. -1: none.
  // Runtime_Error 380 if there is no such entry; the selection stays.
  void Select(int new_index);

  // The selected entry, empty for none.
  std::string Selected_Text() const;
  // The entry's text. Runtime_Error 380 if there is no such entry.
  const std::string& Item(int item_index) const;

  Property<std::vector<std::string>> items{*this};
  Property<int> index{*this, -1};  // 0-based; -1: none. Written through Select
  bool sorted = false;             // Add_Item keeps the entries in order, without regard to case
};

struct Combo_Box final : List_Control {  // a drop-down list
  template <class Owner>
  Combo_Box(Owner& owner, std::string_view control_name)
      : List_Control(owner, Kind::Combo_Box, control_name) {}
};

struct List_Box final : List_Control {
  template <class Owner>
  List_Box(Owner& owner, std::string_view control_name) : List_Control(owner, Kind::List_Box, control_name) {}
};

enum class Orientation { Horizontal, Vertical };

struct Scroll_Bar final : Control {
  template <class Owner>
  Scroll_Bar(Owner& owner, std::string_view control_name) : Control(owner, Kind::Scroll_Bar, control_name) {}

  // Runtime_Error 380 outside the limits. The change handler runs if the value differs.
  void Set_Value(int new_value);

  Property<int> minimum{*this, 0};  // at the left or, with largest_on_top, the bottom
  Property<int> maximum{*this, 100};
  Property<int> value{*this, 0};
  int small_change = 1;
  int large_change = 10;
  Orientation orientation = Orientation::Horizontal;
  bool largest_on_top = false;
  std::function<void()> on_change;
};

struct Painted_Picture {
  Picture picture;
  int left_px = 0;
  int top_px = 0;
  bool operator==(const Painted_Picture&) const = default;
};

// The squares of a canvas that is worked square by square, counted from 0: down the first column, then down
// the next. Each has a name and a value in plain words, and two things that it can be made, by the mouse
// buttons.
struct Cells {
  int rows = 0;  // of a column
  int size_px = 0;
  std::function<std::string(int)> spoken_name;  // empty: the canvas has no cells
  std::function<std::string(int)> spoken_value;
  std::string_view left_action, right_action;
};

// A drawing surface: pictures painted at places, one over the other.
struct Canvas final : Control {
  template <class Owner>
  Canvas(Owner& owner, std::string_view control_name) : Control(owner, Kind::Canvas, control_name) {}

  void Clear();
  // Paints the picture at its natural size. What was painted at the very same place is replaced.
  void Paint(Picture picture, int left_px, int top_px);

  Property<std::vector<Painted_Picture>> painted{*this};
  Property<Color> back_color{*this, Black};
  Property<Picture> picture{*this};  // background
  Cells cells;
};

// A straight line on its container.
struct Line final : Control {
  template <class Owner>
  Line(Owner& owner, std::string_view control_name) : Control(owner, Kind::Line, control_name) {}

  void Set(int from_x, int from_y, int to_x, int to_y);

  Property<int> x1{*this, 0}, y1{*this, 0}, x2{*this, 0}, y2{*this, 0};  // pixels of the container
  Property<Color> color{*this, Black};
};

struct Frame_Box final : Control {  // groups the controls that lie on it
  template <class Owner>
  Frame_Box(Owner& owner, std::string_view control_name) : Control(owner, Kind::Frame_Box, control_name) {}

  Property<std::string> caption{*this};
};

// The value in words, with its meaning; empty for none.
std::string Spoken_Value(const Control& control);

// Whether the control and everything that it lies on is visible, or enabled.
bool Shown_In_Form(const Control& control);
bool Enabled_In_Form(const Control& control);
// Whether it can take the focus now.
bool Can_Take_Focus(const Control& control);
