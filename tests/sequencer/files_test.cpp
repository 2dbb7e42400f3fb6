#include "sequencer/sequencer_fixture.h"

namespace {

std::string File_Of(int speed, int base_note, char cell = 0) {
  return std::string("SEQ1") + static_cast<char>(speed) + static_cast<char>(base_note) +
         std::string(104, cell);
}

TEST_F(Sequencer_Test, A_Saved_File_Has_Head_Tempo_Base_Note_And_Cells) {
  Seq_Speed = 100;
  Seq_Base_Note = 0x3C;
  Seq_Data[0] = 127;
  Seq_Data[12] = 63;
  Seq_Data[13] = 200;
  Seq_Data[103] = 1;
  Seq_Saved = Flag_Off;
  Seq_File = "c:\\my.seq";
  Menu_File_Seq_Save();
  std::string want("SEQ1\x64\x3C", 6);
  want += '\x7F' + std::string(11, '\0') + "\x3F\xC8" + std::string(89, '\0') + '\x01';
  EXPECT_EQ(root.Get("my.seq"), want);
  EXPECT_EQ(Seq_Saved, Flag_On);
  EXPECT_EQ(Seq_Name, "my.seq");
  EXPECT_TRUE(MELVOR.Menu_File_Seq_Save.enabled());
  EXPECT_EQ(Recent_Seqs[0], "c:\\my.seq");

  Seq_Clear();
  Seq_Base_Note = 0;
  Seq_Load("c:\\my.seq", Load_Mode::Open);
  EXPECT_EQ(Seq_Speed, 100);
  EXPECT_EQ(Seq_Base_Note, 0x3C);
  EXPECT_EQ(Seq_Data[13], 200);
  EXPECT_EQ(MELVOR.Seq_Tmr.interval_ms(), 75);
}

TEST_F(Sequencer_Test, A_Save_Keeps_The_Tail_And_A_Copy_Or_Changes_Nothing) {
  root.Put("long.seq", File_Of(30, 48, 5) + "tail");
  Seq_File = "c:\\long.seq";
  Seq_Save();
  EXPECT_EQ(root.Get("long.seq"), File_Of(30, 48) + "tail");
  EXPECT_EQ(root.Get("long.seq~"), File_Of(30, 48, 5) + "tail");

  Seq_File = "c:\\nowhere\\a.seq";
  Seq_Saved = Flag_Off;
  EXPECT_EQ(Raised(Seq_Save), 76);
  EXPECT_EQ(Seq_Saved, Flag_Off);
}

TEST_F(Sequencer_Test, Only_110_Bytes_Behind_The_Head_Are_A_Sequence) {
  const std::string good = File_Of(60, 48, 7);
  const struct {
    const char* name;
    std::string bytes;
    bool accepted;
  } rows[] = {{"exact", good, true},
              {"longer", good + "x", true},
              {"one short", good.substr(0, 109), false},
              {"empty", "", false},
              {"lower case, any version", "seq\xFF" + good.substr(4), true},
              {"wrong head", "SEK1" + good.substr(4), false}};
  for (const auto& row : rows) {
    Seq_Clear();
    root.Put("a.seq", row.bytes);
    if (!row.accepted) desktop.Expect_Box(Answer::Ok, "Wrong SEQUENCE format!");
    Seq_Load("c:\\a.seq", Load_Mode::Open);
    EXPECT_EQ(Seq_Loaded == Flag_On, row.accepted) << row.name;
    EXPECT_EQ(Seq_Data[103], row.accepted ? 7 : 0) << row.name;
    EXPECT_EQ(Seq_Name, "a.seq") << row.name;
  }
}

TEST_F(Sequencer_Test, Tempo_And_Base_Note_Are_Read_As_They_Stand) {
  const struct {
    int speed, base_note, want_speed, want_range;
  } rows[] = {{200, 48, 120, 2}, {1, 40, 1, 1},   {30, 0, 30, 2},
              {30, 30, 30, 0},   {30, 42, 30, 2}, {30, 84, 30, 5}};
  for (const auto& row : rows) {
    root.Put("a.seq", File_Of(row.speed, row.base_note));
    Seq_Load("c:\\a.seq", Load_Mode::Open);
    EXPECT_EQ(Seq_Speed, row.want_speed);
    EXPECT_EQ(Seq_Base_Note, row.base_note);
    EXPECT_EQ(Seq_Range_Index, row.want_range) << row.base_note;
  }
}

TEST_F(Sequencer_Test, Errors_Of_A_Load_End_It_With_Their_Box) {
  desktop.Expect_Box(Answer::Ok, "File not found: c:\\gone.seq");
  Seq_Load("c:\\gone.seq", Load_Mode::Open);
  root.Put("zero.seq", File_Of(0, 48, 9));
  desktop.Expect_Box(Answer::Ok, "Error 11: Division by zero");
  Seq_Load("c:\\zero.seq", Load_Mode::Open);
  EXPECT_EQ(Seq_Data[0], 0);
  EXPECT_EQ(desktop.boxes.back().style, 16);
  EXPECT_EQ(Seq_Speed, 30);
  Open_Window();

  root.Put("high.seq", File_Of(30, 90, 9));
  desktop.Expect_Box(Answer::Ok, "Error 380: Invalid property value");
  Seq_Load("c:\\high.seq", Load_Mode::Open);
  EXPECT_EQ(Seq_Data[0], 0);
  EXPECT_EQ(Seq_Loaded, Flag_Off);
}

TEST_F(Sequencer_Test, A_Preview_Replaces_The_Matrix_And_Draws_It_And_Nothing_Else) {
  std::string bytes = File_Of(60, 53, 100);
  bytes[6] = 127;
  bytes[7] = 63;
  root.Put("a.seq", bytes);
  root.Put("bad.seq", "junk");
  Open_Window();
  Seq_Saved = Flag_Off;
  FD_Open = Flag_True;
  Seq_Load("c:\\a.seq", Load_Mode::Soundcheck);
  Seq_Load("c:\\bad.seq", Load_Mode::Soundcheck);
  const auto& painted = File_Dlg.FD_SEQ_Preview.painted();
  ASSERT_EQ(painted.size(), 104U);
  EXPECT_EQ(painted[0], (Painted_Picture{{"fd-seq-pics-2"}, 1, 1}));
  EXPECT_EQ(painted[1], (Painted_Picture{{"fd-seq-pics-3"}, 1, 9}));
  EXPECT_EQ(painted[103], (Painted_Picture{{"fd-seq-pics-0"}, 57, 97}));
  EXPECT_EQ(Seq_Data[103], 100);
  EXPECT_EQ(Seq_Base_Note, 53);
  EXPECT_EQ(Seq_Saved, Flag_Off);
  EXPECT_EQ(Seq_File + Recent_Seqs[0], "");
  EXPECT_EQ(FD_Done, Flag_Off);
}

TEST_F(Sequencer_Test, A_Real_Load_Shows_Itself_And_Lets_A_Later_Bad_File_Count_As_Loaded) {
  root.Put("a.seq", File_Of(120, 53, 127));
  root.Put("bad.seq", "junk");
  Open_Window();
  Seq_Load("c:\\a.seq", Load_Mode::Open);
  EXPECT_EQ(Sent(), std::vector<std::string>{"B0 7B 00"});
  EXPECT_EQ(Sequencer.caption(), "Sequencer - A.SEQ");
  EXPECT_EQ(Sequencer.Seq_Tempo_Label.caption(), "120");
  EXPECT_EQ(Seq_Base_Note, 48);  // the lists have no transposition
  EXPECT_EQ(Sequencer.Seq_Matrix.painted()[103].picture, Picture{"seq-pics-2"});
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  EXPECT_EQ(FD_Done, Flag_On);

  Seq_Saved = Flag_Off;
  Seq_Load("c:\\bad.seq", Load_Mode::Open);
  EXPECT_EQ(Seq_File, "c:\\bad.seq");
  EXPECT_EQ(Recent_Seqs[0], "c:\\bad.seq");
  EXPECT_EQ(Seq_Data[103], 127);
  EXPECT_EQ(Seq_Saved, Flag_On);
  Seq_Clear();
  desktop.Expect_Box(Answer::Ok, "Wrong SEQUENCE format!");
  Menu_File_Seq_Recent(0);
}

TEST_F(Sequencer_Test, New_And_Open_Ask_About_An_Edited_Matrix) {
  const struct {
    Answer answer;
    bool dialog_saves, goes_on;
  } rows[] = {{Answer::Cancel, false, false},
              {Answer::No, false, true},
              {Answer::Yes, true, true},
              {Answer::Yes, false, false}};
  for (const auto& row : rows) {
    for (const bool is_new : {true, false}) {
      Seq_Data[0] = 127;
      Seq_Saved = Flag_Off;
      Dlg_Kind.clear();
      File_Dlg.on_load = [&] {
        if (Dlg_Kind != "SaveAs_SEQ" || !row.dialog_saves) return;
        Seq_File = "c:\\a.seq";
        Seq_Save();
        FD_Done = Flag_On;
      };
      desktop.Expect_Box(row.answer, "Save actual SEQUENCE first?");
      if (is_new && row.answer == Answer::Yes && !row.goes_on) {
        desktop.Expect_Box(Answer::Ok, "Sequence not saved.");
      }
      is_new ? Menu_File_Seq_New() : Menu_File_Seq_Open();
      EXPECT_EQ(Dlg_Kind == "Open_SEQ", !is_new && row.goes_on);
      EXPECT_EQ(Seq_Data[0] == 0, is_new && row.goes_on);
      EXPECT_EQ(FD_Done, Flag_Off);
      Unload(File_Dlg);
    }
  }
  File_Dlg.on_load = nullptr;
}

}  // namespace
