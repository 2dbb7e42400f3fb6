#include "sequencer/sequencer_fixture.h"

namespace {

using Numbers = std::vector<int>;

std::string File_Of(int speed, int base_note, char cell = 0) {
  return std::string("SEQ1") + static_cast<char>(speed) + static_cast<char>(base_note) +
         std::string(104, cell);
}

TEST_F(Sequencer_Test, A_Saved_File_Has_Head_Tempo_Base_Note_And_Cells_And_Keeps_Tail_And_Copy) {
  root.Put("my.seq", File_Of(30, 48, 5) + "tail");
  Seq_Speed = 100;
  Seq_Data[0] = 127;
  Seq_Data[12] = 63;
  Seq_Data[13] = 200;
  Seq_Data[103] = 1;
  Seq_Saved = Flag_Off;
  Open_Window();
  Seq_Base_Note = 0x3C;
  Menu_File_Seq_Save();
  EXPECT_EQ(Dlg_Kind, "SaveAs_SEQ") << "there is no file yet";
  Seq_File = "c:\\my.seq";
  Menu_File_Seq_Save();
  std::string want("SEQ1\x64\x3C", 6);
  want += '\x7F' + std::string(11, '\0') + "\x3F\xC8" + std::string(89, '\0') + "\x01tail";
  EXPECT_EQ(root.Get("my.seq"), want);
  EXPECT_EQ(root.Get("my.seq~"), File_Of(30, 48, 5) + "tail");
  EXPECT_EQ(Seq_Saved, Flag_On);
  Dir_Sequences = "c:";  // as the file dialog leaves it
  Menu_File_Seq_Save();
  EXPECT_EQ(Sequencer.caption(), "Sequencer - MY.SEQ");

  Seq_File = "c:\\nowhere\\a.seq";
  Seq_Saved = Flag_Off;
  EXPECT_EQ(Raised(Seq_Save), 76);
  EXPECT_EQ(Seq_Saved, Flag_Off);
}

TEST_F(Sequencer_Test, The_Range_List_Follows_The_Base_Note_Of_A_File) {
  for (const auto& [base_note, range] : {std::pair{30, 0}, {40, 1}, {48, 2}, {42, 2}, {0, 2}, {84, 5}}) {
    Seq_Clear();
    root.Put("a.seq", File_Of(30, base_note, 7) + "more");
    Seq_Load("c:\\a.seq", Load_Mode::Open);
    EXPECT_EQ(Numbers({Seq_Base_Note, Seq_Range_Index}), Numbers({base_note, range}));
  }
  desktop.Expect_Box(Answer::Ok, "File not found: c:\\gone.seq");
  Seq_Load("c:\\gone.seq", Load_Mode::Open);
}

TEST_F(Sequencer_Test, A_Real_Load_Shows_Itself_And_Lets_A_Later_Bad_File_Count_As_Loaded) {
  root.Put("a.seq", File_Of(120, 53, 127));
  root.Put("bad.seq", "junk");
  Open_Window();
  Seq_Load("c:\\a.seq", Load_Mode::Open);
  EXPECT_EQ(Sent(), std::vector<std::string>{"B0 7B 00"});
  EXPECT_EQ(MELVOR.Seq_Tmr.interval_ms(), 62);
  EXPECT_EQ(Seq_Base_Note, 48);  // the lists have no transposition

  Seq_Saved = Flag_Off;
  Seq_Load("c:\\bad.seq", Load_Mode::Open);
  EXPECT_EQ(Seq_File + " " + Recent_Seqs[0], "c:\\bad.seq c:\\bad.seq");
  EXPECT_EQ(Seq_Data[103], 127);
  EXPECT_EQ(Seq_Saved, Flag_On);
  Seq_Clear();
  desktop.Expect_Box(Answer::Ok, "Wrong SEQUENCE format!");
  Menu_File_Seq_Recent(0);
}

TEST_F(Sequencer_Test, New_And_Open_Ask_About_An_Edited_Matrix) {
  bool dialog_saves = false;
  File_Dlg.on_load = [&] {
    if (Dlg_Kind != "SaveAs_SEQ" || !dialog_saves) return;
    Seq_File = "c:\\a.seq";
    Seq_Save();
    FD_Done = Flag_On;
  };
  for (const auto& [answer, saves, goes_on] : {std::tuple{Answer::Cancel, false, false},
                                               {Answer::No, false, true},
                                               {Answer::Yes, true, true},
                                               {Answer::Yes, false, false}}) {
    for (const bool is_new : {true, false}) {
      Seq_Data[0] = 127;
      Seq_Saved = Flag_Off;
      Dlg_Kind.clear();
      dialog_saves = saves;
      desktop.Expect_Box(answer, "Save actual SEQUENCE first?");
      const bool is_told = is_new && answer == Answer::Yes && !saves;
      if (is_told) desktop.Expect_Box(Answer::Ok, "Sequence not saved.");
      is_new ? Menu_File_Seq_New() : Menu_File_Seq_Open();
      EXPECT_EQ(Dlg_Kind == "Open_SEQ", !is_new && goes_on);
      EXPECT_EQ(Seq_Data[0] == 0, is_new && goes_on);
      Unload(File_Dlg);
    }
  }
  File_Dlg.on_load = nullptr;
}

}  // namespace
