#include "platform/drives.h"

#include <gtest/gtest.h>

#include "platform/directories.h"
#include "support/temporary_root.h"

namespace {

using namespace std::string_literals;
using Rows = std::vector<std::pair<std::string, std::string>>;

struct Drives_Test : testing::Test {
  std::string Host(const std::string& below) const { return root.host.string() + below; }
  Temporary_Root root;
};

TEST_F(Drives_Test, Names_Match_Component_By_Component_Without_Case) {
  for (const char* directory : {"Music/Tones", "MUSIC", "music"}) root.Make(directory);
  root.Put("Music/Tones/Brass.SYX", "");
  root.Put("MUSIC/a.syx", "");
  const Rows rows{{"c:\\Music\\tones\\BRASS.syx", "/Music/Tones/Brass.SYX"},
                  {"C:\\music\\x", "/music/x"},          // the exact one wins
                  {"C:\\mUSIC\\A.syx", "/MUSIC/a.syx"},  // else the first in order
                  {"C:\\Music\\Nowhere\\Brass.syx", "/Music/Nowhere/Brass.syx"},
                  {"C:/Music\\\\tones\\", "/Music/Tones"},
                  {"C:\\Music\\.\\Tones\\..\\Tones", "/Music/Tones"},
                  {"C:\\..\\..\\Music", "/Music"},
                  {"C:", ""}};
  for (const auto& [path, below] : rows) EXPECT_EQ(Host_Path(path), Host(below)) << path;
  EXPECT_EQ(Spelled_Path("c:\\Music\\tones\\") + Spelled_Path("c:"), "C:\\Music\\TonesC:\\");
}

TEST_F(Drives_Test, A_Path_Without_A_Drive_Starts_At_The_Current_Directory) {
  root.Make("here");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(root.host / "here");
  EXPECT_EQ(Current_Directory(), "C:\\here");
  EXPECT_EQ(Host_Path("x.syx"), Host("/here/x.syx"));
  EXPECT_EQ(Host_Path("\\x.syx"), Host("/x.syx"));
  EXPECT_EQ(Host_Path(""), Host("/here"));
  std::filesystem::remove(root.host / "here");
  EXPECT_EQ(Current_Directory(), "C:\\");
  std::filesystem::current_path(before);
}

TEST_F(Drives_Test, What_Cannot_Be_A_Path_Is_Refused) {
  Drives_Set({{'C', Host("")}, {'E', Host("/unplugged")}});
  for (const std::string& bad : {"*.syx"s, "a?"s, "\"a"s, "<"s, ">"s, "a|b"s, "a\0b"s}) {
    EXPECT_EQ(Raised([&] { Host_Path("C:\\" + bad); }), Error_Bad_File_Name) << bad;
  }
  EXPECT_EQ(Raised([] { Host_Path("Q:\\a"); }), Error_Device_Unavailable);
  EXPECT_EQ(Raised([] { Host_Path("E:\\a"); }), Error_Device_Unavailable);
  EXPECT_EQ(Raised([] { Program_Path("/elsewhere"); }), Error_Device_Unavailable);
}

TEST_F(Drives_Test, A_Host_Path_Gets_The_Drive_With_The_Longest_Prefix) {
  Drives_Set({{'C', "/home/maria"}, {'M', "/home/maria/Music"}, {'N', "/home/maria"}, {'Z', "/"}});
  const Rows rows{{"/home/maria", "C:\\"},
                  {"/home/maria/Music/x", "M:\\x"},
                  {"/home/maria/Musical/x", "C:\\Musical\\x"},
                  {"/home/mariana", "Z:\\home\\mariana"},
                  {"/", "Z:\\"}};
  for (const auto& [host, path] : rows) EXPECT_EQ(Program_Path(host), path);
}

TEST_F(Drives_Test, The_Table_Follows_The_Users_Own_Directories) {
  root.Make(".config");
  root.Make("Klänge");
  root.Put(".config/user-dirs.dirs",
           "# comment\nXDG_DOCUMENTS_DIR=\"$HOME/\"\nXDG_MUSIC_DIR=\"$HOME/Klänge\"\nXDG_MUSIC_DIRX=\"/\"\n");
  const std::string home_before = getenv("HOME") == nullptr ? "" : getenv("HOME");
  setenv("HOME", root.host.c_str(), 1);
  unsetenv("XDG_CONFIG_HOME");
  Drives_Find();
  setenv("HOME", home_before.c_str(), 1);
  EXPECT_EQ(Host_Path("C:\\"), Host(""));
  EXPECT_EQ(Host_Path("M:\\"), Host("/Klänge"));
  EXPECT_EQ(Host_Path("Z:\\"), "/");
  EXPECT_EQ(Raised([] { Host_Path("D:\\"); }),
            Error_Device_Unavailable);  // the home directory stands for "none"
  Directories_Find("/usr/bin/melvor");
  EXPECT_EQ(Program_Directory(), "C:\\.config\\melvor");
  EXPECT_EQ(Data_Directory(), "/usr/share/melvor");
  root.Make("portable");
  root.Put("portable/MELVOR.FNT", "");
  Directories_Find(Host("/portable/melvor"));
  EXPECT_EQ(Program_Directory(), "C:\\portable");
  EXPECT_EQ(Data_Directory(), Host("/portable"));
}

}  // namespace
