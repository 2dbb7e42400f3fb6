// Numbers and texts: how they are rounded, read, compared and matched.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "platform/convert.h"
#include "platform/text.h"
#include "support/temporary_root.h"

TEST(Convert, Ties_Go_To_The_Even_Neighbour_And_What_Does_Not_Fit_Overflows) {
  const std::pair<double, int> rows[] = {{0.5, 0},  {1.5, 2},    {2.5, 2},         {-1.5, -2},
                                         {2.49, 2}, {-2.51, -3}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& [value, rounded] : rows) EXPECT_EQ(Round_16(value), rounded) << value;
  for (const double value : {32767.5, -32768.6, double{NAN}, -double{INFINITY}}) {
    EXPECT_EQ(Raised([&] { Round_16(value); }), Error_Overflow) << value;
  }
}

TEST(Text, Lengths_Count_Characters_And_Survive_Broken_Ones) {
  struct Row {
    std::string text, first_two;
    int count;
  };
  const Row rows[] = {
      {"", "", 0},
      {"€𝄞ß", "€𝄞", 3},
      {"\x80\x80\xFF", "\x80\x80", 3},  // bytes that begin no character
      {"a\xE2\x82", "a\xE2", 3},        // a character that is cut short
      {"\xC3(", "\xC3(", 2},            // a first byte without its second
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Character_Count(row.text), row.count) << row.text;
    EXPECT_EQ(First_Characters(row.text, 2), row.first_two) << row.text;
  }
}

TEST(Text, Leading_Numbers_Stop_At_What_Is_None) {
  const std::pair<const char*, int> rows[] = {{"", 0},    {"12abc", 12}, {" - 3", -3}, {"+7", 7},
                                              {"--7", 0}, {"1 2", 12},   {"5-3", 5},   {"0x10", 0},
                                              {"2.9", 2}, {"\t8", 8}};
  for (const auto& [text, value] : rows) EXPECT_EQ(Leading_Number(text), value) << text;
  EXPECT_EQ(Leading_Number("2147483648"), INT_MAX);
  EXPECT_EQ(Leading_Number("-99999999999999999999"), INT_MIN);
}

TEST(Text, Forms_Match_Whole_Texts) {
  using Row = std::pair<const char*, const char*>;
  for (const auto& [text, form] :
       {Row{"F0 41 35 00 ", "F0 41 35 ?? "}, Row{"ä:\\", "?:\\"}, Row{"\xFF", "?"}, Row{"A.SYX.SYX", "*.SYX"},
        Row{"", "*"}, Row{"abcbcd", "a*bcd"}, Row{"abc", "abc**"}}) {
    EXPECT_TRUE(Has_Form(text, form)) << text << " " << form;
  }
  for (const auto& [text, form] : {Row{"F0 41 35 00 F0", "F0 41 35 ?? "}, Row{"", "?"},
                                   Row{"A.SYX.OLD", "*.SYX"}, Row{"abcbce", "a*bcd"}}) {
    EXPECT_FALSE(Has_Form(text, form)) << text << " " << form;
  }
}

TEST(Text, Captions_Mark_One_Access_Key) {
  struct Row {
    std::string_view caption, plain;
    int key;
  };
  for (const Row& row :
       {Row{"Dri&ves:", "Drives:", 'V'}, Row{"A && &b", "A & b", 'B'}, Row{"End&", "End", 0}}) {
    EXPECT_EQ(Access_Key(row.caption), row.key) << row.caption;
    EXPECT_EQ(Plain_Caption(row.caption), row.plain) << row.caption;
  }
}
