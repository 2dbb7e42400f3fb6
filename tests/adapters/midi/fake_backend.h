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
  std::atomic<int> writes = 0;

  std::string Bytes() const {
    const std::lock_guard lock(mutex_);
    return bytes_;
  }
  std::string Take_Bytes(std::size_t count) {
    const std::lock_guard lock(mutex_);
    std::string taken = bytes_.substr(0, count);
    bytes_.erase(0, count);
    return taken;
  }
  Midi::Write_Result Write(std::string_view bytes) {
    ++writes;
    if (gone) return Midi::Write_Result::Gone;
    if (busy) return Midi::Write_Result::Busy;
    const std::lock_guard lock(mutex_);
    bytes_ += bytes;
    return Midi::Write_Result::Taken;
  }

 private:
  mutable std::mutex mutex_;
  std::string bytes_;
};

struct Fake_Sink final : Midi::Sink {
  explicit Fake_Sink(Fake_Port& port) : port_(port) {}
  Midi::Write_Result Write(std::string_view bytes) override { return port_.Write(bytes); }
  bool Gone() const override { return port_.gone; }

 private:
  Fake_Port& port_;
};

struct Fake_Backend final : Midi::Backend {
  std::vector<Midi::Port> outputs;  // as the system has them; listed at the next Refresh
  std::vector<Midi::Port> inputs;
  std::map<std::string, Fake_Port> ports;             // by address
  std::map<std::string, Midi::Byte_Receiver> opened;  // inputs that are open, by address

  void Refresh() override {
    listed_outputs_ = outputs;
    listed_inputs_ = inputs;
  }
  std::vector<Midi::Port> Ports(Midi::Direction direction) override {
    return direction == Midi::Direction::Output ? listed_outputs_ : listed_inputs_;
  }
  std::unique_ptr<Midi::Sink> Open_Output(const Midi::Port& port) override {
    return Has(outputs, port) ? std::make_unique<Fake_Sink>(ports[port.address]) : nullptr;
  }
  std::unique_ptr<Midi::Source> Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) override {
    if (!Has(inputs, port)) return nullptr;
    opened[port.address] = std::move(receiver);
    return std::make_unique<Fake_Source>(*this, port.address);
  }

 private:
  struct Fake_Source final : Midi::Source {
    Fake_Source(Fake_Backend& backend, std::string address)
        : backend_(backend), address_(std::move(address)) {}
    ~Fake_Source() override { backend_.opened.erase(address_); }

   private:
    Fake_Backend& backend_;
    std::string address_;
  };
  static bool Has(const std::vector<Midi::Port>& list, const Midi::Port& port) {
    return std::any_of(list.begin(), list.end(),
                       [&](const Midi::Port& row) { return row.address == port.address; });
  }

  std::vector<Midi::Port> listed_outputs_;
  std::vector<Midi::Port> listed_inputs_;
};
