// Sequence files: whatever bytes a file holds, it is taken as they stand or leaves the sequence as it was,
// and no tick leaves the matrix afterwards. An input is the file.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_support.h"
#include "midi/state.h"
#include "platform/text.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_files.h"
#include "windows/state.h"

namespace {

constexpr std::size_t Sequence_Size = 110;

bool Is_Sequence(std::string_view bytes) {
  return bytes.size() >= Sequence_Size && Upper(bytes.substr(0, 3)) == "SEQ";
}

bool Cells_Are(std::string_view cells) {
  for (std::size_t index = 0; index < Seq_Data.size(); ++index) {
    if (Seq_Data[index] != static_cast<std::uint8_t>(cells[index])) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Box_Counter desktop;
  static Input_File file;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  Seq_Clear();
  desktop.boxes = 0;
  MIDI_Enabled = 0;
  file.Put(bytes);
  Seq_Load(file.path, Load_Mode::Soundcheck);

  const bool taken = Is_Sequence(bytes) && bytes[4] != 0;
  Require((Seq_Loaded == Flag_On) == taken);
  Require(Cells_Are(taken ? bytes.substr(6) : std::string(Seq_Cell_Count, '\0')));
  Require(Seq_Speed >= 1 && Seq_Speed <= Seq_Fastest);
  Require(desktop.boxes == (Is_Sequence(bytes) && !taken ? 1 : 0));
  for (int tick = 0; tick <= Seq_Step_Count; ++tick) Seq_Tick();
  Require(Seq_Prev_Step == 0);
  return 0;
}
