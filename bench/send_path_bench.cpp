// From the hand to the MIDI service: one key on a slider, one move of a drag, one whole tone.
#include "bench_support.h"
#include "core/sysex.h"
#include "platform/input.h"
#include "windows/editor_window.h"

namespace {

constexpr std::size_t Parameter_Size = 10;
constexpr std::size_t Dump_Size = 90;

// The measured path must really have sent: a figure of skipped work would be worthless.
void Check_Sent(benchmark::State& state, const Bench_Service& service, std::size_t message_size) {
  if (service.bytes != message_size * static_cast<std::size_t>(state.iterations()))
    state.SkipWithError("not every round has sent its message");
}

void Slider_Key_To_Service(benchmark::State& state) {
  Bench_Program program;
  Set_Focus(Editor.VCF_CutoffF);
  program.service.bytes = 0;
  int code = Key::Up;
  {
    const Allocation_Count count(state);
    for (auto _ : state) {
      Key_Down(Editor, &Editor.VCF_CutoffF, {code, 0}, 0);
      code = code == Key::Up ? Key::Down : Key::Up;
    }
  }
  Check_Sent(state, program.service, Parameter_Size);
}
BENCHMARK(Slider_Key_To_Service)->Apply(Repeated);

void Slider_Move_To_Service(benchmark::State& state) {
  Bench_Program program;
  Mouse_Down(Editor.VCF_CutoffF, {Left_Button, 0, 8, 0});
  program.service.bytes = 0;
  float y = -8;
  {
    const Allocation_Count count(state);
    for (auto _ : state) {
      Mouse_Move(Editor.VCF_CutoffF, {Left_Button, 0, 8, y});
      y = -y;
    }
  }
  Check_Sent(state, program.service, Parameter_Size);
}
BENCHMARK(Slider_Move_To_Service)->Apply(Repeated);

void Whole_Dump_To_Service(benchmark::State& state) {
  Bench_Program program;
  SysEx_Dump_Send();  // opens the output
  program.service.bytes = 0;
  {
    const Allocation_Count count(state);
    for (auto _ : state) SysEx_Dump_Send();
  }
  Check_Sent(state, program.service, Dump_Size);
}
BENCHMARK(Whole_Dump_To_Service)->Apply(Repeated);

}  // namespace
