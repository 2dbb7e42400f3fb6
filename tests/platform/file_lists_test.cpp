#include "platform/file_lists.h"

#include "platform/form.h"
#include "support/temporary_root.h"

namespace {

using Names = std::vector<std::string>;

struct File_Lists_Test : testing::Test {
  File_Lists_Test() {
    root.Make("Tones/Bank A/Old");
    root.Make("Tones/Bank B");
    for (const char* name : {"brass.syx", "BELL.SYX", "notes.txt"})
      root.Put("Tones/" + std::string(name), "");
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
  directories.Set_Path("Bank A");
  EXPECT_EQ(directories.Entry_Path(3), "C:\\Tones\\Bank A\\Old");
  directories.Select(0);
  int space = Key::Space;
  directories.on_key_press(space);
  EXPECT_EQ(directories.path() + std::to_string(changes), "C:\\3");
  EXPECT_EQ(Raised([&] { directories.Set_Path("Tones\\brass.syx"); }), Error_Path_Not_Found);
  directories.Set_Path("Tones\\Bank A");
  std::filesystem::remove_all(root.host / "Tones");
  directories.Refresh();
  EXPECT_EQ(directories.items(), Names{"C:\\"});
}

TEST_F(File_Lists_Test, A_File_Name_Selects_Filters_Or_Goes_Elsewhere) {
  struct Row {
    const char* text;
    int number;
    std::string now;
    int listed;
  };
  for (const Row& row : std::initializer_list<Row>{
           {"Brass.syx", 0, "brass.syxC:\\Tones*.syx", 2},
           {"notes.txt", 0, "C:\\Tones*.syx", 2},  // there, but not listed
           {"none.syx", 53, "brass.syxC:\\Tones*.syx", 2},
           {"*.t?t", 0, "C:\\Tones*.t?t", 1},
           {"bank a", 0, "C:\\Tones\\Bank A*.syx", 0},
           {"\\tones\\bell.syx", 0, "BELL.SYXC:\\Tones*.syx", 2},
           {"a|b", 52, "brass.syxC:\\Tones*.syx", 2},
       }) {
    files.Set_Path("C:\\Tones");
    files.Set_Pattern("*.syx");
    files.Set_File_Name("brass.syx");
    EXPECT_EQ(Raised([&] { files.Set_File_Name(row.text); }), row.number) << row.text;
    EXPECT_EQ(files.file_name() + files.path() + files.pattern(), row.now) << row.text;
    EXPECT_EQ(files.Count(), row.listed) << row.text;
  }
}

TEST_F(File_Lists_Test, Odd_Names_Are_Listed_Or_Left_Out_But_Never_Harm) {
  const Names shown = {" blank", "a:b", "Größe", "it's & 100%"};
  const Names left_out = {"back\\slash", "wild*", "line\nend", "\xFF\xFE", ".x"};
  for (const Names& names : {shown, left_out}) {
    for (const std::string& name : names) root.Put("Tones/Bank A/" + name, "");
  }
  files.Set_Path("C:\\Tones\\Bank A");
  EXPECT_EQ(files.items(), shown);
  files.Set_File_Name("a:b");
  EXPECT_EQ(files.file_name(), "a:b");
}

}  // namespace
