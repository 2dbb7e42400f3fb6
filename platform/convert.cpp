#include "platform/convert.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/runtime_error.h"

namespace {

template <class Integer>
Integer Checked(int value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
    throw Runtime_Error(Error_Overflow);
  }
  return static_cast<Integer>(value);
}

}  // namespace

int Round_16(double value) {
  using Limits = std::numeric_limits<std::int16_t>;
  const double nearest = std::nearbyint(value);  // in the default rounding mode ties go to the even neighbour
  if (!(nearest >= Limits::min() && nearest <= Limits::max())) {
    throw Runtime_Error(Error_Overflow);  // not a number comes here too
  }
  return static_cast<int>(nearest);
}

std::uint8_t To_Byte(int value) { return Checked<std::uint8_t>(value); }

std::int16_t To_Int16(int value) { return Checked<std::int16_t>(value); }

int Checked_Index(int index, int count) {
  if (index < 0 || index >= count) throw Runtime_Error(Error_Subscript);
  return index;
}

int Clamp(int value, int low, int high) { return std::max(low, std::min(value, high)); }
