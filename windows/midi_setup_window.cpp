#include "windows/midi_setup_window.h"

MIDI_Setup_Window MIDI_Setup;

namespace {

constexpr int Label_Left = 14;
constexpr int List_Left = 124;
constexpr int List_Width = 232;
constexpr int Row_Height = 22;

}  // namespace

MIDI_Setup_Window::MIDI_Setup_Window() : Form(Form_Role::Child, "MIDI_Setup") {
  caption = "MIDI Setup";
  key_preview = true;

  struct List_Row {
    Label& label;
    Combo_Box& list;
    const char* caption;
    const char* spoken;
    int top;
    int list_width;
  };
  int tab = 0;
  for (const List_Row& row :
       {List_Row{Synthesizer_Label, SynthesizerType, "&Synthesizer", "Synthesizer", 14, 100},
        List_Row{Output_Label, Output_Devices, "&Output Device", "MIDI output device", 44, List_Width},
        List_Row{Input_Label, Input_Devices, "&Input Device", "MIDI input device", 74, List_Width},
        List_Row{Channel_Label, Channel, "MIDI &Channel", "MIDI channel", 104, 60}}) {
    row.label.caption = row.caption;
    row.label.Place(Label_Left, row.top + 5, List_Left - Label_Left - 8, Row_Height - 6);
    row.label.tab_index = tab++;
    row.list.Place(List_Left, row.top, row.list_width, Row_Height);
    row.list.tab_index = tab++;
    row.list.spoken_name = row.spoken;
  }
  struct Check_Row {
    Check_Box& box;
    const char* caption;
    const char* spoken;
    int top;
  };
  for (const Check_Row& row :
       {Check_Row{Enable, "MIDI &Enabled:", "MIDI enabled", 134},
        Check_Row{AutoSend, "&Automatic Send SysEx Data", "Automatic send of system exclusive data", 158},
        Check_Row{AutoPlay, "Automatic Preview &Play", "Automatic preview play", 182}}) {
    row.box.caption = row.caption;
    row.box.Place(List_Left, row.top, List_Width, Row_Height);
    row.box.tab_index = tab++;
    row.box.spoken_name = row.spoken;
  }
  Cmd_OK.caption = "&OK";
  Cmd_OK.is_default = true;
  Cmd_OK.Place(MIDI_Setup_Width_px - 94, MIDI_Setup_Height_px - 36, 80, 26);
  Cmd_OK.tab_index = tab;
  Cmd_OK.spoken_name = "OK";

  for (const char* text : {"JX-8P", "MKS-70"}) SynthesizerType.Add_Item(text);
}
