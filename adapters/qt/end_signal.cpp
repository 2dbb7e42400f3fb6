#include "adapters/qt/end_signal.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace {

constexpr std::array End_Signals{SIGTERM, SIGINT, SIGHUP};
int Wake_Pipe[2] = {-1, -1};

// Only what a signal handler may do: the rest happens on the other end of the pipe.
void Note_Signal(int) {
  const int kept = errno;
  const char byte = 0;
  // A full pipe refuses the byte: then the news is under way already.
  [[maybe_unused]] const ssize_t written = write(Wake_Pipe[1], &byte, 1);
  errno = kept;
}

void Empty_Pipe() {
  char bytes[16];
  while (read(Wake_Pipe[0], bytes, sizeof bytes) > 0) {
  }
}

}  // namespace

bool On_End_Signal(std::function<void()> on_end) {
  if (pipe2(Wake_Pipe, O_CLOEXEC | O_NONBLOCK) != 0) return false;
  auto* notifier = new QSocketNotifier(Wake_Pipe[0], QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [on_end = std::move(on_end)] {
    Empty_Pipe();
    on_end();
  });
  struct sigaction action = {};
  action.sa_handler = Note_Signal;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int number : End_Signals) {
    if (sigaction(number, &action, nullptr) != 0) return false;
  }
  return true;
}
