#include <string>
#include <string_view>

#include "filebrowser/dialog.h"
#include "panel/push_buttons.h"
#include "platform/desktop.h"
#include "windows/file_dlg_window.h"
#include "windows/pictures.h"

namespace {

constexpr Picture Updir_Symbol{"fd-updir"};
constexpr Picture Newdir_Symbol{"fd-newdir"};
constexpr Picture Delete_Symbol{"fd-delete"};

// Three columns: names, directories, and the panel with the wide buttons above it.
constexpr int Names_px = 12;
constexpr int Directories_px = 184;
constexpr int Panel_px = 356;
constexpr int List_Width_px = 160;
constexpr int Panel_Width_px = 152;

constexpr int Text_Height_px = 14;
constexpr int Field_Height_px = 22;
constexpr int Small_Field_Height_px = 20;
constexpr int Light_px = 14;
constexpr int Small_Button_px = 20;
constexpr int Wide_Width_px = 63;
constexpr int Wide_Height_px = 32;

constexpr int Grid_First_px = 10;
constexpr int Grid_Pitch_px = 7;
constexpr int Grid_Size_px = 132;

struct Place_Row {
  Control& control;
  int left;
  int top;
  int width;
  int height;
  std::string_view spoken;
  std::string_view tip;
};

void Place_All(std::initializer_list<Place_Row> rows, int& tab) {
  for (const Place_Row& row : rows) {
    row.control.Place(row.left, row.top, row.width, row.height);
    row.control.tab_index = tab++;
    row.control.spoken_name = row.spoken;
    row.control.tool_tip = std::string(row.tip);
  }
}

// The rows stand in the order of Tab.
void Place_Lists(int& tab) {
  File_Dlg_Window& d = File_Dlg;
  Place_All(
      {
          {d.FD_FileName, Names_px, 26, List_Width_px, Field_Height_px, "File name", ""},
          {d.FD_List_Files, Names_px, 54, List_Width_px, 206, "Files", ""},
          {d.FD_List_Filter, Names_px, 286, List_Width_px, Field_Height_px, "List files of type", ""},
          {d.FD_List_Dirs, Directories_px, 26, List_Width_px, 234, "Directories", ""},
          {d.FD_List_Drives, Directories_px, 286, List_Width_px, Field_Height_px, "Drives", ""},
      },
      tab);
}

struct Button_Row {
  Picture_Box& button;
  Picture_Box& symbol_box;
  Picture symbol;
  int left;
  int top;
  std::string_view spoken;
  std::string_view tip;
};

void Place_Button(const Button_Row& row, int width, int height, int& tab) {
  Place_All({{row.button, row.left, row.top, width, height, row.spoken, row.tip}}, tab);
  row.button.role = Role::Button;
  row.symbol_box.picture = row.symbol;
  row.symbol_box.mouse_through = true;
}

void Place_Wide_Buttons(int& tab) {
  for (const Button_Row& row :
       {Button_Row{File_Dlg.FD_Button_Ok, File_Dlg.FD_Button_Ok_Pic, Dlg2_Ok, Panel_px, 16, "Ok",
                   "Open or save under this name (Enter)"},
        Button_Row{File_Dlg.FD_Button_Cancel, File_Dlg.FD_Button_Cancel_Pic, Dlg2_Cancel,
                   Panel_px + Panel_Width_px - Wide_Width_px, 16, "Cancel", "Close the dialog (Esc)"}}) {
    Place_Button(row, Wide_Width_px, Wide_Height_px, tab);
    row.symbol_box.width = 51;
    row.symbol_box.height = 20;
    Push_Up_Wide(row.button);
  }
}

void Place_Small_Buttons(std::initializer_list<Button_Row> rows, int& tab) {
  for (const Button_Row& row : rows) {
    Place_Button(row, Small_Button_px, Small_Button_px, tab);
    row.symbol_box.width = 14;
    row.symbol_box.height = 14;
    Push_Up(row.button);
  }
}

void Place_Folder_Buttons(int& tab) {
  File_Dlg_Window& d = File_Dlg;
  Place_Small_Buttons(
      {
          {d.FD_Button_Updir, d.FD_Button_Updir_Pic, Updir_Symbol, 276, 4, "Up", "One directory up"},
          {d.FD_Button_Newdir, d.FD_Button_Newdir_Pic, Newdir_Symbol, 300, 4, "New folder",
           "New folder in the selected directory"},
          {d.FD_Button_Delete, d.FD_Button_Delete_Pic, Delete_Symbol, 324, 4, "Delete",
           "Delete the selected file or directory"},
      },
      tab);
}

void Place_Light(Picture_Box& light, Role role, int top, std::string_view spoken, std::string_view tip,
                 int& tab) {
  Place_All({{light, 12, top, Light_px, Light_px, spoken, tip}}, tab);
  light.role = role;
  light.picture = LED(LED_Dark);
  light.tag = "0";
  light.is_on = [&light] { return Check_Is_On(light); };
}

// The words beside a light work it too.
void Place_Light_Label(Label& label, Picture_Box& light, std::string_view caption) {
  label.caption = std::string(caption);
  label.Place(34, light.top(), 110, Text_Height_px);
  label.on_click = [&light] {
    if (light.enabled()) light.on_click();
  };
}

void Place_Tone_Panel(int& tab) {
  File_Dlg_Window& d = File_Dlg;
  Place_Light(d.FD_SYX_CB_Autosend, Role::Check_Light, 28, "Send clicked tones",
              "Send a clicked tone to the instrument", tab);
  Place_Light(d.FD_SYX_CB_Autoplay, Role::Check_Light, 52, "Play clicked tones",
              "Let a clicked tone be heard", tab);
  Place_Light(d.FD_SYX_OB_Soundcheck[0], Role::Choice_Light, 88, "Play a note", "Play this note", tab);
  Place_All(
      {
          {d.FD_SYX_SoundCheck_Note_List, 86, 109, 56, Small_Field_Height_px, "Note", ""},
          {d.FD_SYX_SoundCheck_Velocity_List, 86, 133, 56, Small_Field_Height_px, "Velocity", ""},
      },
      tab);
  Place_Light(d.FD_SYX_OB_Soundcheck[1], Role::Choice_Light, 170, "Play the sequence",
              "Play the sequence in memory", tab);
  Place_Small_Buttons(
      {
          {d.FD_SYX_Button_Start, d.FD_SYX_Button_Start_Pic, Start_Enabled, 34, 192, "Start sequence",
           "Start the sequence"},
          {d.FD_SYX_Button_Stop, d.FD_SYX_Button_Stop_Pic, Stop_Enabled, 60, 192, "Stop sequence",
           "Stop the sequence"},
      },
      tab);
  Place_Light_Label(d.FD_SYX_CB_Autosend_Label, d.FD_SYX_CB_Autosend, "Auto&Send");
  Place_Light_Label(d.FD_SYX_CB_Autoplay_Label, d.FD_SYX_CB_Autoplay, "Auto&Play");
  Place_Light_Label(d.FD_SYX_OB_Soundcheck_Label[0], d.FD_SYX_OB_Soundcheck[0], "Note (&C)");
  Place_Light_Label(d.FD_SYX_OB_Soundcheck_Label[1], d.FD_SYX_OB_Soundcheck[1], "Se&quence");
}

void Place_Sequence_Panel(int& tab) {
  File_Dlg_Window& d = File_Dlg;
  Place_Light(d.FD_SEQ_CB_Autoplay, Role::Check_Light, 28, "Play clicked sequences",
              "Play a clicked sequence", tab);
  Place_Light_Label(d.FD_SEQ_CB_Autoplay_Label, d.FD_SEQ_CB_Autoplay, "Auto&Play");
  d.FD_SEQ_Preview.Place(43, 60, 66, 106);
  d.FD_SEQ_Preview.spoken_name = "Matrix of the clicked sequence";
  Place_Small_Buttons(
      {
          {d.FD_SEQ_Button_Start, d.FD_SEQ_Button_Start_Pic, Start_Enabled, 53, 182, "Start sequence",
           "Start the sequence"},
          {d.FD_SEQ_Button_Stop, d.FD_SEQ_Button_Stop_Pic, Stop_Enabled, 79, 182, "Stop sequence",
           "Stop the sequence"},
      },
      tab);
}

void Place_Oscillator_Panel() {
  File_Dlg.FD_OSC_Preview.Place(10, 34, Grid_Size_px, Grid_Size_px);
  File_Dlg.FD_OSC_Preview.spoken_name = "Curve of the clicked oscillator file";
  int x = Grid_First_px;
  for (Line& line : File_Dlg.FD_OSC_VLine) {
    line.Set(x, 0, x, Grid_Size_px - 1);
    line.color = Grey;
    x += Grid_Pitch_px;
  }
  File_Dlg.FD_OSC_HLine.Set(0, Grid_Size_px / 2, Grid_Size_px - 1, Grid_Size_px / 2);
  File_Dlg.FD_OSC_HLine.color = Grey;
}

struct Label_Row {
  Label& label;
  std::string_view caption;
  int left;
  int top;
  int width;
};

void Place_Labels() {
  File_Dlg_Window& d = File_Dlg;
  for (const Label_Row& row :
       {Label_Row{d.FD_FileName_Label, "File &Name:", Names_px, 10, List_Width_px},
        Label_Row{d.FD_List_Filter_Label, "List Files of &Type:", Names_px, 270, List_Width_px},
        Label_Row{d.FD_List_Dirs_Label, "&Directory:", Directories_px, 10, 88},
        Label_Row{d.FD_List_Drives_Label, "Dri&ves:", Directories_px, 270, List_Width_px},
        Label_Row{d.FD_SYX_SoundCheck_Note_Label, "Pitch:", 34, 112, 50},
        Label_Row{d.FD_SYX_SoundCheck_Velocity_Label, "Velocity:", 34, 136, 50}}) {
    row.label.caption = std::string(row.caption);
    row.label.Place(row.left, row.top, row.width, Text_Height_px);
  }
}

}  // namespace

void Pics_Assign_Dlg() {
  File_Dlg.width = File_Dlg_Width_px * Twips_Per_Pixel();
  File_Dlg.height = File_Dlg_Height_px * Twips_Per_Pixel();
  int tab = 0;
  Place_Lists(tab);
  Place_Wide_Buttons(tab);
  Place_Folder_Buttons(tab);
  for (Frame_Box* panel : {&File_Dlg.FD_SYX, &File_Dlg.FD_SEQ, &File_Dlg.FD_OSC}) {
    panel->Place(Panel_px, 54, Panel_Width_px, 254);
    panel->caption = "Click on File Name";
  }
  Place_Tone_Panel(tab);
  Place_Sequence_Panel(tab);
  Place_Oscillator_Panel();
  Place_Labels();
}
