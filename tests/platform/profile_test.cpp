// Settings in their file.
#include "platform/profile_file.h"
#include "support/temporary_root.h"

using namespace std::string_literals;

constexpr std::string_view Path = "C:\\melvor.ini";

struct Profile_Test : testing::Test {
  Profile_Test() { INI_File = Path; }
  std::string Get(std::string_view section, std::string_view key) const {
    return Get_Profile_String(section, key, "(default)", Path);
  }
  Temporary_Root root;
};

TEST_F(Profile_Test, Values_Are_Found_Among_Noise) {
  root.Put("melvor.ini",
           "\xEF\xBB\xBF[First]\r\n"
           "Key = value \t\r\n"
           "key=second\n"
           ";Comment=1\n"
           "[ MIDI\t]  noise behind\n"
           "noise without equals\n"
           "INPUT=\"  quoted  \"\n"
           "Equals=a=b;c\n"
           "[unclosed\n"
           "After=still here\n"
           "[Grüße]\nEnd=no line end");
  const std::array<const char*, 3> rows[] = {
      {"First", "kEY", "value"},      {"First", ";Comment", "(default)"}, {"Midi", "Input", "  quoted  "},
      {"MIDI", "Equals", "a=b;c"},    {"MIDI", "After", "still here"},    {"None", "Key", "(default)"},
      {"grüße", "end", "no line end"}};
  for (const auto& [section, key, value] : rows) EXPECT_EQ(Get(section, key), value) << key;
}

TEST_F(Profile_Test, A_Write_Changes_Its_Value_And_No_Other_Byte) {
  using Row = std::tuple<std::string, std::string, std::string, std::string, std::string>;
  for (const auto& [before, section, key, value, after] :
       {Row{"", "MIDI", "Channel", "3", "[MIDI]\nChannel=3\n"},
        {"x\r\n[midi]\r\n Channel = 1 \t\r\n\0\xFF\r\n"s, "MIDI", "CHANNEL", "16",
         "x\r\n[midi]\r\n Channel = 16 \t\r\n\0\xFF\r\n"s},
        {"[A]\nk=1\n\n;of B\n[B]\n", "A", "n", "2", "[A]\nk=1\nn=2\n\n;of B\n[B]\n"},
        {"[A]\nk=1\n", "B", "n", "2", "[A]\nk=1\n\n[B]\nn=2\n"},
        {"[A]\r\nk=1", "A", "n", "2", "[A]\r\nk=1\r\nn=2\r\n"},
        {"[A]\nk=1\n", "A", "k", "\"x\"", "[A]\nk=\"\"x\"\"\n"},
        {"[A]\n", "A", "k", "x\r\n[B]\nk=2", "[A]\nk=x\n"}}) {
    std::filesystem::remove(root.host / "melvor.ini");
    if (!before.empty()) root.Put("melvor.ini", before);
    EXPECT_TRUE(Write_Profile_String(section, key, value, Path)) << before;
    EXPECT_EQ(root.Get("melvor.ini"), after);
  }
  for (const char* not_found_again : {"", "k=l", ";k", "[k", "a\nb"})
    EXPECT_FALSE(Write_Profile_String("A", not_found_again, "1", Path)) << not_found_again;
  EXPECT_EQ(root.Get("melvor.ini"), "[A]\nk=x\n");
}

TEST_F(Profile_Test, Every_Change_On_Disk_Is_Seen) {
  // Of one length, within one step of the host's clock.
  for (const std::string value : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
    root.Put("melvor.ini", "[A]\nk=" + value + "\n");
    EXPECT_EQ(Get("A", "k"), value);
  }
}

TEST_F(Profile_Test, A_Held_Batch_Is_Written_At_Its_End_With_The_Bytes_Of_Single_Writes) {
  const auto write = [] {
    for (const auto& [section, key] : {std::pair{"A", "k"}, {"A", "n"}, {"B", "n"}, {"a", "K"}, {"C", "k"}})
      INI_Write(section, key, std::string("  ") + section + key + "  ");
  };
  for (const char* start : {"[A]", "[A]\nk=1\n\n[B]\nn=22", "[B]\nn=2\n[A]\n;end\n", "noise\n[B]"}) {
    root.Put("melvor.ini", start);
    write();
    const std::string single = root.Get("melvor.ini");
    root.Put("melvor.ini", start);
    INI_Hold();
    write();
    EXPECT_EQ(root.Get("melvor.ini") + INI_Read("A", "k", ""), start + "aK"s);
    INI_Release();
    EXPECT_EQ(root.Get("melvor.ini"), single) << start;
  }
}
