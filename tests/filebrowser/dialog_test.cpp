#include "filebrowser/filebrowser_fixture.h"

using Dialog_Test = Filebrowser_Test;

TEST_F(Dialog_Test, Each_Kind_Has_Its_Caption_And_Files) {
  for (const auto& [kind, caption, filter] : {std::tuple{"Open_SYX", "Open Tone File", "Sysex (*.SYX)"},
                                              {"Open_SEQ", "Open Sequencer File", "Sequence (*.SEQ)"},
                                              {"SaveAs_SEQ", "Save Sequencer File", "Sequence (*.SEQ)"},
                                              {"Open_ALL", "Open File", "All Files (*.*)"},
                                              {"", "File", "All Files (*.*)"}}) {
    Open(kind);
    EXPECT_EQ(File_Dlg.caption(), caption) << kind;
    EXPECT_EQ(File_Dlg.FD_List_Filter.items()[0], filter) << kind;
    Unload(File_Dlg);
  }
  Open("SaveAs_SYX");
  User_Selected(File_Dlg.FD_List_Filter, 1);
  EXPECT_EQ(Dlg_Kind, "Open_ALL") << "which saves nothing";
}

TEST_F(Dialog_Test, Without_A_Sequence_None_Can_Be_Heard) {
  for (const auto& [loaded, saved, offered] :
       {std::tuple{Flag_Off, Flag_On, 0}, {Flag_On, Flag_On, 1}, {Flag_Off, Flag_Off, 1}}) {
    Seq_Loaded = loaded;
    Seq_Saved = saved;
    Soundcheck = 0;
    Open("Open_SYX");
    for (int press = 0; press < 2; ++press) desktop.Click(File_Dlg.FD_SYX_CB_Autoplay);
    desktop.Click(File_Dlg.FD_SYX_OB_Soundcheck[1]);
    EXPECT_EQ(Soundcheck, offered);
    MIDI_Enabled = 0;
    desktop.Click(File_Dlg.FD_SYX_Button_Start);
    EXPECT_EQ(Seq_Running, Flag_Off);
    MIDI_Enabled = 1;
    Unload(File_Dlg);
  }
}

TEST_F(Dialog_Test, It_Holds_The_Program_Modal_And_Remembers_Where_It_Was) {
  MELVOR.Menu_Windows_SavePos.checked = true;
  Open("Open_SYX");
  EXPECT_EQ(Active_Dlg, "File_Dlg");
  EXPECT_FALSE(MELVOR.Menu_File.enabled() || Editor.enabled());
  EXPECT_EQ(Focused_Control(), &File_Dlg.FD_FileName);
  File_Dlg.FD_List_Dirs.Set_Path("C:\\songs\\sub");
  desktop.Post([] { User_Closes(File_Dlg); });  // the user is quick; this comes while it closes
  desktop.Click(File_Dlg.FD_Button_Cancel);
  EXPECT_EQ(FD_Cancelled, Flag_True);
  MELVOR.Menu_Windows_SavePos.checked = false;
  EXPECT_EQ(Active_Dlg + std::to_string(Dlg_Nest), "0");
  EXPECT_TRUE(MELVOR.Menu_File.enabled() && Editor.enabled());
  EXPECT_EQ(Dir_Tones + "|" + Dir_Sequences, "C:\\songs\\sub|c:\\songs\\");
}

TEST_F(Dialog_Test, Keys_Work_And_Alt_Ends_In_The_File_Name) {
  Seq_Loaded = Flag_On;
  Open("Open_SYX");
  std::string switches;  // Autoplay, Autosend and Soundcheck as digits, after each key
  for (const char key : std::string_view("QCSPQPDFTVX")) {
    Set_Focus(File_Dlg.FD_Button_Ok);
    EXPECT_TRUE(desktop.Key(key, Alt_Key));
    switches += std::to_string(100 * Autoplay + 10 * Autosend + Soundcheck) + " ";
    EXPECT_EQ(Focused_Control(), &File_Dlg.FD_FileName) << key;
  }
  EXPECT_EQ(switches, "111 110 100 0 0 100 100 100 100 100 100 ");
  Set_Focus(File_Dlg.FD_Button_Cancel);
  desktop.Key(Key::Space, Shift_Key);
  EXPECT_TRUE(Is_Open());
  for (const Key_Event& key : {Key_Event{'P', Alt_Key, true}, {Key::Enter, 0, true}, {18, Alt_Key}})
    Key_Down(File_Dlg, &File_Dlg.FD_FileName, key, 0);  // held, held, Alt itself
  EXPECT_EQ(Autoplay, 1);
  for (const int shift : {0, Shift_Key, Ctrl_Key, Alt_Key}) {
    Open("Open_SYX");
    desktop.Key(Key::Escape, shift);
    EXPECT_FALSE(Is_Open()) << shift;
  }
}
