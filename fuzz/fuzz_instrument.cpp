// The built-in instrument: no stream of bytes puts a value above 127 into its lists or makes it transmit
// anything but a whole dump. An input is the stream.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "adapters/instrument/instrument.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Instrument::Receiver receiver;
  receiver.Take({reinterpret_cast<const char*>(data), size});
  for (const std::uint8_t model : {Instrument::Model_JX8P, Instrument::Model_MKS70}) {
    for (const std::uint8_t kind : {Instrument::Tone_Kind, Instrument::Patch_Kind}) {
      const auto values = receiver.memory.Values({model, kind, Instrument::Level_1});
      Require(!values.empty() && *std::ranges::max_element(values) < 0x80);
    }
  }
  Require(receiver.Sounding_Notes() >= 0 && receiver.Sounding_Notes() <= 16 * 128);
  const std::string dump = receiver.memory.Tone_Dump(0);
  Require(dump.size() == 67 && dump.front() == '\xF0' && dump.back() == '\xF7');
  return 0;
}
