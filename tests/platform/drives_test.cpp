#include "platform/drives.h"

#include <gtest/gtest.h>

#include "platform/directories.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/temporary_root.h"

namespace {

struct Drives_Test : testing::Test {
  std::string Host(const std::string& below) const { return root.host.string() + below; }
  Temporary_Root root;
};

TEST_F(Drives_Test, Names_Match_Component_By_Component_Without_Case) {
  root.Make("Music/Tones");
  root.Make("music");
  root.Make("MUSIC");
  root.Put("Music/Tones/Brass.SYX", "");
  root.Put("MUSIC/a.syx", "");
  struct Row {
    std::string path, below;
  };
  const Row rows[] = {
      {"c:\\Music\\tones\\BRASS.syx", "/Music/Tones/Brass.SYX"},
      {"C:\\music\\x", "/music/x"},          // the exact one wins
      {"C:\\mUSIC\\A.syx", "/MUSIC/a.syx"},  // else the first in order
      {"C:\\Music\\New Name.syx", "/Music/New Name.syx"},
      {"C:\\Music\\Nowhere\\Brass.syx", "/Music/Nowhere/Brass.syx"},
      {"C:\\Music\\\\Tones\\", "/Music/Tones"},
      {"C:/Music/tones", "/Music/Tones"},
      {"C:\\Music\\.\\Tones\\..\\Tones", "/Music/Tones"},
      {"C:\\..\\..\\Music", "/Music"},
      {"C:\\", ""},
      {"C:", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(Host_Path(row.path), Host(row.below)) << row.path;
  EXPECT_EQ(Spelled_Path("c:\\Music\\tones\\"), "C:\\Music\\Tones");
  EXPECT_EQ(Spelled_Path("c:"), "C:\\");
}

TEST_F(Drives_Test, A_Path_Without_A_Drive_Starts_At_The_Current_Directory) {
  root.Make("here");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(root.host / "here");
  const std::string current = Current_Directory();
  const std::string named = Host_Path("x.syx"), from_root = Host_Path("\\x.syx"), itself = Host_Path("");
  std::filesystem::remove(root.host / "here");
  const std::string gone = Current_Directory();
  std::filesystem::current_path(before);
  EXPECT_EQ(current, "C:\\here");
  EXPECT_EQ(named, Host("/here/x.syx"));
  EXPECT_EQ(from_root, Host("/x.syx"));
  EXPECT_EQ(itself, Host("/here"));
  EXPECT_EQ(gone, "C:\\");
}

TEST_F(Drives_Test, What_Cannot_Be_A_Path_Is_Refused) {
  for (const char* bad : {"C:\\*.syx", "C:\\a?", "C:\\\"a", "C:\\<", "C:\\>", "C:\\a|b"}) {
    EXPECT_EQ(Raised([&] { Host_Path(bad); }), Error_Bad_File_Name) << bad;
  }
  EXPECT_EQ(Raised([] { Host_Path(std::string_view("C:\\a\0b", 6)); }), Error_Bad_File_Name);
  EXPECT_EQ(Raised([] { Host_Path("Q:\\a"); }), Error_Device_Unavailable);
  Drives_Set({{'E', Host("/unplugged")}});
  EXPECT_EQ(Raised([] { Host_Path("E:\\a"); }), Error_Device_Unavailable);
  EXPECT_EQ(Raised([] { Program_Path("/elsewhere"); }), Error_Device_Unavailable);
}

TEST_F(Drives_Test, A_Host_Path_Gets_The_Drive_With_The_Longest_Prefix) {
  Drives_Set({{'C', "/home/maria"}, {'M', "/home/maria/Music"}, {'N', "/home/maria"}, {'Z', "/"}});
  struct Row {
    std::string host, path;
  };
  const Row rows[] = {{"/home/maria", "C:\\"},
                      {"/home/maria/a/B.syx", "C:\\a\\B.syx"},
                      {"/home/maria/Music", "M:\\"},
                      {"/home/maria/Music/x", "M:\\x"},
                      {"/home/maria/Musical/x", "C:\\Musical\\x"},
                      {"/home/mariana", "Z:\\home\\mariana"},
                      {"/", "Z:\\"}};
  for (const Row& row : rows) EXPECT_EQ(Program_Path(row.host), row.path);
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
  Directories_Find("/usr/bin/melvor");
  const std::string home = Host_Path("C:\\"), music = Host_Path("M:\\");
  const int documents = Raised([] { Host_Path("D:\\"); });
  setenv("HOME", home_before.c_str(), 1);
  EXPECT_EQ(home, Host(""));
  EXPECT_EQ(music, Host("/Klänge"));
  EXPECT_EQ(documents, Error_Device_Unavailable);  // the home directory stands for "none"
  EXPECT_EQ(Host_Path("Z:\\"), "/");
  EXPECT_EQ(Program_Directory(), "C:\\.config\\melvor");
  EXPECT_EQ(Data_Directory(), "/usr/share/melvor");
  Program_Directory_Make();
  EXPECT_EQ(root.Names(".config"), (std::set<std::string>{"melvor", "user-dirs.dirs"}));
}

TEST_F(Drives_Test, A_Folder_With_The_Font_Is_The_Programs_Own) {
  root.Make("portable");
  root.Put("portable/MELVOR.FNT", "");
  Directories_Find(Host("/portable/melvor"));
  EXPECT_EQ(Program_Directory(), "C:\\portable");
  EXPECT_EQ(Data_Directory(), Host("/portable"));
}

}  // namespace
