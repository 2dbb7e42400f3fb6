#include "platform/file_lists.h"

#include <gtest/gtest.h>

#include "platform/form.h"
#include "support/temporary_root.h"

namespace {

using Names = std::vector<std::string>;

struct File_Lists_Test : testing::Test {
  File_Lists_Test() {
    root.Make("Tones/Bank A/Old");
    root.Make("Tones/Bank B");
    for (const char* name : {"Tones/brass.syx", "Tones/BELL.SYX", "Tones/notes.txt", "Tones/plain"})
      root.Put(name, "");
    directories.on_change = files.on_change = [this] { ++changes; };
  }
  Temporary_Root root;
  Form form{Form_Role::Child, "Form"};
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
  EXPECT_EQ(Raised([&] { directories.Entry_Path(4); }), Error_Bad_Property_Value);
  directories.Set_Path("Bank A");
  EXPECT_EQ(directories.Entry_Path(3), "C:\\Tones\\Bank A\\Old");
  directories.Select(0);
  int space = Key::Space;
  directories.on_key_press(space);
  EXPECT_EQ(directories.path() + std::to_string(changes), "C:\\3");
  directories.Set_Path("C:\\");
  EXPECT_EQ(changes, 3) << "the same directory is no change";
  EXPECT_EQ(Raised([&] { directories.Set_Path("Tones\\plain"); }), Error_Path_Not_Found);
  EXPECT_EQ(directories.items(), (Names{"C:\\", "  Tones"}));
}

TEST_F(File_Lists_Test, A_File_Name_Selects_Filters_Or_Goes_Elsewhere) {
  struct Row {
    const char* text;
    int number;
    std::string file, path, pattern;
    int listed;
  };
  const Row rows[] = {
      {"Brass.syx", 0, "brass.syx", "C:\\Tones", "*.syx", 2},
      {" bell.SYX ", 0, "BELL.SYX", "C:\\Tones", "*.syx", 2},
      {"plain", 0, "", "C:\\Tones", "*.syx", 2},  // there, but not listed
      {"none.syx", 53, "brass.syx", "C:\\Tones", "*.syx", 2},
      {"", 0, "", "C:\\Tones", "*.syx", 2},
      {"*.t?t", 0, "", "C:\\Tones", "*.t?t", 1},
      {"*.*", 0, "", "C:\\Tones", "*.*", 4},
      {"bank a", 0, "", "C:\\Tones\\Bank A", "*.syx", 0},
      {"..", 0, "", "C:\\", "*.syx", 0},
      {"\\tones\\bell.syx", 0, "BELL.SYX", "C:\\Tones", "*.syx", 2},
      {"C:*.txt", 0, "", "C:\\", "*.txt", 0},
      {"none\\*.txt", 76, "brass.syx", "C:\\Tones", "*.syx", 2},
      {"Q:\\x", 68, "brass.syx", "C:\\Tones", "*.syx", 2},
      {"a|b", 52, "brass.syx", "C:\\Tones", "*.syx", 2},
  };
  for (const Row& row : rows) {
    files.Set_Path("C:\\Tones");
    files.Set_Pattern("*.syx");
    files.Set_File_Name("brass.syx");
    EXPECT_EQ(Raised([&] { files.Set_File_Name(row.text); }), row.number) << row.text;
    EXPECT_EQ(files.file_name(), row.file) << row.text;
    EXPECT_EQ(files.path() + files.pattern(), row.path + row.pattern) << row.text;
    EXPECT_EQ(files.Count(), row.listed) << row.text;
  }
}

TEST_F(File_Lists_Test, What_Vanishes_Gives_Way) {
  directories.Set_Path("C:\\Tones\\Bank A\\Old");
  files.Set_Path("C:\\Tones");
  std::filesystem::remove_all(root.host / "Tones");
  files.Refresh();
  EXPECT_EQ(files.Count(), 0);
  directories.Refresh();
  EXPECT_EQ(directories.path(), "C:\\");
  EXPECT_EQ(directories.items(), Names{"C:\\"});
  EXPECT_EQ(changes, 3);
  Drives_Set({});
  directories.Refresh();
  EXPECT_EQ(directories.Open_Index(), -1);
}

TEST_F(File_Lists_Test, Odd_Names_Are_Listed_Or_Left_Out_But_Never_Harm) {
  root.Make("files");
  const Names shown = {" blank", "a:b", "Größe", "it's & 100%"};
  for (const std::string& name : shown) {
    root.Make("odd/" + name);
    root.Put("files/" + name, "");
  }
  for (const std::string name :
       {"back\\slash", "wild*", "what?", "line\nend", "tab\t", "\xFF\xFE", "gr\xFC\xDF", "a|b", ".x"}) {
    root.Make("odd/" + name);
    root.Put("files/" + name, "");
  }
  directories.Set_Path("C:\\odd");
  ASSERT_EQ(directories.Count(), 6);
  for (int entry = 2; entry < 6; ++entry) {
    const std::string& name = shown[static_cast<std::size_t>(entry - 2)];
    directories.Set_Path("C:\\odd");
    directories.Set_Path(directories.Entry_Path(entry));
    EXPECT_EQ(directories.path(), "C:\\odd\\" + name);
  }
  files.Set_Path("C:\\files");
  EXPECT_EQ(files.items(), shown);
  files.Set_File_Name("a:b");
  EXPECT_EQ(files.file_name(), "a:b");
}

}  // namespace
