#include "platform/file_lists.h"

#include "platform/form.h"
#include "support/temporary_root.h"

using Texts = std::vector<std::string>;

struct File_Lists_Test : testing::Test {
  File_Lists_Test() {
    root.Make("Tones/Bank A/Old");
    root.Make("Tones/Bank B");
    for (const char* name : {"brass.syx", "BELL.SYX", "notes.txt"})
      root.Put("Tones/" + std::string(name), "");
  }
  Temporary_Root root;
  Form form{Form_Role::Child, "Form"};
  Dir_List directories{form, "Directories"};
  File_List files{form, "Files"};
};

TEST_F(File_Lists_Test, A_Directory_Shows_Its_Road_And_What_Lies_In_It) {
  directories.Set_Path("c:\\TONES\\");
  EXPECT_EQ(directories.path(), "C:\\Tones");
  EXPECT_EQ(directories.items(), (Texts{"C:\\", "  Tones", "    Bank A", "    Bank B"}));
  directories.Set_Path("Bank A");
  EXPECT_EQ(directories.Entry_Path(3), "C:\\Tones\\Bank A\\Old");
  EXPECT_EQ(Raised([&] { directories.Set_Path("C:\\Tones\\brass.syx"); }), Error_Path_Not_Found);
  std::filesystem::remove_all(root.host / "Tones");
  directories.Refresh();
  EXPECT_EQ(directories.items(), Texts{"C:\\"});
}

TEST_F(File_Lists_Test, A_File_Name_Selects_Filters_Or_Goes_Elsewhere) {
  for (const auto& [text, error, now] : {std::tuple{"Brass.syx", 0, "brass.syx C:\\Tones *.syx 2"},
                                         {"notes.txt", 0, " C:\\Tones *.syx 2"},  // there, but not listed
                                         {"none.syx", 53, "brass.syx C:\\Tones *.syx 2"},
                                         {"*.t?t", 0, " C:\\Tones *.t?t 1"},
                                         {"bank a", 0, " C:\\Tones\\Bank A *.syx 0"},
                                         {"\\tones\\bell.syx", 0, "BELL.SYX C:\\Tones *.syx 2"},
                                         {"a|b", 52, "brass.syx C:\\Tones *.syx 2"}}) {
    files.Set_Path("C:\\Tones");
    files.Set_Pattern("*.syx");
    files.Set_File_Name("brass.syx");
    EXPECT_EQ(Raised([&, name = text] { files.Set_File_Name(name); }), error) << text;
    EXPECT_EQ(
        files.file_name() + " " + files.path() + " " + files.pattern() + " " + std::to_string(files.Count()),
        now)
        << text;
  }
}

TEST_F(File_Lists_Test, Odd_Names_Are_Listed_Or_Left_Out_But_Never_Harm) {
  const Texts shown = {"a:b", "Größe", "it's & 100%"};
  const Texts left_out = {"back\\slash", "wild*", " blank", "blank ", "line\nend", "\xFF\xFE", ".x"};
  for (const Texts& names : {shown, left_out})
    for (const std::string& name : names) root.Put("Tones/Bank A/" + name, "");
  files.Set_Path("C:\\Tones\\Bank A");
  EXPECT_EQ(files.items(), shown);
}
