#include "adapters/midi/message_queue.h"

#include <algorithm>
#include <cstring>

namespace Midi {
namespace {
// Room for what may wait by the bounds of an output: 4,096 bytes, if need be in messages of one byte, would
// take 70 KB with their heads; ordinary messages of three bytes and more fit here.
constexpr std::size_t Ring_Size = 32768;
}  // namespace

Message_Queue::Message_Queue() : ring_(Ring_Size) {}

void Message_Queue::Push(std::string_view message, std::int64_t time_us) {
  const Head head{time_us, message.size()};
  const std::size_t needed = used_ + sizeof head + message.size();
  if (needed > ring_.size()) Grow(needed);
  const std::size_t end = first_ + used_;
  char head_bytes[sizeof head];
  std::memcpy(head_bytes, &head, sizeof head);
  Write(end, sizeof head, head_bytes);
  Write(end + sizeof head, message.size(), message.data());
  used_ = needed;
  ++count_;
}

std::int64_t Message_Queue::Front_Time_us() const { return Front().time_us; }
std::size_t Message_Queue::Front_Size() const { return Front().size; }

void Message_Queue::Copy_Front(std::size_t offset, std::size_t count, char* to) const {
  Read(first_ + sizeof(Head) + offset, count, to);
}

void Message_Queue::Pop() {
  const std::size_t size = Front_Size();
  first_ = (first_ + sizeof(Head) + size) % ring_.size();
  used_ -= sizeof(Head) + size;
  --count_;
}

Message_Queue::Head Message_Queue::Front() const {
  Head head{};
  char head_bytes[sizeof head];
  Read(first_, sizeof head, head_bytes);
  std::memcpy(&head, head_bytes, sizeof head);
  return head;
}

void Message_Queue::Read(std::size_t at, std::size_t count, char* to) const {
  at %= ring_.size();
  const std::size_t straight = std::min(count, ring_.size() - at);
  std::copy_n(ring_.data() + at, straight, to);
  std::copy_n(ring_.data(), count - straight, to + straight);
}

void Message_Queue::Write(std::size_t at, std::size_t count, const char* from) {
  at %= ring_.size();
  const std::size_t straight = std::min(count, ring_.size() - at);
  std::copy_n(from, straight, ring_.data() + at);
  std::copy_n(from + straight, count - straight, ring_.data());
}

void Message_Queue::Grow(std::size_t needed) {
  std::vector<char> larger(std::max(needed, 2 * ring_.size()));
  Read(first_, used_, larger.data());
  ring_.swap(larger);
  first_ = 0;
}

}  // namespace Midi
