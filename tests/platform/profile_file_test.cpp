#include "platform/profile_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <random>

#include "platform/directories.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/temporary_root.h"

namespace {

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
           "Single='x'\nHalf=\"x\n"
           "Equals=a=b;c\n"
           "Empty=\n"
           "=no key\n"
           "[unclosed\n"
           "After=still here\n"
           "[first]\nLate=of a section that is there twice\n"
           "[Grüße]\nSchlüssel=Ä\n"
           "[Last]\nEnd=no line end");
  struct Row {
    std::string section, key, value;
  };
  const Row rows[] = {
      {"First", "Key", "value"},           {"FIRST", "kEY", "value"},      {"First", ";Comment", "(default)"},
      {"Midi", "Input", "  quoted  "},     {"MIDI", "Single", "x"},        {"MIDI", "Half", "\"x"},
      {"MIDI", "Equals", "a=b;c"},         {"MIDI", "Empty", ""},          {"MIDI", "After", "still here"},
      {"MIDI", "Key", "(default)"},        {"First", "Late", "(default)"}, {"None", "Key", "(default)"},
      {"Grüße", "schlÜssel", "(default)"}, {"grüße", "SchlüsseL", "Ä"},    {"Last", "End", "no line end"}};
  for (const Row& row : rows)
    EXPECT_EQ(Get(row.section, row.key), row.value) << row.section << "/" << row.key;
}

TEST_F(Profile_Test, What_Cannot_Be_Read_Gives_The_Default) {
  EXPECT_EQ(Get("MIDI", "Channel"), "(default)");
  root.Make("melvor.ini");
  EXPECT_EQ(Get("MIDI", "Channel"), "(default)");
  EXPECT_FALSE(Write_Profile_String("MIDI", "Channel", "3", Path));
  INI_File = "";
  EXPECT_EQ(INI_Read("MIDI", "Channel", "1"), "1");
  INI_Write("MIDI", "Channel", "2");
  EXPECT_EQ(root.Names(), std::set<std::string>{"melvor.ini"});
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
      {"into an empty section", "[A]\n[B]\nk=1\n", "A", "n", "2", "[A]\nn=2\n[B]\nk=1\n"},
      {"a new section", "[A]\nk=1\n", "B", "n", "2", "[A]\nk=1\n\n[B]\nn=2\n"},
      {"in the file's line ends", "[A]\r\nk=1", "A", "n", "2", "[A]\r\nk=1\r\nn=2\r\n"},
      {"behind a value without end", "[A]\nk=", "B", "n", "2", "[A]\nk=\n\n[B]\nn=2\n"},
      {"an empty value at the end", "[A]\nk=", "A", "k", "long", "[A]\nk=long"},
      {"a shorter value", "[A]\nk=long\nl=1\n", "A", "k", "", "[A]\nk=\nl=1\n"},
      {"an equal value", "[A]\n k = \"x\" \n", "A", "k", "x", "[A]\n k = \"x\" \n"},
      {"quotes as text", "[A]\nk=1\n", "A", "k", "\"x\"", "[A]\nk=\"\"x\"\"\n"},
      {"blanks as text", "[A]\n", "A", "k", " x ", "[A]\nk=\" x \"\n"},
      {"one line only", "[A]\n", "A", "k", "x\r\n[B]\nk=2", "[A]\nk=x\n"},
      {"up to a zero", "[A]\n", "A", "k", "x\0y"s, "[A]\nk=x\n"},
      {"noise alone", "\xFF\xFEnoise", "A", "k", "1", "\xFF\xFEnoise\n\n[A]\nk=1\n"},
  };
  for (const Row& row : rows) {
    std::filesystem::remove(root.host / "melvor.ini");
    if (!row.before.empty()) root.Put("melvor.ini", row.before);
    EXPECT_TRUE(Write_Profile_String(row.section, row.key, row.value, Path)) << row.what;
    EXPECT_EQ(root.Get("melvor.ini"), row.after) << row.what;
  }
}

TEST_F(Profile_Test, Names_That_Could_Not_Be_Found_Again_Are_Refused) {
  const std::pair<std::string, std::string> names[] = {{"", "k"},   {"A]", "k"}, {"A", ""},    {"A", "k=l"},
                                                       {"A", ";k"}, {"A", "[k"}, {"A", "a\nb"}};
  for (const auto& [section, key] : names)
    EXPECT_FALSE(Write_Profile_String(section, key, "1", Path)) << section << key;
  EXPECT_EQ(root.Names(), std::set<std::string>{});
}

TEST_F(Profile_Test, Every_Change_On_Disk_Is_Seen) {
  for (int round = 0; round < 50; ++round) {
    const std::string value =
        std::to_string(100 + round);  // of one length, within one step of the host's clock
    root.Put("melvor.ini", "[A]\nk=" + value + "\n");
    ASSERT_EQ(Get("A", "k"), value);
  }
  // Old enough to be kept, then replaced by one of the same size and time.
  const auto old_time = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time(root.host / "melvor.ini", old_time);
  EXPECT_EQ(Get("A", "k"), "149");
  root.Put("other", "[A]\nk=new\n");
  std::filesystem::last_write_time(root.host / "other", old_time);
  std::filesystem::rename(root.host / "other", root.host / "melvor.ini");
  EXPECT_EQ(Get("A", "k"), "new");
}

TEST_F(Profile_Test, Any_Bytes_Are_Read_Kept_And_Written_Behind) {
  std::mt19937 random(1);
  const std::string letters = "[]=;\"'\r\n\n\n \tAk\0\xFF"s;
  for (int round = 0; round < 100; ++round) {
    std::string noise;
    for (int byte = 0; byte < 3 * round; ++byte) noise += letters[random() % letters.size()];
    root.Put("melvor.ini", noise);
    const std::string value = Get("A", "k");
    EXPECT_TRUE(Write_Profile_String("New", "key", "1", Path));
    EXPECT_TRUE(Write_Profile_String("New", "key", "value", Path));
    EXPECT_EQ(Get("A", "k"), value);
    EXPECT_EQ(Get("New", "key"), "value");
    EXPECT_TRUE(root.Get("melvor.ini").starts_with(noise)) << testing::PrintToString(noise);
  }
}

TEST_F(Profile_Test, Ten_Megabytes_Of_Noise_Are_Only_Slow) {
  std::string noise(10'000'000, '\xFF');
  for (std::size_t place = 0; place < noise.size(); place += 97) noise[place] = "=\n[\0"[place % 4];
  root.Put("melvor.ini", noise + "\n[A]\nk=1\n");
  EXPECT_EQ(Get("A", "k"), "1");
  EXPECT_TRUE(Write_Profile_String("A", "k", "22", Path));
  EXPECT_EQ(root.Get("melvor.ini"), noise + "\n[A]\nk=22\n");
}

TEST_F(Profile_Test, Settings_Are_Cut_To_31_Characters_And_At_A_Zero) {
  const std::string forty = "äbcdefghijäbcdefghijäbcdefghijäbcdefghij";
  INI_Write("A", "long", "  " + forty + "  ");
  EXPECT_EQ(Get("A", "long"), forty);
  EXPECT_EQ(INI_Read("A", "long", ""), "äbcdefghijäbcdefghijäbcdefghijä");
  EXPECT_EQ(INI_Read("A", "none", forty), "äbcdefghijäbcdefghijäbcdefghijä");
  root.Put("melvor.ini", "[A]\nk=a\0b\n"s);
  EXPECT_EQ(INI_Read("a", "K", ""), "a");
}

TEST_F(Profile_Test, A_Held_Batch_Is_One_Replacement) {
  root.Put("melvor.ini", "[A]\nk=1\n");
  const auto inode = [&] {
    struct stat status {};
    stat((root.host / "melvor.ini").c_str(), &status);
    return status.st_ino;
  };
  const auto before = inode();
  INI_Hold();
  INI_Hold();
  INI_Write("A", "k", "2");
  INI_Write("B", "n", " 3 ");
  INI_Release();
  INI_Write("a", "K", "4");
  EXPECT_EQ(root.Get("melvor.ini"), "[A]\nk=1\n");
  EXPECT_EQ(INI_Read("A", "k", "") + INI_Read("b", "N", ""), "43");
  EXPECT_EQ(inode(), before);
  INI_Release();
  EXPECT_EQ(root.Get("melvor.ini"), "[A]\nk=4\n\n[B]\nn=3\n");
  const auto after = inode();
  INI_Write("A", "k", "4");
  EXPECT_EQ(inode(), after);  // nothing new, nothing replaced
}

TEST_F(Profile_Test, A_Held_Batch_Gives_The_Bytes_Of_Single_Writes) {
  struct Row {
    const char *section, *key, *value;
  };
  const Row writes[] = {{"A", "k", "longer"}, {"A", "n", "1"}, {"B", "n", ""},  {"A", "k", ""},
                        {"B", "n", "22"},     {"B", "m", "3"}, {"A", "o", "4"}, {"C", "k", "5"}};
  for (const char* start :
       {"", "[A]", "[A]\nk=", "[A]\nk=1\n\n[B]\nn=22", "[B]\nn=2\n[A]\n;end\n", "noise\n[B]"}) {
    root.Put("melvor.ini", start);
    for (const Row& row : writes) INI_Write(row.section, row.key, row.value);
    const std::string single = root.Get("melvor.ini");
    root.Put("melvor.ini", start);
    INI_Hold();
    for (const Row& row : writes) INI_Write(row.section, row.key, row.value);
    INI_Release();
    EXPECT_EQ(root.Get("melvor.ini"), single) << start;
    EXPECT_EQ(Get("A", "k") + Get("A", "n") + Get("A", "o") + Get("B", "n") + Get("B", "m") + Get("C", "k"),
              "142235");
  }
}

TEST_F(Profile_Test, The_Program_Directory_Is_Made_By_The_First_Write) {
  Directories_Set("C:\\.config\\melvor", "");
  INI_File = "C:\\.config\\melvor\\MELVOR.INI";
  INI_Write("MIDI", "Channel", "3");
  Directories_Set("", "");
  EXPECT_EQ(root.Get(".config/melvor/MELVOR.INI"), "[MIDI]\nChannel=3\n");
}

TEST(Path, A_Slash_Comes_Behind_Once) {
  const std::pair<std::string, std::string> rows[] = {
      {" c:\\tones ", "c:\\tones\\"}, {"c:\\", "c:\\"}, {"c:\\ ", "c:\\"}, {"", "\\"}};
  for (const auto& [path, slashed] : rows) EXPECT_EQ(Path_Slash(path), slashed) << path;
}

}  // namespace
