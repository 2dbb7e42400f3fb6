// What the MIDI service needs of a system that carries MIDI bytes: a list of ports, and raw bytes out and in.
// Implemented by adapters/alsa, adapters/jack and adapters/instrument. No implementation lets an exception
// out.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Midi {

enum class Direction { Output, Input };

struct Port {
  std::string name;     // for people; may be of any length, and the same as another's
  std::string address;  // by which the backend finds the port again; unique within backend and direction
  bool wire = false;    // ends in MIDI hardware, which takes 3,125 bytes a second
};

enum class Write_Result {
  Taken,
  Busy,    // nothing was taken: try again later
  Failed,  // an error of this one write: nothing was taken, and the next try may succeed
  Gone,    // the port is no longer there, and nothing will be taken any more
};

// An open output port. Destroyed on the user-interface thread, once the sender has stopped; does not wait.
struct Sink {
  virtual ~Sink() = default;
  // Passes the bytes on exactly as they are, as a whole or not at all. Does not wait. Sender thread only.
  // REQUIRES: bytes not empty, at most Largest_Write.
  [[nodiscard]] virtual Write_Result Write(std::string_view bytes) = 0;
  // How many of the bytes that were written so far the system has come for, where they wait for that inside.
  // Any thread.
  virtual std::size_t Passed_Bytes(std::size_t written) const { return written; }
  // Whether the port is known to have gone. Any thread.
  virtual bool Gone() const = 0;
};

// A longer message is written in pieces of this size. Kernel ports have room for 4,096 bytes.
constexpr std::size_t Largest_Write = 2048;

// Gets the bytes of an open input in pieces of any length, always from one thread at a time.
using Byte_Receiver = std::function<void(std::string_view bytes)>;

// What a receiver gets where bytes were lost: a status byte, so that what comes behind is not taken for the
// rest of the message before.
constexpr std::string_view Break = "\xF6";

// An open input port. After its destruction the receiver is not called any more.
struct Source {
  virtual ~Source() = default;
  // The program listens from now on. User-interface thread.
  virtual void Started() {}
};

// All calls come on the user-interface thread.
struct Backend {
  virtual ~Backend() = default;
  // Looks what there is, and connects to the system again if it had gone.
  virtual void Refresh() = 0;
  // Those that are there now.
  virtual std::vector<Port> Ports(Direction direction) = 0;
  // nullptr: the port is no longer there, or, where Ports still has it, takes nobody more.
  [[nodiscard]] virtual std::unique_ptr<Sink> Open_Output(const Port& port) = 0;
  [[nodiscard]] virtual std::unique_ptr<Source> Open_Input(const Port& port, Byte_Receiver receiver) = 0;
};

}  // namespace Midi
