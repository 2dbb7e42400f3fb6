#include "filebrowser/filebrowser_fixture.h"

struct Actions_Test : Filebrowser_Test {
  void Run(char act, const std::string& name) {
    if (act == 'D') return Double_Click_File(name);
    if (act == 'P') return Press_File(name);
    if (act == 'E') return Enter(name);
    desktop.Type(File_Dlg.FD_FileName, name);
    desktop.Click(File_Dlg.FD_Button_Ok_Pic);
  }
  // Whether the dialog stays, the letter of the tone, its file, a cell of the sequence, its file.
  std::string State() {
    return std::string(Is_Open() ? "open, " : "") + static_cast<char>(Tone[0]) + ", " + Tone_File + ", " +
           std::to_string(Seq_Data[103]) + ", " + Seq_File;
  }
};

TEST_F(Actions_Test, Each_Kind_Does_Its_Own_With_Each_Action) {
  const std::string same = "open, M, old tone, 5, old sequence";
  const std::string off = "B0 7B 00";  // All Notes Off
  const std::string shown = off + ", dump A, dump A, ";
  // Ok, Enter, double click and press by their letters; the file that is clicked or typed; the state behind
  // it; what is heard, with what closing the dialog sends.
  for (const auto& [kind, acts, name, state, heard] :
       std::initializer_list<std::tuple<std::string, std::string, std::string, std::string, std::string>>{
           {"Open_SYX", "OE", "A", "A, C:\\songs\\A.syx, 5, old sequence", "dump A, dump A, " + off},
           {"Open_SYX", "OE", "bad.syx", same, off},
           {"Open_SYX", "D", "a.syx", "A, C:\\songs\\a.syx, 5, old sequence",
            shown + "dump A, dump A, " + off},
           {"Open_SYX", "P", "a.syx", "open, A, old tone, 5, old sequence", shown + "90 30 50, " + off},
           {"Open_SEQ", "OE", "p", "M, old tone, 127, C:\\songs\\p.seq", off},
           {"Open_SEQ", "D", "p.seq", "M, old tone, 127, C:\\songs\\p.seq", off},
           {"Open_SEQ", "P", "p.seq", "open, M, old tone, 127, old sequence", off},
           {"Open_OSC", "ODP", "x.osc", same, off},
           {"SaveAs_SYX", "OE", "New", "U, c:\\songs\\new.syx, 5, old sequence", "dump U, " + off},
           {"SaveAs_SYX", "D", "B.SYX", "M, c:\\songs\\b.syx, 5, old sequence", off},
           {"SaveAs_SYX", "P", "a.syx", same, off},
           {"SaveAs_SEQ", "OE", "New", "M, old tone, 5, c:\\songs\\new.seq", off},
           {"SaveAs_SEQ", "DP", "p.seq", same, off}}) {
    for (const char act : acts) {
      SCOPED_TRACE(kind + " " + name + " " + act);
      Fresh_Memory();
      Open(kind);
      if (name == "bad.syx") desktop.Expect_Box(Answer::Ok, "Wrong MIDI system exclusive data!");
      auto files = root.Names("songs");
      Run(act, name);
      EXPECT_EQ(State(), state);
      Unload(File_Dlg);
      EXPECT_EQ(Heard(), heard);
      if (name == "New") files.insert(kind == "SaveAs_SYX" ? "new.syx" : "new.seq");
      EXPECT_EQ(root.Names("songs"), files);
      for (const char* made : {"songs/new.syx", "songs/new.seq"}) std::filesystem::remove(root.host / made);
    }
  }
}

TEST_F(Actions_Test, What_Cannot_Be_Done_Is_Told_And_The_Dialog_Stays) {
  Tone_Saved = Flag_False;
  for (const auto& [kind, typed, box] :
       {std::tuple{"Open_SYX", "zzz", "File not found : zzz.syx"},
        {"Open_SYX", "~/none/a.syx", "Path not found : ~/none/a.syx"},
        {"Open_ALL", "c:\\zzz.syx", "File not found : c:\\zzz.syx"},
        {"Open_ALL", "~/songs/a.syx", "Nothing can be opened or saved among all files : ~/songs/a.syx"},
        {"Open_SEQ", "none\\p.seq", "Path not found : none\\p.seq"},
        {"SaveAs_SEQ", "*.seq", "Bad file name or number : *.seq"},
        {"SaveAs_SYX", "none\\t", "Error 76: Path not found"}}) {
    Open(kind);
    desktop.Expect_Box(Answer::Ok, box);
    Enter(typed);
    EXPECT_TRUE(Is_Open()) << typed;
    Unload(File_Dlg);
  }
}

TEST_F(Actions_Test, A_Name_With_Its_Place_Means_That_Place) {
  const std::string home = root.host.string();
  root.Put("songs/sub/c.syx", Tone_Bytes('C'));
  Autoplay = Autosend = 0;
  for (const std::string name :
       {"C:\\songs\\sub\\c.syx", "\\songs\\sub\\c", "~/songs/./x/../sub/c", "sub\\c"}) {
    for (const std::string& typed : {name, name[0] == '~' ? home + name.substr(1) : name}) {
      Fresh_Memory();
      Open("Open_SYX");
      Enter(typed);
      EXPECT_FALSE(Is_Open()) << typed;
      EXPECT_EQ(Tone[0], 'C') << typed;
      EXPECT_EQ(Dir_Tones, "C:\\songs\\sub") << typed;
    }
  }
  for (const std::string kind : {"SaveAs_SYX", "SaveAs_SEQ"}) {
    Fresh_Memory();
    Open(kind);
    Enter("~/songs/sub/New");
    EXPECT_FALSE(Is_Open());
    EXPECT_NE(root.Get(kind == "SaveAs_SYX" ? "songs/sub/new.syx" : "songs/sub/new.seq"), "(none)");
  }
  EXPECT_EQ(Dir_Sequences, "C:\\songs\\sub");

  // What only leads elsewhere says nothing; a name that the shown list has, but not the place, is answered.
  Open("Open_SYX");
  for (const char* typed : {"~/songs/sub/", "*.?yx"}) Enter(typed);
  EXPECT_EQ(File_Dlg.FD_List_Files.items(), (std::vector<std::string>{"c.syx", "new.syx"}));
  EXPECT_TRUE(Is_Open());
  File_Dlg.FD_List_Dirs.Set_Path("C:\\songs");
  Enter("C:\\songs\\sub\\");
  desktop.Expect_Box(Answer::Ok, "File not found : c.syx");
  Enter("c.syx");
  Unload(File_Dlg);
}

TEST_F(Actions_Test, Enter_In_The_List_Opens_What_Is_Chosen_There) {
  Open("Open_SYX");
  Set_Focus(File_Dlg.FD_List_Files);
  User_Selected(File_Dlg.FD_List_Files, 1);
  desktop.Key(Key::Enter);
  EXPECT_EQ(Tone_File, "C:\\songs\\B.SYX");
}

TEST_F(Actions_Test, An_Existing_File_Is_Only_Overwritten_With_Consent) {
  for (const std::string kind : {"SaveAs_SYX", "SaveAs_SEQ"}) {
    SCOPED_TRACE(kind);
    const bool tone = kind == "SaveAs_SYX";
    const std::string file = tone ? "a.syx" : "p.seq";
    const std::string old_content = root.Get("songs/" + file);
    Fresh_Memory();
    Tone_Saved = Flag_False;
    Open(kind);
    desktop.Expect_Box(Answer::No, "File exists: c:\\songs\\" + file + " Overwrite?");
    Enter(file);
    EXPECT_EQ(root.Get("songs/" + file), old_content);
    desktop.Expect_Box(Answer::Yes);
    Enter(file);
    EXPECT_EQ(root.Get("songs/" + file)[8], tone ? 'M' : '\5');
    EXPECT_EQ(root.Get("songs/" + file + "~"), old_content);
    EXPECT_EQ(Is_Open(), !tone) << "the unsaved tone keeps the dialog open, though the sequence is written";
    Unload(File_Dlg);
  }
}
