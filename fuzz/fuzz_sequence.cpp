// Sequence files: whatever bytes a file holds, it is taken as they stand or leaves the sequence as it was,
// and no tick leaves the matrix afterwards. An input is the file.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/drives.h"
#include "platform/text.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_files.h"
#include "windows/state.h"

namespace {

constexpr std::size_t Sequence_Size = 110;

void Require(bool holds) {
  if (!holds) std::abort();
}

// Only boxes come up: no window is open.
struct Box_Counter final : Desktop {
  Box_Counter() { Install_Desktop(this); }
  ~Box_Counter() override { Install_Desktop(nullptr); }

  int boxes = 0;

  Answer Message_Box(std::string_view, int, std::string_view) override {
    ++boxes;
    return Answer::Ok;
  }
  void Run_Events(Event_Set) override {}
  void Wait_Events() override {}
  void Quit() override {}
  void Beep() override {}
  bool Play_System_Sound(std::string_view) override { return true; }
  Size_px Screen_Size() override { return {1280, 1024}; }
  int Pixels_Per_Inch() override { return 96; }
  bool Add_Font(std::string_view) override { return true; }
  int Remove_Font(std::string_view) override { return 0; }
  void Form_Loaded(Form&) override {}
  void Form_Unloaded(Form&) override {}
  void Bring_To_Front(Form&) override {}
  void Show_Focus(Form&, Control*) override {}
  void Changed(Component&) override {}
  void Forget(Component&) override {}
  std::int64_t Now_us() override { return 0; }
  void Wake_At_us(std::int64_t) override {}
  void Post(std::function<void()> fn) override { fn(); }
};

// A file in memory, which the loader opens by its descriptor: a disk would cost more than everything that is
// tested.
struct Input_File {
  Input_File() : fd(memfd_create("sequence", 0)), path("C:\\" + std::to_string(fd)) {
    Require(fd >= 0);
    Drives_Set({{'C', "/proc/self/fd"}});
  }
  ~Input_File() { close(fd); }

  void Put(std::string_view bytes) {
    Require(ftruncate(fd, 0) == 0);
    Require(pwrite(fd, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
  }

  const int fd;
  const std::string path;
};

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
  Require(Seq_Speed >= 0 && Seq_Speed <= Seq_Fastest);
  Require(desktop.boxes == (Is_Sequence(bytes) && !taken ? 1 : 0));
  for (int tick = 0; tick <= Seq_Step_Count; ++tick) Seq_Tick();
  Require(Seq_Prev_Step == 0);
  return 0;
}
