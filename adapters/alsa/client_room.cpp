#include "adapters/alsa/client_room.h"

// The kernel's own interface: the library asks only for the program's own client. The two headers do not go
// together.
#include <sound/asequencer.h>
#include <sys/ioctl.h>

#include <algorithm>

namespace Alsa {

bool Has_Room(int sequencer_file, int client, std::size_t size) {
  snd_seq_client_pool pool{};
  pool.client = client;
  if (ioctl(sequencer_file, SNDRV_SEQ_IOCTL_GET_CLIENT_POOL, &pool) < 0 || pool.input_pool <= 0) return true;
  constexpr std::size_t Cell = sizeof(snd_seq_event);
  const int needed = 1 + static_cast<int>((size + Cell - 1) / Cell);
  return pool.input_free >= std::min(needed, pool.input_pool);
}

}  // namespace Alsa
