// jack_capture FILE NAME
//
// Writes every event that comes to its MIDI port NAME:in as a line "microseconds hex hex ..." to FILE, at
// once. Each line of hexadecimal bytes on standard input leaves NAME:out as one event. Prints "ready" once it
// runs. Ends with SIGTERM, with code 2 if the server dies, with 1 if none runs.
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <thread>

#include "support/jack_capture/jack_peer.h"
#include "support/recording_service.h"

namespace {
volatile std::sig_atomic_t stopped = 0;
}  // namespace

int main(int count, char** values) {
  if (count != 3) {
    std::cerr << "usage: jack_capture FILE NAME\n";
    return 1;
  }
  std::signal(SIGTERM, [](int) { stopped = 1; });
  std::ofstream file(values[1]);
  Jack_Peer peer(values[2]);
  if (!file || !peer.Is_Open()) {
    std::cerr << "jack_capture: " << (file ? "no JACK server runs\n" : "the file cannot be written\n");
    return 1;
  }
  std::cout << "ready" << std::endl;
  std::thread([&peer] {
    for (std::string line; std::getline(std::cin, line);) peer.Send(Bytes_Of(line));
  }).detach();
  while (stopped == 0 && !peer.Is_Dead()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    for (const Jack_Event& event : peer.Take_Events())
      file << event.time_us << ' ' << Hex_Text(event.bytes) << '\n';
    file.flush();
  }
  const int code = peer.Is_Dead() ? 2 : 0;
  peer.Close();      // a server waits long for a client that only vanishes
  std::_Exit(code);  // the reader still waits
}
