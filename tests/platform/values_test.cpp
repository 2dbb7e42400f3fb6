// Numbers and texts: how they are rounded, read, compared and matched.
#include <climits>
#include <cmath>

#include "platform/convert.h"
#include "platform/text.h"
#include "support/temporary_root.h"

TEST(Convert, Ties_Go_To_The_Even_Neighbour_And_What_Does_Not_Fit_Overflows) {
  const std::pair<double, int> rows[] = {
      {0.5, 0}, {1.5, 2}, {-2.51, -3}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& [value, rounded] : rows) EXPECT_EQ(Round_16(value), rounded) << value;
  for (const double value : {32767.5, -32768.6, double{NAN}, -double{INFINITY}})
    EXPECT_EQ(Raised([&] { Round_16(value); }), Error_Overflow) << value;
}

TEST(Text, Lengths_Count_Characters_And_Survive_Broken_Ones) {
  EXPECT_EQ(First_Characters("€𝄞ß", 2), "€𝄞");
  EXPECT_EQ(First_Characters("a\xE2\x82", 2), "a\xE2");
}

TEST(Text, Leading_Numbers_Stop_At_What_Is_None) {
  const std::pair<const char*, int> rows[] = {{"", 0},     {"12abc", 12}, {" - 3", -3},           {"--7", 0},
                                              {"1 2", 12}, {"2.9", 2},    {"2147483648", INT_MAX}};
  for (const auto& [text, value] : rows) EXPECT_EQ(Leading_Number(text), value) << text;
}

TEST(Text, Forms_Match_Whole_Texts) {
  using Rows = std::initializer_list<std::pair<const char*, const char*>>;
  for (const auto& [text, form] : Rows{{"41 35 00 ", "41 35 ?? "},
                                       {"ä:\\", "?:\\"},
                                       {"A.SYX.SYX", "*.SYX"},
                                       {"", "*"},
                                       {"abcbcd", "a*bcd"}})
    EXPECT_TRUE(Has_Form(text, form)) << text << " " << form;
  for (const auto& [text, form] : Rows{{"41 35 00 F0", "41 35 ?? "}, {"", "?"}, {"A.SYX.OLD", "*.SYX"}})
    EXPECT_FALSE(Has_Form(text, form)) << text << " " << form;
}
