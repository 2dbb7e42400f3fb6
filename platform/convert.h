// Checked conversions between numbers: what does not fit raises Runtime_Error 6 and changes nothing.
#pragma once

#include <cstdint>

// To the nearest integer, a tie to the even neighbour. Runtime_Error 6 beyond 16 bits with sign.
int Round_16(double value);

// The value as a byte, [0, 255], or as a 16-bit number with sign, [-32768, 32767]; else Runtime_Error 6.
std::uint8_t To_Byte(int value);
std::int16_t To_Int16(int value);

// index if it lies in [0, count), else Runtime_Error 9.
int Checked_Index(int index, int count);

// value, but at least low and at most high.
int Clamp(int value, int low, int high);
