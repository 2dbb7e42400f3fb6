#include "platform/chance.h"

#include <chrono>
#include <random>

namespace {

std::mt19937_64 Generator;

}  // namespace

double Rnd() {
  constexpr int Precision_Bits = 24;  // of a single-precision number
  return static_cast<double>(Generator() >> (64 - Precision_Bits)) / (1 << Precision_Bits);
}

void Randomize() {
  Randomize(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

void Randomize(std::uint64_t seed) { Generator.seed(seed); }
