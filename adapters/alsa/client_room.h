// How much room a client of the sequencer has for events.
#pragma once

#include <cstddef>

namespace Alsa {

// Whether an event of size bytes has room in the client's queue of received events. A program that reads late
// must not be sent more: the kernel then refuses the event, and on top of that empties the whole queue. True
// for clients of the kernel, which have no queue, and where the kernel does not tell.
bool Has_Room(int sequencer_file, int client, std::size_t size);

}  // namespace Alsa
