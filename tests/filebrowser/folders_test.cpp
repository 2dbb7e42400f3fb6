#include "filebrowser/folders.h"

#include "filebrowser/filebrowser_fixture.h"

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
  std::string Shown() { return File_Dlg.FD_List_Dirs.path() + "|" + File_Dlg.FD_List_Files.path(); }
};

TEST_F(Folders_Test, Directories_Open_By_Key_Double_Click_And_Up) {
  Open("Open_SYX");
  for (const int key : {Key::Space, Key::Enter, Key::Letter_A}) {
    Press_Directory("C:\\songs\\sub");
    desktop.Key(Key::Space, Shift_Key);
    EXPECT_EQ(Shown(), "C:\\songs|C:\\songs");
    desktop.Key(key);
    if (key == Key::Letter_A) Mouse_Double(File_Dlg.FD_List_Dirs, {Left_Button, 0, 4, 4});
    EXPECT_EQ(Shown(), "C:\\songs\\sub|C:\\songs\\sub");
    desktop.Click(File_Dlg.FD_Button_Updir_Pic);
  }
  Unload(File_Dlg);
  Dir_Tones = "c:\\gone\\";
  Open("Open_SYX");
  EXPECT_EQ(Shown(), Current_Directory() + "|" + Current_Directory());
  Unload(File_Dlg);
  root.Make("Who?");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(root.host / "Who?");
  Dir_Tones = "\\gone";
  Open("Open_SYX");
  EXPECT_EQ(Shown(), "C:\\|C:\\");
  std::filesystem::current_path(before);
}

TEST_F(Folders_Test, A_New_Folder_Gets_A_Name_That_Is_Free) {
  Open("Open_SYX");
  Press_Directory("C:\\songs");
  for (const char* name : {"SUB", "New One "}) {
    desktop.At_Wait([name] {
      Input_Dlg.Input_Textbox.Set_Text(name);
      User_Clicked(Input_Dlg.Input_OK);
    });
  }
  Set_Focus(File_Dlg.FD_Button_Newdir);
  desktop.Key(Key::Space);
  EXPECT_TRUE(root.Names("songs").contains("new one"));
}

TEST_F(Folders_Test, A_Drive_That_Is_Not_Ready_Can_Be_Tried_Again_Or_Given_Up) {
  const std::string stick = (root.host / "stick").string();
  Drives_Set({{'C', root.host.string()}, {'E', stick}});
  Open("Open_SYX");
  desktop.Expect_Box(Answer::Cancel, "Drive not ready or unavailable.");
  User_Selected(File_Dlg.FD_List_Drives, 1);
  EXPECT_EQ(File_Dlg.FD_List_Drives.drive() + FD_Drive + File_Dlg.FD_List_Dirs.path(), "C:C:C:\\songs");
  desktop.on_other_box = [&] {
    root.Make("stick");
    return Answer::Retry;
  };
  User_Selected(File_Dlg.FD_List_Drives, 1);
  EXPECT_EQ(Shown(), "E:\\|E:\\");
}

TEST_F(Folders_Test, Delete_Asks_First) {
  Autoplay = 0;
  Open("Open_SYX");
  const auto press_delete = [&](const std::string& shown, Answer answer, const std::string& failure = {}) {
    desktop.Expect_Box(answer, "Delete " + shown + " ?");
    if (!failure.empty()) desktop.Expect_Box(Answer::Ok, shown + failure);
    desktop.Click(File_Dlg.FD_Button_Delete);
  };
  Press_File("a.syx");
  press_delete("A.SYX", Answer::No);
  EXPECT_EQ(root.Get("songs/a.syx"), Tone_Bytes('A'));
  Press_File("a.syx");
  press_delete("A.SYX", Answer::Yes);
  EXPECT_EQ(File_Dlg.FD_List_Files.items(), (std::vector<std::string>{"B.SYX", "bad.syx"}));
  EXPECT_EQ(File_Dlg.FD_List_Files.file_name() + File_Dlg.FD_FileName.text(), "B.SYXB.SYX") << "the next one";
  File_Dlg.FD_FileName.Set_Text("a.syx");
  press_delete("B.SYX", Answer::Yes, " could not be deleted.");
  Press_File("B.SYX");
  File_Dlg.FD_FileName.Set_Text("bad.syx");
  press_delete("B.SYX", Answer::Yes);
  EXPECT_EQ(File_Dlg.FD_List_Files.items(), std::vector<std::string>{"B.SYX"});
  EXPECT_EQ(root.Get("songs/bad.syx~"), "no tone") << "nobody asked about it";

  root.Put("songs/sub/B.SYX", "its namesake");
  Press_File("B.SYX");
  File_Dlg.FD_List_Dirs.Set_Path("C:\\songs\\sub");
  press_delete("B.SYX", Answer::Yes);
  EXPECT_EQ(root.Get("songs/sub/B.SYX~"), "its namesake");
  File_Dlg.FD_List_Dirs.Set_Path("C:\\songs");

  Press_Directory("C:\\songs\\sub");
  press_delete("C:\\SONGS\\SUB", Answer::Yes, " could not be removed. The directory is not empty.");
  std::filesystem::remove(root.host / "songs/sub/B.SYX~");
  Press_Directory("C:\\songs\\sub");
  press_delete("C:\\SONGS\\SUB", Answer::No);
  EXPECT_TRUE(root.Names("songs").contains("sub"));
  Press_Directory("C:\\songs\\sub");
  press_delete("C:\\SONGS\\SUB", Answer::Yes);
  EXPECT_FALSE(root.Names("songs").contains("sub"));
}
