#include "adapters/alsa/alsa_backend.h"

#include <exception>
#include <utility>

#include "adapters/alsa/client.h"

namespace Alsa {
namespace {

struct Alsa_Sink final : Midi::Sink {
  explicit Alsa_Sink(std::shared_ptr<Client> client) : client_(std::move(client)) {}
  ~Alsa_Sink() override {
    if (open_) client_->Close_Output(destination_);
  }

  bool Open(const Midi::Port& port) { return open_ = client_->Open_Output(port, destination_); }
  Midi::Write_Result Write(std::string_view bytes) override {
    return Gone() ? Midi::Write_Result::Gone : client_->Write(destination_, bytes);
  }
  bool Gone() const override { return destination_.gone; }

 private:
  std::shared_ptr<Client> client_;
  Destination destination_;
  bool open_ = false;
};

struct Alsa_Source final : Midi::Source {
  Alsa_Source(std::shared_ptr<Client> client, Midi::Byte_Receiver receiver) : client_(std::move(client)) {
    origin_.receiver = std::move(receiver);
  }
  ~Alsa_Source() override {
    if (open_) client_->Close_Input(origin_);
  }

  bool Open(const Midi::Port& port) { return open_ = client_->Open_Input(port, origin_); }

 private:
  std::shared_ptr<Client> client_;
  Origin origin_;
  bool open_ = false;
};

}  // namespace

Alsa_Backend::Alsa_Backend() = default;
Alsa_Backend::~Alsa_Backend() = default;

void Alsa_Backend::Refresh() {
  if (client_ != nullptr && !client_->Lost()) return;
  try {
    client_ = Client::Open();
  } catch (const std::exception&) {  // no memory, or no thread: as if there were no sequencer
    client_ = nullptr;
  }
}

std::vector<Midi::Port> Alsa_Backend::Ports(Midi::Direction direction) {
  return client_ == nullptr ? std::vector<Midi::Port>() : client_->Ports(direction);
}

std::unique_ptr<Midi::Sink> Alsa_Backend::Open_Output(const Midi::Port& port) {
  if (client_ == nullptr) return nullptr;
  auto sink = std::make_unique<Alsa_Sink>(client_);
  return sink->Open(port) ? std::move(sink) : nullptr;
}

std::unique_ptr<Midi::Source> Alsa_Backend::Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) {
  if (client_ == nullptr) return nullptr;
  auto source = std::make_unique<Alsa_Source>(client_, std::move(receiver));
  return source->Open(port) ? std::move(source) : nullptr;
}

}  // namespace Alsa
