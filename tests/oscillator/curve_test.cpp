#include "oscillator/curve.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Levels = std::vector<int>;

// The raw curve as 36 numbers: start and end of each step.
Levels Raw() {
  Levels levels;
  for (const Osc_Level& step : Osc_Raw) levels.insert(levels.end(), {step.start, step.end});
  return levels;
}

// By the number of the wave.
// clang-format off
const std::vector<std::pair<std::string, Levels>> Shapes{
    {"double ramp", {96, 89, 89, 82, 82, 75, 75, 68, 68, 61, 61, 54, 54, 47, 47, 40, 40, 33,
                        96, 89, 89, 82, 82, 75, 75, 68, 68, 61, 61, 54, 54, 47, 47, 40, 40, 33}},
    {"single ramp", {96, 92, 92, 88, 88, 84, 84, 80, 80, 76, 76, 72, 72, 68, 68, 64, 64, 60,
                        60, 56, 56, 52, 52, 48, 48, 44, 44, 40, 40, 36, 36, 32, 32, 28, 28, 24}},
    {"square", {96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96,
                   32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32}},
    {"triangle", {96, 89, 89, 82, 82, 75, 75, 68, 68, 61, 61, 54, 54, 47, 47, 40, 40, 33,
                     33, 40, 40, 47, 47, 54, 54, 61, 61, 68, 68, 75, 75, 82, 82, 89, 89, 96}},
    {"sine", {63, 52, 52, 42, 42, 35, 35, 31, 31, 32, 32, 36, 36, 43, 43, 53, 53, 65,
                 65, 76, 76, 85, 85, 92, 92, 95, 95, 94, 94, 89, 89, 81, 81, 71, 71, 60}},
    {"rectified sine", {63, 52, 52, 42, 42, 35, 35, 31, 31, 32, 32, 36, 36, 43, 43, 53, 53, 61,
                           61, 50, 50, 41, 41, 34, 34, 31, 31, 32, 32, 37, 37, 45, 45, 55, 55, 60}},
    {"single pulse", {32, 32, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96,
                         96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96}},
    {"alternating", {32, 32, 96, 96, 32, 32, 96, 96, 32, 32, 96, 96, 32, 32, 96, 96, 32, 32,
                        96, 96, 32, 32, 96, 96, 32, 32, 96, 96, 32, 32, 96, 96, 32, 32, 96, 96}},
};
// clang-format on

TEST(Oscillator_Curve, Each_Shape_Has_Its_Levels) {
  int wave = 0;
  for (const auto& [name, want] : Shapes) {
    Osc_Flatten();
    Osc_Generate(wave++);
    Osc_Generate(Osc_Kept_Wave);
    EXPECT_EQ(Raw(), want) << name;
  }
}

TEST(Oscillator_Curve, Random_Goes_On_From_The_Level_Before) {
  Osc_Generate(1);  // ends at 24
  int last = 24;
  Osc_Generate(9);
  for (const Osc_Level& step : Osc_Raw) {
    EXPECT_EQ(step.start, last);
    last = step.end;
    EXPECT_TRUE(last >= 0 && last <= 127) << last;
  }
}

TEST(Oscillator_Curve, Amplitude_And_Offset_Cut_And_Clamp) {
  // clang-format off
  for (const auto& [from, amplitude, offset, want] : {
      std::tuple{96, 64, 0, 95},                           // the neutral setting lowers by one
      {64, 0, 0, 63}, {64, 127, 0, 63}, {0, 0, 0, 63},     // the line that stays; no amplitude is flat
      {96, 127, 0, 126}, {65, 32, 0, 63}, {32, 127, 0, 0}, // 126.5, 63.5 and -0.5 are cut
      {0, 64, 64, 0}, {127, 64, -64, 127},                 // clamped
      {64, 64, 20, 43},                                    // a positive offset moves up
      {16320, 1, 64, 127}, {-8064, 1, -64, 0}}) {          // as far out as the pen can take a level
    // clang-format on
    Osc_Raw.fill({64, static_cast<std::int16_t>(from)});
    Osc_Raw[3] = {static_cast<std::int16_t>(from), 64};
    Osc_Shape(amplitude, offset);
    EXPECT_EQ(Osc_Out[3].start, want) << from << " at " << amplitude;
    EXPECT_EQ(Osc_Out[2].end, want) << from << " at " << amplitude;
  }
}

}  // namespace
