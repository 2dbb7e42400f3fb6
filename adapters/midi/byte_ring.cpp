#include "adapters/midi/byte_ring.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace Midi {

Byte_Ring::Byte_Ring(std::size_t size) : bytes_(std::bit_ceil(size)) {}

bool Byte_Ring::Write(std::string_view first, std::string_view second) {
  const std::size_t written = written_.load(std::memory_order_relaxed);
  // Acquire: the reader has copied what is overwritten now.
  const std::size_t used = written - read_.load(std::memory_order_acquire);
  if (first.size() + second.size() > bytes_.size() - used) return false;
  Copy_In(written, first);
  Copy_In(written + first.size(), second);
  written_.store(written + first.size() + second.size(), std::memory_order_release);
  return true;
}

void Byte_Ring::Copy_In(std::size_t at, std::string_view bytes) {
  at %= bytes_.size();
  const std::size_t straight = std::min(bytes.size(), bytes_.size() - at);
  std::copy_n(bytes.data(), straight, bytes_.data() + at);
  std::copy_n(bytes.data() + straight, bytes.size() - straight, bytes_.data());
}

std::size_t Byte_Ring::Readable() const {
  return written_.load(std::memory_order_acquire) - read_.load(std::memory_order_relaxed);
}

std::size_t Byte_Ring::Peek(char* to, std::size_t count) const {
  count = std::min(count, Readable());
  const std::size_t at = read_.load(std::memory_order_relaxed) % bytes_.size();
  const std::size_t straight = std::min(count, bytes_.size() - at);
  std::copy_n(bytes_.data() + at, straight, to);
  std::copy_n(bytes_.data(), count - straight, to + straight);
  return count;
}

std::size_t Byte_Ring::Read(char* to, std::size_t count) {
  count = Peek(to, count);
  // Release: what was copied may be overwritten from now on.
  read_.store(read_.load(std::memory_order_relaxed) + count, std::memory_order_release);
  return count;
}

void Byte_Ring::Drop_All() {
  read_.store(written_.load(std::memory_order_acquire), std::memory_order_release);
}

void Byte_Ring::Reset() {
  written_ = 0;
  read_ = 0;
}

bool Put_Record(Byte_Ring& ring, std::uint32_t tag, std::string_view bytes) {
  const Record_Head head{tag, static_cast<std::uint32_t>(bytes.size())};
  char head_bytes[sizeof head];
  std::memcpy(head_bytes, &head, sizeof head);
  return ring.Write({head_bytes, sizeof head}, bytes);
}

std::optional<Record_Head> Take_Head(Byte_Ring& ring) {
  Record_Head head{};
  char head_bytes[sizeof head];
  if (ring.Readable() == 0) return std::nullopt;
  if (ring.Read(head_bytes, sizeof head) == sizeof head) {
    std::memcpy(&head, head_bytes, sizeof head);
    if (head.size <= ring.Readable()) return head;
  }
  ring.Drop_All();
  return std::nullopt;
}

}  // namespace Midi
