#include "sequencer/sequencer_fixture.h"

TEST_F(Sequencer_Test, Opening_Sends_All_Notes_Off_And_Resets_Transposition_And_Direction) {
  Seq_Base_Note = 53;
  Menu_MIDI_Seq();
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  EXPECT_EQ(Seq_Base_Note, 48);
  desktop.Click(Sequencer.Seq_Directions[1]);
  User_Selected(Sequencer.Seq_Range, 4);
  User_Selected(Sequencer.Seq_Trans, 12);
  EXPECT_EQ(Seq_Base_Note, 84);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"}) << "only another range ends the old notes";
  User_Closes(Sequencer);
  EXPECT_EQ(Seq_Mode, Play_Mode::Forward);

  Open_Window();
  EXPECT_EQ(Seq_Base_Note, 72);
}

TEST_F(Sequencer_Test, A_Window_For_Which_Memory_Is_Short_Is_Told) {
  Sequencer.on_load = [] { throw Runtime_Error(Error_Out_Of_Memory); };
  desktop.Expect_Box(Answer::Ok, "Not enough memory to display the Sequencer Window.");
  Menu_MIDI_Seq();
}

TEST_F(Sequencer_Test, A_Press_Writes_The_Button_s_Note_Or_Empties_The_Cell) {
  Open_Window();
  std::int16_t& cell = Seq_Data[2 * 13 + 5];
  const std::array<int, 3> rows[] = {{0, Left_Button, 127},  {127, Left_Button, 0},
                                     {63, Left_Button, 127}, {127, Right_Button, 63},
                                     {63, Right_Button, 0},  {127, Middle_Button, 127}};
  for (const auto& [before, button, after] : rows) {
    cell = static_cast<std::int16_t>(before);
    Seq_Saved = Flag_On;
    desktop.Press(Sequencer.Seq_Matrix, button, 35.4F, 60.0F);
    EXPECT_EQ(cell, after);
    EXPECT_EQ(Seq_Saved, Flag_Off);
  }
  desktop.Press(Sequencer.Seq_Matrix, Left_Button, 94, 154);
  EXPECT_EQ(Seq_Data[103], 127);
  EXPECT_EQ(Sent(), Texts());
}

TEST_F(Sequencer_Test, The_Matrix_Tells_Its_Notes) {
  Open_Window();
  EXPECT_EQ(Sequencer.Seq_Matrix.spoken_value(), "empty");
  Seq_Data[12] = Seq_Strong;
  Seq_Data[0] = Seq_Soft;
  Seq_Data[2 * 13 + 8] = Seq_Strong;
  Seq_Data[2 * 13 + 7] = 5;  // a file's own value, which is drawn as empty
  EXPECT_EQ(Sequencer.Seq_Matrix.spoken_value(), "step 1: C strong, upper C soft; step 3: E strong");
}

TEST_F(Sequencer_Test, Without_MIDI_Or_A_Sequence_Nothing_Starts) {
  Open_Window();
  desktop.Click(Editor.ED_Seq_Start);
  Seq_Start_Play();
  Seq_Stop_For_Tone_Menu();
  Seq_Stop_For_Setup();
  MIDI_Enabled = 0;
  Menu_MIDI_CloseOutput();
  desktop.Click(Sequencer.Seq_Start);
  Seq_Start_Play();
  EXPECT_EQ(Seq_Running, Flag_Off);
  EXPECT_EQ(Sent(), Texts());
}

TEST_F(Sequencer_Test, Keys_Play_Until_The_Right_Button) {
  Open_Window();
  desktop.Click(Sequencer.Seq_Keys[1]);
  desktop.Click(Sequencer.Seq_Keys[12], Right_Button);
  const Picture raised = Sequencer.Seq_Keys[2].picture();
  service.Fail_Next("Out_Short", 68);
  desktop.Expect_Box(Answer::Ok);
  desktop.Press(Sequencer.Seq_Keys[2]);
  EXPECT_EQ(Sequencer.Seq_Keys[2].picture(), raised) << "the box takes the release";
  EXPECT_EQ(MIDI_Enabled, 0);
  for (Picture_Box* key : {&Sequencer.Seq_Keys[0], &Editor.Keys_Pic}) desktop.Click(*key);
  EXPECT_EQ(Sent(), (Texts{"90 31 7F", "B0 7B 00", "B0 7B 00"}));
}

TEST_F(Sequencer_Test, Letters_Choose_The_Transposition) {
  Open_Window();
  std::string chosen;
  const std::pair<int, int> keys[] = {{'C', 0}, {'C', 1}, {'C', 4}, {'D', 1}, {'D', 4},
                                      {'F', 1}, {'C', 3}, {'B', 1}, {'A', 2}, {'H', 0}};
  for (const auto& [key, shift] : keys) {
    desktop.Key(key, shift);
    chosen += Sequencer.Seq_Trans.Selected_Text() + " ";
    EXPECT_EQ(Seq_Base_Note, 48 + Sequencer.Seq_Trans.index());
  }
  EXPECT_EQ(chosen, "C C# C+ D# D F# F# B A B ");
  EXPECT_EQ(Sent(), Texts());  // old notes go on
}

TEST_F(Sequencer_Test, The_Little_Keyboard_Plays_A_Chord_Or_The_First_Step) {
  Seq_Data[13] = 127;  // of the second step
  desktop.Click(Editor.Keys_Pic);
  EXPECT_EQ(Sent(), (Texts{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
  desktop.Click(Editor.Keys_Pic, Right_Button);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  Seq_SendAllNotesOff();
  Seq_Data[12] = 63;
  desktop.Key(Key::Space);
  const Texts step = Sent();
  ASSERT_EQ(step.size(), 14U);
  EXPECT_EQ(step[1] + ", " + step.back(), "90 3C 00, 90 30 3F");
}
