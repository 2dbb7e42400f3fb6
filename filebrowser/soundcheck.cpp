#include "filebrowser/soundcheck.h"

#include <array>
#include <string>

#include "core/settings.h"
#include "midi/state.h"
#include "panel/push_buttons.h"
#include "platform/convert.h"
#include "sequencer/model.h"
#include "sequencer/seq_transport.h"
#include "windows/file_dlg_window.h"
#include "windows/pictures.h"
#include "windows/state.h"

namespace {

constexpr int Lowest_Note = 24;
constexpr int Semitones_In_Octave_Step = 12;
constexpr int Highest_Octave = 4;
constexpr int Highest_Velocity = 127;
constexpr int Note_Item = 0;
constexpr int Sequence_Item = 1;

Picture_Box& Item(int item) { return File_Dlg.FD_SYX_OB_Soundcheck.at(static_cast<std::size_t>(item)); }

std::array<Picture_Box*, FD_Soundcheck_Items> Group() { return {&Item(Note_Item), &Item(Sequence_Item)}; }

void Enable(Picture_Box& light, bool enabled) { enabled ? Radio_Enable(light) : Radio_Disable(light); }

void Enable_Lists(bool enabled) {
  File_Dlg.FD_SYX_SoundCheck_Note_List.enabled = enabled;
  File_Dlg.FD_SYX_SoundCheck_Velocity_List.enabled = enabled;
}

void Show_Start_Stop(bool enabled) {
  File_Dlg.FD_SYX_Button_Start_Pic.picture = enabled ? Start_Enabled : Start_Disabled;
  File_Dlg.FD_SYX_Button_Stop_Pic.picture = enabled ? Stop_Enabled : Stop_Disabled;
}

void Fill_Lists() {
  Combo_Box& notes = File_Dlg.FD_SYX_SoundCheck_Note_List;
  notes.Clear();
  for (int octave = 0; octave <= Highest_Octave; ++octave) notes.Add_Item("C" + std::to_string(octave));
  Combo_Box& velocities = File_Dlg.FD_SYX_SoundCheck_Velocity_List;
  velocities.Clear();
  for (int velocity = 0; velocity <= Highest_Velocity; ++velocity)
    velocities.Add_Item(std::to_string(velocity));
}

void Take_Note() {
  const int octave = File_Dlg.FD_SYX_SoundCheck_Note_List.index();
  if (octave >= 0) Soundcheck_Note = To_Byte(octave * Semitones_In_Octave_Step + Lowest_Note);
}

void Take_Velocity() {
  const int velocity = File_Dlg.FD_SYX_SoundCheck_Velocity_List.index();
  if (velocity >= 0) Soundcheck_Velocity = To_Byte(velocity);
}

void Show_Settings() {
  if (Autoplay == 1) Check_On(File_Dlg.FD_SYX_CB_Autoplay);
  if (Autosend == 1) Check_On(File_Dlg.FD_SYX_CB_Autosend);
  File_Dlg.FD_SYX_SoundCheck_Note_List.Select(
      Round_16((Soundcheck_Note - Lowest_Note) / static_cast<double>(Semitones_In_Octave_Step)));
  File_Dlg.FD_SYX_SoundCheck_Velocity_List.Select(Soundcheck_Velocity);
  Radio_Select(Group(), Soundcheck);
}

void Silence() {
  Autoplay = 0;
  Autosend = 0;
  for (Picture_Box* light : {&File_Dlg.FD_SYX_CB_Autoplay, &File_Dlg.FD_SYX_CB_Autosend}) {
    Check_Off(*light);
    Check_Disable(*light);
  }
  Radio_Disable_All(Group());
  Enable_Lists(false);
}

// Both panels have this light.
void Show_Autoplay() {
  for (Picture_Box* light : {&File_Dlg.FD_SYX_CB_Autoplay, &File_Dlg.FD_SEQ_CB_Autoplay}) {
    Autoplay == 1 ? Check_On(*light) : Check_Off(*light);
  }
}

void SEQ_Autoplay_Click() {
  Check_Toggle(File_Dlg.FD_SEQ_CB_Autoplay);
  Autoplay = Check_Is_On(File_Dlg.FD_SEQ_CB_Autoplay) ? 1 : 0;
  Show_Autoplay();
}

void Rise(Picture_Box& start) {
  if (Seq_Running != Flag_On) Push_Up(start);
}

void Wire_Start(Picture_Box& start) {
  start.on_mouse_down = [&start](const Mouse_Event&) { Push_Down(start); };
  start.on_mouse_up = [&start](const Mouse_Event&) { Rise(start); };
  start.on_click = [&start] { FD_Start_Click(start); };
}

void Wire_Stop(Picture_Box& stop, Picture_Box& start) {
  stop.on_mouse_down = [&stop](const Mouse_Event&) { Push_Down(stop); };
  stop.on_mouse_up = [&stop, &start](const Mouse_Event&) {
    Push_Up(stop);
    Push_Up(start);
  };
  stop.on_click = FD_Stop_Click;
}

}  // namespace

void FD_Soundcheck_Wire() {
  File_Dlg.FD_SYX_CB_Autoplay.on_click = FD_Autoplay_Click;
  File_Dlg.FD_SYX_CB_Autosend.on_click = FD_Autosend_Click;
  File_Dlg.FD_SEQ_CB_Autoplay.on_click = SEQ_Autoplay_Click;
  for (const int item : {Note_Item, Sequence_Item})
    Item(item).on_click = [item] { FD_Soundcheck_Click(item); };
  File_Dlg.FD_SYX_SoundCheck_Note_List.on_click = Take_Note;
  File_Dlg.FD_SYX_SoundCheck_Velocity_List.on_click = Take_Velocity;
  Wire_Start(File_Dlg.FD_SYX_Button_Start);
  Wire_Start(File_Dlg.FD_SEQ_Button_Start);
  Wire_Stop(File_Dlg.FD_SYX_Button_Stop, File_Dlg.FD_SYX_Button_Start);
  Wire_Stop(File_Dlg.FD_SEQ_Button_Stop, File_Dlg.FD_SEQ_Button_Start);
}

void FD_Soundcheck_Load() {
  Fill_Lists();
  Show_Settings();
  if (MIDI_Enabled == 0) Silence();
  const bool can_play = Seq_Loaded != Flag_Off || Seq_Saved != Flag_On;
  Enable(Item(Sequence_Item), can_play);
  Show_Start_Stop(can_play);
  FD_Refresh_Panel();
}

void FD_Soundcheck_Keep() {
  Take_Note();
  Take_Velocity();
}

void FD_Refresh_Panel() {
  Enable_Lists(Autoplay == 1);
  Show_Autoplay();
  if (Autoplay == 1) {
    Radio_Enable(Item(Note_Item));
    if (Soundcheck == 1) Radio_Enable(Item(Sequence_Item));
  } else {
    Radio_Disable_All(Group());
    Show_Start_Stop(false);
  }
}

void FD_Autoplay_Click() {
  Check_Toggle(File_Dlg.FD_SYX_CB_Autoplay);
  Autoplay = Check_Is_On(File_Dlg.FD_SYX_CB_Autoplay) ? 1 : 0;
  if (Autoplay == 1) {
    Radio_Enable(Item(Note_Item));
    if (Soundcheck == 1 || Seq_Loaded == Flag_On || Seq_Saved == Flag_Off) Radio_Enable(Item(Sequence_Item));
  } else {
    Radio_Disable_All(Group());
  }
  FD_Refresh_Panel();
}

void FD_Autosend_Click() {
  Check_Toggle(File_Dlg.FD_SYX_CB_Autosend);
  Autosend = Check_Is_On(File_Dlg.FD_SYX_CB_Autosend) ? 1 : 0;
}

void FD_Soundcheck_Click(int item) {
  if (!Item(item).enabled()) return;
  Radio_Select(Group(), item);
  Soundcheck = To_Byte(item);
}

void FD_Start_Click(Picture_Box& button) {
  Push_Down(button);
  if (MIDI_Enabled == 1 && Seq_Loaded == Flag_On) {
    Seq_Start_Play();
  } else {
    Push_Up(button);
  }
}

void FD_Stop_Click() { Seq_Stop_Play(); }
