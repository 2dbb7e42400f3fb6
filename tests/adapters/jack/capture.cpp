#include "capture.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

Capture::Capture(const std::string& client_name)
    : file_(testing::TempDir() + "melvor-capture-" + std::to_string(getpid())) {
  const char* words[] = {JACK_CAPTURE, "--file", file_.c_str(), "--name", client_name.c_str(), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  EXPECT_EQ(posix_spawn(&pid_, words[0], &actions, nullptr, const_cast<char**>(words), environ), 0);
  posix_spawn_file_actions_destroy(&actions);
}

Capture::~Capture() {
  kill(pid_, SIGTERM);
  waitpid(pid_, nullptr, 0);
  std::filesystem::remove(file_);
}

std::vector<std::string> Capture::Lines() const {
  std::vector<std::string> lines;
  std::ifstream file(file_);
  for (std::string line; std::getline(file, line);) lines.push_back(line.substr(line.find(' ') + 1));
  return lines;
}
