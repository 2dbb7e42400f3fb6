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

// What an output port does with what is written to it. Safe for threads.
struct Fake_Port {
  std::atomic<bool> busy = false;
  std::atomic<bool> gone = false;

  std::string Bytes() {
    const std::lock_guard lock(mutex_);
    return bytes_;
  }
  Midi::Write_Result Write(std::string_view bytes) {
    if (gone) return Midi::Write_Result::Gone;
    if (busy) return Midi::Write_Result::Busy;
    const std::lock_guard lock(mutex_);
    bytes_ += bytes;
    return Midi::Write_Result::Taken;
  }

 private:
  std::mutex mutex_;
  std::string bytes_;
};

struct Fake_Sink final : Midi::Sink {
  explicit Fake_Sink(Fake_Port& to) : port(to) {}
  Midi::Write_Result Write(std::string_view bytes) override { return port.Write(bytes); }
  bool Gone() const override { return port.gone; }

  Fake_Port& port;
};

struct Fake_Backend final : Midi::Backend {
  using Ports_Of_Direction = std::map<Midi::Direction, std::vector<Midi::Port>>;

  Ports_Of_Direction there;                           // as the system has them; listed at the next Refresh
  std::map<std::string, Fake_Port> ports;             // by address
  std::map<std::string, Midi::Byte_Receiver> opened;  // inputs that were opened, by address

  void Refresh() override { listed_ = there; }
  std::vector<Midi::Port> Ports(Midi::Direction direction) override { return listed_[direction]; }
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override {
    if (!Has(Midi::Direction::Output, port)) return nullptr;
    return std::make_unique<Fake_Sink>(ports[port.address]);
  }
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) override {
    if (!Has(Midi::Direction::Input, port)) return nullptr;
    opened[port.address] = std::move(receiver);
    return std::make_unique<Midi::Source>();
  }

 private:
  bool Has(Midi::Direction direction, const Midi::Port& port) {
    return std::ranges::count(there[direction], port.address, &Midi::Port::address) > 0;
  }

  Ports_Of_Direction listed_;
};
