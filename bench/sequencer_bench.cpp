// One tick of the sequencer: 13 messages, and two pictures with the window open.
#include "bench_support.h"
#include "midi/output.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_window.h"
#include "windows/sequencer_window.h"

namespace {

constexpr std::size_t Tick_Bytes = 13 * 3;

void Fill_Matrix() {
  for (std::size_t cell = 0; cell < Seq_Data.size(); ++cell)
    Seq_Data[cell] = cell % 5 == 0 ? Seq_Strong : std::int16_t{0};
  MIDI_Out_Open();
  Seq_SendAllNotesOff();
}

void Measure_Ticks(benchmark::State& state, Bench_Program& program) {
  program.service.bytes = 0;
  {
    const Allocation_Count count(state);
    for (auto _ : state) {
      Seq_Tick();
      program.desktop.End_Event();
    }
  }
  if (program.service.bytes != Tick_Bytes * static_cast<std::size_t>(state.iterations()))
    state.SkipWithError("not every tick has sent its messages");
}

void Tick_Without_Window(benchmark::State& state) {
  Bench_Program program;
  Fill_Matrix();
  Seq_Select_Mode(static_cast<Play_Mode>(state.range(0)));
  Measure_Ticks(state, program);
}
BENCHMARK(Tick_Without_Window)
    ->Arg(static_cast<int>(Play_Mode::Forward))
    ->Arg(static_cast<int>(Play_Mode::Random_Step))
    ->Apply(Repeated);

void Tick_With_Window(benchmark::State& state) {
  Bench_Program program;
  Seq_Window_Wire();
  Show(Sequencer);
  program.desktop.End_Event();
  Fill_Matrix();
  Measure_Ticks(state, program);
  Unload(Sequencer);
}
BENCHMARK(Tick_With_Window)->Apply(Repeated);

}  // namespace
