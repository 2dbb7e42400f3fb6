// Files: a tone from disk to panel and wire, and the settings among many keys of others.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "bench_support.h"
#include "core/settings.h"
#include "core/tone_files.h"
#include "platform/directories.h"
#include "platform/drives.h"
#include "platform/profile_file.h"

namespace {

constexpr int Foreign_Keys = 1000;
constexpr int Tone_Bytes = 59;
constexpr int Patch_Pairs = 7;

// A directory of its own that goes with it.
struct Folder {
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "melvor-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path = name;
  }
  ~Folder() { std::filesystem::remove_all(path); }

  std::filesystem::path path;
};

std::string Tone_File_Bytes() {
  std::string bytes = "\xF0\x41\x35";
  bytes += std::string("\0\x21\x20\x01", 4) + std::string(Tone_Bytes, '\x40') + "\xF7\xF0\x41\x36" +
           std::string("\0\x21\x30\x01", 4);
  for (char pair = 0; pair < Patch_Pairs; ++pair) bytes += {pair, '\x20'};
  return bytes + "\xF7";
}

void Tone_Load_And_Show(benchmark::State& state) {
  Bench_Program program;
  const Folder folder;
  Drives_Find();
  const std::filesystem::path file = folder.path / "bench.syx";
  std::ofstream(file, std::ios::binary) << Tone_File_Bytes();
  const std::string path = Program_Path(file.string());
  for (auto _ : state) {
    Tone_Load(path, Load_Mode::Open);
    program.desktop.End_Event();
  }
  if (Tone_Found == 0) state.SkipWithError("the tone was not taken");
}
BENCHMARK(Tone_Load_And_Show)->Apply(Repeated);

void Settings_Among_Foreign_Keys(benchmark::State& state) {
  Bench_Program program;
  const Folder folder;
  Drives_Find();
  std::ofstream file(folder.path / "MELVOR.INI", std::ios::binary);
  file << "[Foreign]\r\n";
  for (int key = 0; key < Foreign_Keys; ++key) file << "Key" << key << "=value of a key\r\n";
  file << "[MIDI]\r\nSoundcheck Note=60\r\n";
  file.close();
  Directories_Set(Program_Path(folder.path.string()), folder.path.string());
  INI_File = Program_Directory() + "\\MELVOR.INI";
  for (auto _ : state) {
    Settings_Load();
    program.desktop.End_Event();
  }
  if (Soundcheck_Note != 60) state.SkipWithError("the settings were not read");
}
BENCHMARK(Settings_Among_Foreign_Keys)->Apply(Repeated);

}  // namespace
