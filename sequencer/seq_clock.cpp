#include "sequencer/seq_clock.h"

#include "midi/output.h"
#include "midi/state.h"
#include "platform/chance.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "sequencer/model.h"
#include "sequencer/seq_display.h"
#include "sequencer/seq_transport.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

constexpr int Last_Step = Seq_Step_Count - 1;
constexpr int Backward = 1;
constexpr int Random_Steps = 7;  // the last step is never drawn

// The integer part of a random number in [0, count).
int Draw(int count) { return static_cast<int>(Rnd() * count); }

bool At_End() { return Seq_Step == 0 || Seq_Step == Last_Step; }

bool Draws_Direction() {
  switch (Seq_Mode) {
    case Play_Mode::Random_Step:
    case Play_Mode::Random_Direction:
      return true;
    case Play_Mode::Random_Direction_At_Ends:
      return At_End();
    default:
      return false;
  }
}

// A step that has run off an end comes in again where the direction begins.
void Wrap(int& step) {
  if (step == -1 || step == Seq_Step_Count) step = Seq_Direction == Backward ? Last_Step : 0;
}

void Move_On() {
  Seq_Prev_Step = Seq_Step;
  if (Seq_Direction == Backward) {
    Seq_Step_Back(Seq_Step);
  } else {
    Seq_Step_Forward(Seq_Step);
  }
  if (Seq_Mode == Play_Mode::Bounce && At_End()) Seq_Direction = 1 - Seq_Direction;
  if (Seq_Mode == Play_Mode::Random_Step) Seq_Step = Draw(Random_Steps);
}

}  // namespace

// A note that fails switches MIDI off: the rest of the step would only repeat its box.
void Seq_Send_Step(int step) {
  const int offset = step * Seq_Row_Count;
  for (int row = 0; row < Seq_Row_Count && MIDI_Enabled == 1; ++row) {
    Seq_SendNote(Seq_Row_Note(row), Seq_Data[static_cast<std::size_t>(offset + row)]);
  }
}

void Seq_Step_Forward(int& step) { ++step; }
void Seq_Step_Back(int& step) { --step; }

void Seq_Tick() {
  if (Draws_Direction()) Seq_Direction = Draw(2);
  Wrap(Seq_Step);
  Wrap(Seq_Prev_Step);
  Seq_Clock_Show(Seq_Prev_Step, false);
  Seq_Clock_Show(Seq_Step, true);
  const int step = Seq_Step;
  Move_On();
  Seq_Send_Step(step);  // last, since a note that fails stops the clock
}

int Seq_Interval_ms(int speed) {
  if (speed == 0) throw Runtime_Error(Error_Division_By_Zero);
  constexpr double Seconds_In_Minute = 60.0;
  constexpr double ms_In_Second = 1000.0;
  const double steps_a_second = speed * Seq_Step_Count / Seconds_In_Minute;
  return Round_16(1.0 / steps_a_second * ms_In_Second);
}

void Seq_Interval_Set() { MELVOR.Seq_Tmr.interval_ms = Seq_Interval_ms(Seq_Speed); }

void Seq_Clock_Wire() {
  MELVOR.Seq_Tmr.on_tick = Seq_Tick;
  MIDI_Lost = [] {
    if (MELVOR.Seq_Tmr.enabled()) Seq_Stop_Clock();
  };
}
