#include "filebrowser/filebrowser_fixture.h"

namespace {

using Dialog_Test = Filebrowser_Test;

TEST_F(Dialog_Test, All_Files_Keeps_The_Pattern_And_Takes_The_Action_Away) {
  Open("Open_SYX");
  EXPECT_TRUE(File_Dlg.FD_SYX.visible() && !File_Dlg.FD_SEQ.visible());
  User_Selected(File_Dlg.FD_List_Filter, 1);
  EXPECT_EQ(FD_Ext + " " + Dlg_Kind + " " + File_Dlg.FD_List_Files.pattern(), ".syx Open_ALL *.syx");
  Enter("a");
  Press_File("B.SYX");
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Tone[0], 'M');
}

TEST_F(Dialog_Test, It_Holds_The_Program_Modal_And_Remembers_Where_It_Was) {
  MELVOR.Menu_Windows_SavePos.checked = true;
  FileDlg_Left = 300;
  FileDlg_Top = 450;
  Open("Open_SYX");
  EXPECT_EQ(Active_Dlg, "File_Dlg");
  EXPECT_FALSE(MELVOR.Menu_File.enabled() || Editor.enabled());
  EXPECT_EQ(File_Dlg.left() + File_Dlg.top(), 750);
  EXPECT_EQ(Focused_Control(), &File_Dlg.FD_FileName);
  File_Dlg.FD_List_Dirs.Set_Path("C:\\work\\sub");
  User_Placed(File_Dlg, 15, 30, File_Dlg.width, File_Dlg.height);
  desktop.Post([] { User_Closes(File_Dlg); });  // the user is quick; this comes while it closes
  desktop.Click(File_Dlg.FD_Button_Cancel);
  EXPECT_EQ(FD_Cancelled, Flag_True);
  EXPECT_EQ(Active_Dlg + std::to_string(Dlg_Nest), "0");
  EXPECT_TRUE(MELVOR.Menu_File.enabled() && Editor.enabled());
  EXPECT_EQ(FD_Open, Flag_False);
  EXPECT_EQ(FileDlg_Left + FileDlg_Top, 45);
  EXPECT_EQ(Dir_Tones + "|" + Dir_Sequences, "C:\\work\\sub|c:\\work\\");
  MELVOR.Menu_Windows_SavePos.checked = false;
  Open("Open_SEQ");
  EXPECT_EQ(File_Dlg.left() + File_Dlg.top(), 0);
  EXPECT_EQ(File_Dlg.FD_List_Files.items(), std::vector<std::string>{"p.seq"});
}

TEST_F(Dialog_Test, Keys_Work_And_Alt_Ends_In_The_File_Name) {
  Seq_Loaded = Flag_On;
  Open("Open_SYX");
  std::string focused;
  for (Control* list : std::initializer_list<Control*>{&File_Dlg.FD_List_Dirs, &File_Dlg.FD_List_Files,
                                                       &File_Dlg.FD_List_Filter, &File_Dlg.FD_List_Drives}) {
    list->on_got_focus = [&focused, list] { focused += list->name.substr(8); };
  }
  // The key, then Autoplay, Autosend and Soundcheck as digits.
  const std::vector<std::pair<int, std::string>> rows{{'Q', "111"}, {'C', "110"}, {'S', "100"}, {'P', "000"},
                                                      {'Q', "000"}, {'P', "100"}, {'D', "100"}, {'F', "100"},
                                                      {'T', "100"}, {'V', "100"}, {'X', "100"}};
  for (const auto& [key, switches] : rows) {
    Set_Focus(File_Dlg.FD_Button_Ok);
    EXPECT_TRUE(desktop.Key(key, Alt_Key));
    EXPECT_EQ(std::to_string(Autoplay) + std::to_string(Autosend) + std::to_string(Soundcheck), switches)
        << key;
    EXPECT_EQ(Focused_Control(), &File_Dlg.FD_FileName) << key;
  }
  EXPECT_EQ(focused, "DirsFilesFilterDrives");
  desktop.Type(File_Dlg.FD_FileName, "some");
  desktop.Key('N', Alt_Key);
  EXPECT_EQ(File_Dlg.FD_FileName.selection_length(), 4);
  User_Selected(File_Dlg.FD_List_Files, 0);
  EXPECT_EQ(Text(), "some") << "the cursor keys load nothing";
  desktop.Key(Key::Escape);
  EXPECT_FALSE(Is_Open());
  for (Control* control : File_Dlg.controls) control->on_got_focus = {};
}

}  // namespace
