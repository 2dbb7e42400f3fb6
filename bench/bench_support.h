// A desktop and a MIDI service that cost next to nothing, so that what is measured is the program.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "platform/midi_service.h"
#include "support/still_desktop.h"

// Counts every view as up to date at the end of an event, which End_Event stands for.
struct Bench_Desktop final : Still_Desktop {
  void End_Event();

  Answer Message_Box(std::string_view text, int style, std::string_view title) override;
  void Run_Events(Event_Set) override { End_Event(); }
  void Changed(Component& component) override { changed_.push_back(&component); }
  void Forget(Component& component) override { std::erase(changed_, &component); }

 private:
  std::vector<Component*> changed_;
};

// One output that takes everything and adds up how much it was.
struct Bench_Service final : Midi_Service {
  Bench_Service();
  ~Bench_Service() override;

  std::size_t bytes = 0;

  void Refresh() override {}
  int Out_Count() override { return 1; }
  int Out_Caps(int, MIDI_Out_Caps&) override { return Midi_Ok; }
  int Out_Open(std::int32_t& handle, int device) override;
  int Out_Short(std::int32_t handle, std::uint32_t message) override;
  int Out_Prepare(std::int32_t, MIDI_Header&) override { return Midi_Ok; }
  int Out_Long(std::int32_t handle, MIDI_Header& header) override;
  int Out_Unprepare(std::int32_t, MIDI_Header&) override { return Midi_Ok; }
  int Out_Close(std::int32_t) override { return Midi_Ok; }
  int In_Count() override { return 0; }
  int In_Caps(int, MIDI_In_Caps&) override { return Midi_Bad_Device; }
  int In_Open(std::int32_t&, int, Midi_Receiver) override { return Midi_Bad_Device; }
  int In_Prepare(std::int32_t, MIDI_Header&) override { return Midi_Invalid_Handle; }
  int In_Add_Buffer(std::int32_t, MIDI_Header&) override { return Midi_Invalid_Handle; }
  int In_Unprepare(std::int32_t, MIDI_Header&) override { return Midi_Invalid_Handle; }
  int In_Start(std::int32_t) override { return Midi_Invalid_Handle; }
  int In_Reset(std::int32_t) override { return Midi_Invalid_Handle; }
  int In_Close(std::int32_t) override { return Midi_Invalid_Handle; }
  std::string Error_Text(int) override { return {}; }
};

// The program after its start, with the Editor open and MIDI on.
struct Bench_Program {
  Bench_Program();

  Bench_Desktop desktop;
  Bench_Service service;
};

// Counts the allocations of the measured loop and tells them with the figure, as "allocations" per round.
struct Allocation_Count {
  explicit Allocation_Count(benchmark::State& state);
  ~Allocation_Count();

 private:
  benchmark::State& state_;
  std::size_t start_;
};

// Many short repetitions, of which median and spread are told.
void Repeated(benchmark::internal::Benchmark* bench);
