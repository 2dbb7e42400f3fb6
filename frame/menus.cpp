#include "frame/menus.h"

#include <array>

#include "core/recent.h"
#include "core/records.h"
#include "core/save_as.h"
#include "core/settings.h"
#include "core/tone_commands.h"
#include "core/tone_files.h"
#include "core/tone_save.h"
#include "core/undo.h"
#include "frame/help.h"
#include "frame/midi_setup.h"
#include "oscillator/menu_commands.h"
#include "oscillator/window.h"
#include "panel/patch.h"
#include "panel/tone_name.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_transport.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

void Exit() { Unload(MELVOR); }

void Flip_Save_Positions() { MELVOR.Menu_Windows_SavePos.checked = !MELVOR.Menu_Windows_SavePos.checked(); }

void Open_Tone() {
  if (!Tone_May_Go(Box_Yes_No_Cancel)) return;
  Dlg_Kind = "Open_SYX";
  Show(File_Dlg);
}

template <std::size_t place>
void Open_Recent_Tone() {
  const std::string path = Recent_Tones[place];  // the load moves the list
  if (path.empty()) return;
  const Sound sound = Sound_Now();
  const Tone_Origin origin = Origin_Now();
  Tone_Load(path, Load_Mode::Open);
  if (origin.saved == Flag_True || Sound_Now() == sound) return;
  // Nobody was asked about the sound before.
  Undo_Keep(sound, origin);
  Tone_Saved = Flag_False;
}

template <int place>
void Open_Recent_Seq() {
  Menu_File_Seq_Recent(place);
}

// Frame sizes of a reset, in pixels. The last that applies wins.
struct Frame_Size {
  bool applies;
  int width;
  int height;
};

void Reset_Windows() {
  if (Message_Box("Do you really want to RESET the window settings?", Box_Yes_No + Box_Question) !=
      Answer::Yes)
    return;
  MELVOR.state = Window_State::Normal;
  const bool new_frames = Windows_Version() >= Version_Of_New_Frames;
  for (const Frame_Size& size : {Frame_Size{true, new_frames ? 540 : 536, new_frames ? 506 : 502},
                                 Frame_Size{System_PPI == 120, 540, 516},
                                 Frame_Size{The_Desktop().Screen_Size().height == 480, 556, 440}}) {
    if (!size.applies) continue;
    MELVOR.width = size.width * Twips_Per_Pixel();
    MELVOR.height = size.height * Twips_Per_Pixel();
  }
  MELVOR.left = 1;
  MELVOR.top = 1;
  for (int* corner : {&FileDlg_Left, &FileDlg_Top, &Patch_Left, &Patch_Top, &Seq_Left, &Seq_Top}) *corner = 1;
}

struct Menu_Row {
  Menu_Item* item;
  void (*handler)();
};

constexpr std::array Menu_Rows{
    Menu_Row{&MELVOR.Menu_File_SYX, Seq_Stop_For_Tone_Menu},
    Menu_Row{&MELVOR.Menu_File_SYX_New, Tone_New},
    Menu_Row{&MELVOR.Menu_File_SYX_Open, Open_Tone},
    Menu_Row{&MELVOR.Menu_File_SYX_Save, Menu_File_SYX_Save},
    Menu_Row{&MELVOR.Menu_File_SYX_SaveAs, Tone_SaveAs},
    Menu_Row{&MELVOR.Menu_File_SYX_1, Open_Recent_Tone<0>},
    Menu_Row{&MELVOR.Menu_File_SYX_2, Open_Recent_Tone<1>},
    Menu_Row{&MELVOR.Menu_File_SYX_3, Open_Recent_Tone<2>},
    Menu_Row{&MELVOR.Menu_File_SYX_4, Open_Recent_Tone<3>},
    Menu_Row{&MELVOR.Menu_File_Seq_New, Menu_File_Seq_New},
    Menu_Row{&MELVOR.Menu_File_Seq_Open, Menu_File_Seq_Open},
    Menu_Row{&MELVOR.Menu_File_Seq_Save, Menu_File_Seq_Save},
    Menu_Row{&MELVOR.Menu_File_Seq_SaveAs, Menu_File_Seq_SaveAs},
    Menu_Row{&MELVOR.Menu_File_Seq_1, Open_Recent_Seq<0>},
    Menu_Row{&MELVOR.Menu_File_Seq_2, Open_Recent_Seq<1>},
    Menu_Row{&MELVOR.Menu_File_Seq_3, Open_Recent_Seq<2>},
    Menu_Row{&MELVOR.Menu_File_Seq_4, Open_Recent_Seq<3>},
    Menu_Row{&MELVOR.Menu_File_Osc_Open, Menu_File_Osc_Open},
    Menu_Row{&MELVOR.Menu_File_Osc_SaveAs, Menu_File_Osc_SaveAs},
    Menu_Row{&MELVOR.Menu_File_Exit, Exit},
    Menu_Row{&MELVOR.Menu_Edit_Undo, Undo_Restore},
    Menu_Row{&MELVOR.Menu_MIDI_CloseOutput, Menu_MIDI_CloseOutput},
    Menu_Row{&MELVOR.Menu_MIDI_Setup, Menu_MIDI_Setup},
    Menu_Row{&MELVOR.Menu_MIDI_Osc, Osc_Open_Window},
    Menu_Row{&MELVOR.Menu_MIDI_Seq, Menu_MIDI_Seq},
    Menu_Row{&MELVOR.Menu_MIDI_Seq_Load, Menu_MIDI_Seq_Load},
    Menu_Row{&MELVOR.Menu_Tone_Name, Tone_Name_Open},
    Menu_Row{&MELVOR.Menu_Tone_Patch, Menu_Tone_Patch},
    Menu_Row{&MELVOR.Menu_Tone_Random, Tone_Random},
    Menu_Row{&MELVOR.Menu_Tone_Receive, Tone_Receive},
    Menu_Row{&MELVOR.Menu_Tone_Send, Tone_Send},
    Menu_Row{&MELVOR.Menu_Windows_SavePos, Flip_Save_Positions},
    Menu_Row{&MELVOR.Menu_Windows_Reset, Reset_Windows},
    Menu_Row{&MELVOR.Menu_Help_Howto, Menu_Help_Howto_Click},
    Menu_Row{&MELVOR.Menu_Help_Search, Menu_Help_Search_Click},
    Menu_Row{&MELVOR.Menu_Help_About, Menu_Help_About_Click},
};

}  // namespace

void Menu_File_SYX_Save() {
  if (Tone_File.empty() || Tone_File == ".syx") {
    Tone_SaveAs();
  } else {
    Tone_Save();
  }
}

void Menus_Wire() {
  for (const Menu_Row& row : Menu_Rows) row.item->on_click = row.handler;
}
