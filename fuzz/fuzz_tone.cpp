// Tone files: whatever bytes a file holds, the tone is as it was or the 59 bytes behind a head of the file,
// and the patch likewise. An input is the file.
#include <cstddef>
#include <cstdint>

#include "core/records.h"
#include "core/tone_files.h"
#include "core/tone_params.h"
#include "fuzz_support.h"
#include "midi/state.h"
#include "windows/state.h"

namespace {

bool Head_At(std::string_view bytes, std::size_t place, std::uint8_t form, std::uint8_t kind) {
  const std::uint8_t head[] = {0xF0, 0x41, form, 0, 0x21, kind, 0x01};
  if (place + sizeof head > bytes.size()) return false;
  for (std::size_t index = 0; index < sizeof head; ++index) {
    if (index != 3 && static_cast<std::uint8_t>(bytes[place + index]) != head[index]) return false;
  }
  return true;
}

// Whether the values, each step bytes after the one before, stand behind a head of the file.
template <class Record>
bool Stands_In(std::string_view bytes, const Record& record, int count, std::uint8_t form, std::uint8_t kind,
               int step) {
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    if (!Head_At(bytes, place, form, kind)) continue;
    bool same = true;
    for (int index = 0; index < count && same; ++index) {
      const std::size_t at = place + 7 + static_cast<std::size_t>(index * step + step - 1);
      same = at < bytes.size() && static_cast<std::uint8_t>(bytes[at]) == record[index];
    }
    if (same) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Box_Counter desktop;
  static Input_File file;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  MIDI_Enabled = 0;
  Tone_Clear();
  const auto tone = Tone;
  const auto patch = Patch_Rec;
  file.Put(bytes);
  Tone_Load(file.path, Load_Mode::Soundcheck);
  Require(Tone_Found == Flag_On ? Stands_In(bytes, Tone, Tone_Size, 0x35, 0x20, 1) : Tone == tone);
  Require(Patch_Rec == patch ||
          (Tone_Found == Flag_On && Stands_In(bytes, Patch_Rec, Patch_Sent, 0x36, 0x30, 2)));
  return 0;
}
