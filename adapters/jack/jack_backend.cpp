#include "adapters/jack/jack_backend.h"

#include <chrono>
#include <exception>
#include <utility>

#include "adapters/jack/client.h"
#include "adapters/jack/worker.h"

namespace Jack {
namespace {

constexpr std::chrono::milliseconds Connect_Wait(500);

struct Jack_Sink final : Midi::Sink {
  Jack_Sink(std::shared_ptr<Client> client, Output_Slot& slot) : client_(std::move(client)), slot_(slot) {}
  ~Jack_Sink() override { client_->Close_Output(slot_); }

  Midi::Write_Result Write(std::string_view bytes) override {
    if (Gone()) return Midi::Write_Result::Gone;
    return slot_.Put(client_->Now(), bytes) ? Midi::Write_Result::Taken : Midi::Write_Result::Busy;
  }
  std::size_t Passed_Bytes(std::size_t /*written*/) const override { return slot_.Passed_Bytes(); }
  bool Gone() const override { return client_->Dead() || slot_.gone; }

 private:
  std::shared_ptr<Client> client_;
  Output_Slot& slot_;
};

struct Jack_Source final : Midi::Source {
  Jack_Source(std::shared_ptr<Client> client, Input_Slot& slot) : client_(std::move(client)), slot_(slot) {}
  ~Jack_Source() override { client_->Close_Input(slot_); }

 private:
  std::shared_ptr<Client> client_;
  Input_Slot& slot_;
};

}  // namespace

Jack_Backend::Jack_Backend(Midi::Clock& clock) : clock_(clock), worker_(std::make_unique<Worker>()) {}
Jack_Backend::~Jack_Backend() = default;

void Jack_Backend::Refresh() {
  if (client_ != nullptr && client_->Dead())
    worker_->Post([dead = std::move(client_)] { dead->Take_Down(); });
  if (client_ != nullptr) return;
  std::chrono::milliseconds patience(0);
  if (!connecting_.valid()) {
    patience = Connect_Wait;
    auto connected = std::make_shared<std::promise<std::shared_ptr<Client>>>();
    connecting_ = connected->get_future();
    worker_->Post([connected, tasks = worker_->Tasks(), &clock = clock_] {
      try {
        connected->set_value(Client::Connect(tasks, clock));
      } catch (const std::exception&) {  // no memory, or no thread: as if there were no server
        connected->set_value(nullptr);
      }
    });
  }
  if (connecting_.wait_for(patience) == std::future_status::ready) client_ = connecting_.get();
}

std::vector<Midi::Port> Jack_Backend::Ports(Midi::Direction direction) {
  return client_ == nullptr ? std::vector<Midi::Port>() : client_->Ports(direction);
}

std::unique_ptr<Midi::Sink> Jack_Backend::Open_Output(const Midi::Port& port) {
  Output_Slot* slot = client_ == nullptr ? nullptr : client_->Open_Output(port.address);
  return slot == nullptr ? nullptr : std::make_unique<Jack_Sink>(client_, *slot);
}

std::unique_ptr<Midi::Source> Jack_Backend::Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) {
  Input_Slot* slot = client_ == nullptr ? nullptr : client_->Open_Input(port.address, std::move(receiver));
  return slot == nullptr ? nullptr : std::make_unique<Jack_Source>(client_, *slot);
}

}  // namespace Jack
