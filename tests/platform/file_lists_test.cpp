#include "platform/file_lists.h"

#include <gtest/gtest.h>

#include "platform/drives.h"
#include "platform/form.h"
#include "platform/runtime_error.h"
#include "platform/temporary_root.h"

namespace {

using Names = std::vector<std::string>;

struct File_Lists_Test : testing::Test {
  File_Lists_Test() {
    root.Make("Tones/Bank A/Old");
    root.Make("Tones/Bank B");
    for (const char* name : {"Tones/brass.syx", "Tones/BELL.SYX", "Tones/notes.txt", "Tones/plain"})
      root.Put(name, "");
    drives.on_change = [this] { ++changes; };
    directories.on_change = [this] { ++changes; };
    files.on_change = [this] { ++changes; };
  }
  Temporary_Root root;
  Form form{Form_Role::Child, "Form"};
  Drive_List drives{form, "Drives"};
  Dir_List directories{form, "Directories"};
  File_List files{form, "Files"};
  int changes = 0;
};

TEST_F(File_Lists_Test, A_Directory_Shows_Its_Road_And_What_Lies_In_It) {
  directories.Set_Path("c:\\TONES\\");
  EXPECT_EQ(directories.path(), "C:\\Tones");
  EXPECT_EQ(directories.items(), (Names{"C:\\", "  Tones", "    Bank A", "    Bank B"}));
  EXPECT_EQ(directories.index(), 1);
  EXPECT_EQ(directories.Open_Index(), 1);
  const char* const paths[] = {"C:\\", "C:\\Tones", "C:\\Tones\\Bank A", "C:\\Tones\\Bank B"};
  for (int entry = 0; entry < 4; ++entry) EXPECT_EQ(directories.Entry_Path(entry), paths[entry]);
  EXPECT_EQ(Raised([&] { directories.Entry_Path(4); }), 380);

  directories.Select(2);
  directories.on_double_click();
  EXPECT_EQ(directories.items(), (Names{"C:\\", "  Tones", "    Bank A", "      Old"}));
  EXPECT_EQ(directories.Entry_Path(3), "C:\\Tones\\Bank A\\Old");
  int space = Key::Space;
  directories.Select(0);
  directories.on_key_press(space);
  EXPECT_EQ(space, 0);
  EXPECT_EQ(directories.path(), "C:\\");
  EXPECT_EQ(directories.Entry_Path(1), "C:\\Tones");
  EXPECT_EQ(changes, 3);
  directories.Set_Path("C:");
  EXPECT_EQ(changes, 3);  // the same directory is no change
}

TEST_F(File_Lists_Test, A_Path_That_Cannot_Be_Shown_Changes_Nothing) {
  directories.Set_Path("C:\\Tones");
  files.Set_Path("C:\\Tones");
  changes = 0;
  const std::pair<const char*, int> rows[] = {
      {"C:\\none", 76}, {"C:\\Tones\\plain", 76}, {"Q:\\", 68}, {"C:\\?", 52}};
  for (const auto& [path, number] : rows) {
    EXPECT_EQ(Raised([&] { directories.Set_Path(path); }), number) << path;
    EXPECT_EQ(Raised([&] { files.Set_Path(path); }), number) << path;
  }
  EXPECT_EQ(directories.path() + files.path(), "C:\\TonesC:\\Tones");
  EXPECT_EQ(directories.Count(), 4);
  EXPECT_EQ(files.Count(), 4);
  EXPECT_EQ(changes, 0);
}

TEST_F(File_Lists_Test, Patterns_Match_Without_Case) {
  const std::pair<const char*, Names> rows[] = {
      {"*.syx", {"BELL.SYX", "brass.syx"}},
      {"*.SYX", {"BELL.SYX", "brass.syx"}},
      {"*.*", {"BELL.SYX", "brass.syx", "notes.txt", "plain"}},
      {"B????.*", {"brass.syx"}},
      {"*.seq", {}},
  };
  files.Set_Path("C:\\Tones");
  for (const auto& [pattern, names] : rows) {
    files.Set_Pattern(pattern);
    EXPECT_EQ(files.items(), names) << pattern;
    EXPECT_EQ(files.index(), -1);
  }
}

TEST_F(File_Lists_Test, A_File_Name_Selects_Filters_Or_Goes_Elsewhere) {
  struct Row {
    const char* text;
    int number;
    std::string file, path, pattern;
  };
  const Row rows[] = {
      {"Brass.syx", 0, "brass.syx", "C:\\Tones", "*.syx"},
      {" bell.SYX ", 0, "BELL.SYX", "C:\\Tones", "*.syx"},
      {"plain", 0, "", "C:\\Tones", "*.syx"},  // there, but not listed
      {"none.syx", 53, "brass.syx", "C:\\Tones", "*.syx"},
      {"none\\brass.syx", 76, "brass.syx", "C:\\Tones", "*.syx"},
      {"", 0, "", "C:\\Tones", "*.syx"},
      {"*.t?t", 0, "", "C:\\Tones", "*.t?t"},
      {"bank a", 0, "", "C:\\Tones\\Bank A", "*.syx"},
      {"Bank B\\", 0, "", "C:\\Tones\\Bank B", "*.syx"},
      {"..", 0, "", "C:\\", "*.syx"},
      {"\\tones\\bell.syx", 0, "BELL.SYX", "C:\\Tones", "*.syx"},
      {"C:*.txt", 0, "", "C:\\", "*.txt"},
      {"none\\*.txt", 76, "brass.syx", "C:\\Tones", "*.syx"},
      {"Q:\\x", 68, "brass.syx", "C:\\Tones", "*.syx"},
      {"a|b", 52, "brass.syx", "C:\\Tones", "*.syx"},
  };
  for (const Row& row : rows) {
    files.Set_Path("C:\\Tones");
    files.Set_Pattern("*.syx");
    files.Set_File_Name("brass.syx");
    EXPECT_EQ(Raised([&] { files.Set_File_Name(row.text); }), row.number) << row.text;
    EXPECT_EQ(files.file_name(), row.file) << row.text;
    EXPECT_EQ(files.path(), row.path) << row.text;
    EXPECT_EQ(files.pattern(), row.pattern) << row.text;
  }
}

TEST_F(File_Lists_Test, A_Drive_Changes_Once_And_Tells_When_It_Is_Gone) {
  root.Make("Stick");
  const std::string host = root.host.string();
  Drives_Set({{'C', host}, {'E', host + "/Stick"}, {'F', host + "/gone"}, {'Z', "/"}});
  drives.Set_Drive("c:\\tones\\");
  EXPECT_EQ(drives.items()[1], "E: [Stick]");
  EXPECT_EQ(drives.items()[3], "Z: [/]");
  EXPECT_EQ(drives.drive(), "C:");
  changes = 0;
  drives.Set_Drive("C");
  EXPECT_EQ(changes, 0);
  drives.Select(1);  // as the user does
  EXPECT_EQ(drives.drive(), "E:");
  EXPECT_EQ(changes, 1);
  for (const char* gone : {"F:", "Q:", "", "?"}) {
    EXPECT_GE(Raised([&] { drives.Set_Drive(gone); }), Error_Bad_File_Name) << gone;
  }
  EXPECT_EQ(Raised([&] { drives.Set_Drive("F:"); }), 68);
  EXPECT_EQ(drives.index(), 1);
  std::string told;
  drives.on_change = [&] { told += drives.drive(); };
  drives.Select(2);
  drives.Set_Drive("E:");
  EXPECT_EQ(told, "F:E:");
}

TEST_F(File_Lists_Test, What_Vanishes_Gives_Way) {
  directories.Set_Path("C:\\Tones\\Bank A\\Old");
  files.Set_Path("C:\\Tones\\Bank B");
  changes = 0;
  std::filesystem::remove_all(root.host / "Tones");
  files.Refresh();
  EXPECT_EQ(files.Count(), 0);
  EXPECT_EQ(changes, 0);
  directories.Refresh();
  EXPECT_EQ(directories.path(), "C:\\");
  EXPECT_EQ(directories.items(), Names{"C:\\"});
  EXPECT_EQ(changes, 1);
  Drives_Set({});
  directories.Refresh();
  EXPECT_EQ(directories.Count(), 0);
  EXPECT_EQ(directories.Open_Index(), -1);
}

TEST_F(File_Lists_Test, Odd_Names_Are_Listed_Or_Left_Out_But_Never_Harm) {
  const Names shown = {" blank", "a:b", "Größe", "it's & 100%"};
  for (const std::string& name : shown) {
    root.Make("odd/" + name);
    root.Make("files");
    root.Put("files/" + name, "");
  }
  for (const char* name :
       {"back\\slash", "wild*", "what?", "line\nend", "tab\t", "\xFF\xFE", "gr\xFC\xDF", "a|b", ".x"}) {
    root.Make(std::string("odd/") + name);
    root.Put(std::string("files/") + name, "");
  }
  directories.Set_Path("C:\\odd");
  files.Set_Path("C:\\files");
  EXPECT_EQ(files.items(), shown);
  ASSERT_EQ(directories.Count(), 6);
  for (int entry = 2; entry < 6; ++entry) {
    directories.Set_Path("C:\\odd");
    directories.Set_Path(directories.Entry_Path(entry));
    EXPECT_EQ(directories.path(), "C:\\odd\\" + shown[static_cast<std::size_t>(entry - 2)]);
  }
  files.Set_File_Name("a:b");
  EXPECT_EQ(files.file_name(), "a:b");
}

TEST_F(File_Lists_Test, A_List_Starts_Where_The_Program_Stands_And_Starts_Anew_After_Its_Window) {
  for (Control* control : form.controls) control->Keep_Design();
  for (int round = 0; round < 2; ++round) {
    drives.Refresh();
    directories.Refresh();
    files.Refresh();
    EXPECT_EQ(drives.drive(), "C:");
    EXPECT_EQ(directories.path(), Current_Directory());
    EXPECT_EQ(files.path(), Current_Directory());
    EXPECT_EQ(changes, 0);
    directories.Set_Path("C:\\Tones");
    files.Set_Path("C:\\Tones");
    files.Set_Pattern("*.syx");
    changes = 0;
    for (Control* control : form.controls) control->Restore_Design();
    EXPECT_EQ(files.Count() + directories.Count() + drives.Count(), 0);
    EXPECT_EQ(files.pattern(), "*.*");
    EXPECT_EQ(changes, 0);
  }
}

}  // namespace
