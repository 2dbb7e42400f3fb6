#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

#include "platform/files.h"
#include "platform/host_files.h"
#include "support/temporary_root.h"

namespace {

using Name_Set = std::set<std::string>;

// While it lives the process has no more rights than anybody.
struct Without_Rights {
  Without_Rights() {
    if (geteuid() == 0 && seteuid(65534) != 0) throw std::runtime_error("cannot give up rights");
  }
  ~Without_Rights() { EXPECT_EQ(seteuid(getuid()), 0); }
};

struct Files_Test : testing::Test {
  void Mode(const std::string& name, mode_t mode) { ASSERT_EQ(chmod((root.host / name).c_str(), mode), 0); }
  Temporary_Root root;
};

TEST_F(Files_Test, Every_Failure_Has_Its_Number_And_Changes_Nothing) {
  root.Make("full/inner");
  root.Put("file", "old");
  root.Link("loop", "loop");
  root.Link("nowhere", "dangling");
  ASSERT_EQ(mkfifo((root.host / "pipe").c_str(), 0666), 0);
  const std::string too_long = "C:\\" + std::string(300, 'n');
  struct Row {
    const char* what;
    std::function<void()> call;
    int number;
  };
  const Row rows[] = {
      {"read what is not there", [] { File_Read("C:\\none"); }, 53},
      {"read in a missing directory", [] { File_Read("C:\\none\\x"); }, 76},
      {"read a directory", [] { File_Read("C:\\full"); }, 75},
      {"read a pipe that nobody feeds", [] { File_Read("C:\\pipe"); }, 75},
      {"read a link to itself", [] { File_Read("C:\\loop"); }, 75},
      {"write into a missing directory", [] { File_Write("C:\\none\\x", "new"); }, 76},
      {"write over a directory", [] { File_Write("C:\\full", "new"); }, 75},
      {"write over a pipe", [] { File_Write("C:\\pipe", "new"); }, 75},
      {"write too long a name", [&] { File_Write(too_long, "new"); }, 52},
      {"copy a directory", [] { File_Keep_Copy("C:\\full", "new"); }, 75},
      {"delete what is not there", [] { File_Delete("C:\\none"); }, 53},
      {"make what is there", [] { Directory_Make("C:\\FULL"); }, 75},
      {"remove a full directory", [] { Directory_Remove("C:\\full"); }, 75},
      {"remove what is not there", [] { Directory_Remove("C:\\none"); }, 76},
  };
  const Name_Set before = root.Names();
  for (const Row& row : rows) EXPECT_EQ(Raised(row.call), row.number) << row.what;
  EXPECT_EQ(root.Names(), before);
  EXPECT_EQ(root.Names("full"), Name_Set{"inner"});
  EXPECT_EQ(root.Get("file"), "old");
  EXPECT_EQ(File_Probe("C:\\FILE"), 0);
  EXPECT_EQ(File_Probe("C:\\pipe"), 75);
  EXPECT_EQ(Host_Error_Number(ENOSPC, "/file"), 61);
  EXPECT_EQ(Host_Error_Number(EIO, "/file"), 57);
}

TEST_F(Files_Test, Missing_Rights_Change_Nothing) {
  root.Make("locked");
  root.Make("dark");
  for (const char* name : {"locked/file", "read_only", "secret"}) root.Put(name, "old");
  Mode(".", 0777);
  Mode("locked", 0555);
  Mode("dark", 0);
  Mode("read_only", 0444);
  Mode("secret", 0);
  const std::function<void()> refused[] = {
      [] { File_Read("C:\\secret"); },
      [] { Directory_List("C:\\dark"); },
      [] { File_Write("C:\\read_only", "new"); },
      [] { File_Write("C:\\locked\\file", "new"); },
      [] { File_Delete("C:\\locked\\file"); },
      [] { Directory_Make("C:\\locked\\new"); },
  };
  {
    const Without_Rights guard;
    for (const auto& call : refused) EXPECT_EQ(Raised(call), Error_Permission_Denied) << &call - refused;
  }
  Mode("dark", 0700);
  Mode("locked", 0700);
  EXPECT_EQ(root.Get("locked/file") + root.Get("read_only"), "oldold");
  EXPECT_EQ(root.Names("locked"), Name_Set{"file"});
}

TEST_F(Files_Test, All_Bytes_Come_Back_Up_To_The_Limit_And_A_Tail_Stays_Where_It_Is_Asked_For) {
  std::string bytes;
  for (int byte = 0; byte < 300'000; ++byte) bytes += static_cast<char>(byte * 7);
  File_Write("C:\\all", bytes);
  EXPECT_EQ(File_Read("C:\\all"), bytes);
  EXPECT_EQ(File_Read("C:\\all", 65'537), bytes.substr(0, 65'537));
  for (const std::string before : {"12345678", "123", "1", ""}) {
    root.Put("file", before);
    File_Write("C:\\file", "abc", Old_Content::Keep_Tail);
    EXPECT_EQ(root.Get("file"), "abc" + before.substr(std::min<std::size_t>(before.size(), 3)));
    File_Write("C:\\file", before);
    EXPECT_EQ(root.Get("file"), before);
  }
}

TEST_F(Files_Test, A_Save_Keeps_Spelling_Rights_And_Links) {
  root.Put("Brass.SYX", "old");
  Mode("Brass.SYX", 0626);  // as no new file gets it
  root.Make("elsewhere");
  root.Link("elsewhere/real", "link");
  root.Link("link", "link to link");
  File_Write("C:\\brass.syx", "new");
  EXPECT_EQ(root.Get("Brass.SYX"), "new");
  EXPECT_EQ(static_cast<mode_t>(std::filesystem::status(root.host / "Brass.SYX").permissions()), 0626u);
  File_Write("C:\\link to link", "made");
  EXPECT_EQ(root.Get("elsewhere/real"), "made");
  EXPECT_EQ(root.Names(), (Name_Set{"Brass.SYX", "elsewhere", "link", "link to link"}));
}

TEST_F(Files_Test, A_Running_Save_Of_Another_Program_Is_Left_Alone) {
  root.Put(".melvor-1", "of another run");
  const int other = open((root.host / ".melvor-1").c_str(), O_RDWR);
  ASSERT_EQ(flock(other, LOCK_EX | LOCK_NB), 0);
  File_Write("C:\\file", "2");
  EXPECT_EQ(root.Get(".melvor-1") + root.Get("file"), "of another run2");
  close(other);
  File_Write("C:\\file", "3");
  EXPECT_EQ(root.Names(), Name_Set{"file"}) << "what a dead one left goes";
}

TEST_F(Files_Test, Three_Copies_Of_What_A_Save_Replaces_Stay) {
  const auto save = [](const std::string& bytes) {
    File_Keep_Copy("C:\\TONE", bytes);
    File_Write("C:\\TONE", bytes);
  };
  const auto all = [&] {
    return root.Get("tone") + root.Get("tone~") + root.Get("tone~2") + root.Get("tone~3");
  };
  File_Keep_Copy("C:\\tone", "A");
  EXPECT_EQ(root.Names(), Name_Set{});
  root.Put("tone", "A");
  save("B");
  save("B");
  EXPECT_EQ(all(), "BA(none)(none)");
  for (const char* bytes : {"C", "D", "E"}) save(bytes);
  EXPECT_EQ(all(), "EDCB");
  File_Keep_Copy("C:\\tone", "F");  // a save that failed behind it, tried again
  File_Keep_Copy("C:\\tone", "F");
  EXPECT_EQ(all(), "EEDC");
  std::filesystem::remove(root.host / "tone~2");
  save("F");
  save("G");
  EXPECT_EQ(all(), "GFEC");  // the gap is filled before the oldest goes
}

TEST_F(Files_Test, A_Directory_Lists_What_Can_Be_Opened_In_The_Order_People_Expect) {
  for (const char* name : {"b.syx", "A.syx", "a.syx", "C.syx", ".hidden"}) root.Put(name, "");
  root.Make("Bank/inner");
  root.Link("Bank", "bankLink");
  root.Link("A.syx", "link");
  root.Link("nowhere", "dangling");
  ASSERT_EQ(mkfifo((root.host / "pipe").c_str(), 0666), 0);
  std::string listed;
  for (const Directory_Entry& entry : Directory_List("C:\\")) {
    listed += entry.name + (entry.is_directory ? "/ " : " ");
  }
  EXPECT_EQ(listed, "A.syx a.syx b.syx Bank/ bankLink/ C.syx link ");
  EXPECT_TRUE(Directory_Has_Files("C:\\"));
  for (const char* path : {"C:\\Bank", "C:\\none", "Q:\\"}) EXPECT_FALSE(Directory_Has_Files(path)) << path;
}

}  // namespace
