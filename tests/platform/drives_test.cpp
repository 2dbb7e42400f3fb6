#include "platform/drives.h"

#include "platform/directories.h"
#include "support/temporary_root.h"

struct Drives_Test : testing::Test {
  std::string Host(const std::string& below) const { return root.host.string() + below; }
  Temporary_Root root;
};

TEST_F(Drives_Test, Names_Match_Component_By_Component_Without_Case) {
  for (const char* directory : {"Music/Tones/Brass.SYX", "MUSIC/a.syx", "music"}) root.Make(directory);
  const std::pair<std::string, std::string> rows[] = {
      {"c:\\Music\\tones\\BRASS.syx", "/Music/Tones/Brass.SYX"},
      {"C:\\music\\x", "/music/x"},          // the exact one wins
      {"C:\\mUSIC\\A.syx", "/MUSIC/a.syx"},  // else the first in order
      {"C:\\Music\\Nowhere\\Brass.syx", "/Music/Nowhere/Brass.syx"},
      {"C:/..\\Music\\\\.\\x\\..\\tones\\", "/Music/Tones"}};
  for (const auto& [path, below] : rows) EXPECT_EQ(Host_Path(path), Host(below)) << path;
  EXPECT_EQ(Spelled_Path("c:\\Music\\tones\\") + Spelled_Path("c:"), "C:\\Music\\TonesC:\\");
}

TEST_F(Drives_Test, What_Cannot_Be_A_Path_Is_Refused) {
  for (const char bad : std::string("*?\"<>|\0", 7)) {
    EXPECT_EQ(Raised([&] { Host_Path("C:\\a" + std::string(1, bad)); }), Error_Bad_File_Name) << bad;
  }
  EXPECT_EQ(Raised([] { Host_Path("Q:\\a"); }), Error_Device_Unavailable);
  EXPECT_EQ(Raised([] { Program_Path("/elsewhere"); }), Error_Device_Unavailable);
}

TEST_F(Drives_Test, The_Table_Follows_The_Users_Own_Directories) {
  for (const char* directory : {".config", "Klänge"}) root.Make(directory);
  root.Put(".config/user-dirs.dirs", "# comment\nXDG_MUSIC_DIR=\"$HOME/Klänge\"\nXDG_MUSIC_DIRX=\"/\"\n");
  const std::string home_before = getenv("HOME") == nullptr ? "" : getenv("HOME");
  setenv("HOME", root.host.c_str(), 1);
  unsetenv("XDG_CONFIG_HOME");
  Drives_Find();
  setenv("HOME", home_before.c_str(), 1);
  EXPECT_EQ(Host_Path("M:\\"), Host("/Klänge"));
  Directories_Find("/usr/bin/melvor");
  EXPECT_EQ(Program_Directory(), "C:\\.config\\melvor");
}
