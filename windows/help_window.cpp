#include "windows/help_window.h"

Help_Window Help;

namespace {

constexpr int Page_Left = 10;
constexpr int Page_Top = 42;
constexpr int Page_Width = Help_Width_px - 2 * Page_Left;
constexpr int Page_Height = Help_Height_px - Page_Top - Page_Left;
constexpr Color Panel_Dark{34, 37, 40};

// What a control of a page has that stands for the whole run. Places are in pixels of its container; tab -1:
// not in the tab order.
struct Control_Place {
  Control& control;
  int left, top, width, height;
  int tab;
  const char* spoken;
};

struct Caption_Row {
  Label& label;
  const char* caption;
};

// A text that is read, not typed.
void Make_Reader(Text_Box& box) {
  box.multi_line = true;
  box.read_only = true;
}

}  // namespace

// The search page comes first in the order of Tab and the page buttons second, so that whoever searches can
// type at once, and who opens another page reads its text before an example replaces it.
Help_Window::Help_Window() : Form(Form_Role::Child, "Help") {
  caption = "MELVOR Help";
  key_preview = true;

  for (const Control_Place& row : std::initializer_list<Control_Place>{
           {Cmd_Howto, 10, 8, 170, 26, 5, "How to use MELVOR"},
           {Cmd_Search, 188, 8, 100, 26, 6, "Search"},
           {Cmd_About, 296, 8, 100, 26, 7, "About"},
           {Frame_Howto, Page_Left, Page_Top, Page_Width, Page_Height, -1, "How to use MELVOR"},
           {Label4, 14, 14, 442, 56, -1, ""},
           {Pic_Howto_Bk, 14, 92, 160, 134, -1, "Examples of the control elements"},
           {HName, 15, 111, 128, 16, -1, ""},
           {Info, 190, 92, 266, 134, 17, "Description of the example"},
           {Frame_Search, Page_Left, Page_Top, Page_Width, Page_Height, -1, "Search"},
           {Keyword_Label, 14, 14, 221, 18, 0, ""},
           {Help_Keyword, 14, 34, 221, 24, 1, "Keyword"},
           {KeyList_Label, 14, 68, 221, 18, 2, ""},
           {Help_KeyList, 14, 88, 221, 176, 3, "Topics"},
           {Description_Label, 249, 14, 207, 18, -1, ""},
           {Help_Description, 249, 34, 207, 230, 4, "Description of the topic"},
           {Frame_Credits, Page_Left, Page_Top, Page_Width, Page_Height, -1, "About"},
           {Plate, 12, 34, 114, 96, -1, "Name plate"},
           {Pic_MELVOR, 2, 10, 110, 50, -1, "MELVOR"},
           {Pic_Badge, 17, 70, 79, 14, -1, "JX-8P"},
           {About_Label, 138, 14, 318, 18, -1, ""},
           {About, 138, 34, 318, 108, 18, "Informations"},
           {Credits_Label, 138, 150, 318, 18, -1, ""},
           {Credits, 138, 170, 318, 72, 19, "Credits"},
           {Credits_Why, 138, 246, 318, 18, -1, ""},
       }) {
    row.control.Place(row.left, row.top, row.width, row.height);
    row.control.tab_index = row.tab;
    row.control.spoken_name = row.spoken;
  }

  Cmd_Howto.caption = "How to use MELVOR";
  Cmd_Search.caption = "Search";
  Cmd_About.caption = "About";
  for (const Caption_Row& row : std::initializer_list<Caption_Row>{
           {Label4,
            "MELVOR has different control elements to change parameters. A selected element blinks. Select a "
            "control element below and read the corresponding description on the right side:"},
           {HName, "Waiting for action..."},
           {Keyword_Label, "&Enter a keyword:"},
           {KeyList_Label, "&Select a topic:"},
           {Description_Label, "Description:"},
           {About_Label, "Informations:"},
           {Credits_Label, "Credits:"},
       }) {
    row.label.caption = row.caption;
  }

  Plate.back_color = Panel_Dark;
  Label4.wraps = true;
  HName.own_colors = true;
  HName.fore_color = Green;
  HName.back_color = Black;
  HName.alignment = Alignment::Center;
  for (Text_Box* box : {&Info, &Help_Description, &About}) Make_Reader(*box);
  Help_KeyList.sorted = true;
}
