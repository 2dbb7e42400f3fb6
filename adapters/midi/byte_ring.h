// A ring of bytes between one writing and one reading thread. Takes no lock, and no memory once it is made,
// so that either may be a thread of a sound server.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Midi {

struct Byte_Ring {
  // Holds size bytes, rounded up to a power of two.
  explicit Byte_Ring(std::size_t size);

  // Writing thread. Both pieces become readable together; false: they have no room, and nothing was written.
  [[nodiscard]] bool Write(std::string_view first, std::string_view second);

  // Reading thread. Take up to count bytes, as many as are readable, and return their number.
  std::size_t Peek(char* to, std::size_t count) const;
  std::size_t Read(char* to, std::size_t count);
  std::size_t Readable() const;
  void Drop_All();

  // REQUIRES: neither thread uses the ring.
  void Reset();

 private:
  void Copy_In(std::size_t at, std::string_view bytes);

  std::vector<char> bytes_;
  // Counted on and on; their places in the ring are what remains modulo its size.
  std::atomic<std::size_t> written_ = 0;
  std::atomic<std::size_t> read_ = 0;
};

// A record in a ring: a head, then size bytes.
struct Record_Head {
  std::uint32_t tag;
  std::uint32_t size;
};

// Writing thread. False: the record has no room.
[[nodiscard]] bool Put_Record(Byte_Ring& ring, std::uint32_t tag, std::string_view bytes);

// Reading thread. Takes the head of the next record, all of whose bytes are then readable. A record becomes
// readable as a whole, so a head that announces more than that is damaged; nobody knows where the next one
// begins, and all that is readable is dropped.
[[nodiscard]] std::optional<Record_Head> Take_Head(Byte_Ring& ring);

}  // namespace Midi
