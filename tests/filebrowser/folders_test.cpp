#include "filebrowser/folders.h"

#include "filebrowser/filebrowser_fixture.h"

namespace {

struct Folders_Test : Filebrowser_Test {
  // A press on the directory of that name, which the list has selected already.
  void Press_Directory(const std::string& path) {
    Dir_List& list = File_Dlg.FD_List_Dirs;
    for (int entry = 0; entry < list.Count(); ++entry) {
      if (list.Entry_Path(entry) == path) User_Selected(list, entry);
    }
    ASSERT_EQ(list.Entry_Path(list.index()), path);
    desktop.Click(list);
  }
  void Answer_Prompt(const std::string& text, const std::string& title) {
    desktop.At_Wait([this, text, title] {
      EXPECT_EQ(Input_Dlg.caption(), title);
      Input_Dlg.Input_Textbox.Set_Text(text);
      User_Clicked(Input_Dlg.Input_OK);
    });
  }
};

TEST_F(Folders_Test, The_Parent_Of_A_Directory) {
  const std::vector<std::pair<std::string, std::string>> rows{{"C:\\a\\b", "C:\\a\\"},
                                                              {"C:\\a\\b\\", "C:\\a\\"},
                                                              {"C:\\a", "C:\\"},
                                                              {"C:\\", "C:\\"},
                                                              {"C:", "C:\\"}};
  for (const auto& [path, parent] : rows) EXPECT_EQ(FD_Parent_Dir(path), parent) << path;
}

TEST_F(Folders_Test, Directories_Open_By_Key_Double_Click_And_Up) {
  Open("Open_SYX");
  Press_Directory("C:\\work\\sub");
  desktop.Key(Key::Space, 0, Key::Space);
  EXPECT_EQ(File_Dlg.FD_List_Dirs.path() + "|" + File_Dlg.FD_List_Files.path(),
            "C:\\work\\sub|C:\\work\\sub");
  desktop.Click(File_Dlg.FD_Button_Updir_Pic);
  EXPECT_EQ(File_Dlg.FD_List_Files.path() + "|" + FD_Selected, "C:\\work|C:\\work\\");
  Press_Directory("C:\\work\\sub");
  Mouse_Double(File_Dlg.FD_List_Dirs, {Left_Button, 0, 4, 4});
  EXPECT_EQ(File_Dlg.FD_List_Files.path(), "C:\\work\\sub");
}

TEST_F(Folders_Test, A_Vanished_Start_Directory_Becomes_The_Current_One) {
  const std::string current = Current_Directory();
  Dir_Tones = "c:\\gone\\";
  Open("Open_SYX");
  EXPECT_EQ(File_Dlg.FD_List_Files.path(), current);
  EXPECT_EQ(File_Dlg.FD_List_Dirs.path(), current);
}

TEST_F(Folders_Test, A_Drive_That_Is_Not_Ready_Can_Be_Tried_Again_Or_Given_Up) {
  const std::string stick = (root.host / "stick").string();
  Drives_Set({{'C', root.host.string()}, {'E', stick}});
  Open("Open_SYX");
  desktop.Expect_Box(Answer::Cancel, "Drive not ready or unavailable.");
  User_Selected(File_Dlg.FD_List_Drives, 1);
  EXPECT_EQ(File_Dlg.FD_List_Drives.drive() + FD_Drive + File_Dlg.FD_List_Dirs.path(), "C:C:C:\\work");
  EXPECT_EQ(desktop.boxes.back().style, Box_Retry_Cancel + Box_Stop);
  desktop.on_other_box = [&](const Shown_Box&) {
    root.Make("stick/deep");
    return Answer::Retry;
  };
  User_Selected(File_Dlg.FD_List_Drives, 1);
  EXPECT_EQ(FD_Drive + File_Dlg.FD_List_Files.path(), "E:E:\\");
  desktop.on_other_box = {};
  std::filesystem::remove_all(stick);
  Press_Directory("E:\\deep");
  desktop.Expect_Box(Answer::Cancel, "Drive not ready or not available.");
  desktop.Key(Key::Space);
  EXPECT_EQ(File_Dlg.FD_List_Dirs.path(), "E:\\");
}

TEST_F(Folders_Test, Delete_Asks_First) {
  Autoplay = 0;
  Open("Open_SYX");
  Press_File("a.syx");
  desktop.Expect_Box(Answer::No, "Delete A.SYX ?");
  desktop.Click(File_Dlg.FD_Button_Delete);
  EXPECT_EQ(root.Get("work/a.syx"), Tone_Bytes('A'));
  Press_File("a.syx");
  desktop.Expect_Box(Answer::Yes, "Delete A.SYX ?");
  desktop.Click(File_Dlg.FD_Button_Delete);
  EXPECT_EQ(File_Dlg.FD_List_Files.items(), (std::vector<std::string>{"B.SYX", "bad.syx"}));
  desktop.Expect_Box(Answer::Yes);
  desktop.Expect_Box(Answer::Ok, "A.SYX could not be deleted.");
  desktop.Click(File_Dlg.FD_Button_Delete);
}

TEST_F(Folders_Test, Only_An_Empty_Directory_Is_Removed) {
  root.Put("work/sub/kept.syx", "x");
  Open("Open_SYX");
  Press_Directory("C:\\work\\sub");
  desktop.Expect_Box(Answer::Yes, "Delete C:\\WORK\\SUB ?");
  desktop.Expect_Box(Answer::Ok, "C:\\WORK\\SUB could not be removed. The directory is not empty.");
  desktop.Click(File_Dlg.FD_Button_Delete);
  std::filesystem::remove(root.host / "work/sub/kept.syx");
  desktop.Expect_Box(Answer::Yes);
  desktop.Click(File_Dlg.FD_Button_Delete);
  EXPECT_FALSE(root.Names("work").contains("sub"));
  EXPECT_EQ(FD_Selected, "C:\\work");
}

TEST_F(Folders_Test, A_New_Folder_Gets_A_Name_That_Is_Free) {
  Open("Open_SYX");
  desktop.Click(File_Dlg.FD_Button_Newdir);
  EXPECT_EQ(desktop.beeps, 1) << "nothing is selected";
  Press_Directory("C:\\work");
  Answer_Prompt("SUB", "Create new folder");
  Answer_Prompt("New One", "Create new directory");
  desktop.Click(File_Dlg.FD_Button_Newdir);
  EXPECT_TRUE(root.Names("work").contains("new one"));
  EXPECT_EQ(File_Dlg.FD_List_Dirs.Item(File_Dlg.FD_List_Dirs.Count() - 2), "    new one");
  Answer_Prompt("", "Create new folder");
  desktop.Click(File_Dlg.FD_Button_Newdir);
  EXPECT_EQ(root.Names("work").size(), 7U);
}

}  // namespace
