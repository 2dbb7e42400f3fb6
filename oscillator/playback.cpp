#include "oscillator/playback.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/sysex.h"
#include "midi/output.h"
#include "midi/state.h"
#include "oscillator/curve.h"
#include "oscillator/field.h"
#include "oscillator/targets.h"
#include "platform/desktop.h"
#include "windows/modal.h"

int Osc_Step = 0;
int Osc_Param = 0;

namespace {

constexpr int Note_Velocity = 127;
constexpr int Mixer_DCO2 = 29;
constexpr int Portamento_Time = 1;
constexpr int Pitch_Bend_LFO = 5;

struct Message_Row {
  int param;
  const std::string& head;
  int parameter;
  bool turned_over;
};

const std::array Message_Rows{
    Message_Row{Osc_Drives_Mixer, SysEx_IPR_Tone, Mixer_DCO2, true},
    Message_Row{Osc_Drives_Portamento, SysEx_IPR_Patch, Portamento_Time, false},
    Message_Row{Osc_Drives_Bend_LFO, SysEx_IPR_Patch, Pitch_Bend_LFO, false},
};

void Sound(int value) {
  if (Active_Dlg == "MIDI_Setup") return;  // MIDI stays shut while its devices are chosen
  if (Osc_Param == Osc_Drives_Notes) {
    MIDI_SendNote(value, Note_Velocity);
  } else {
    Osc_Send(value);
  }
}

}  // namespace

void Osc_Send(int value) {
  if (Autosend != 1 || MIDI_Enabled != 1) return;
  const auto row = std::ranges::find(Message_Rows, Osc_Param, &Message_Row::param);
  if (row == Message_Rows.end()) return SysEx_Param_Send(SysEx_IPR_Tone, Osc_Param, value);
  SysEx_Param_Send(row->head, row->parameter, row->turned_over ? Osc_Lowest_Level - value : value);
}

void Osc_Tick() {
  Osc_Show_Time(Osc_Step);
  const int value = Osc_Lowest_Level - Osc_Out[static_cast<std::size_t>(Osc_Step)].start;
  Oscillator.Label2.caption = std::to_string(value);
  Sound(value);
  Osc_Step = Osc_Step >= Osc_Steps - 1 ? 0 : Osc_Step + 1;
  Do_Events();
}

void Osc_Start() {
  Osc_Step = 0;
  Osc_Tick();
  Oscillator.Timer_Osc.enabled = true;
}

void Osc_Stop() {
  Oscillator.Timer_Osc.enabled = false;
  Osc_Show_Time(0);
  Osc_Step = 0;
}
