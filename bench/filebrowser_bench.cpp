// The file dialog over a directory of 20,000 tones: opening it, and what a user does in it next.
// Goal: it opens in less than 300 ms.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench_support.h"
#include "core/file_places.h"
#include "core/settings.h"
#include "filebrowser/dialog.h"
#include "platform/drives.h"
#include "platform/input.h"
#include "windows/file_dlg_window.h"
#include "windows/state.h"

namespace {

constexpr int File_Count = 20'000;

// The directory, as the one drive, while it lives.
struct Many_Files {
  Many_Files() {
    std::string name = (std::filesystem::temp_directory_path() / "melvor-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path = name;
    for (int number = 0; number < File_Count; ++number) {
      std::ofstream(path / ("Tone " + std::to_string(number * 7919 % File_Count) + ".syx"));
    }
    Drives_Set({{'C', name}});
    Dir_Tones = "c:\\";
    Dlg_Kind = "Open_SYX";
    Autoplay = 0;
    FD_Wire();
  }
  ~Many_Files() { std::filesystem::remove_all(path); }

  std::filesystem::path path;
};

void Dialog_Opens(benchmark::State& state) {
  Bench_Program program;
  const Many_Files files;
  int listed = 0;
  for (auto _ : state) {
    Show(File_Dlg);
    program.desktop.End_Event();
    state.PauseTiming();
    listed = File_Dlg.FD_List_Files.Count();
    Unload(File_Dlg);
    state.ResumeTiming();
  }
  if (listed != File_Count) state.SkipWithError("the files are not listed");
}
BENCHMARK(Dialog_Opens)->Unit(benchmark::kMillisecond);

void File_Is_Clicked(benchmark::State& state) {
  Bench_Program program;
  const Many_Files files;
  Show(File_Dlg);
  int file = 0;
  for (auto _ : state) {
    file = (file + 7919) % File_Count;
    User_Selected(File_Dlg.FD_List_Files, file);
    Mouse_Down(File_Dlg.FD_List_Files, {Left_Button, 0, 4, 4});
    program.desktop.End_Event();
  }
  Unload(File_Dlg);
}
BENCHMARK(File_Is_Clicked)->Unit(benchmark::kMicrosecond);

}  // namespace
