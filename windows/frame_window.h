// The frame MELVOR: the window that holds the others, with the menus, two timers and the hidden elements that
// take part in reception. Plain data; the handlers come from frame/.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/menu.h"
#include "platform/timer.h"

struct MELVOR_Window final : Form {
  MELVOR_Window();

  Menu_Item Menu_File{*this, "Menu_File", "&File"};
  Menu_Item Menu_File_SYX{Menu_File, "Menu_File_SYX", "&Tone"};
  Menu_Item Menu_File_SYX_New{Menu_File_SYX, "Menu_File_SYX_New", "&New", "Ctrl+N"};
  Menu_Item Menu_File_SYX_Open{Menu_File_SYX, "Menu_File_SYX_Open", "&Open...", "Ctrl+O"};
  Menu_Item Menu_File_SYX_Save{Menu_File_SYX, "Menu_File_SYX_Save", "&Save", "Ctrl+S"};
  Menu_Item Menu_File_SYX_SaveAs{Menu_File_SYX, "Menu_File_SYX_SaveAs", "Save &as..."};
  Menu_Item Menu_File_SYX_Trenn_1{Menu_File_SYX, "Menu_File_SYX_Trenn_1", "-"};
  Menu_Item Menu_File_SYX_1{Menu_File_SYX, "Menu_File_SYX_1", ""};
  Menu_Item Menu_File_SYX_2{Menu_File_SYX, "Menu_File_SYX_2", ""};
  Menu_Item Menu_File_SYX_3{Menu_File_SYX, "Menu_File_SYX_3", ""};
  Menu_Item Menu_File_SYX_4{Menu_File_SYX, "Menu_File_SYX_4", ""};
  Menu_Item Menu_File_Seq{Menu_File, "Menu_File_Seq", "Se&quence"};
  Menu_Item Menu_File_Seq_New{Menu_File_Seq, "Menu_File_Seq_New", "&New"};
  Menu_Item Menu_File_Seq_Open{Menu_File_Seq, "Menu_File_Seq_Open", "&Open..."};
  Menu_Item Menu_File_Seq_Save{Menu_File_Seq, "Menu_File_Seq_Save", "&Save"};
  Menu_Item Menu_File_Seq_SaveAs{Menu_File_Seq, "Menu_File_Seq_SaveAs", "Save &as..."};
  Menu_Item Menu_File_Seq_Trenn_1{Menu_File_Seq, "Menu_File_Seq_Trenn_1", "-"};
  Menu_Item Menu_File_Seq_1{Menu_File_Seq, "Menu_File_Seq_1", ""};
  Menu_Item Menu_File_Seq_2{Menu_File_Seq, "Menu_File_Seq_2", ""};
  Menu_Item Menu_File_Seq_3{Menu_File_Seq, "Menu_File_Seq_3", ""};
  Menu_Item Menu_File_Seq_4{Menu_File_Seq, "Menu_File_Seq_4", ""};
  Menu_Item Menu_File_Osc{Menu_File, "Menu_File_Osc", "Os&cillator"};
  Menu_Item Menu_File_Osc_New{Menu_File_Osc, "Menu_File_Osc_New", "&New"};
  Menu_Item Menu_File_Osc_Open{Menu_File_Osc, "Menu_File_Osc_Open", "&Open..."};
  Menu_Item Menu_File_Osc_Save{Menu_File_Osc, "Menu_File_Osc_Save", "&Save"};
  Menu_Item Menu_File_Osc_SaveAs{Menu_File_Osc, "Menu_File_Osc_SaveAs", "Save &as..."};
  Menu_Item Menu_File_Osc_Trenn_1{Menu_File_Osc, "Menu_File_Osc_Trenn_1", "-"};
  Menu_Item Menu_File_Osc_1{Menu_File_Osc, "Menu_File_Osc_1", ""};
  Menu_Item Menu_File_Osc_2{Menu_File_Osc, "Menu_File_Osc_2", ""};
  Menu_Item Menu_File_Osc_3{Menu_File_Osc, "Menu_File_Osc_3", ""};
  Menu_Item Menu_File_Osc_4{Menu_File_Osc, "Menu_File_Osc_4", ""};
  Menu_Item Menu_File_Trenn_2{Menu_File, "Menu_File_Trenn_2", "-"};
  Menu_Item Menu_File_Exit{Menu_File, "Menu_File_Exit", "E&xit", "Ctrl+X"};

  Menu_Item Menu_Edit{*this, "Menu_Edit", "&Edit"};
  Menu_Item Menu_Edit_Undo{Menu_Edit, "Menu_Edit_Undo", "&Undo", "Ctrl+Z"};

  Menu_Item Menu_MIDI{*this, "Menu_MIDI", "&MIDI"};
  Menu_Item Menu_MIDI_CloseOutput{Menu_MIDI, "Menu_MIDI_CloseOutput", "&Close MIDI Output", "Ctrl+C"};
  Menu_Item Menu_MIDI_Setup{Menu_MIDI, "Menu_MIDI_Setup", "&Setup..."};
  Menu_Item Menu_MIDI_Trenn{Menu_MIDI, "Menu_MIDI_Trenn", "-"};
  Menu_Item Menu_MIDI_Osc{Menu_MIDI, "Menu_MIDI_Osc", "Osc&illator...", "Ctrl+I"};
  Menu_Item Menu_MIDI_Seq{Menu_MIDI, "Menu_MIDI_Seq", "Seq&uencer...", "Ctrl+U"};
  Menu_Item Menu_MIDI_Seq_Load{Menu_MIDI, "Menu_MIDI_Seq_Load", "Preload Sequence"};

  Menu_Item Menu_Tone{*this, "Menu_Tone", "&Tone"};
  Menu_Item Menu_Tone_Name{Menu_Tone, "Menu_Tone_Name", "&Name..."};
  Menu_Item Menu_Tone_Patch{Menu_Tone, "Menu_Tone_Patch", "&Patch...", "Ctrl+P"};
  Menu_Item Menu_Tone_Trenn1{Menu_Tone, "Menu_Tone_Trenn1", "-"};
  Menu_Item Menu_Tone_Random{Menu_Tone, "Menu_Tone_Random", "&Random", "Ctrl+R"};
  Menu_Item Menu_Tone_Trenn2{Menu_Tone, "Menu_Tone_Trenn2", "-"};
  Menu_Item Menu_Tone_Receive{Menu_Tone, "Menu_Tone_Receive", "Recei&ve ", "Ctrl+V"};
  Menu_Item Menu_Tone_Send{Menu_Tone, "Menu_Tone_Send", "Sen&d", "Ctrl+T"};

  Menu_Item Menu_Windows{*this, "Menu_Windows", "&Windows"};
  Menu_Item Menu_Windows_SavePos{Menu_Windows, "Menu_Windows_SavePos", "&Save Positions"};
  Menu_Item Menu_Windows_Reset{Menu_Windows, "Menu_Windows_Reset", "&Reset Settings..."};

  Menu_Item Menu_Help{*this, "Menu_Help", "&Help"};
  Menu_Item Menu_Help_Howto{Menu_Help, "Menu_Help_Howto", "&How to use MELVOR..."};
  Menu_Item Menu_Help_Search{Menu_Help, "Menu_Help_Search", "&Search...", "F1"};
  Menu_Item Menu_Help_Trenn{Menu_Help, "Menu_Help_Trenn", "-"};
  Menu_Item Menu_Help_About{Menu_Help, "Menu_Help_About", "&About..."};

  Menu_Item Menu_Popup{*this, "Menu_Popup", ""};
  Menu_Item Menu_Popup1{Menu_Popup, "Menu_Popup1", ""};
  Menu_Item Menu_Popup2{Menu_Popup, "Menu_Popup2", ""};
  Menu_Item Menu_Popup3{Menu_Popup, "Menu_Popup3", ""};
  Menu_Item Menu_Popup4{Menu_Popup, "Menu_Popup4", ""};
  Menu_Item Menu_Popup5{Menu_Popup, "Menu_Popup5", ""};

  Label MidiNotifyControl{*this,
                          "MidiNotifyControl"};  // its change says that a message waits in an input slot

  Timer Timer_Display{*this, "Timer_Display", 1000};  // brings the tone name back into the display
  Timer Seq_Tmr{*this, "Seq_Tmr", 250};               // one step of the sequencer
};

extern MELVOR_Window MELVOR;
