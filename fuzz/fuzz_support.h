// What fuzz targets share: a check that stops the run, a desktop that only counts boxes, and a file in
// memory.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "platform/drives.h"
#include "support/still_desktop.h"

inline void Require(bool holds) {
  if (!holds) std::abort();
}

// Only boxes come up: no window is open.
struct Box_Counter final : Still_Desktop {
  int boxes = 0;

  Answer Message_Box(std::string_view, int, std::string_view) override {
    ++boxes;
    return Answer::Ok;
  }
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
