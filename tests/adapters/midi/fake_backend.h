// A backend whose ports are made and taken away by a test, and whose other ends the test holds in its hand.
#pragma once

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "adapters/midi/backend.h"

// An output port, and what was written to it. Safe for threads.
struct Fake_Port {
  std::atomic<Midi::Write_Result> answer = Midi::Write_Result::Taken;
  std::atomic<int> tries = 0;

  std::string Bytes() {
    const std::lock_guard lock(mutex);
    return bytes;
  }

  std::mutex mutex;
  std::string bytes;
};

struct Fake_Sink final : Midi::Sink {
  explicit Fake_Sink(Fake_Port& to) : port(to) {}
  Midi::Write_Result Write(std::string_view bytes) override {
    const std::lock_guard lock(port.mutex);
    if (port.answer == Midi::Write_Result::Taken) port.bytes += bytes;
    ++port.tries;
    return port.answer;
  }
  bool Gone() const override { return port.answer == Midi::Write_Result::Gone; }

  Fake_Port& port;
};

struct Fake_Backend final : Midi::Backend {
  std::vector<Midi::Port> outputs, inputs;  // as the system has them
  bool taken = false;                       // its outputs are another program's
  std::map<std::string, Fake_Port> ports;   // by address
  Midi::Byte_Receiver receiver;             // of the input that was opened

  void Refresh() override {}
  std::vector<Midi::Port> Ports(Midi::Direction direction) override {
    return direction == Midi::Direction::Output ? outputs : inputs;
  }
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override {
    if (taken || std::ranges::count(outputs, port.address, &Midi::Port::address) == 0) return nullptr;
    return std::make_unique<Fake_Sink>(ports[port.address]);
  }
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port&, Midi::Byte_Receiver to) override {
    receiver = std::move(to);
    return std::make_unique<Midi::Source>();
  }
};
