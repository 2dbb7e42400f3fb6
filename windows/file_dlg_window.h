// The file dialog: lists of files, directories and drives, and the side panel that lets files be heard.
// 520 x 320 pixels inside. Plain data; its load and its handlers come from filebrowser/.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/file_lists.h"
#include "platform/form.h"
#include "windows/control_row.h"

constexpr int File_Dlg_Width_px = 520;
constexpr int File_Dlg_Height_px = 320;

constexpr int FD_Soundcheck_Items = 2;  // note, sequence
constexpr int FD_OSC_Grid_Lines = 17;   // between the 18 steps of the curve

struct File_Dlg_Window final : Form {
  File_Dlg_Window();

  Label FD_FileName_Label{*this, "FD_FileName_Label"};
  Text_Box FD_FileName{*this, "FD_FileName"};
  File_List FD_List_Files{*this, "FD_List_Files"};
  Label FD_List_Filter_Label{*this, "FD_List_Filter_Label"};
  Combo_Box FD_List_Filter{*this, "FD_List_Filter"};
  Label FD_List_Dirs_Label{*this, "FD_List_Dirs_Label"};
  Dir_List FD_List_Dirs{*this, "FD_List_Dirs"};
  Label FD_List_Drives_Label{*this, "FD_List_Drives_Label"};
  Drive_List FD_List_Drives{*this, "FD_List_Drives"};

  Picture_Box FD_Button_Ok{*this, "FD_Button_Ok"};
  Picture_Box FD_Button_Ok_Pic{FD_Button_Ok, "FD_Button_Ok_Pic"};
  Picture_Box FD_Button_Cancel{*this, "FD_Button_Cancel"};
  Picture_Box FD_Button_Cancel_Pic{FD_Button_Cancel, "FD_Button_Cancel_Pic"};
  Picture_Box FD_Button_Updir{*this, "FD_Button_Updir"};
  Picture_Box FD_Button_Updir_Pic{FD_Button_Updir, "FD_Button_Updir_Pic"};
  Picture_Box FD_Button_Newdir{*this, "FD_Button_Newdir"};
  Picture_Box FD_Button_Newdir_Pic{FD_Button_Newdir, "FD_Button_Newdir_Pic"};
  Picture_Box FD_Button_Delete{*this, "FD_Button_Delete"};
  Picture_Box FD_Button_Delete_Pic{FD_Button_Delete, "FD_Button_Delete_Pic"};

  // Of the three panels at most one is shown.
  Frame_Box FD_SYX{*this, "FD_SYX"};
  Picture_Box FD_SYX_CB_Autosend{FD_SYX, "FD_SYX_CB_Autosend"};
  Label FD_SYX_CB_Autosend_Label{FD_SYX, "FD_SYX_CB_Autosend_Label"};
  Picture_Box FD_SYX_CB_Autoplay{FD_SYX, "FD_SYX_CB_Autoplay"};
  Label FD_SYX_CB_Autoplay_Label{FD_SYX, "FD_SYX_CB_Autoplay_Label"};
  std::array<Picture_Box, FD_Soundcheck_Items> FD_SYX_OB_Soundcheck =
      Control_Row<Picture_Box, FD_Soundcheck_Items>(FD_SYX, "FD_SYX_OB_Soundcheck");
  std::array<Label, FD_Soundcheck_Items> FD_SYX_OB_Soundcheck_Label =
      Control_Row<Label, FD_Soundcheck_Items>(FD_SYX, "FD_SYX_OB_Soundcheck_Label");
  Label FD_SYX_SoundCheck_Note_Label{FD_SYX, "FD_SYX_SoundCheck_Note_Label"};
  Combo_Box FD_SYX_SoundCheck_Note_List{FD_SYX, "FD_SYX_SoundCheck_Note_List"};
  Label FD_SYX_SoundCheck_Velocity_Label{FD_SYX, "FD_SYX_SoundCheck_Velocity_Label"};
  Combo_Box FD_SYX_SoundCheck_Velocity_List{FD_SYX, "FD_SYX_SoundCheck_Velocity_List"};
  Picture_Box FD_SYX_Button_Start{FD_SYX, "FD_SYX_Button_Start"};
  Picture_Box FD_SYX_Button_Start_Pic{FD_SYX_Button_Start, "FD_SYX_Button_Start_Pic"};
  Picture_Box FD_SYX_Button_Stop{FD_SYX, "FD_SYX_Button_Stop"};
  Picture_Box FD_SYX_Button_Stop_Pic{FD_SYX_Button_Stop, "FD_SYX_Button_Stop_Pic"};

  Frame_Box FD_SEQ{*this, "FD_SEQ"};
  Picture_Box FD_SEQ_CB_Autoplay{FD_SEQ, "FD_SEQ_CB_Autoplay"};
  Label FD_SEQ_CB_Autoplay_Label{FD_SEQ, "FD_SEQ_CB_Autoplay_Label"};
  Canvas FD_SEQ_Preview{FD_SEQ, "FD_SEQ_Preview"};  // the matrix of a clicked sequence file
  Picture_Box FD_SEQ_Button_Start{FD_SEQ, "FD_SEQ_Button_Start"};
  Picture_Box FD_SEQ_Button_Start_Pic{FD_SEQ_Button_Start, "FD_SEQ_Button_Start_Pic"};
  Picture_Box FD_SEQ_Button_Stop{FD_SEQ, "FD_SEQ_Button_Stop"};
  Picture_Box FD_SEQ_Button_Stop_Pic{FD_SEQ_Button_Stop, "FD_SEQ_Button_Stop_Pic"};

  Frame_Box FD_OSC{*this, "FD_OSC"};
  Canvas FD_OSC_Preview{FD_OSC, "FD_OSC_Preview"};
  std::array<Line, FD_OSC_Grid_Lines> FD_OSC_VLine =
      Control_Row<Line, FD_OSC_Grid_Lines>(FD_OSC_Preview, "FD_OSC_VLine");
  Line FD_OSC_HLine{FD_OSC_Preview, "FD_OSC_HLine"};
};

extern File_Dlg_Window File_Dlg;
