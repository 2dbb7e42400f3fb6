#include "windows/frame_window.h"

MELVOR_Window MELVOR;

MELVOR_Window::MELVOR_Window() : Form(Form_Role::Frame, "MELVOR") {
  border = Border::Sizable;
  caption = "MELVOR";
  own_colors = true;
  back_color = Color{48, 50, 56};

  for (Menu_Item* hidden :
       {&Menu_File_SYX_Trenn_1, &Menu_File_SYX_1, &Menu_File_SYX_2, &Menu_File_SYX_3, &Menu_File_SYX_4,
        &Menu_File_Seq_Trenn_1, &Menu_File_Seq_1, &Menu_File_Seq_2, &Menu_File_Seq_3, &Menu_File_Seq_4,
        &Menu_File_Osc, &Menu_File_Osc_Trenn_1, &Menu_File_Osc_1, &Menu_File_Osc_2, &Menu_File_Osc_3,
        &Menu_File_Osc_4, &Menu_Popup}) {
    hidden->visible = false;
  }
  Menu_Edit_Undo.enabled = false;
  Menu_Tone_Receive.enabled = false;
  Menu_MIDI_Seq_Load.checkable = true;
  Menu_Windows_SavePos.checkable = true;
  Menu_Windows.window_list = true;

  MidiNotifyControl.caption = "MidiNotifyControl (invisible)";
  MidiNotifyControl.visible = false;
}
