// The contract over the recording service, and over the service with a fake backend.
#include "adapters/midi/service.h"
#include "fake_backend.h"
#include "support/midi_contract.h"
#include "support/recording_service.h"

namespace {

struct Recording_Rig final : Midi_Rig {
  Recording_Service service;
  std::size_t read = 0;

  Midi_Service& Service() override { return service; }
  std::string Device_Name() override { return "JX-8P"; }
  Byte_String Received(std::size_t /*count*/) override {
    Byte_String bytes = service.Wire().substr(read);
    read += bytes.size();
    return bytes;
  }
  void Hold() override { service.Hold_Wire(); }
  void Release() override { service.Release_Wire(); }
  void Unplug() override { service.Unplug(); }
};

struct Fake_Rig final : Midi_Rig {
  explicit Fake_Rig(bool wire) { backend.outputs = {{"Synth", "1", wire}}; }

  Fake_Backend backend;
  Fake_Port& port = backend.ports["1"];
  std::unique_ptr<Midi::Service> service;

  Midi_Service& Service() override {
    if (service == nullptr) service = std::make_unique<Midi::Service>(std::vector<Midi::Backend*>{&backend});
    return *service;
  }
  std::string Device_Name() override { return "Synth"; }
  Byte_String Received(std::size_t count) override {
    Await([&] { return port.Bytes().size() >= count; });
    return port.Take_Bytes(std::string::npos);
  }
  void Hold() override { port.busy = true; }
  void Release() override { port.busy = false; }
  void Unplug() override {
    backend.outputs.clear();
    port.gone = true;
  }
};

const Rig_Maker Recording{"Recording", [] { return std::make_unique<Recording_Rig>(); }};
const Rig_Maker Fake_Software{"Software_Port", [] { return std::make_unique<Fake_Rig>(false); }};
const Rig_Maker Fake_Wire{"Wire_Port", [] { return std::make_unique<Fake_Rig>(true); }};

MIDI_RIGS(Midi_Contract, Recording, Fake_Software, Fake_Wire);
MIDI_RIGS(Midi_Hold_Contract, Recording, Fake_Software, Fake_Wire);
MIDI_RIGS(Midi_Unplug_Contract, Recording, Fake_Software, Fake_Wire);

}  // namespace
