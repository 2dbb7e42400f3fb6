#include "platform/convert.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/chance.h"
#include "platform/temporary_root.h"

TEST(Convert, Rounds_To_Nearest_With_Ties_To_Even) {
  struct Row {
    double value;
    int rounded;
  };
  const Row rows[] = {{0.5, 0},   {1.5, 2},       {2.5, 2},  {-0.5, 0},
                      {-1.5, -2}, {16 / 12.0, 1}, {2.49, 2}, {-2.51, -3}};
  for (const Row& row : rows) {
    EXPECT_EQ(Round_16(row.value), row.rounded) << row.value;
    EXPECT_EQ(Round_32(row.value), row.rounded) << row.value;
  }
}

TEST(Convert, What_Does_Not_Fit_Overflows) {
  struct Row {
    int raised;
    int number;
  };
  const Row rows[] = {
      {Raised([] { Round_16(32767.4); }), 0},
      {Raised([] { Round_16(32767.5); }), 6},  // ties go to 32768
      {Raised([] { Round_16(-32768.5); }), 0},
      {Raised([] { Round_16(-32768.6); }), 6},
      {Raised([] { Round_16(NAN); }), 6},
      {Raised([] { Round_32(2147483647.0); }), 0},
      {Raised([] { Round_32(2147483648.0); }), 6},
      {Raised([] { Round_32(-INFINITY); }), 6},
      {Raised([] { To_Byte(255); }), 0},
      {Raised([] { To_Byte(256); }), 6},
      {Raised([] { To_Byte(-1); }), 6},
      {Raised([] { To_Int16(-32768); }), 0},
      {Raised([] { To_Int16(32768); }), 6},
      {Raised([] { Checked_Index(58, 59); }), 0},
      {Raised([] { Checked_Index(59, 59); }), 9},
      {Raised([] { Checked_Index(-1, 59); }), 9},
  };
  for (std::size_t row = 0; row < std::size(rows); ++row)
    EXPECT_EQ(rows[row].raised, rows[row].number) << row;
}

TEST(Chance, A_Seed_Brings_Its_Series_Again_And_Fills_The_Range) {
  Randomize(7);
  const double first = Rnd();
  double low = 1, high = 0;
  for (int draw = 0; draw < 10'000; ++draw) {
    const double value = Rnd();
    EXPECT_EQ(static_cast<double>(static_cast<float>(value)), value);
    low = std::min(low, value);
    high = std::max(high, value);
  }
  EXPECT_GE(low, 0.0);
  EXPECT_LT(low, 0.01);
  EXPECT_GT(high, 0.99);
  EXPECT_LT(high, 1.0);
  Randomize(7);
  EXPECT_EQ(Rnd(), first);
  Randomize(8);
  EXPECT_NE(Rnd(), first);
}
