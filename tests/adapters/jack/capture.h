// The capture program, running.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

struct Capture {
  explicit Capture(const std::string& client_name);
  ~Capture();
  Capture(const Capture&) = delete;
  Capture& operator=(const Capture&) = delete;

  std::vector<std::string> Lines() const;  // what it has written so far, without the times

 private:
  std::string file_;
  pid_t pid_ = -1;
};
