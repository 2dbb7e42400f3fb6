// What fuzz targets share: a check that stops the run, a desktop that only counts boxes, and a file in
// memory.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "platform/desktop.h"
#include "platform/drives.h"

inline void Require(bool holds) {
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
  Input_File() : fd(memfd_create("input", 0)), path("C:\\" + std::to_string(fd)) {
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
