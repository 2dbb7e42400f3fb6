#include "adapters/alsa/alsa_backend.h"

#include <exception>
#include <utility>

#include "adapters/alsa/sequencer.h"

namespace Alsa {
namespace {

struct Alsa_Sink final : Midi::Sink {
  explicit Alsa_Sink(Sequencer& sequencer) : sequencer_(sequencer) {}
  ~Alsa_Sink() override {
    if (open_) sequencer_.Close_Output(destination_);
  }

  bool Open(const Midi::Port& port) { return open_ = sequencer_.Open_Output(port, destination_); }
  Midi::Write_Result Write(std::string_view bytes) override {
    return Gone() ? Midi::Write_Result::Gone : sequencer_.Write(destination_, bytes);
  }
  bool Gone() const override { return destination_.gone; }

 private:
  Sequencer& sequencer_;
  Destination destination_;
  bool open_ = false;
};

struct Alsa_Source final : Midi::Source {
  Alsa_Source(Sequencer& sequencer, Midi::Byte_Receiver receiver) : sequencer_(sequencer) {
    origin_.receiver = std::move(receiver);
  }
  ~Alsa_Source() override {
    if (open_) sequencer_.Close_Input(origin_);
  }

  bool Open(const Midi::Port& port) { return open_ = sequencer_.Open_Input(port, origin_); }

 private:
  Sequencer& sequencer_;
  Origin origin_;
  bool open_ = false;
};

}  // namespace

Alsa_Backend::Alsa_Backend() = default;
Alsa_Backend::~Alsa_Backend() = default;

void Alsa_Backend::Refresh() {
  if (sequencer_ != nullptr) return;
  try {
    sequencer_ = Sequencer::Open();
  } catch (const std::exception&) {  // no memory, or no thread: as if there were no sequencer
    sequencer_ = nullptr;
  }
}

std::vector<Midi::Port> Alsa_Backend::Ports(Midi::Direction direction) {
  return sequencer_ == nullptr ? std::vector<Midi::Port>() : sequencer_->Ports(direction);
}

std::unique_ptr<Midi::Sink> Alsa_Backend::Open_Output(const Midi::Port& port) {
  if (sequencer_ == nullptr) return nullptr;
  auto sink = std::make_unique<Alsa_Sink>(*sequencer_);
  return sink->Open(port) ? std::move(sink) : nullptr;
}

std::unique_ptr<Midi::Source> Alsa_Backend::Open_Input(const Midi::Port& port, Midi::Byte_Receiver receiver) {
  if (sequencer_ == nullptr) return nullptr;
  auto source = std::make_unique<Alsa_Source>(*sequencer_, std::move(receiver));
  return source->Open(port) ? std::move(source) : nullptr;
}

}  // namespace Alsa
