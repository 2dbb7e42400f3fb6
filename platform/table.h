// Tables of rows whose number is given by something else.
#pragma once

#include <array>
#include <cstddef>

// The rows, which must be size in number: a forgotten one does not compile.
template <class Row, std::size_t size, std::size_t count>
constexpr std::array<Row, size> Full_Table(const Row (&rows)[count]) {
  static_assert(count == size, "a row is missing or too many");
  return std::to_array(rows);
}
