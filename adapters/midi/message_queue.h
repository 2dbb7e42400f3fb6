// A queue of messages in one ring of bytes, so that a message on its way costs no memory of its own.
// Not safe for threads by itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Midi {

struct Message_Queue {
  Message_Queue();

  bool Empty() const { return count_ == 0; }

  // Puts a message at the end. Memory is allocated only for one that does not fit the ring.
  void Push(std::string_view message, std::int64_t time_us);

  // Of the oldest message. REQUIRES: not Empty().
  std::int64_t Front_Time_us() const;
  std::size_t Front_Size() const;
  // Copies count bytes of it from offset on. REQUIRES: they lie in it.
  void Copy_Front(std::size_t offset, std::size_t count, char* to) const;
  void Pop();

 private:
  struct Head {
    std::int64_t time_us;
    std::size_t size;
  };
  Head Front() const;
  void Read(std::size_t at, std::size_t count, char* to) const;
  void Write(std::size_t at, std::size_t count, const char* from);
  void Grow(std::size_t needed);

  std::vector<char> ring_;
  std::size_t first_ = 0;  // where the oldest message begins
  std::size_t used_ = 0;   // heads included
  std::size_t count_ = 0;
};

}  // namespace Midi
