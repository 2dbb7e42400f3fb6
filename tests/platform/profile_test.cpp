// Settings in their file.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/profile_file.h"
#include "support/temporary_root.h"

namespace {

using namespace std::string_literals;

constexpr std::string_view Path = "C:\\melvor.ini";

struct Profile_Test : testing::Test {
  Profile_Test() { INI_File = Path; }
  std::string Get(std::string_view section, std::string_view key) const {
    return Get_Profile_String(section, key, "(default)", Path);
  }
  ino_t Inode() const {
    struct stat status {};
    stat((root.host / "melvor.ini").c_str(), &status);
    return status.st_ino;
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
           "Single='x'\nHalf=\"x\n"
           "Equals=a=b;c\n"
           "Empty=\n"
           "[unclosed\n"
           "After=still here\n"
           "[first]\nLate=of a section that is there twice\n"
           "[Grüße]\nEnd=no line end");
  struct Row {
    std::string section, key, value;
  };
  const Row rows[] = {{"First", "kEY", "value"},       {"First", ";Comment", "(default)"},
                      {"Midi", "Input", "  quoted  "}, {"MIDI", "Single", "x"},
                      {"MIDI", "Half", "\"x"},         {"MIDI", "Equals", "a=b;c"},
                      {"MIDI", "Empty", ""},           {"MIDI", "After", "still here"},
                      {"First", "Late", "(default)"},  {"None", "Key", "(default)"},
                      {"grüße", "end", "no line end"}};
  for (const Row& row : rows) EXPECT_EQ(Get(row.section, row.key), row.value) << row.key;
}

TEST_F(Profile_Test, A_Write_Changes_Its_Value_And_No_Other_Byte) {
  struct Row {
    const char* what;
    std::string before, section, key, value, after;
  };
  const Row rows[] = {
      {"no file yet", "", "MIDI", "Channel", "3", "[MIDI]\nChannel=3\n"},
      {"only the value", "x\r\n[midi]\r\n Channel = 1 \t\r\n\0\xFF\r\n"s, "MIDI", "CHANNEL", "16",
       "x\r\n[midi]\r\n Channel = 16 \t\r\n\0\xFF\r\n"s},
      {"the first of two", "[A]\nk=1\nk=2\n[a]\nk=3\n", "A", "K", "new", "[A]\nk=new\nk=2\n[a]\nk=3\n"},
      {"behind the last key", "[A]\nk=1\n\n;of B\n[B]\n", "A", "n", "2", "[A]\nk=1\nn=2\n\n;of B\n[B]\n"},
      {"a new section", "[A]\nk=1\n", "B", "n", "2", "[A]\nk=1\n\n[B]\nn=2\n"},
      {"in the file's line ends", "[A]\r\nk=1", "A", "n", "2", "[A]\r\nk=1\r\nn=2\r\n"},
      {"an equal value", "[A]\n k = \"x\" \n", "A", "k", "x", "[A]\n k = \"x\" \n"},
      {"quotes as text", "[A]\nk=1\n", "A", "k", "\"x\"", "[A]\nk=\"\"x\"\"\n"},
      {"blanks as text", "[A]\n", "A", "k", " x ", "[A]\nk=\" x \"\n"},
      {"one line only", "[A]\n", "A", "k", "x\r\n[B]\nk=2", "[A]\nk=x\n"},
      {"up to a zero", "[A]\n", "A", "k", "x\0y"s, "[A]\nk=x\n"},
  };
  for (const Row& row : rows) {
    std::filesystem::remove(root.host / "melvor.ini");
    if (!row.before.empty()) root.Put("melvor.ini", row.before);
    EXPECT_TRUE(Write_Profile_String(row.section, row.key, row.value, Path)) << row.what;
    EXPECT_EQ(root.Get("melvor.ini"), row.after) << row.what;
  }
  const std::pair<std::string, std::string> not_found_again[] = {
      {"", "k"}, {"A]", "k"}, {"A", ""}, {"A", "k=l"}, {"A", ";k"}, {"A", "[k"}, {"A", "a\nb"}};
  for (const auto& [section, key] : not_found_again)
    EXPECT_FALSE(Write_Profile_String(section, key, "1", Path)) << section << key;
  EXPECT_EQ(root.Get("melvor.ini"), std::end(rows)[-1].after);
}

TEST_F(Profile_Test, Every_Change_On_Disk_Is_Seen) {
  // Of one length, within one step of the host's clock.
  for (const std::string value : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
    root.Put("melvor.ini", "[A]\nk=" + value + "\n");
    EXPECT_EQ(Get("A", "k"), value);
  }
  // Old enough to be kept, then replaced by one of the same size and time.
  root.Put("other", "[A]\nk=9\n");
  const auto old_time = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  for (const char* name : {"melvor.ini", "other"})
    std::filesystem::last_write_time(root.host / name, old_time);
  EXPECT_EQ(Get("A", "k"), "8");
  std::filesystem::rename(root.host / "other", root.host / "melvor.ini");
  EXPECT_EQ(Get("A", "k"), "9");
}

TEST_F(Profile_Test, Settings_Are_Cut_To_31_Characters_And_At_A_Zero) {
  const std::string forty = "äbcdefghijäbcdefghijäbcdefghijäbcdefghij";
  INI_Write("A", "long", "  " + forty + "  ");
  EXPECT_EQ(Get("A", "long"), forty);
  EXPECT_EQ(INI_Read("A", "long", ""), "äbcdefghijäbcdefghijäbcdefghijä");
  root.Put("melvor.ini", "[A]\nk=a\0b\n"s);
  EXPECT_EQ(INI_Read("a", "K", ""), "a");
}

TEST_F(Profile_Test, A_Held_Batch_Is_One_Replacement_With_The_Bytes_Of_Single_Writes) {
  struct Row {
    const char *section, *key, *value;
  };
  const Row writes[] = {{"A", "k", "longer"}, {"A", "n", "1"}, {"B", "n", ""},  {"a", "K", "4"},
                        {"B", "n", "22"},     {"B", "m", "3"}, {"A", "o", "4"}, {"C", "k", "5"}};
  for (const char* start :
       {"[A]", "[A]\nk=", "[A]\nk=1\n\n[B]\nn=22", "[B]\nn=2\n[A]\n;end\n", "noise\n[B]"}) {
    root.Put("melvor.ini", start);
    for (const Row& row : writes) INI_Write(row.section, row.key, row.value);
    const std::string single = root.Get("melvor.ini");
    root.Put("melvor.ini", start);
    INI_Hold();
    INI_Hold();
    for (const Row& row : writes) INI_Write(row.section, row.key, row.value);
    INI_Release();
    EXPECT_EQ(root.Get("melvor.ini"), start);
    EXPECT_EQ(INI_Read("A", "k", "") + INI_Read("b", "N", ""), "422");
    INI_Release();
    EXPECT_EQ(root.Get("melvor.ini"), single) << start;
    const ino_t written = Inode();
    INI_Write("A", "k", "4");
    EXPECT_EQ(Inode(), written) << "nothing new, nothing replaced";
  }
}

}  // namespace
