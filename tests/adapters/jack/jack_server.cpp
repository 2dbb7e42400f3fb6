#include "jack_server.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "support/midi_contract.h"

namespace {
// Always the same: the library keeps a place for each name of a server that was killed, and has eight of
// them.
constexpr const char* Server_Name = "melvor-unit";
}  // namespace

void Jack_Server::Choose_Name() {
  setenv("JACK_DEFAULT_SERVER", Server_Name, 1);
  setenv("JACK_NO_START_SERVER", "1", 1);
  setenv("JACK_NO_AUDIO_RESERVATION", "1", 1);
}

Jack_Server::Jack_Server() {
  Choose_Name();
  Start();
}

Jack_Server::~Jack_Server() {
  if (pid_ < 0) return;
  kill(pid_, SIGCONT);
  kill(pid_, SIGTERM);
  waitpid(pid_, nullptr, 0);
}

void Jack_Server::Start() {
  pid_ = fork();
  ASSERT_GE(pid_, 0);
  if (pid_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // not left behind by a test that crashes
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execlp("jackd", "jackd", "-n", Server_Name, "-r", "-S", "-t", "5000", "-p", "64", "-d", "dummy", "-r",
           "48000", "-p", "256", nullptr);
    _exit(127);
  }
  // A program of its own asks: a client in this one would be in the way of those under test.
  ASSERT_TRUE(Await([] { return std::system("jack_lsp >/dev/null 2>&1") == 0; })) << "jackd does not answer";
}

void Jack_Server::Kill() {
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
  pid_ = -1;
}

void Jack_Server::Stop() {
  kill(pid_, SIGSTOP);
  int status = 0;
  waitpid(pid_, &status, WUNTRACED);
  ASSERT_TRUE(WIFSTOPPED(status));
}

void Jack_Server::Go_On() { kill(pid_, SIGCONT); }
