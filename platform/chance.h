// Chance: one generator for the program. User-interface thread only.
#pragma once

#include <cstdint>

// Uniform in [0, 1), as a single-precision number has it.
double Rnd();
// Seeds the generator from the clock, or by hand for a series that comes again.
void Randomize();
void Randomize(std::uint64_t seed);
