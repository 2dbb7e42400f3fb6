// The help window: how to use the elements, search for a topic, about. Its three pages lie over each other.
// Plain data; the examples' places, the texts of the pages and the handlers come from frame/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/form.h"
#include "windows/control_row.h"

constexpr int Help_Width_px = 490;
constexpr int Help_Height_px = 330;
constexpr int Help_Lights = 4;

struct Help_Window final : Form {
  Help_Window();

  Command_Button Cmd_Howto{*this, "Cmd_Howto"};
  Command_Button Cmd_Search{*this, "Cmd_Search"};
  Command_Button Cmd_About{*this, "Cmd_About"};

  Frame_Box Frame_Howto{*this, "Frame_Howto"};
  Label Label4{Frame_Howto, "Label4"};
  Picture_Box Pic_Howto_Bk{Frame_Howto, "Pic_Howto_Bk"};  // the examples lie on it
  Picture_Box Pos_Sw{Pic_Howto_Bk, "Pos_Sw"};
  Picture_Box Slider{Pic_Howto_Bk, "Slider"};
  Picture_Box Switch{Pic_Howto_Bk, "Switch"};
  Picture_Box Tune{Pic_Howto_Bk, "Tune"};
  Picture_Box Tune_Knopf{Tune, "Tune_Knopf"};
  std::array<Picture_Box, Help_Lights> LED_SW = Control_Row<Picture_Box, Help_Lights>(Pic_Howto_Bk, "LED_SW");
  Label HName{Pic_Howto_Bk, "HName"};  // display of the examples
  Text_Box Info{Frame_Howto, "Info"};

  Frame_Box Frame_Search{*this, "Frame_Search"};
  Label Keyword_Label{Frame_Search, "Keyword_Label"};
  Text_Box Help_Keyword{Frame_Search, "Help_Keyword"};
  Label KeyList_Label{Frame_Search, "KeyList_Label"};
  List_Box Help_KeyList{Frame_Search, "Help_KeyList"};
  Label Description_Label{Frame_Search, "Description_Label"};
  Text_Box Help_Description{Frame_Search, "Help_Description"};

  Frame_Box Frame_Credits{*this, "Frame_Credits"};
  Canvas Plate{Frame_Credits, "Plate"};  // dark, as the panel is: the pictures on it are light
  Picture_Box Pic_MELVOR{Plate, "Pic_MELVOR"};
  Picture_Box Pic_Badge{Plate, "Pic_Badge"};
  Label About_Label{Frame_Credits, "About_Label"};
  Text_Box About{Frame_Credits, "About"};
  Label Credits_Label{Frame_Credits, "Credits_Label"};
  List_Box Credits{Frame_Credits, "Credits"};
  Label Credits_Why{Frame_Credits, "Credits_Why"};
};

extern Help_Window Help;
