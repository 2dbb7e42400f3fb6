#include <sys/stat.h>
#include <unistd.h>

#include "platform/files.h"
#include "platform/host_files.h"
#include "support/temporary_root.h"

using Name_Set = std::set<std::string>;

struct Files_Test : testing::Test {
  void Mode(const std::string& name, mode_t mode) { ASSERT_EQ(chmod((root.host / name).c_str(), mode), 0); }
  Temporary_Root root;
};

TEST_F(Files_Test, Every_Failure_Has_Its_Number_And_Changes_Nothing) {
  root.Make("full/inner");
  ASSERT_EQ(mkfifo((root.host / "pipe").c_str(), 0666), 0);
  EXPECT_EQ(Raised([] { File_Read("C:\\none"); }), 53);
  EXPECT_EQ(Raised([] { File_Read("C:\\full"); }), 75);
  EXPECT_EQ(Raised([] { File_Read("C:\\pipe"); }), 75) << "that nobody feeds";
  EXPECT_EQ(Raised([] { File_Write("C:\\none\\x", "new"); }), 76);
  EXPECT_EQ(Raised([] { File_Write("C:\\full", "new"); }), 75);
  EXPECT_EQ(Raised([] { File_Write("C:\\pipe", "new"); }), 75);
  EXPECT_EQ(Raised([] { File_Write("C:\\" + std::string(300, 'n'), "new"); }), 52);
  EXPECT_EQ(Raised([] { File_Delete("C:\\none"); }), 53);
  EXPECT_EQ(Raised([] { Directory_Remove("C:\\full"); }), 75);
  EXPECT_EQ(root.Names(), (Name_Set{"full", "pipe"}));
  EXPECT_EQ(root.Names("full"), Name_Set{"inner"});
  EXPECT_EQ(Host_Error_Number(ENOSPC, "/file"), 61);
}

TEST_F(Files_Test, Missing_Rights_Change_Nothing) {
  root.Make("locked");
  for (const char* name : {"locked/file", "read_only", "secret"}) root.Put(name, "old");
  Mode(".", 0777);
  Mode("locked", 0555);
  Mode("read_only", 0444);
  Mode("secret", 0);
  ASSERT_TRUE(getuid() != 0 || seteuid(65534) == 0) << "root may do everything";
  EXPECT_EQ(Raised([] { File_Read("C:\\secret"); }), Error_Permission_Denied);
  EXPECT_EQ(Raised([] { File_Write("C:\\read_only", "new"); }), Error_Permission_Denied);
  EXPECT_EQ(Raised([] { File_Write("C:\\locked\\file", "new"); }), Error_Permission_Denied);
  EXPECT_EQ(Raised([] { File_Delete("C:\\locked\\file"); }), Error_Permission_Denied);
  EXPECT_EQ(seteuid(getuid()), 0);
  EXPECT_EQ(root.Get("locked/file") + root.Get("read_only"), "oldold");
  EXPECT_EQ(root.Names("locked"), Name_Set{"file"});
  Mode("locked", 0700);
}

TEST_F(Files_Test, All_Bytes_Come_Back_And_A_Tail_Stays_Where_It_Is_Asked_For) {
  std::string bytes;
  for (int byte = 0; byte < 300'000; ++byte) bytes += static_cast<char>(byte * 7);
  File_Write("C:\\all", bytes);
  EXPECT_EQ(File_Read("C:\\all"), bytes);
  EXPECT_EQ(File_Read("C:\\all", 65'537), bytes.substr(0, 65'537));
  File_Write("C:\\all", "abc", Old_Content::Keep_Tail);
  EXPECT_EQ(root.Get("all"), "abc" + bytes.substr(3));
  File_Write("C:\\all", "abc");
  EXPECT_EQ(root.Get("all"), "abc");
}

TEST_F(Files_Test, A_Save_Keeps_Spelling_Rights_And_Links) {
  root.Put("Brass.SYX", "old");
  Mode("Brass.SYX", 0626);  // as no new file gets it
  root.Make("elsewhere");
  std::filesystem::create_symlink("elsewhere/real", root.host / "link");
  File_Write("C:\\brass.syx", "new");
  EXPECT_EQ(root.Get("Brass.SYX"), "new");
  EXPECT_EQ(static_cast<mode_t>(std::filesystem::status(root.host / "Brass.SYX").permissions()), 0626u);
  File_Write("C:\\link", "made");
  EXPECT_EQ(root.Get("elsewhere/real"), "made");
  EXPECT_EQ(root.Names(), (Name_Set{"Brass.SYX", "elsewhere", "link"}));
}

TEST_F(Files_Test, Three_Copies_Of_What_A_Save_Replaces_Stay) {
  const auto save = [](const std::string& bytes) {
    File_Keep_Copy("C:\\TONE", bytes);
    File_Write("C:\\TONE", bytes);
  };
  const auto all = [&] {
    return root.Get("tone") + root.Get("tone~") + root.Get("tone~2") + root.Get("tone~3");
  };
  root.Put("tone", "A");
  save("B");
  save("B");
  EXPECT_EQ(all(), "BA(none)(none)");
  for (const char* bytes : {"C", "D", "E"}) save(bytes);
  EXPECT_EQ(all(), "EDCB");
  File_Keep_Copy("C:\\tone", "F");  // a save that failed behind it, tried again
  File_Keep_Copy("C:\\tone", "F");
  EXPECT_EQ(all(), "EEDC");
}
