#include "platform/text.h"

#include <gtest/gtest.h>

#include <climits>

TEST(Text, Case_Touches_A_To_Z_Only) {
  EXPECT_EQ(Upper("az{`\xC3\xA4ß"), "AZ{`\xC3\xA4ß");
  EXPECT_EQ(Lower("AZ[@\xC3\x84"), "az[@\xC3\x84");
  EXPECT_TRUE(Same_Text("Größe.SYX", "gRöße.syx"));
  EXPECT_FALSE(Same_Text("ä", "Ä"));
  EXPECT_FALSE(Same_Text("abc", "abcd"));
}

TEST(Text, Trim_Takes_Blanks_Only_From_The_Ends) {
  EXPECT_EQ(Trim("  a b\t "), "a b\t");
  EXPECT_EQ(Trim_Right("  a  "), "  a");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim_Right("   "), "");
}

TEST(Text, Lengths_Count_Characters_And_Survive_Broken_Ones) {
  struct Row {
    std::string text;
    int count;
    int first;
    std::string cut;
  };
  const Row rows[] = {
      {"", 0, 3, ""},
      {"Grüße", 5, 3, "Grü"},
      {"𝄞€a", 3, 2, "𝄞€"},
      {"abc", 3, 9, "abc"},
      {"abc", 3, 0, ""},
      {"\x80\x80\xFF", 3, 2, "\x80\x80"},  // bytes that begin no character
      {"a\xE2\x82", 3, 2, "a\xE2"},        // a character that is cut short
      {"\xC3(", 2, 1, "\xC3"},             // a first byte without its second
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Character_Count(row.text), row.count) << row.text;
    EXPECT_EQ(First_Characters(row.text, row.first), row.cut) << row.text;
  }
}

TEST(Text, Hexadecimal_Both_Ways) {
  struct Row {
    std::string text;
    int value;
  };
  const Row rows[] = {{"0", 0},         {"1f", 31},  {" F 0 ", 240}, {"7FFFFFFF", INT_MAX},
                      {"80000000", -1}, {"", -1},    {"  ", -1},     {"1G", -1},
                      {"-1", -1},       {"0x1", -1}, {"F0\n", -1},   {"00000F", 15}};
  for (const Row& row : rows) EXPECT_EQ(Hex_Value(row.text), row.value) << row.text;
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(31), "1F");
  EXPECT_EQ(Hex(INT_MAX), "7FFFFFFF");
  EXPECT_EQ(Hex_2(10), "0A");
  EXPECT_EQ(Hex_2(255), "FF");
}

TEST(Text, Leading_Numbers_Stop_At_What_Is_None) {
  struct Row {
    std::string text;
    int value;
  };
  const Row rows[] = {{"", 0},
                      {"abc", 0},
                      {"12abc", 12},
                      {" - 3", -3},
                      {"+7", 7},
                      {"--7", 0},
                      {"1 2", 12},
                      {"5-3", 5},
                      {"2.9", 2},
                      {"-0", 0},
                      {"0x10", 0},
                      {"99999999999999999999", INT_MAX},
                      {"-99999999999999999999", INT_MIN},
                      {"-2147483648", INT_MIN},
                      {std::string("4\0005", 3), 4}};
  for (const Row& row : rows) EXPECT_EQ(Leading_Number(row.text), row.value) << row.text;
}

TEST(Text, Forms_Match_Whole_Texts) {
  struct Row {
    std::string_view text, pattern;
    bool matches;
  };
  const Row rows[] = {
      {"F0 41 35 00 21 20 01 ", "F0 41 35 ?? 21 20 01 ", true},
      {"F0 41 35 00 21 20 01 F0", "F0 41 35 ?? 21 20 01 ", false},
      {"C:\\", "?:\\", true},
      {"C:\\A", "?:\\", false},
      {"ä:\\", "?:\\", true},
      {"A.SYX", "*.SYX", true},
      {"A.SYX.OLD", "*.SYX", false},
      {"A.SYX.SYX", "*.SYX", true},
      {".SYX", "*.SYX", true},
      {"a.syx", "*.SYX", false},
      {"", "", true},
      {"", "*", true},
      {"", "?", false},
      {"abcbcd", "a*bcd", true},
      {"abcbce", "a*bcd", false},
      {"aXbYc", "a*b*c", true},
      {"abc", "abc**", true},
      {"\xFF", "?", true},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Has_Form(row.text, row.pattern), row.matches) << row.text << " " << row.pattern;
}

TEST(Text, Captions_Mark_One_Access_Key) {
  struct Row {
    std::string_view caption;
    int key;
    std::string_view plain;
  };
  const Row rows[] = {{"File &Name:", 'N', "File Name:"},
                      {"Dri&ves:", 'V', "Drives:"},
                      {"A && &b", 'B', "A & b"},
                      {"A && B", 0, "A & B"},
                      {"End&", 0, "End"},
                      {"", 0, ""}};
  for (const Row& row : rows) {
    EXPECT_EQ(Access_Key(row.caption), row.key) << row.caption;
    EXPECT_EQ(Plain_Caption(row.caption), row.plain) << row.caption;
  }
}
