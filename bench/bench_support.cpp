#include "bench_support.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/devices.h"
#include "midi/output.h"
#include "midi/state.h"
#include "panel/editor.h"
#include "platform/form.h"
#include "windows/editor_window.h"

namespace {

std::size_t Allocations = 0;
constexpr std::int32_t Open_Handle = 1;
constexpr int Repetitions = 15;

}  // namespace

void* operator new(std::size_t size) {
  ++Allocations;
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }

void Bench_Desktop::End_Event() {
  for (Component* component : changed_) component->Shown();
  changed_.clear();
}

// A box would mean that something failed and the figure with it.
Answer Bench_Desktop::Message_Box(std::string_view text, int, std::string_view) {
  std::fprintf(stderr, "unexpected box: %.*s\n", static_cast<int>(text.size()), text.data());
  std::exit(1);
}

Bench_Service::Bench_Service() { Install_Midi_Service(this); }
Bench_Service::~Bench_Service() { Install_Midi_Service(nullptr); }

int Bench_Service::Out_Open(std::int32_t& handle, int) {
  handle = Open_Handle;
  return Midi_Ok;
}

int Bench_Service::Out_Short(std::int32_t handle, std::uint32_t) {
  bytes += 3;
  return handle == Open_Handle ? Midi_Ok : Midi_Invalid_Handle;
}

int Bench_Service::Out_Long(std::int32_t handle, MIDI_Header& header) {
  bytes += header.data.size();
  return handle == Open_Handle ? Midi_Ok : Midi_Invalid_Handle;
}

Bench_Program::Bench_Program() {
  MIDI_Enabled = 1;
  Autosend = 1;
  MIDI_Channel = 1;
  MIDI_Out_Device = 0;
  MIDI_Out_Handle = -1;
  Synthesizer = "JX-8P";
  SysEx_Heads_Build();
  Tone_Clear();
  Editor_Wire();
  Show(Editor);
  desktop.End_Event();
}

Allocation_Count::Allocation_Count(benchmark::State& state) : state_(state), start_(Allocations) {}

Allocation_Count::~Allocation_Count() {
  state_.counters["allocations"] =
      benchmark::Counter(static_cast<double>(Allocations - start_), benchmark::Counter::kAvgIterations);
}

void Repeated(benchmark::internal::Benchmark* bench) {
  bench->Repetitions(Repetitions)->ReportAggregatesOnly()->MinTime(0.1);
}
