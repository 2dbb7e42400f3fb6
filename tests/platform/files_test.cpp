#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "platform/runtime_error.h"
#include "platform/temporary_root.h"

namespace {

using Name_Set = std::set<std::string>;

// While it lives the process has no more rights than anybody.
struct Without_Rights {
  Without_Rights() {
    if (geteuid() == 0 && seteuid(65534) != 0) throw std::runtime_error("cannot give up rights");
  }
  ~Without_Rights() { EXPECT_EQ(seteuid(getuid()), 0); }
};

// While it lives no file can grow beyond a size, as on a full disk.
struct Small_Disk {
  explicit Small_Disk(rlim_t size) {
    signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{size, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~Small_Disk() { setrlimit(RLIMIT_FSIZE, &before); }
  rlimit before{};
};

struct Files_Test : testing::Test {
  void Pipe(const std::string& name) { ASSERT_EQ(mkfifo((root.host / name).c_str(), 0666), 0); }
  void Mode(const std::string& name, mode_t mode) { ASSERT_EQ(chmod((root.host / name).c_str(), mode), 0); }
  mode_t Mode_Of(const std::string& name) const {
    struct stat status {};
    stat((root.host / name).c_str(), &status);
    return status.st_mode & 07777;
  }
  Temporary_Root root;
};

TEST_F(Files_Test, Every_Failure_Has_Its_Number) {
  root.Make("full/inner");
  root.Put("file", "old");
  root.Link("loop", "loop");
  root.Link("nowhere", "dangling");
  Pipe("pipe");
  const std::string too_long = "C:\\" + std::string(300, 'n');
  struct Row {
    const char* what;
    std::function<void()> call;
    int number;
  };
  const Row rows[] = {
      {"read what is not there", [] { File_Read("C:\\none"); }, 53},
      {"read in a missing directory", [] { File_Read("C:\\none\\x"); }, 76},
      {"read through a file", [] { File_Read("C:\\file\\x"); }, 76},
      {"read a directory", [] { File_Read("C:\\full"); }, 75},
      {"read a pipe that nobody feeds", [] { File_Read("C:\\pipe"); }, 75},
      {"read a link to itself", [] { File_Read("C:\\loop"); }, 75},
      {"read a link to nothing", [] { File_Read("C:\\dangling"); }, 53},
      {"read too long a name", [&] { File_Read(too_long); }, 52},
      {"read a wildcard", [] { File_Read("C:\\*.syx"); }, 52},
      {"read on a missing drive", [] { File_Read("Q:\\x"); }, 68},
      {"write into a missing directory", [] { File_Write("C:\\none\\x", "new"); }, 76},
      {"write over a directory", [] { File_Write("C:\\full", "new"); }, 75},
      {"write over the root", [] { File_Write("C:\\", "new"); }, 75},
      {"write over a pipe", [] { File_Write("C:\\pipe", "new"); }, 75},
      {"write over a link to itself", [] { File_Write("C:\\loop", "new"); }, 75},
      {"write too long a name", [&] { File_Write(too_long, "new"); }, 52},
      {"copy a directory", [] { File_Keep_Copy("C:\\full", "new"); }, 75},
      {"delete what is not there", [] { File_Delete("C:\\none"); }, 53},
      {"delete a directory", [] { File_Delete("C:\\full\\inner"); }, 75},
      {"make what is there", [] { Directory_Make("C:\\FULL"); }, 75},
      {"make what is a file", [] { Directory_Make("C:\\file"); }, 75},
      {"make below nothing", [] { Directory_Make("C:\\none\\x"); }, 76},
      {"remove a full directory", [] { Directory_Remove("C:\\full"); }, 75},
      {"remove a file", [] { Directory_Remove("C:\\file"); }, 75},
      {"remove what is not there", [] { Directory_Remove("C:\\none"); }, 76},
      {"list what is not there", [] { Directory_List("C:\\none"); }, 76},
      {"list a file", [] { Directory_List("C:\\file"); }, 76},
      {"list a missing drive", [] { Directory_List("Q:\\"); }, 68},
  };
  const Name_Set before = root.Names();
  for (const Row& row : rows) EXPECT_EQ(Raised(row.call), row.number) << row.what;
  EXPECT_EQ(root.Names(), before);
  EXPECT_EQ(root.Names("full"), Name_Set{"inner"});
  EXPECT_EQ(root.Get("file"), "old");
}

TEST_F(Files_Test, A_Probe_Tells_What_A_Read_Would_Raise) {
  root.Put("File", "x");
  Pipe("pipe");
  EXPECT_EQ(File_Probe("C:\\FILE"), 0);
  EXPECT_EQ(File_Probe("C:\\none"), 53);
  EXPECT_EQ(File_Probe("C:\\pipe"), 75);
  EXPECT_EQ(File_Probe("C:\\a?"), 52);
}

TEST_F(Files_Test, Missing_Rights_Change_Nothing) {
  root.Make("locked");
  root.Make("dark");
  root.Put("locked/file", "old");
  root.Put("read_only", "old");
  root.Put("secret", "old");
  Mode(".", 0777);
  Mode("locked", 0555);
  Mode("dark", 0);
  Mode("read_only", 0444);
  Mode("secret", 0);
  {
    const Without_Rights guard;
    EXPECT_EQ(Raised([] { File_Read("C:\\secret"); }), 70);
    EXPECT_EQ(Raised([] { Directory_List("C:\\dark"); }), 70);
    EXPECT_EQ(Raised([] { File_Read("C:\\dark\\x"); }), 70);
    EXPECT_EQ(Raised([] { File_Write("C:\\read_only", "new"); }), 70);
    EXPECT_EQ(Raised([] { File_Write("C:\\locked\\file", "new"); }), 70);
    EXPECT_EQ(Raised([] { File_Write("C:\\locked\\new", "new"); }), 70);
    EXPECT_EQ(Raised([] { File_Delete("C:\\locked\\file"); }), 70);
    EXPECT_EQ(Raised([] { Directory_Make("C:\\locked\\new"); }), 70);
    EXPECT_FALSE(Directory_Has_Files("C:\\dark"));
  }
  Mode("dark", 0700);
  Mode("locked", 0700);
  EXPECT_EQ(root.Get("locked/file") + root.Get("read_only"), "oldold");
  EXPECT_EQ(root.Names("locked"), Name_Set{"file"});
}

TEST_F(Files_Test, A_Full_Disk_Leaves_The_Old_File_Whole) {
  root.Put("tone", std::string(50, 'o'));
  {
    const Small_Disk guard(100);
    EXPECT_EQ(Raised([] { File_Write("C:\\tone", std::string(101, 'n')); }), 61);
    EXPECT_EQ(Raised([] { File_Write("C:\\new", std::string(101, 'n')); }), 61);
    EXPECT_EQ(Raised([] { File_Write("C:\\tone", std::string(100, 'n')); }), 0);
  }
  EXPECT_EQ(root.Get("tone"), std::string(100, 'n'));
  EXPECT_EQ(root.Names(), Name_Set{"tone"});
  const Small_Disk guard(99);
  EXPECT_EQ(Raised([] { File_Keep_Copy("C:\\tone", "x"); }), 61);
  EXPECT_EQ(root.Names(), Name_Set{"tone"});
}

TEST_F(Files_Test, All_Bytes_Come_Back_Up_To_The_Limit) {
  std::string bytes;
  for (int byte = 0; byte < 300'000; ++byte) bytes += static_cast<char>(byte * 7);
  File_Write("C:\\all", bytes);
  EXPECT_EQ(File_Read("C:\\all"), bytes);
  EXPECT_EQ(File_Read("C:\\all", 65'537), bytes.substr(0, 65'537));
  EXPECT_EQ(File_Read("C:\\all", 0), "");
  File_Write("C:\\all", "");
  EXPECT_EQ(File_Read("C:\\all"), "");
}

TEST_F(Files_Test, The_Tail_Of_A_Longer_File_Stays_Where_It_Is_Asked_For) {
  struct Row {
    std::string before;
    Old_Content old;
    std::string after;
  };
  const Row rows[] = {{"12345678", Old_Content::Keep_Tail, "abc45678"},
                      {"123", Old_Content::Keep_Tail, "abc"},
                      {"1", Old_Content::Keep_Tail, "abc"},
                      {"12345678", Old_Content::Replace, "abc"}};
  for (const Row& row : rows) {
    root.Put("file", row.before);
    File_Write("C:\\file", "abc", row.old);
    EXPECT_EQ(root.Get("file"), row.after);
  }
  File_Write("C:\\new", "abc", Old_Content::Keep_Tail);
  EXPECT_EQ(root.Get("new"), "abc");
}

TEST_F(Files_Test, A_Save_Keeps_Spelling_Rights_And_Links) {
  root.Put("Brass.SYX", "old");
  Mode("Brass.SYX", 0626);  // as no new file gets it
  root.Make("elsewhere");
  root.Link("elsewhere/real", "link");
  root.Link("link", "link to link");
  File_Write("C:\\brass.syx", "new");
  EXPECT_EQ(root.Get("Brass.SYX"), "new");
  EXPECT_EQ(Mode_Of("Brass.SYX"), 0626u);
  File_Write("C:\\link to link", "made");
  File_Write("C:\\link", "new");
  EXPECT_EQ(root.Get("elsewhere/real"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(root.host / "link"));
  EXPECT_EQ(root.Names(), (Name_Set{"Brass.SYX", "elsewhere", "link", "link to link"}));
  EXPECT_EQ(root.Names("elsewhere"), Name_Set{"real"});
}

TEST_F(Files_Test, Leftovers_Go_And_A_Running_Save_Is_Left_Alone) {
  root.Put(".melvor-1", "of a run that was killed");
  File_Write("C:\\file", "1");
  EXPECT_EQ(root.Names(), Name_Set{"file"});
  root.Put(".melvor-1", "of another run");
  const int other = open((root.host / ".melvor-1").c_str(), O_RDWR);
  ASSERT_EQ(flock(other, LOCK_EX | LOCK_NB), 0);
  File_Write("C:\\file", "2");
  EXPECT_EQ(root.Get(".melvor-1"), "of another run");
  EXPECT_EQ(root.Names(), (Name_Set{".melvor-1", "file"}));
  EXPECT_EQ(root.Get("file"), "2");
  close(other);
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
  EXPECT_EQ(root.Names(), (Name_Set{"tone", "tone~", "tone~2", "tone~3"}));
}

TEST_F(Files_Test, A_Directory_Lists_What_Can_Be_Opened_In_The_Order_People_Expect) {
  for (const char* name : {"b.syx", "A.syx", "a.syx", "C.syx", ".hidden", "\xFF\xFE", "new\nline"})
    root.Put(name, "");
  root.Make("Bank");
  root.Link("Bank", "bankLink");
  root.Link("A.syx", "link");
  root.Link("nowhere", "dangling");
  Pipe("pipe");
  std::string listed;
  for (const Directory_Entry& entry : Directory_List("C:\\")) {
    listed += entry.name + (entry.is_directory ? "/ " : " ");
  }
  EXPECT_EQ(listed, "A.syx a.syx b.syx Bank/ bankLink/ C.syx link new\nline \xFF\xFE ");
}

TEST_F(Files_Test, A_Directory_Has_Files_Only_If_One_Is_Regular) {
  root.Make("empty/inner");
  EXPECT_FALSE(Directory_Has_Files("C:\\empty"));
  EXPECT_FALSE(Directory_Has_Files("C:\\none"));
  EXPECT_FALSE(Directory_Has_Files("Q:\\"));
  root.Put("empty/x", "");
  EXPECT_TRUE(Directory_Has_Files("C:\\EMPTY\\"));
  Directory_Make("C:\\Empty\\New");
  Directory_Remove("C:\\empty\\new");
  File_Delete("C:\\empty\\X");
  EXPECT_EQ(root.Names("empty"), Name_Set{"inner"});
}

}  // namespace
