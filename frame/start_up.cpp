#include "frame/start_up.h"

#include "core/records.h"
#include "core/settings.h"
#include "core/sysex.h"
#include "core/tone_commands.h"
#include "core/tone_origin.h"
#include "core/tone_params.h"
#include "filebrowser/dialog.h"
#include "frame/closing.h"
#include "frame/help.h"
#include "frame/help_examples.h"
#include "frame/menus.h"
#include "frame/midi_setup.h"
#include "midi/input.h"
#include "midi/output.h"
#include "midi/setup.h"
#include "midi/state.h"
#include "oscillator/window.h"
#include "panel/display_font.h"
#include "panel/editor.h"
#include "panel/input_box.h"
#include "panel/patch.h"
#include "panel/patch_mks70.h"
#include "panel/tone_name.h"
#include "platform/desktop.h"
#include "platform/directories.h"
#include "platform/dispatch.h"
#include "platform/profile_file.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_editor.h"
#include "sequencer/seq_files.h"
#include "sequencer/seq_transport.h"
#include "sequencer/seq_window.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/midi_setup_window.h"
#include "windows/modal.h"
#include "windows/state.h"

namespace {

bool Started = false;  // whether the frame's load is through

constexpr int Small_Fonts_PPI = 96;
constexpr int Large_Fonts_PPI = 120;

void Timer_Display_Tick() {
  MELVOR.Timer_Display.enabled = false;
  if (FD_Open == Flag_True) {
    Display_Blink = Display_Blink == Flag_True ? Flag_False : Flag_True;
    return;
  }
  if (Active_Dlg == "Help") {
    Help_Show_Waiting();
  } else {
    Editor.Tone_Name.Set_Text(Tone_Name_Str);
  }
}

void Close_Unasked() {
  Tone_Saved = Flag_True;
  Seq_Saved = Flag_On;
  Unload(MELVOR);
}

// The user hears that a window holds the program modal.
void Frame_Click() {
  if (Active_Dlg.empty()) return;
  if (!The_Desktop().Play_System_Sound("SystemDefault")) Beep();
}

void Refuse_Screen() {
  Message_Box(
      "Unsupported system font size: " + std::to_string(System_PPI) +
          " ppi (pixel per inch).\rPlease set the font size to 'small fonts' (96 ppi) or 'large fonts (120 "
          "ppi).\r\rFor additional informations, see the README.TXT file.",
      Box_Stop);
  Close_Unasked();
}

void Reset_State() {
  INI_File = Program_Directory() + "\\MELVOR.INI";
  MELVOR.caption = "MELVOR";
  MIDI_Setup_Needed = 0;
  MELVOR.Menu_Edit_Undo.enabled = false;
  for (int* corner : {&Patch_Left, &Patch_Top, &FileDlg_Left, &FileDlg_Top, &Seq_Left, &Seq_Top}) *corner = 0;
}

void Show_Editor() {
  Tone_Saved = Flag_True;
  Editor.width = Editor_Width_px * Twips_Per_Pixel();
  Editor.height = Editor_Height_px * Twips_Per_Pixel();
  Show(Editor);
  MELVOR.pointer = Pointer_Shape::Default;
  Editor.enabled = true;
  Active_Dlg.clear();
  Menus_Enable();
}

void Frame_Load() {
  Started = false;
  Dlg_Nest = 0;
  Pics_Build_Segments();
  Ctl_Select(&Editor.DCO1_Range);
  System_PPI = The_Desktop().Pixels_Per_Inch();
  PPI_Scale = static_cast<float>(System_PPI) / Small_Fonts_PPI;
  if (System_PPI != Small_Fonts_PPI && System_PPI != Large_Fonts_PPI) return Refuse_Screen();
  Reset_State();
  MIDI_Init();
  Settings_Load();
  MELVOR.visible = true;
  Blink_Phase = 1;
  Patch_Open = Flag_Off;
  Seq_Open = Flag_Off;
  Seq_Running = Flag_Off;
  Seq_Clear();
  if (MELVOR.Menu_MIDI_Seq_Load.checked()) Menu_File_Seq_Recent(0);
  Show_Editor();
  if (Seq_Loaded == Flag_On) Seq_Buttons_On();  // the Editor's load has put all pictures back
  if (MIDI_Setup_Needed == 1) Show(MIDI_Setup);
  if (MIDI_Enabled == 0) {
    MELVOR.Menu_MIDI.enabled = false;
    MELVOR.Menu_Tone_Send.enabled = false;
  }
  SysEx_Heads_Build();
  Tone_Clear();
  Tone_Saved = Flag_True;
  Editor.Timer1.enabled = true;
  Started = true;
}

}  // namespace

bool Start_Up() {
  for (void (*wire)() :
       {Editor_Wire, Tone_Name_Wire, Input_Box_Wire, Patch_Wire, MKS70_Wire, Seq_Editor_Wire, Seq_Window_Wire,
        Seq_Clock_Wire, Osc_Wire, FD_Wire, MIDI_Setup_Wire, Help_Wire, Menus_Wire, Closing_Wire}) {
    wire();
  }
  MELVOR.on_load = Frame_Load;
  MELVOR.on_click = Frame_Click;
  MELVOR.MidiNotifyControl.on_change = MIDI_In_Poll;
  MIDI_In_Arrived = [] { MELVOR.MidiNotifyControl.Set_Caption(MELVOR.MidiNotifyControl.caption()); };
  MELVOR.Timer_Display.on_tick = Timer_Display_Tick;
  Event_Ended = Title_Mark;
  Show(MELVOR);
  return MELVOR.Loaded();
}

void End_Without_Questions() {
  The_Desktop().Quit();  // from here on no box waits for anybody, not even that of a device that has gone
  if (Started) Close_Unasked();  // else the settings are not all read, and must not be written
}

void End_Without_Desktop() {
  if (!Started || !MELVOR.Loaded() || !Desktop_Installed()) return;
  MIDI_Out_Cut();
  Autosend = Autosend_Chosen();
  Settings_Save();
}
