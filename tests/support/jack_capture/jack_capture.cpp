// jack_capture --file FILE [--name NAME] [--connect PATTERN] [--commands]
//
// Writes every event that comes to its MIDI port NAME:in as a line "microseconds hex hex ..." to FILE, at
// once. NAME is "capture" if not given. With --connect it connects itself to all MIDI outputs whose full
// names the regular expression matches, whenever they come. With --commands each line of hexadecimal bytes on
// standard input leaves NAME:out as one event, and the end of input ends it. Prints "ready" once it runs;
// ends with SIGTERM or SIGINT too, with code 0; with 1 if no server runs, and 2 if the server dies.
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string>
#include <string_view>

#include "support/jack_capture/jack_peer.h"

namespace {

volatile std::sig_atomic_t stopped = 0;
constexpr int Look_ms = 5;

struct Options {
  std::string file;
  std::string name = "capture";
  std::string connect;
  bool commands = false;
};

bool Read_Options(int count, char** values, Options& options) {
  for (int i = 1; i < count; ++i) {
    const std::string_view option = values[i];
    if (option == "--commands") {
      options.commands = true;
      continue;
    }
    if (i + 1 == count) return false;
    std::string& target = option == "--file"   ? options.file
                          : option == "--name" ? options.name
                                               : options.connect;
    if (&target == &options.connect && option != "--connect") return false;
    target = values[++i];
  }
  return !options.file.empty();
}

void Write_Events(Jack_Peer& peer, std::FILE* file) {
  for (const Jack_Event& event : peer.Take_Events()) {
    std::fprintf(file, "%lld", static_cast<long long>(event.time_us));
    for (const char c : event.bytes)
      std::fprintf(file, " %02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    std::fputc('\n', file);
  }
  std::fflush(file);
}

void Send_Line(Jack_Peer& peer, const std::string& line) {
  std::string bytes;
  const char* at = line.c_str();
  unsigned byte = 0;
  for (int length = 0; std::sscanf(at, " %2x%n", &byte, &length) == 1; at += length)
    bytes += static_cast<char>(byte);
  if (!bytes.empty()) peer.Send(bytes);
}

// Sends the lines that have come. False at the end of input.
bool Read_Commands(Jack_Peer& peer, std::string& pending) {
  char buffer[4096];
  const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
  if (count <= 0) return false;
  pending.append(buffer, static_cast<std::size_t>(count));
  for (std::size_t end = 0; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1)) {
    Send_Line(peer, pending.substr(0, end));
  }
  return true;
}

int Run(const Options& options) {
  std::FILE* file = std::fopen(options.file.c_str(), "w");
  if (file == nullptr) {
    std::perror(options.file.c_str());
    return 1;
  }
  Jack_Peer peer(options.name);
  if (!peer.Is_Open()) {
    std::fputs("jack_capture: no JACK server runs\n", stderr);
    return 1;
  }
  std::puts("ready");
  std::fflush(stdout);
  std::string pending;
  while (stopped == 0 && !peer.Is_Dead()) {
    if (!options.connect.empty()) peer.Connect_To(options.connect);
    pollfd input{options.commands ? STDIN_FILENO : -1, POLLIN, 0};
    if (poll(&input, 1, Look_ms) > 0 && !Read_Commands(peer, pending)) break;
    Write_Events(peer, file);
  }
  Write_Events(peer, file);
  std::fclose(file);
  return peer.Is_Dead() ? 2 : 0;
}

}  // namespace

int main(int count, char** values) {
  Options options;
  if (!Read_Options(count, values, options)) {
    std::fputs("usage: jack_capture --file FILE [--name NAME] [--connect PATTERN] [--commands]\n", stderr);
    return 1;
  }
  std::signal(SIGTERM, [](int) { stopped = 1; });
  std::signal(SIGINT, [](int) { stopped = 1; });
  try {
    return Run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "jack_capture: %s\n", error.what());
    return 1;
  }
}
